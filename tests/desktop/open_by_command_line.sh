#!/usr/bin/env bash
# A file named on the command line, from the folder that it lies in, is there once the box of the
# start is answered, and the keys act on it.
. "$(dirname "$0")/desk.sh"

log_in
lay_octagon
run_program "$VELMORA" "$work" "" octogono.dat
await_setting RecentFile1 "$work/octogono.dat"
keys_reach "$main_window"
key F6
save
expect_outline "$work/octogono.dat" "2,0 6,0 8,2 8,6 6,8 2,8 0,6 0,2"
leave
