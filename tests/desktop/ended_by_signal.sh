#!/usr/bin/env bash
# A session that is ended from outside, by a request, a fault of its own or with its display, leaves
# its edited outline. The next start offers it, once.
. "$(dirname "$0")/desk.sh"

end_by() { kill -"$1" "$running"; }
take_display() { kill "${display_processes[0]}"; }
edit_and() {
    start
    open_shape "$work/flecha.dat"
    keys_reach "$main_window"
    changes key F6
    "$@"
    until_done gone "$running" || fail "the program does not end by: $*"
    wait "$running" && fail "it ends as if it had left by itself"
    return 0
}
# Up to the question about the outline.
start_after_loss() {
    start_until "$told"
    await "$told"
}
kept() { ls "$data"/Velmora/sesion-* >/dev/null 2>&1; }

log_in
data=$XDG_DATA_HOME
lay flecha.dat
start
open_shape "$work/flecha.dat"
keys_reach "$main_window"
kill -TERM "$running"
until_done gone "$running" || fail "TERM does not end it"
kept && fail "an outline was kept that nobody edited"

for signal in TERM HUP INT ABRT SEGV; do
    edit_and end_by "$signal"
    kept || fail "nothing was kept at $signal"
    start_after_loss
    key Escape # no
    keys_reach "$main_window"
    kept && fail "it would be offered again"
    expect_outline "$data/Velmora/recuperado.dat" "3,0 7,2 4,5 0,2"
    leave
done

edit_and end_by TERM
start_after_loss
answer Return
await "$told" # it has no (0,0), which is offered
answer Return
keys_reach "$main_window"
save
expect_outline "$data/Velmora/recuperado.dat" "3,-2 7,0 4,3 0,0"
leave
start
leave
kept && fail "a session that ended well left something"

edit_and take_display
kept || fail "nothing was kept when the display went"
expect_outline "$(ls "$data"/Velmora/sesion-*.dat)" "3,0 7,2 4,5 0,2"
