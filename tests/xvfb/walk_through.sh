#!/usr/bin/env bash
# Walks the whole road with real key and pointer events: a text becomes the two sides of a piece,
# the workbench makes them match, and the result is opened again. Checks what every step shows and
# every file that it writes, and leaves a picture a step.
#
# walk_through.sh PROGRAM FILES PICTURES
set -euo pipefail
program=$1
files=$2
pictures=$3

. "$(dirname "$0")/../../script/virtual_display.sh"
. "$(dirname "$0")/sync_file.sh"
. "$(dirname "$0")/road.sh"
mkdir -p "$files" "$pictures"
rm -f "$files"/letra_*.dat "$files"/letra_*.DAT "$pictures"/{[0-9][0-9]-*,failed}.png

# The fonts of the package that the build installs, upright, so that every machine shows the same
# list: DejaVu Sans is its first, Bold the first of its styles.
few_fonts() {
    export FONTCONFIG_FILE=$display_folder/fonts.conf
    cat >"$FONTCONFIG_FILE" <<'XML'
<?xml version="1.0"?>
<!DOCTYPE fontconfig SYSTEM "fonts.dtd">
<fontconfig>
  <dir>/usr/share/fonts/truetype/dejavu</dir>
  <cachedir prefix="xdg">fontconfig</cachedir>
  <include ignore_missing="yes">/etc/fonts/conf.d</include>
  <selectfont>
    <rejectfont>
      <glob>*Oblique.ttf</glob>
      <glob>*Italic.ttf</glob>
      <glob>*Condensed*</glob>
      <glob>*ExtraLight*</glob>
      <glob>*TeXGyre*</glob>
    </rejectfont>
  </selectfont>
</fontconfig>
XML
}

choose_font() {
    key alt+f
    await "Seleccionar un tipo de letra"
    key Home Tab
    changes key Home
    eval "$(xdotool getactivewindow getwindowgeometry --shell | grep WIDTH)"
    click_at $((WIDTH - 40)) 36
    fill "$1"
    shot 03-font
    key Return
    await "Forma desde Texto"
}

text_to_shape() {
    tools 1
    await "Forma desde Texto"
    changes xdotool type "$1"
    choose_font "$2"
    shot 04-text
    key alt+c
    await "$main_window"
}

multiply_points() {
    functions 3
    await "Multiplicar Puntos de la Forma"
    fill "$1"
    wide_shot 05-more-points
    key Return
    await "$main_window"
}

scale_to() {
    functions 8
    await "Escalar a X,Y"
    key Tab
    fill "$1"
    key Tab
    fill "$2"
    key alt+a
    wide_shot 06-scale
    key Escape
    await "$main_window"
}

# The number and the place of the point under the pointer stand beside it, on pale yellow.
point_under_pointer() {
    xdotool mousemove "$1" "$2"
    sleep 0.1
    [[ $(import -window root -crop "1x1+$(($1 + 12))+$(($2 + 12))" png:- |
        convert - -format '%[fx:(r>0.95)&&(b<0.92)]' info:) == 1 ]]
}

# The places on the screen where the letter C ends at the right, the upper one and the lower one,
# from the last column of black. A point's circle is six pixels wide, and four high at its side.
find_corners() {
    xdotool mousemove 380 230 # where no label stands in the way
    picture "$display_folder/screen.png"
    read -r corner_x upper lower < <(
        convert "$display_folder/screen.png" -crop 120x560+600+220 +repage -depth 8 txt:- |
            awk -F '[,:]' '/#000000/ { if ($1 > x) { x = $1; top = $2 } if ($1 == x) bottom = $2 }
                END { print x + 600 - 2, top + 220 + 2, bottom + 220 - 1 }')
    point_under_pointer "$corner_x" "$upper" && point_under_pointer "$corner_x" "$lower"
}
click_on() {
    until_done point_under_pointer "$corner_x" "$1" || fail "no point at $corner_x, $1"
    changes xdotool click "$2"
}

# The upper right corner becomes the first point.
start_above() {
    until_done find_corners || fail "no outline to be seen"
    click_on "$upper" 3
    changes key Up Up Up Up Up Up
    wide_shot 07-cut-start
    changes key Return
}
# The number that was selected stays, and is another point's now: so the first is clicked again.
mark_corners() {
    click_on "$upper" 1
    changes key s
    click_on "$lower" 1
    changes key s
    wide_shot 08-sync-points
}

make_side() {
    text_to_shape C "$2"
    multiply_points "$3"
    scale_to "$4" "$5"
    start_above
    mark_corners
    save_shape_as "$files/$1.dat" "$6"
    box_shot 09-saved
    answer Return
    await "$main_window"
    check_side "$files/$1.dat" "$6" "$4"
}

open_again() {
    open_shape "$files/$1" "Velmora 1.0"
    shot 14-question
    answer alt+n
    await "$main_window"
    until_done grep -rqs "$1" "$XDG_CONFIG_HOME" || fail "no recent file after the load"
    changes key ctrl+F11
    changes key ctrl+F11
    wide_shot 15-opened-again
}

few_fonts
start_display 1280x900
start_program "$program" "$files"
main_place=$(frame_place)
set_zoom 500 01-parameters
keep_all_points 02-options
make_side letra_a 130 8 0.64 0.8 "Letra C, lado A"
album=$display_folder
make_side letra_b 130 6 0.56 0.7 "Letra C, lado B"
album=$pictures
wide_shot 10-second-side
tools 2
await_workbench
load_sides letra_a letra_b 11-sides
set_distances 1.5 1.5 5 12-distances
adjust 13-adjusted
save_results letra_b2.DAT
check_results "$files/letra_a" "$files/letra_b"
album=$display_folder
open_again letra_b2.DAT
album=$pictures
open_again letra_a2.DAT
