#!/usr/bin/env bash
# Starts the real program on a virtual display with a window manager and drives it with real key and
# pointer events, from the start window to a written file; then compares the file's bytes.
#
# drive_program.sh PROGRAM FIXTURES PICTURES
set -euo pipefail
program=$1
fixtures=$2
pictures=$3

folder=$(mktemp -d "${TMPDIR:-/tmp}/velmora-xvfb-XXXXXX")
started=()
clean() {
    for process in "${started[@]}"; do
        kill "$process" 2>/dev/null || true
    done
    wait 2>/dev/null || true
    rm -rf "$folder"
}
trap clean EXIT

mkdir -p "$folder"/{home,work,run} "$pictures"
chmod 700 "$folder/run"
unset WAYLAND_DISPLAY DBUS_SESSION_BUS_ADDRESS QT_STYLE_OVERRIDE
export HOME=$folder/home XDG_RUNTIME_DIR=$folder/run
export XDG_DATA_HOME=$HOME/data XDG_CONFIG_HOME=$HOME/config XDG_CACHE_HOME=$HOME/cache
export XDG_STATE_HOME=$HOME/state XDG_CURRENT_DESKTOP=
export QT_QPA_PLATFORM=xcb LC_ALL=C.UTF-8
cp "$fixtures/flecha.dat" "$folder/work/flecha.dat"

fail() {
    picture failed || true
    echo "drive_program: $*" >&2
    exit 1
}

# Waits until a command succeeds; gives up after 30 seconds.
until_done() {
    for _ in $(seq 300); do
        "$@" && return 0
        sleep 0.1
    done
    return 1
}

picture() { import -window root "$pictures/$1.png"; }
active_title() { xdotool getactivewindow getwindowname 2>/dev/null; }
is_active() { [[ $(active_title) == $1 ]]; }
await() { until_done is_active "$1" || fail "no window '$1', but '$(active_title)'"; }
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

Xvfb -displayfd 3 -screen 0 1280x1024x24 -nolisten tcp -noreset 3>"$folder/display" 2>"$folder/xvfb.log" &
started+=($!)
until_done test -s "$folder/display" || fail "no display"
DISPLAY=:$(cat "$folder/display")
export DISPLAY
setxkbmap es # so that ñ is a key of its own
openbox >"$folder/openbox.log" 2>&1 &
started+=($!)
until_done xdotool get_desktop >/dev/null 2>&1 || fail "no window manager"

(cd "$folder/work" && exec "$program") 2>"$folder/program.log" &
running=$!
started+=("$running")

# The start window goes at a click.
splash=$(until_done xdotool search --onlyvisible --pid "$running" | tail -n 1) || fail "no start"
picture 1-start
eval "$(xdotool getwindowgeometry --shell "$splash")"
xdotool mousemove $((X + WIDTH / 2)) $((Y + HEIGHT / 2)) click 1

# No CAD is running, says a box in front of the main window.
await "Velmora"
picture 2-no-cad
xdotool key Return
await "Velmora 1.0 (1011)*"

# Open: the path is typed into the dialog.
xdotool key ctrl+a
await "Seleccione Fichero a Abrir"
xdotool type "$folder/work/flecha.dat"
picture 3-open
xdotool key Return
await "Velmora 1.0 (1011)*"
until_done grep -rqs flecha.dat "$XDG_CONFIG_HOME" || fail "no recent file after the load"
picture 4-loaded

# Positive, then mirrored and positive again.
transform F6
transform F9
transform F6

# Save as: path, description, and the box that tells of the file.
xdotool key F12
await "Fichero a generar"
xdotool key ctrl+a
xdotool type "$folder/work/nueva.dat"
xdotool key Return
await "Velmora 1.0"
xdotool key ctrl+a
xdotool type "Año nuevo"
picture 5-description
xdotool key Return
until_done test -s "$folder/work/nueva.dat" || fail "no file was written"
await "Velmora 1.0"
picture 6-written
xdotool key Return
await "Velmora 1.0 (1011)*"

record() { printf '%-21s%-21s\r\n' "$1" "$2"; }
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
} >"$folder/expected.dat"
cmp "$folder/expected.dat" "$folder/work/nueva.dat" || fail "the file differs"

# The close box ends the program without a question.
xdotool key alt+F4
until_done gone "$running" || fail "the program does not end"
wait "$running" || fail "the program ended with status $?"
