#!/usr/bin/env bash
# The number pad on the canvas and in a box of numbers. With Num Lock off its keys are Delete, Insert
# and the arrows; with Num Lock on they are figures, which change no point, and its signs never do.
. "$(dirname "$0")/desk.sh"

num_lock=77
home=79 up=80 page_up=81 left=83 begin=84 right=85 end=87 down=88 page_down=89
insert=90 delete=91 enter=104
minus=82 plus=86 times=63 divide=106
figures=($home $up $page_up $left $begin $right $end $down $page_down $insert $delete)

log_in
lay_octagon
start
open_shape "$work/octogono.dat"

click_row 2
key $delete
key $insert
key $up $right $down $down $left $left $left
save
edited="0,0 1.84,-0.08 4,0 6,6 4,8 0,8 -2,6 -2,2"
expect_outline "$work/octogono.dat" "$edited"

key $minus $plus $times $divide $home $end $page_up $page_down $begin $enter
key $num_lock
key "${figures[@]}" $minus $plus $times $divide $enter
save
expect_outline "$work/octogono.dat" "$edited"

choose 1 1
await "Parámetros Generales"
key Tab Tab Tab ctrl+a $down $begin $insert # 2, 5, 0
key alt+a
await_setting Def_Zoom 250
keys_reach "$main_window"
leave
