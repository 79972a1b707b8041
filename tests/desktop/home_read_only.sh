#!/usr/bin/env bash
# A home folder that cannot be written: the program has its texts, opens, and saves where it may.
. "$(dirname "$0")/desk.sh"

log_in
work=$display_folder/elsewhere
mkdir "$work"
lay_octagon
unset XDG_DATA_HOME XDG_CONFIG_HOME XDG_CACHE_HOME XDG_STATE_HOME
chmod -R a-w "$HOME"
start
keys_reach "Velmora 1.0 (1011) - Coordenadas*"
key F6 # without a shape a message says so
await "Velmora"
answer Return
open_shape "$work/octogono.dat"
keys_reach "$main_window"
key F6
save
expect_outline "$work/octogono.dat" "2,0 6,0 8,2 8,6 6,8 2,8 0,6 0,2"
leave
