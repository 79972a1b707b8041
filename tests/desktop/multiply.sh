#!/usr/bin/env bash
# The factor of points is the one that was typed: no longer one that begins alike takes its place.
. "$(dirname "$0")/desk.sh"

multiply() {
    choose 2 3
    await "Multiplicar Puntos de la Forma"
    fill "$1"
    key Return
    keys_reach "$main_window"
    save
    expect "$(outline "$work/flecha.dat" | wc -w)" "$2" "points"
}

log_in
lay flecha.dat
start
open_shape "$work/flecha.dat"
multiply 1 4
multiply 2 8
multiply 10 80
leave
