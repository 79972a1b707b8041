#!/usr/bin/env bash
# A German machine: figures with a comma come in by the number pad, files go out with dots, and what
# stands in a folder without permission to write opens too.
. "$(dirname "$0")/desk.sh"

# A piece with as many records as the reader looks into, by its points.
lay_points() {
    record "Fichero DAT(KMR)2002" Medio
    record SLATEWORKS ""
    for point in "$@" "$1"; do record $point; done
    record "Puntos Sincronismo" ""
    record "" ""
    record $1
    record $2
}
drawn() { lay_points "0 0" "2.5 0" "4.5 2" "4.5 4" "3 5.5" "1.5 5" "1 4.5" "0.5 2"; }
scaled() { lay_points "0 0" "5 0" "9 6" "9 12" "6 16.5" "3 15" "2 13.5" "1 6"; }
# The last line end goes with the commas.
expect_bytes() { head -c -2 | cmp - "$1" || fail "$1 has $(outline "$1")"; }

log_in
speak de_DE
mkdir "$work/solo"
drawn >"$work/solo/medio.dat"
drawn >"$work/medio.dat"
chmod -R a-w "$work/solo"
start
setxkbmap de

open_shape "$work/medio.dat"
keys_reach "$main_window"
choose 2 8
await "Escalar a X,Y"
key Tab 77 ctrl+a 81 Tab ctrl+a 87 85 91 84 # Num Lock, 9, 16,5
key Tab space Escape 77 # accepts, leaves
keys_reach "$main_window"
save
scaled | expect_bytes "$work/medio.dat"

open_shape "$work/solo/medio.dat"
keys_reach "$main_window"
save_shape_as "$work/otra.dat"
answer Return
keys_reach "$main_window"
drawn | expect_bytes "$work/otra.dat"
leave
