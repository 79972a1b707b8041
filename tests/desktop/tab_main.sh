#!/usr/bin/env bash
# Tab through the main window, forwards and backwards: the view stays where it is, and the canvas has
# the keys again.
. "$(dirname "$0")/desk.sh"

log_in
lay_octagon
start
open_shape "$work/octogono.dat"
click_row 2
until_done screen_rests || fail "the screen never rests"
before=$(canvas_picture)
for tab in Tab shift+Tab; do
    for _ in 1 2 3 4; do
        key "$tab"
        until_done screen_rests || fail "the screen never rests"
        expect "$(canvas_picture)" "$before" "the canvas"
    done
done
key n s
save
expect_outline "$work/octogono.dat" "$octagon"
expect "$(sync_points "$work/octogono.dat")" "0,0 6,6" "sync points"
leave
