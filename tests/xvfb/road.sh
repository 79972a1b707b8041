# Sourced by the roads that a guide tells of: a road takes a picture a step, in the folder that `album`
# says.
#
# shot NAME, wide_shot NAME, box_shot NAME, key KEY..., set_zoom ZOOM NAME, keep_all_points NAME, load_sides A B NAME,
# set_distances X Y Z NAME, adjust NAME, save_results FILE

album=$pictures
shot() { small_picture "$album/$1.png" "$(frame_place)"; }
wide_shot() { small_picture "$album/$1.png" "$main_place"; }
# With the box in front at one place: where it comes up hangs on when the display told of frames.
box_shot() {
    xdotool windowmove --sync "$(xdotool getactivewindow)" 400 360
    wide_shot "$1"
}
key() { xdotool key "$@"; }
main_window="Velmora 1.0 (*"

configuration() { choose 1 "$1"; }
functions() { choose 2 "$1"; }
tools() { choose 3 "$1"; }

# The zoom that every shape is opened with: set_zoom ZOOM PICTURE
set_zoom() {
    configuration 1
    await "Parámetros Generales"
    key Tab Tab Tab
    fill "$1"
    shot "$2"
    key alt+a
    # There is no shape yet, says a box.
    await "Velmora"
    answer Return
    await "$main_window"
}

unrolled() { (($(xwininfo -id "$1" | awk '/Height:/ {print $2}') > 100)); }
# Points on a straight line stay, since the workbench needs them. A click into the main window rolls
# the options up: keep_all_points PICTURE
keep_all_points() {
    local options
    choose 5 2
    options=$(xdotool search --onlyvisible --name "^Opciones Generales$")
    until_done unrolled "$options" || fail "the options stay rolled up"
    changes xdotool mousemove --window "$options" 96 21 click 1
    await "Opciones Generales"
    changes key alt+o
    shot "$1"
    xdotool mousemove 180 500 click 1
    await "$main_window"
}

workbench="Ajuste de ficheros*"
# The window says each time that it comes that it is new.
await_workbench() {
    await "Velmora"
    answer Return
    await "$workbench"
}
load_side() {
    await "Seleccione Fichero a Abrir"
    fill "$files/$1.dat"
    key Return
    await "$workbench"
}
# Two sides into the workbench: load_sides A B PICTURE
load_sides() {
    key space
    load_side "$1"
    press 4
    load_side "$2"
    shot "$3"
}
# set_distances X Y Z PICTURE
set_distances() {
    press 4
    await "Opciones del Ajuste"
    xdotool type "$1"
    key Tab
    xdotool type "$2"
    key Tab
    xdotool type "$3"
    shot "$4"
    key alt+a
    await_workbench
}
adjust() {
    changes press 1
    shot "$1"
}
# Saves both and leaves: save_results THE_SECOND
save_results() {
    press 8
    until_done test -s "$files/$1" || fail "no second result was written"
    key alt+s
    await "$main_window"
}
