#!/usr/bin/env bash
# Runs a program of tests with a default printer: a queue of CUPS that prints into PDF files, on a
# print server of its own, reached by a socket in a temporary folder. The machine's own print server
# and printers are left alone. Says what is missing and ends with 77 where that server cannot be had.
#
# on_queue.sh PROGRAM [WORDS...]
set -euo pipefail

readonly ppd=/usr/share/ppd/cups-pdf/CUPS-PDF_opt.ppd
# Sheets of a user whom the machine does not know go here.
readonly sheets=/var/spool/cups-pdf/ANONYMOUS
export CUPS_USER=velmora-tester
PATH=$PATH:/usr/sbin

skip() {
    echo "No print server here, nothing was tested: $*"
    exit 77
}
[ "$(id -u)" -eq 0 ] || skip "the PDF printer of CUPS works for root alone"
for tool in cupsd lpadmin; do
    command -v "$tool" >/dev/null || skip "$tool is missing (package cups)"
done
[ -e "$ppd" ] && [ -d "$sheets" ] || skip "the PDF printer is missing (package printer-driver-cups-pdf)"

folder=$(mktemp -d)
server=
finish() {
    [ -z "$server" ] || { kill "$server" && wait "$server"; } 2>/dev/null || true
    rm -rf "$folder"
}
trap finish EXIT
chmod 755 "$folder" # its filters and printers run as somebody else
mkdir -m 755 "$folder"/{root,spool,cache,state,log}
mkdir -m 1777 "$folder/tmp"
export CUPS_SERVER=$folder/state/cups.sock
unset CUPS_SERVERROOT

cat >"$folder/root/cupsd.conf" <<CONF
Listen $CUPS_SERVER
Browsing Off
WebInterface No
DefaultAuthType None
<Location />
  Allow all
</Location>
<Policy default>
  <Limit All>
    Allow all
  </Limit>
</Policy>
CONF
cat >"$folder/root/cups-files.conf" <<CONF
ServerRoot $folder/root
RequestRoot $folder/spool
CacheDir $folder/cache
StateDir $folder/state
TempDir $folder/tmp
AccessLog $folder/log/access
ErrorLog $folder/log/error
PageLog $folder/log/page
CONF

cupsd -f -c "$folder/root/cupsd.conf" -s "$folder/root/cups-files.conf" >"$folder/log/start" 2>&1 &
server=$!
for _ in $(seq 100); do
    lpstat -r 2>/dev/null | grep -q 'is running' && break
    kill -0 "$server" 2>/dev/null || break
    sleep 0.1
done
lpstat -r 2>/dev/null | grep -q 'is running' ||
    skip "cupsd does not start: $(tail -n 3 "$folder/log/start" "$folder/log/error" 2>/dev/null)"
lpadmin -p velmora -v cups-pdf:/ -P "$ppd" -E 2>/dev/null
lpadmin -d velmora

status=0
VELMORA_QUEUE_FOLDER=$sheets "$@" || status=$?
[ "$status" -eq 0 ] || tail -n 40 "$folder/log/error"
exit "$status"
