#!/usr/bin/env bash
# Save as, of a file from the list of recent ones: the dialog stands in its folder with its name, and
# what is accepted is written there, with the extension, whether the name has it or not. The question
# for an existing file is about the file that will be written.
. "$(dirname "$0")/desk.sh"

dialog() {
    key F12
    await "Fichero a generar"
}
description_and_news() {
    await "$told"
    answer Return # the description
    await "$told"
    answer Return # the file is made
    keys_reach "$main_window"
}
# Every outline in the home folder, outside the wastebasket.
expect_files() {
    expect "$(find "$HOME" -path '*Trash*' -prune -o -type f \
        \( -path "$work/*" -o -iname '*flecha*' -o -iname '*otra*' \) -printf '%P ' | xargs -n 1 |
        sort | xargs)" "$1" "files"
}

log_in
lay flecha.dat
start
open_shape "$work/flecha.dat"
await_setting RecentFile1 "$work/flecha.dat"
leave

start
take_recent 1
keys_reach "$main_window"

key F6
dialog
key Return
await "$told"
answer Return # written over
description_and_news
expect_outline "$work/flecha.dat" "3,0 7,2 4,5 0,2"
expect_files "piezas/flecha.dat"

key F9
dialog
fill otra
key Return
description_and_news
expect_outline "$work/otra.dat" "-3,0 -7,2 -4,5 0,2"
expect_files "piezas/flecha.dat piezas/otra.dat"

# Cancel at the question ends the dialog; the present file is written all the same.
key F6
dialog
fill flecha.dat
key Return
await "$told"
answer Escape
await "$told"
answer Return
keys_reach "$main_window"
expect_outline "$work/flecha.dat" "3,0 7,2 4,5 0,2"
expect_outline "$work/otra.dat" "4,0 0,2 3,5 7,2"

key F9
dialog
fill otra
key Return
await "$told"
answer alt+n # another name, then
await "Fichero a generar"
fill tercera.dat
key Return
description_and_news
expect_outline "$work/tercera.dat" "-4,0 0,2 -3,5 -7,2"
expect_outline "$work/otra.dat" "4,0 0,2 3,5 7,2"

dialog
fill "$work/otra"
key Return
await "$told"
answer Return # written over
description_and_news
expect_outline "$work/otra.dat" "-4,0 0,2 -3,5 -7,2"
expect_files "piezas/flecha.dat piezas/otra.dat piezas/tercera.dat"
leave
