#!/usr/bin/env bash
# A machine of a country with its keyboard, by the keys' places: on the canvas no printable key but S, M and N does
# anything, dead or not, with Shift or AltGr; a composed character is refused by a box of numbers; a
# text takes what is typed.
#
# keyboard LAYOUT
. "$(dirname "$0")/desk.sh"
layout=$1

s=39 n=57 m=58 a=38 shift=50 alt_gr=108
printable=(49 {10..21} {24..35} 38 {40..48} 51 {52..56} 59 60 61 65 94)
case "$layout" in
# What composes a character with A, a word with keys of the country, and its bytes.
es) country=es_ES dead=(48) word=(47 48 26) bytes='\xf1\xe9' ;;
de) country=de_DE dead=(21) word=(48 20 34 21 26) bytes='\xe4\xdf\xfc\xe9' ;;
tr) country=tr_TR dead=(keydown "$alt_gr" key 34 keyup "$alt_gr") word=(51 60 35 31 59 34) bytes=',\xe7\xfc?\xf6?' ;;
esac
press_dead() { [ "$layout" = tr ] && xdotool "${dead[@]}" || key "${dead[@]}"; }

log_in
speak "$country"
lay_octagon
start
setxkbmap "$layout"
open_shape "$work/octogono.dat"

click_row 3
key "${printable[@]}"
xdotool keydown "$shift" key "${printable[@]}" keyup "$shift"
xdotool keydown "$alt_gr" key "${printable[@]}" keyup "$alt_gr"
save
expect_outline "$work/octogono.dat" "$octagon"
expect "$(sync_points "$work/octogono.dat")" "0,0" "sync points"
click_row 3
key "$n" "$s" "$m" "$m" "$s"
save
expect "$(sync_points "$work/octogono.dat")" "0,0 6,2 4,8" "sync points"

choose 1 1
await "Parámetros Generales"
key ctrl+a 12 # 3
press_dead
key "$a"
await "Velmora"
answer Return
await "Parámetros Generales"
key ctrl+a 13 # 4
key alt+a
await_setting Def_Dec 4
keys_reach "$main_window"

key F12
await "Fichero a generar"
fill "$work/pais.dat"
key Return
await "$told"
key ctrl+a "${word[@]}" Return
await "$told"
answer Return
keys_reach "$main_window"
expect "$(head -c 42 "$work/pais.dat" | tail -c 21 | sed 's/ *$//' | od -An -tx1)" \
    "$(printf "$bytes" | od -An -tx1)" "description"
leave
