#!/usr/bin/env bash
# Where the keys go when a window has come up or gone by itself: side windows never take them, boxes
# and dialogs give them back.
. "$(dirname "$0")/desk.sh"

# What the keys reach acts: the shape is mirrored and written.
acts() {
    keys_reach "$main_window"
    key F9
    save
    expect_outline "$work/octogono.dat" "$1"
}
mirrored="0,0 -4,0 -6,2 -6,6 -4,8 0,8 2,6 2,2"
notice() {
    await "Velmora"
    answer Return
}
workbench="Ajuste de ficheros*"
load_side() {
    await "Seleccione Fichero a Abrir"
    fill "$work/octogono.dat"
    key Return
    keys_reach "$workbench"
}

log_in
lay_octagon
start
keys_reach "$main_window"
key F12 # no shape yet
notice
keys_reach "$main_window"
open_shape "$work/octogono.dat"
acts "$mirrored"
choose 5 1
acts "$octagon"
choose 5 2
acts "$mirrored"

key ctrl+n
keys_reach "Nueva Forma"
key Escape
acts "$octagon"

choose 3 2
notice
keys_reach "$workbench"
press 0
load_side
press 4
load_side
press 4
keys_reach "Opciones del Ajuste"
key alt+F4
notice
keys_reach "$workbench"
key alt+s
acts "$mirrored"
leave
