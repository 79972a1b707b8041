#!/usr/bin/env bash
# A stored setting that is no number is reported, its default is offered, and the start goes on.
. "$(dirname "$0")/desk.sh"

log_in
start
leave
file=$(grep -rl "^Ver=" "$XDG_CONFIG_HOME")
sed -i '/^Def_Zoom=/d; s/^\[Values\]/[Values]\nDef_Zoom=mucho/' "$file"
setting_is Def_Zoom mucho || fail "the setting is not laid"

# The start window, the report, the offer, the start window, the box about the CAD.
start_until "$main_window"
await_setting Def_Zoom 30000
keys_reach "$main_window"
leave
start
leave
