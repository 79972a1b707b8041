#!/usr/bin/env bash
# Esc ends the reading of a file, and the shape of before is the one that is saved.
. "$(dirname "$0")/desk.sh"

log_in
lay_octagon
{
    echo Larga
    seq 4000000 | awk '{print $1 / 1000, "1.25"}'
} >"$work/larga.dat"
start
open_shape "$work/octogono.dat"
keys_reach "$main_window"
key ctrl+a
await "Seleccione Fichero a Abrir"
xdotool type -- "$work/larga.dat"
xdotool key Return
sleep 0.7
key Escape
until_done focus_is_in "$main_window" || fail "the main window does not come back"
until_done screen_rests || fail "it reads on"
save_shape_as "$work/otra.dat"
answer Return
keys_reach "$main_window"
expect_outline "$work/otra.dat" "$octagon"
leave
