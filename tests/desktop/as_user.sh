#!/usr/bin/env bash
# Runs a road as a person who has a home folder and owns nothing else: the program is installed where
# it cannot be written. Whoever starts it as root gives it to a user of no account; anyone else is
# that user.
#
# as_user.sh PROGRAM FIXTURES PICTURES ROAD [ARGUMENT...]
set -euo pipefail
here=$(dirname "$0")
program=$1
fixtures=$2
pictures=$3
road=$4

. "$here/../../script/virtual_display.sh"
place=$display_folder
chmod 755 "$place"

# What the road reads, where everyone can read it.
mkdir -p "$place"/{checkout/tests/xvfb,checkout/script,usr,tmp}
cp -r "$here" "$place/checkout/tests/desktop"
cp "$here/../xvfb/sync_file.sh" "$place/checkout/tests/xvfb"
cp "$here/../../script/virtual_display.sh" "$place/checkout/script"
cp -r "$fixtures" "$place/fixtures"
install_program "$program" "$place/usr"
chmod -R a+rX,a-w "$place"/{checkout,fixtures,usr}

user=()
if [ "$(id -u)" -eq 0 ]; then
    id=58231
    while getent passwd "$id" >/dev/null || getent group "$id" >/dev/null; do id=$((id + 1)); done
    chown "$id:$id" "$place/tmp"
    user=(setpriv --reuid "$id" --regid "$id" --clear-groups --)
    mkdir -p -m 1777 /tmp/.X11-unix # the display server of a plain user makes none that root owns
fi

status=0
"${user[@]}" env -i PATH="$PATH" TMPDIR="$place/tmp" VELMORA="$place/usr/bin/velmora" \
    FIXTURES="$place/fixtures" "$place/checkout/tests/desktop/$road.sh" "${@:5}" || status=$?
for left in "$place"/tmp/failed-*.png; do
    [ ! -e "$left" ] || { mkdir -p "$pictures" && cp "$left" "$pictures"; }
done
exit "$status"
