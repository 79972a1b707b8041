#!/usr/bin/env bash
# Ctrl is up again when its release went to another window, and pressed alone it is no key.
. "$(dirname "$0")/desk.sh"

log_in
lay_octagon
start
open_shape "$work/octogono.dat"
click_row 3

xdotool keydown Control_L key a
await "Seleccione Fichero a Abrir"
xdotool keyup Control_L
key Escape
keys_reach "$main_window"

# Points put in by hand, before the one selected.
changes key Menu
key Down Down Down Down Down Return
changes click_at 500 300
changes click_at 560 340
key Escape
save
expect "$(outline "$work/octogono.dat" | wc -w)" 10 "points"
expect "$(sync_points "$work/octogono.dat")" "0,0" "sync points"

click_row 3
changes key ctrl+o
xdotool keydown Control_L key a
await "Seleccione Fichero a Abrir"
xdotool keyup Control_L
key Escape
keys_reach "$main_window"
leave
