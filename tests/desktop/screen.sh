#!/usr/bin/env bash
# A small screen: every window of the start is on it, frame and status bar too.
#
# screen WIDTHxHEIGHT
. "$(dirname "$0")/desk.sh"

expect_on_screen() {
    local window=$1 place
    xdotool windowactivate --sync "$window"
    place=$(frame_place)
    read -r width height x y <<<"$(tr 'x+' '  ' <<<"$place")"
    ((x >= 0 && y >= 0 && x + width <= screen_width && y + height <= screen_height)) ||
        fail "'$(xdotool getwindowname "$window")' takes $place of $screen"
}

screen=$1
screen_width=${screen%x*}
screen_height=${screen#*x}
log_in "$screen"
lay_octagon
start
open_shape "$work/octogono.dat"
for title in "Velmora 1.0" Info "Opciones Generales"; do
    expect_on_screen "$(xdotool search --onlyvisible --name "^$title")"
done
