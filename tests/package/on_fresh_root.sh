#!/usr/bin/env bash
# The life of the package on a fresh root: installed, started from the menu by a plain user, upgraded,
# opened by file types, started by another user, removed. Runs as root in namespaces of its own, so
# that all it mounts and starts ends with it; script/check-package calls it.
#
# on_fresh_root.sh ROOT_TAR ARCHIVES PACKAGE_BEFORE PACKAGE PACKAGE_FREECAD
set -euo pipefail
tar=$1
archives=$2
before=$3
now=$4
freecad=$5
here=$(dirname "$0")
. "$here/../../script/virtual_display.sh"
. "$here/../xvfb/sync_file.sh"

main_window="Velmora 1.0 (*"
root=$(mktemp -d "${TMPDIR:-/tmp}/velmora-root-XXXXXX")
chmod 755 "$root"
leave_root() {
    stop_display
    umount -l "$root/usr" "$root/proc" "$root/var/cache/apt/archives" 2>/dev/null || true
    rm -rf --one-file-system "$root"
}
trap leave_root EXIT

fail() {
    import -window root "$archives/../failed.png" 2>/dev/null &&
        echo "The display as it stood: $(realpath "$archives/../failed.png")" >&2
    echo "check-package: $*" >&2
    exit 1
}
checked() { echo "  checked: $*"; }

lay_root() {
    tar -x -f "$tar" -C "$root"
    mount -t proc proc "$root/proc"
    mount --bind "$archives" "$root/var/cache/apt/archives"
    cp /etc/resolv.conf "$root/etc/resolv.conf"
    mkdir "$root/packages"
    cp "$before" "$now" "$freecad" "$root/packages"
}
inside() { env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin LC_ALL=C.UTF-8 chroot "$root" "$@"; }
apt() {
    local log=$display_folder/apt.log
    inside env DEBIAN_FRONTEND=noninteractive \
        apt-get -y --no-install-recommends "$@" >"$log" 2>&1 || fail "apt-get $*: $(tail -n 20 "$log")"
}
version() { inside dpkg-query -W -f '${db:Status-Status} ${Version}' velmora; }

# Every file outside the homes, and what is in it but where apt and dpkg keep their records.
inventory() {
    (cd "$root" && find . -xdev \( -path ./home -o -path ./packages -o -path ./proc -o -path ./run -o \
        -path ./tmp -o -path ./var/cache -o -path ./var/log -o -path ./var/lib/apt -o \
        -path ./var/lib/dpkg \) -prune -o -type f -exec md5sum {} + -o -printf '%y %p\n') | sort
}
homes() { (cd "$root/home" && find . -type f -exec md5sum {} + -o -type d -print) | sort; }

# A plain user, who may write in the own home alone; the program's folder cannot be written by anyone.
new_user() {
    inside useradd --create-home --shell /bin/sh "$1"
    inside install -d -o "$1" -g "$1" "/home/$1/piezas" "/run/user-$1"
}
close_programs() {
    mount --bind "$root/usr" "$root/usr"
    mount -o remount,bind,ro "$root/usr"
}
open_programs() { umount "$root/usr"; }
as() { # USER COMMAND...: in the user's home
    exec /usr/bin/env -i USER="$1" HOME="/home/$1" PATH=/usr/local/bin:/usr/bin:/bin DISPLAY="$DISPLAY" \
        XDG_RUNTIME_DIR="/run/user-$1" LC_ALL=C.UTF-8 /usr/sbin/chroot --userspec="$1" "$root" \
        sh -c 'cd && exec "$@"' sh "${@:2}"
}
asked() { (as "$@"); }

# The menu entry's command line, without the place of a file.
menu_command() {
    local entry=$root/usr/share/applications/org.velmora.Velmora.desktop
    [ -r "$entry" ] || fail "there is no menu entry"
    sed -n 's/^Exec=\([^%]*[^% ]\) *%.*/\1/p' "$entry"
}
splash() { xdotool search --onlyvisible --class '^velmora$' | tail -n 1; }
has_splash() { [ -n "$(splash 2>/dev/null)" ]; }
no_window() { ! xdotool search --onlyvisible --class '^velmora$' >/dev/null 2>&1; }
# Clicks the start window away, and the box that tells that no CAD is running.
greet() {
    until_done has_splash || fail "the program did not start: $(cat "$display_folder/program.log")"
    local window
    window=$(splash)
    eval "$(xdotool getwindowgeometry --shell "$window")"
    xdotool mousemove $((X + WIDTH / 2)) $((Y + HEIGHT / 2)) click 1
    until_done hidden "$window" || fail "the start window stays"
    await "Velmora"
    answer Return
    await "$main_window"
}
start_from_menu() {
    local words
    read -ra words < <(menu_command)
    [ "${words[0]:-}" = velmora ] || fail "the menu entry starts '${words[*]}'"
    (as "$1" "${words[@]}") 2>"$display_folder/program.log" &
    greet
}
leave() {
    xdotool key alt+F4
    until_done no_window || fail "the program does not end"
}
setting_is() { grep -rqsF "$2" "$root/home/$1/.config"; }
await_setting() { until_done setting_is "$1" "$2" || fail "the settings of $1 are without '$2'"; }

lay_piece() { # USER FILE: a piece of four points
    local file=$root/home/$1/piezas/$2
    {
        record "Fichero DAT(KMR)2002" Pieza
        record SLATEWORKS ""
        for point in "0 0" "4 0" "4 3" "-2 3" "0 0"; do record $point; done
        record "Puntos Sincronismo" ""
        record "" ""
        record 0 0
    } >"$file"
    inside chown "$1:" "/home/$1/piezas/$2"
}
# Opened by the dialog, made positive, saved: the file shows it.
work_on() { # USER FILE
    lay_piece "$1" "$2"
    open_shape "/home/$1/piezas/$2"
    await_setting "$1" "RecentFile1=/home/$1/piezas/$2"
    xdotool key F6
    xdotool key ctrl+s
    await "Velmora 1.0"
    answer Return
    await "$main_window"
    local outline
    outline=$(outline_of "$root/home/$1/piezas/$2" | sed '$d' | paste -sd,)
    [ "$outline" = "2 0,6 0,6 3,0 3" ] || fail "$2 was saved as $outline"
}
# What the program laid into the user's data folder is what is installed.
data_is_current() { # USER
    diff -r "$root/usr/share/velmora/help" "$root/home/$1/.local/share/Velmora/help" ||
        fail "the guide in the data folder of $1 is not the installed one"
}

opens_by_type() { # USER FILE TYPE
    local file=/home/$1/piezas/$2 type entry
    type=$(asked "$1" gio info -a standard::content-type "$file" | sed -n 's/.*content-type: //p')
    [ "$type" = "$3" ] || fail "$2 is known as '$type', not as $3"
    entry=$(asked "$1" xdg-mime query default "$3")
    [ "$entry" = org.velmora.Velmora.desktop ] || fail "$3 is opened by '$entry'"
}
open_by_type() { # USER FILE
    (as "$1" gio open "/home/$1/piezas/$2") 2>"$display_folder/program.log" &
    greet
    await_setting "$1" "RecentFile1=/home/$1/piezas/$2"
    leave
}

lay_root
apt update
new_user ana
new_user eva
clean=$(inventory)

apt --simulate install --install-recommends "/packages/$(basename "$now")"
grep -q '^Inst qt6-wayland ' "$display_folder/apt.log" || fail "nothing brings the plugin of Wayland"
apt --simulate install "/packages/$(basename "$freecad")"
checked "Wayland's plugin comes along by itself; all that velmora-freecad depends on is in the distribution"

apt install "/packages/$(basename "$before")"
[[ $(version) == "installed "*~before ]] || fail "installed is '$(version)'"
checked "a fresh root takes the package of the commit before, $(version | cut -d' ' -f2), with what it depends on"

start_display 1280x900
close_programs
start_from_menu ana
work_on ana una.dat
leave
checked "a plain user starts it by the menu's '$(menu_command)', opens, edits and saves; /usr is read-only"

open_programs
kept=$(homes)
apt install "/packages/$(basename "$now")"
[[ $(version) == "installed $(dpkg-deb -f "$now" Version)" ]] || fail "installed is '$(version)'"
[ "$(homes)" = "$kept" ] || fail "the upgrade touches homes: $(diff <(echo "$kept") <(homes))"
close_programs
start_from_menu ana
await_setting ana "RecentFile1=/home/ana/piezas/una.dat"
work_on ana otra.dat
leave
data_is_current ana
checked "the upgrade to $(version | cut -d' ' -f2) leaves settings and outlines alone, and the program goes on with them"

lay_piece ana tercera.dat
printf '0 0\n4 0\n4 3\n' >"$root/home/ana/piezas/cuarta.cut"
opens_by_type ana tercera.dat application/x-velmora-sync-dat
opens_by_type ana cuarta.cut application/x-velmora-cut
open_by_type ana tercera.dat
checked "a desktop knows its file types and opens a DAT file with it"

start_from_menu eva
work_on eva una.dat
leave
data_is_current eva
checked "a second user starts with a home of his own"

open_programs
kept=$(homes)
apt purge velmora
apt autoremove --purge
[ "$(homes)" = "$kept" ] || fail "the removal touches homes: $(diff <(echo "$kept") <(homes))"
for file in .local/share/Velmora/VELMORA.MDB piezas/una.dat piezas/otra.dat; do
    [ -s "$root/home/ana/$file" ] || fail "$file of ana is gone"
done
left=$(diff <(echo "$clean") <(inventory) || true)
[ -z "$left" ] || fail "after the removal the root is not as it was: $left"
checked "the removal leaves settings and outlines of both users, and nothing else"
