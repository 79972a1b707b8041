#!/usr/bin/env bash
# The list of coordinates from the keyboard: arrows, Page, Home and End change the row and select its
# point, and the focus stays; Enter hands the point to the canvas, as a click does.
. "$(dirname "$0")/desk.sh"

mark() { key Return s; }
into_list() { key Tab Tab Tab; } # from the canvas by the two boxes

log_in
lay_octagon
start
open_shape "$work/octogono.dat"
click_row 0

into_list
key Down Down
mark
into_list
key Up
mark
into_list
key End Up
mark
into_list
key Home Down Down Down
mark
save
expect_outline "$work/octogono.dat" "$octagon"
expect "$(sync_points "$work/octogono.dat")" "0,0 4,0 6,2 6,6 -2,6" "sync points"

# Without Enter the point is selected all the same: the canvas, reached by Tab, acts on it.
into_list
key Home Tab s
save
expect "$(sync_points "$work/octogono.dat")" "4,0 6,2 6,6 -2,6" "sync points"
leave
