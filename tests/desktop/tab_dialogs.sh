#!/usr/bin/env bash
# Tab through each dialog: every stop is to be seen, the round has as many as it should, and Esc gives
# the keys back to the main window.
. "$(dirname "$0")/desk.sh"

dialog_picture() { import -window root -crop "$dialog_place" -depth 8 rgb:- | md5sum; }
dialog_shows() { [[ $(dialog_picture) == "$1" ]]; }
dialog_differs() { ! dialog_shows "$1"; }

# round TITLE STOPS
round() {
    local dialog_place start now seen
    await "$1"
    dialog_place=$(frame_place)
    changes key Tab # from now on the focus has its frame
    until_done screen_rests || fail "the screen never rests"
    start=$(dialog_picture)
    now=$start
    seen=$start
    for stop in $(seq 2 "$2"); do
        key Tab
        until_done dialog_differs "$now" || fail "no stop $stop to be seen in '$1'"
        until_done screen_rests || fail "the screen never rests"
        now=$(dialog_picture)
        [[ $seen != *"$now"* ]] || fail "stop $stop of '$1' was there before"
        seen+=$now
    done
    key Tab
    until_done dialog_shows "$start" || fail "the round of '$1' does not close after $2 stops"
    key Escape
    keys_reach "$main_window"
}

log_in
# A cursor that does not blink, as the desktop's settings may have it.
export XDG_CURRENT_DESKTOP=KDE KDE_SESSION_VERSION=5
mkdir -p "$XDG_CONFIG_HOME"
printf '[KDE]\nCursorBlinkRate=0\n' >"$XDG_CONFIG_HOME/kdeglobals"
lay_octagon
start
open_shape "$work/octogono.dat"

key ctrl+n
round "Nueva Forma" 6
choose 1 1
round "Parámetros Generales" 10
choose 2 3
round "Multiplicar Puntos de la Forma" 3
choose 2 8
round "Escalar a X,Y" 5
choose 6 5
round "Acerca*" 3
choose 3 1
round "Forma desde Texto" 5
click_row 3
changes key Menu
key Down Down Return
round "Eliminar*" 4
leave
