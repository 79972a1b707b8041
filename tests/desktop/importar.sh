#!/usr/bin/env bash
# An airfoil of another program becomes the shape by keys and pointer alone: the file is chosen in the
# real dialog, its outline left and taken again by clicks in the picture. What is saved beside the
# source holds it to the last byte, and the source stays as it was.
. "$(dirname "$0")/desk.sh"

import_window="Importar"
colour="#1F5FBF" # of the first outline

open_window() {
    key alt+a
    key Up Up # the menu's last entry but one
    key Return
    keys_reach "$import_window"
}
# The topmost place of the outline's colour in the window, "X Y"; nothing where it is not drawn.
place_of_outline() {
    import -window "$(xdotool getactivewindow)" -depth 8 txt:- |
        awk -F '[,:]' -v colour="$colour" 'index($0, colour) && !found {print $1, $2; found = 1}'
}
outline_is_there() { [ -n "$(place_of_outline)" ]; }

log_in
printf '%s\n' "Cuna 12" "1 .01" ".75 .06" ".5 .1" ".25 .09" ".05 .04" "0 0" ".1 -.03" ".4 -.04" \
    ".7 -.02" "1 -.01" end >"$work/cuna.dat"
before=$(md5sum <"$work/cuna.dat")
start
keys_reach "$main_window"

open_window
key alt+e
await "Seleccione Fichero a Importar"
fill "$work/cuna.dat"
key Return
keys_reach "$import_window"
until_done outline_is_there || fail "the outline is not drawn"

read -r x y < <(place_of_outline)
changes click_at "$x" "$y" # left
key alt+a                  # so there is nothing to accept
until_done screen_rests
is_active "$import_window" || fail "nothing is taken, and the window is gone"
changes click_at "$x" "$y" # taken
key alt+a
keys_reach "$main_window"
save

{
    record "Fichero DAT(KMR)2002" "Cuna 12"
    record SLATEWORKS ""
    for point in "1 0.01" "0.75 0.06" "0.5 0.1" "0.25 0.09" "0.05 0.04" "0 0" "0.1 -0.03" \
        "0.4 -0.04" "0.7 -0.02" "1 -0.01" "1 0.01"; do record $point; done
    record "Puntos Sincronismo" ""
    record "" ""
    record 1 0.01
} >"$HOME/esperado.dat"
cmp "$HOME/esperado.dat" "$work/cuna-2.dat" || fail "another outline"
expect "$(md5sum <"$work/cuna.dat")" "$before" "the source"
leave
