#!/usr/bin/env bash
# FreeCAD and the program, both with their windows, on one virtual display and one private bus:
# capture, a pick with the mouse in the 3-D view, one given up, and the way back.
#
# drive_windows.sh PROGRAM PICTURES
set -euo pipefail
program=$1
pictures=$2
here=$(cd "$(dirname "$0")" && pwd)
sources=$here/../..

. "$sources/script/virtual_display.sh"
mkdir -p "$pictures"

start_bus() {
    dbus-daemon --session --nofork --print-address=3 3>"$display_folder/bus" 2>/dev/null &
    display_processes+=($!)
    until_done test -s "$display_folder/bus" || fail "no bus"
    DBUS_SESSION_BUS_ADDRESS=$(cat "$display_folder/bus")
    export DBUS_SESSION_BUS_ADDRESS
}

look() { /usr/bin/python3 -B "$here/look.py" "$1"; }
is_there() { look "1" >/dev/null 2>&1; }
start_freecad() {
    mkdir -p "$XDG_CONFIG_HOME/FreeCAD"
    cp "$here/windows.cfg" "$XDG_CONFIG_HOME/FreeCAD/user.cfg"
    "$sources/script/install-freecad-addon" >/dev/null
    LIBGL_ALWAYS_SOFTWARE=1 QTWEBENGINE_DISABLE_SANDBOX=1 \
        freecad "$here/drawing.py" >"$display_folder/freecad.log" 2>&1 &
    freecad=$!
    display_processes+=("$freecad")
    until_done is_there || fail "no FreeCAD: $(cat "$display_folder/freecad.log")"
}

has_main_window() { xdotool search --onlyvisible --name '^Velmora 1.0 \(' >/dev/null 2>&1; }
has_no_main_window() { ! has_main_window; }
# A key that comes before the toolkit has taken the focus over goes astray.
main_window_to_front() {
    until_done is_no_box || fail "a box stays"
    xdotool search --name '^Velmora 1.0 \(' windowactivate --sync 2>/dev/null
    await "Velmora 1.0 (*"
    sleep 0.5
}
is_no_box() { [[ $(active_title) != Velmora && $(active_title) != "Velmora 1.0" ]]; }
expect() {
    local found
    found=$(look "$1") || fail "$1 fails"
    [[ $found == "$2" ]] || fail "$1 is $found, not $2"
}
gives() { [[ $(look "$1" 2>/dev/null) == "$2" ]]; }
pick_starts() {
    xdotool key F3
    await "FreeCAD*"
    until_done gives "is_picking()" true || fail "FreeCAD asks for no point"
}
# A part of the coordinate list, as it looks on the screen.
list_picture() { import -window root -crop 230x500+220+260 -depth 8 rgb:- | md5sum; }
list_is_painted() { [[ $(list_picture) == "$before" ]]; }
list_is_covered() { ! list_is_painted; }
gone() { ! kill -0 "$1" 2>/dev/null; }
# What a capture says: the strays, then the question for the scale, answered with No.
answer_boxes() {
    await "Velmora 1.0"
    xdotool key Return
    await "Velmora"
    xdotool key Tab Return
    main_window_to_front
}
await_wrong_point() {
    until_done is_active "Velmora" || fail "no box after $1"
    picture "$2"
    xdotool key Return
    main_window_to_front
}

start_display 1600x1000
start_bus
mkdir -p "$display_folder/work" "$XDG_CONFIG_HOME/Velmora"
printf '[Values]\nDef_Zoom=15\n' >"$XDG_CONFIG_HOME/Velmora/Velmora.conf"
start_program "$program" "$display_folder/work"
start_freecad
expect "plate()" pieza
look "show_all()" >/dev/null
sleep 1
picture "$pictures/1-freecad.png"

# Reconectar Acad is the first entry of its menu that can be chosen yet.
main_window_to_front
xdotool key alt+a Right Right Right Right
sleep 0.5
picture "$pictures/2-menu.png"
xdotool key Return F2
await "Velmora 1.0"
expect "painted()" '["Stray"]'
picture "$pictures/3-strays.png"
answer_boxes
sleep 0.5
picture "$pictures/4-captured.png"

# The point is picked beside the corner, which the snapper finds.
pick_starts
xdotool mousemove $(look "pixel_of(50.5, 30.5)") mousemove_relative 3 2
sleep 0.5
picture "$pictures/5-pick.png"
xdotool click 1
answer_boxes
expect "sorted(painted())" '["Hole", "Last", "Stray"]'
picture "$pictures/6-picked.png"

xdotool key F4
until_done gives "sent()[:6] == [50.5, 30.5, 50.5, 10.5, 10.5, 10.5]" true || fail "not sent"
await "FreeCAD*"
until_done has_no_main_window || fail "the main window is in the way"
sleep 0.5
picture "$pictures/7-sent.png"

# The windows paint themselves while the pick waits, and Esc gives it up.
main_window_to_front
before=$(list_picture)
pick_starts
list_is_covered || fail "FreeCAD is not in front"
xdotool search --name '^Velmora 1.0 \(' windowraise
until_done list_is_painted || fail "the main window is not painted during a pick"
xdotool key Escape
await_wrong_point "Esc" "$pictures/8-given-up.png"
expect "is_picking()" false

pick_starts
look "close(FreeCAD.ActiveDocument.Name)" >/dev/null
await_wrong_point "the document closed" "$pictures/9-document-closed.png"
expect "is_picking()" false

xdotool key alt+a Right Right Right Right Down Return
pick_starts
kill -KILL "$freecad"
{ wait "$freecad"; } 2>/dev/null || true
await_wrong_point "FreeCAD ended" "$pictures/10-freecad-ended.png"
xdotool key alt+F4
until_done gone "$running" || fail "the program does not end"
