#!/usr/bin/env bash
# A folder without permission to write: what is in it opens, also where the reader would have its
# blanks mended first, and goes into another folder; a save into it reports, keeps the shape where the
# program may write, and leaves the old file.
. "$(dirname "$0")/desk.sh"

lay_tabs() {
    echo Costilla
    printf '%s\t%s\r\n' 0 0 100 0 100 10 100 20 100 30 100 40 90 50 80 50 70 50 60 50 50 50 40 50 \
        30 50 20 50 0 50 0 0
}

log_in
mkdir "$work/solo"
lay flecha.dat "$work/solo/flecha.dat"
lay_tabs >"$work/solo/tabs.dat"
chmod -R a-w "$work/solo"
before=$(cat "$work"/solo/* | md5sum)
start

open_shape "$work/solo/tabs.dat"
keys_reach "$main_window"
click_row 0
key s
save_shape_as "$work/tabs.dat"
answer Return
keys_reach "$main_window"
expect_outline "$work/tabs.dat" "0,0 100,0 100,40 90,50 20,50 0,50"

open_shape "$work/solo/flecha.dat"
keys_reach "$main_window"
key F6 ctrl+s
await "Velmora"
answer Return
until_done gone "$running" || fail "the report stays"
wait "$running" && fail "a failed save ends as a good one"
expect "$(cat "$work"/solo/* | md5sum)" "$before" "the folder"
expect_outline "$XDG_DATA_HOME/Velmora/recuperado.dat" "3,0 7,2 4,5 0,2"
