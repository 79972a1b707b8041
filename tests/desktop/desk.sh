# Sourced by each road: a person at a desk. A road is judged by the files that it leaves, by the
# window that has the focus, and by what the canvas shows.
set -euo pipefail
here=$(dirname "$0")
. "$here/../../script/virtual_display.sh"
. "$here/../xvfb/sync_file.sh"

road=$(basename "$0" .sh)
main_window="Velmora 1.0 (*"
message="Velmora"
told="Velmora 1.0" # a box that tells of a file, or asks about one

# A failure leaves a picture for whoever started the road.
fail() {
    import -window root "${TMPDIR:-/tmp}/failed-$road.png" || true
    echo "$road: $*" >&2
    exit 1
}

# A desktop of its own; `work` is the folder for outlines.
log_in() {
    start_display "${1:-1366x768}"
    work=$HOME/piezas
    mkdir "$work"
}
# A machine of another country, by its real locale.
speak() {
    mkdir -p "$display_folder/locale"
    localedef -i "$1" -f UTF-8 "$display_folder/locale/$1.UTF-8" || fail "no locale $1"
    { export LOCPATH=$display_folder/locale LC_ALL=$1.UTF-8; } 2>/dev/null # the shell looks elsewhere
}
start() { run_program "${1:-$VELMORA}" "$work"; }
key() { xdotool key "$@"; }
lay() { cp "$FIXTURES/$1" "${2:-$work/$1}" && chmod u+w "${2:-$work/$1}"; }

gone() { ! kill -0 "$1" 2>/dev/null; }
still_there() { ! gone "$running" || fail "the program ended: $(cat "$display_folder/program.log")"; }
leave() {
    key alt+F4
    until_done gone "$running" || fail "the program does not end"
    wait "$running" || fail "the program ended with status $?: $(cat "$display_folder/program.log")"
}

# Starts the program and answers what it shows, the start window and boxes, by Return, until a window
# of this title is in front.
start_until() {
    (cd "$work" && exec "$VELMORA") 2>"$display_folder/program.log" &
    running=$!
    display_processes+=("$running")
    # Five windows one after the other, on a machine that may have other work.
    until_done arrived_at "$1" || until_done arrived_at "$1" ||
        fail "no window '$1', but '$(active_title)'"
}
arrived_at() {
    ! is_active "$message" || answer Return
    is_active "$1"
}

# The focus is where keys act: the window manager and the display agree that the main window has it.
focus_is_in() { [[ $(xdotool getwindowfocus getwindowname 2>/dev/null) == $1 ]]; }
keys_reach() {
    await "$1"
    until_done focus_is_in "$1" || fail "the focus is not in '$1'"
}

# Save by its key; the program tells of the file.
save() {
    key ctrl+s
    await "$told"
    answer Return
    keys_reach "$main_window"
}
# The outline of a file, point by point, "X,Y X,Y ...", without the closing one.
outline() { outline_of "$1" | sed '$d' | tr ' \n' ', ' | sed 's/ $//'; }
sync_points() { sync_points_of "$1" | tr ' \n' ', ' | sed 's/ $//'; }
expect() { [[ $1 == "$2" ]] || fail "${3:-value}: '$1', but expected '$2'"; }
expect_outline() { expect "$(outline "$1")" "$2" "$(basename "$1")"; }

# A piece of eight points and the recent list, the list's rows and the canvas.
lay_octagon() {
    {
        record "Fichero DAT(KMR)2002" Octogono
        record SLATEWORKS ""
        for point in "0 0" "4 0" "6 2" "6 6" "4 8" "0 8" "-2 6" "-2 2" "0 0"; do record $point; done
        record "Puntos Sincronismo" ""
        record "" ""
        record 0 0
    } >"$work/${1:-octogono.dat}"
}
octagon="0,0 4,0 6,2 6,6 4,8 0,8 -2,6 -2,2"

take_recent() {
    changes key alt+a
    key "$1"
}
# A click on a row selects its point and hands the keys to the canvas.
click_row() { click_at 61 $((103 + 16 * $1)); }
canvas_picture() { import -window root -crop 300x560+400+140 -depth 8 rgb:- | md5sum; }
# The value of a stored setting.
setting() { grep -rh "^$1=" "$XDG_CONFIG_HOME" | cut -d= -f2; }
setting_is() { [[ $(setting "$1") == "$2" ]]; }
await_setting() { until_done setting_is "$1" "$2" || fail "$1 is '$(setting "$1")', not '$2'"; }
