#!/usr/bin/env bash
# Picks in FreeCAD's 3-D view on a profile as FreeCAD makes it: beside a corner, on it, twice in a
# row, and what Draft shows is afterwards as it was before. drive_picks.sh PICTURES
set -euo pipefail
command -v freecad >/dev/null || { echo "skipped: FreeCAD is not installed"; exit 77; }
pictures=$1
here=$(cd "$(dirname "$0")" && pwd)
sources=$here/../..

. "$sources/script/virtual_display.sh"
mkdir -p "$pictures"

look() { /usr/bin/python3 -B "$here/look.py" "$1"; }
is_there() { look "1" >/dev/null 2>&1; }
gives() { [[ $(look "$1" 2>/dev/null) == "$2" ]]; }
expect() {
    local found
    found=$(look "$1") || fail "$1 fails"
    [[ $found == "$2" ]] || fail "$1 is $found, not $2"
}
start() {
    dbus-daemon --session --nofork --print-address=3 3>"$display_folder/bus" 2>/dev/null &
    display_processes+=($!)
    until_done test -s "$display_folder/bus" || fail "no bus"
    DBUS_SESSION_BUS_ADDRESS=$(cat "$display_folder/bus")
    export DBUS_SESSION_BUS_ADDRESS
    "$sources/script/install-freecad-addon" >/dev/null
    LIBGL_ALWAYS_SOFTWARE=1 QTWEBENGINE_DISABLE_SANDBOX=1 \
        freecad "$here/drawing.py" >"$display_folder/freecad.log" 2>&1 &
    display_processes+=($!)
    until_done is_there || fail "no FreeCAD: $(cat "$display_folder/freecad.log")"
}
# Asks for a point as Velmora does; the answer goes into a file.
ask() {
    gdbus call --session --timeout 60 --dest org.velmora.Cad1 --object-path /org/velmora/Cad1 \
        --method org.velmora.Cad1.GetPoint "$1" "Punto" >"$display_folder/answer" 2>&1 &
    asked=$!
    display_processes+=("$asked")
    until_done gives "is_picking()" true || fail "FreeCAD asks for no point"
    sleep 0.5
}
# pick DOCUMENT X Y RIGHT DOWN ANSWER: clicks so many pixels beside a place of the drawing.
pick() {
    ask "$1"
    xdotool mousemove $(look "pixel_of($2, $3)") mousemove_relative -- "$4" "$5"
    sleep 0.7
    [ -z "${7:-}" ] || picture "$pictures/$7.png"
    xdotool click 1
    wait "$asked" || true
    [[ $(cat "$display_folder/answer") == "([$6],)" ]] ||
        fail "beside ($2, $3) by ($4, $5) picked $(cat "$display_folder/answer"), not $6"
}

start_display 1600x1000
start
until_done gives "velmora_menu()" '["waiting for Velmora", "Send selection"]' || fail "the menu shows $(look "velmora_menu()") in state $(look "__import__('velmora_cad.service').service.state()")"
expect "use_workbench('PartWorkbench')" PartWorkbench
expect "velmora_menu()[1]" "Send selection"
expect "closed_wire()" ala
look "show_all()" >/dev/null
sleep 1
before=$(look "draft_state()")
pick ala 7 7 3 2 "7.0, 7.0" 1-beside
expect "begins('ala')" "[7.0, 7.0]"
pick ala 7 7 0 0 "7.0, 7.0"
pick ala 40 0 -3 -2 "40.0, 0.0"
pick ala 0 30 2 3 "0.0, 30.0" 2-another
expect "begins('ala')" "[0.0, 30.0]"
until_done gives "draft_state()" "$before" || fail "Draft shows $(look "draft_state()"), not $before"
picture "$pictures/3-after.png"

expect "velmora_menu()[0]" "Velmora has left"
expect "send_selected('Wire')" Wire

# Esc gives up, and what Draft shows is put back then too.
ask ala
xdotool key Escape
wait "$asked" || true
grep -q 'E80004004' "$display_folder/answer" || fail "Esc answers $(cat "$display_folder/answer")"
until_done gives "draft_state()" "$before" || fail "after Esc Draft shows $(look "draft_state()")"

# A section that stands upright is picked in its own plane.
expect "upright_wire()" pie
look "show_all('ViewFront')" >/dev/null
sleep 1
ask pie
xdotool mousemove $(look "pixel_of(7, 5, 7)") mousemove_relative -- 3 2
sleep 0.7
xdotool click 1
wait "$asked" || true
[[ $(cat "$display_folder/answer") == "([7.0, 7.0],)" ]] || fail "upright: $(cat "$display_folder/answer")"
