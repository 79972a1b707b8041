#!/usr/bin/env bash
# Opens by the dialog: by a whole path, by a name in the dialog's folder, by the pointer; leaves it by
# Esc. The keys act on the shape at once.
. "$(dirname "$0")/desk.sh"

dialog() {
    key ctrl+a
    await "Seleccione Fichero a Abrir"
}
# Made positive and written by keys alone.
comes_to() {
    keys_reach "$main_window"
    key F6
    save
    expect_outline "$1" "$2"
}

log_in
lay flecha.dat
lay cuadrado.dat
start
keys_reach "$main_window"

open_shape "$work/flecha.dat"
comes_to "$work/flecha.dat" "3,0 7,2 4,5 0,2"

dialog
xdotool type cuadrado.dat
key Return
comes_to "$work/cuadrado.dat" "0,0 100,0 100,50 0,50"

dialog
key Escape
keys_reach "$main_window"
key F9
save
expect_outline "$work/cuadrado.dat" "0,0 -100,0 -100,50 0,50"
leave
