#!/usr/bin/env bash
# Starts the real program on a virtual display with a window manager and drives it with real key and
# pointer events, from the start window to a written file; then compares the file's bytes.
#
# drive_program.sh PROGRAM FIXTURES PICTURES
set -euo pipefail
program=$1
fixtures=$2
pictures=$3

. "$(dirname "$0")/../../script/virtual_display.sh"
. "$(dirname "$0")/sync_file.sh"
mkdir -p "$pictures"
work=$display_folder/work
mkdir "$work"
cp "$fixtures/flecha.dat" "$work/flecha.dat"

gone() { ! kill -0 "$1" 2>/dev/null; }
# The coordinate list as it looks. A command is over once it shows what the command did.
list_picture() { import -window root -crop 320x560+40+240 -depth 8 rgb:- | md5sum; }
list_differs() { [[ $(list_picture) != "$1" ]]; }
transform() {
    local before
    before=$(list_picture)
    xdotool key "$1"
    until_done list_differs "$before" || fail "$1 changes nothing"
}

start_display 1280x1024
setxkbmap es # so that ñ is a key of its own
start_program "$program" "$work" "$pictures/1-start.png"
picture "$pictures/2-main.png"

open_shape "$work/flecha.dat"
until_done grep -rqs flecha.dat "$XDG_CONFIG_HOME" || fail "no recent file after the load"
picture "$pictures/3-loaded.png"

# Positive, then mirrored and positive again.
transform F6
transform F9
transform F6

save_shape_as "$work/nueva.dat" "Año nuevo"
picture "$pictures/4-written.png"
answer Return
await "Velmora 1.0 (1011)*"

{
    record "Fichero DAT(KMR)2002" "Ano nuevo" | sed 's/Ano/A\xf1o/'
    record SLATEWORKS ""
    record 4 0
    record 0 2
    record 3 5
    record 7 2
    record 4 0
    record "Puntos Sincronismo" ""
    record "" ""
    record 0 2
} >"$display_folder/expected.dat"
cmp "$display_folder/expected.dat" "$work/nueva.dat" || fail "the file differs"

# The close box ends the program without a question.
xdotool key alt+F4
until_done gone "$running" || fail "the program does not end"
wait "$running" || fail "the program ended with status $?"
