#!/usr/bin/env bash
# A copy of the program, whole, in a folder that cannot be written: it speaks, opens, saves and ends,
# and the folder stays as it was.
. "$(dirname "$0")/desk.sh"

contents() { (cd "$HOME/velmora" && find . -type f -exec md5sum {} + | sort); }

log_in
lay_octagon
mkdir "$HOME/velmora"
cp -r "$(dirname "$VELMORA")"/../share/velmora/. "$VELMORA" "$HOME/velmora"
chmod -R a-w "$HOME/velmora"
before=$(contents)
start "$HOME/velmora/velmora"
keys_reach "Velmora 1.0 (1011) - Coordenadas*"
open_shape "$work/octogono.dat"
keys_reach "$main_window"
key F6
save
expect_outline "$work/octogono.dat" "2,0 6,0 8,2 8,6 6,8 2,8 0,6 0,2"
leave
expect "$(contents)" "$before" "the program's folder"
