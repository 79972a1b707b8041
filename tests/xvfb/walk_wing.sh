#!/usr/bin/env bash
# Walks the wing of the guide with real key and pointer events: what is entered is what the guide's
# Spanish page says, and each file that comes out is held against the page's numbers. Leaves a picture
# a step. AIRFOILS has the published airfoils that the page names, "GOE 496" as goe496.dat.
#
# walk_wing.sh PROGRAM PAGE AIRFOILS FILES PICTURES
set -euo pipefail
program=$1
page=$2
airfoils=$3
files=$4
pictures=$5

for airfoil in goe496 goe100; do
    [ -r "$airfoils/$airfoil.dat" ] || { echo "Skipped: no $airfoil.dat in $airfoils"; exit 77; }
done
. "$(dirname "$0")/../../script/virtual_display.sh"
. "$(dirname "$0")/sync_file.sh"
. "$(dirname "$0")/road.sh"
mkdir -p "$files" "$pictures"
rm -f "$files"/*.dat "$files"/*.DAT "$pictures"/{wing-*,failed}.png

guide=$(sed 's/<[^>]*>//g' "$page" | tr -s ' \n' ' ')
# What stands in the page at the parentheses of a pattern.
said() {
    [[ $guide =~ $1 ]] || fail "the guide does not say '$1'"
    echo "${BASH_REMATCH[*]:1}"
}
zoom=$(said 'pon ([0-9]+) en Valor del zoom inicial')
read -r root tip < <(said 'la raíz es ([A-Z]+ [0-9]+) y la punta ([A-Z]+ [0-9]+)' |
    sed 's/\([A-Z]\) /\1/g')
read -r root_percent < <(said 'Porcentaje: ([0-9]+) en X y en Y')
read -r root_end root_chord < <(said 'pulsa la fila ([0-9]+) de la lista de coordenadas, ([0-9]+) y 0')
root_nose=$(said 'la fila con la X menor, aquí la ([0-9]+), con 0 y 0')
read -r tip_percent tip_end tip_nose tip_file < <(
    said 'otro perfil: ([0-9]+) por ciento, filas ([0-9]+) y ([0-9]+), nombre ([a-z]+)\.dat')
root_file=$(said 'Guardar Como \(F12\), nombre ([a-z]+)\.dat')
read -r root_points tip_points < <(said 'la raíz tiene ([0-9]+), la punta ([0-9]+)')
x=$(said 'de la torre al lado A, menos Z ?[0-9]+ - [0-9]+ = ([0-9]+)')
y=$(said 'del lado B a la otra torre, menos Z ?[0-9]+ - [0-9]+ = ([0-9]+)')
z=$(said 'del lado A al lado B ?([0-9]+)')
read -r chord_a chord_b < <(
    said 'A2: [0-9]+ \+ [0-9]+ × [0-9]+ / [0-9]+ = ([0-9]+), y B2: [^=]*= ([0-9]+)\.')
tip_chord=$((tip_percent / 100))

# The list of coordinates as it looks: a command is over once it shows what the command did.
list_sum() { import -window root -crop 280x560+60+180 -depth 8 rgb:- | md5sum; }
list_differs() { [[ $(list_sum) != "$1" ]]; }

# A published airfoil, scaled in percent, its edges marked, saved.
make_side() { # AIRFOIL PERCENT ROW_OF_END ROW_OF_NOSE FILE PICTURE
    cp "$airfoils/${1,,}.dat" "$files"
    open_shape "$files/${1,,}.dat"
    functions 8
    await "Escalar a X,Y"
    changes click_at 199 22
    click_at 285 80
    fill "$2"
    key Tab
    fill "$2"
    shot "$6-percent"
    local before
    before=$(list_sum)
    key alt+a
    until_done list_differs "$before" || fail "the scale changes nothing"
    key Escape
    await "$main_window"
    for row in "$3" "$4"; do
        changes click_at 61 $((103 + 16 * row))
        changes key s
    done
    save_shape_as "$files/$5.dat" "${1%%[0-9]*} ${1##*[A-Z]}"
    box_shot "$6-saved"
    answer Return
    await "$main_window"
}
# The saved side is the published airfoil, point by point, in percent.
is_scaled() { # SIDE AIRFOIL PERCENT POINTS
    diff <(sed 1d "$airfoils/${2,,}.dat" | awk -v by="$3" '{ printf "%.4f %.4f\n", $1 * by / 100,
            $2 * by / 100 }' | sed 's/-\(0\.0*\)$/\1/' | head -n "$4") \
        <(outline_of "$files/$1.dat" | awk '{ printf "%.4f %.4f\n", $1, $2 }' | head -n "$4") ||
        fail "$1 is not $2 at $3 percent"
}
points() { (($(outline_of "$1" | wc -l) - 1 == $2)) || fail "$1 has not $2 points"; }
# The chord, from the smallest X to the largest.
chord() {
    outline_of "$1" | awk 'NR == 1 || $1 < a { a = $1 } NR == 1 || $1 > b { b = $1 }
        END { printf "%.3f\n", b - a }'
}
expect_chord() {
    [[ $(chord "$1") == "$2.000" ]] || fail "$1 has a chord of $(chord "$1"), not $2"
}
# A result's chord, from the mark of its trailing edge to that of its leading edge: between the marks
# the wire's ends may swing out farther.
expect_marks() {
    local marks
    marks=$(sync_points_of "$1" | awk '{ printf "%.3f ", $1 }')
    [[ $marks == "$2.000 0.000 " ]] || fail "$1 has its marks at $marks, not at $2 and 0"
}
# The wire, straight from a point of A2 to its fellow of B2, passes every point of a side that lies so
# far from the first tower; no side has others between them.
wire_meets() { # SIDE DISTANCE
    paste <(outline_of "$files/${root_file}2.DAT") <(outline_of "$files/${tip_file}2.DAT") |
        awk -v part="$2" -v whole="$((x + z + z + y + z))" '
            NR == FNR { px[NR] = $1; py[NR] = $2; many = NR; next }
            { at = part / whole; wx = $1 + ($3 - $1) * at; wy = $2 + ($4 - $2) * at
              for (i = 1; i <= many; ++i)
                  if ((wx - px[i]) ^ 2 + (wy - py[i]) ^ 2 < 0.002 ^ 2) met[i] = 1 }
            END { for (i = 1; i <= many; ++i) if (!met[i]) { print px[i], py[i]; bad = 1 } exit bad }
        ' <(outline_of "$1") - || fail "the wire misses the points above of $1"
}
open_result() {
    open_shape "$files/$1" "$2"
    [[ $2 == "$main_window" ]] || { answer alt+n && await "$main_window"; }
    until_done grep -rqs "$1" "$XDG_CONFIG_HOME" || fail "no recent file after the load"
}

start_display 1280x900
start_program "$program" "$files"
main_place=$(frame_place)
set_zoom "$zoom" wing-01-parameters
keep_all_points wing-02-options
make_side "$root" "$root_percent" "$root_end" "$root_nose" "$root_file" wing-03
make_side "$tip" "$tip_percent" "$tip_end" "$tip_nose" "$tip_file" wing-04
check_side "$files/$root_file.dat" "GOE" "$root_chord"
is_scaled "$root_file" "$root" "$root_percent" "$root_points"
is_scaled "$tip_file" "$tip" "$tip_percent" "$tip_points"
points "$files/$root_file.dat" "$root_points"
points "$files/$tip_file.dat" "$tip_points"
expect_chord "$files/$root_file.dat" "$root_chord"
expect_chord "$files/$tip_file.dat" "$tip_chord"
tools 2
await_workbench
load_sides "$root_file" "$tip_file" wing-05-sides
set_distances "$x" "$y" "$z" wing-06-distances
adjust wing-07-matched
save_results "${tip_file}2.DAT"
expect_marks "$files/${root_file}2.DAT" "$chord_a"
expect_marks "$files/${tip_file}2.DAT" "$chord_b"
wire_meets "$files/$root_file.dat" $((x + z))
wire_meets "$files/$tip_file.dat" $((x + z + z))
open_result "${root_file}2.DAT" "$main_window"
wide_shot wing-08-opened-again
