#!/usr/bin/env bash
# Opens from the list of recent files, of this run and of the one before it: the keys act at once,
# and the list puts the file first.
. "$(dirname "$0")/desk.sh"

log_in
lay flecha.dat
lay_octagon
start
open_shape "$work/flecha.dat"
open_shape "$work/octogono.dat"
await_setting RecentFile1 "$work/octogono.dat"

take_recent 2
await_setting RecentFile1 "$work/flecha.dat"
keys_reach "$main_window"
key F6
save
expect_outline "$work/flecha.dat" "3,0 7,2 4,5 0,2"
leave

start
take_recent 2
await_setting RecentFile1 "$work/octogono.dat"
keys_reach "$main_window"
key F6
save
expect_outline "$work/octogono.dat" "2,0 6,0 8,2 8,6 6,8 2,8 0,6 0,2"
leave
