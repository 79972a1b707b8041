#!/usr/bin/env bash
# Installs the add-on twice into a user's folder. install_test.sh SOURCES
set -euo pipefail
sources=$1
addons=$(mktemp -d)
trap 'rm -rf "$addons"' EXIT
mkdir "$addons/Other"

fail() { echo "$*" >&2; exit 1; }
install() { "$sources/script/install-freecad-addon" "$addons" >/dev/null; }
list() { (cd "$addons" && find . | sort); }

install
first=$(list)
touch "$addons/Velmora/of_an_older_version.py"
install
[[ $(list) == "$first" ]] || fail "the second time differs: $(diff <(echo "$first") <(list))"
[[ -d $addons/Other ]] || fail "another add-on has gone"
for file in Init.py InitGui.py serve.py package.xml README.md velmora_cad/service.py; do
    cmp "$sources/integrations/freecad/$file" "$addons/Velmora/$file"
done
cmp "$sources/data/dbus/org.velmora.Cad1.xml" "$addons/Velmora/velmora_cad/org.velmora.Cad1.xml"
cmp "$sources/LICENSE" "$addons/Velmora/LICENSE"
# What package.xml and the README name is there.
for file in $(sed -n 's/.*<icon>\(.*\)<.*/\1/p; s/.*file="\([^"]*\)".*/\1/p' "$addons/Velmora/package.xml") \
    $(sed -n 's/^!\[.*](\(.*\))$/\1/p' "$addons/Velmora/README.md"); do
    [[ -f $addons/Velmora/$file ]] || fail "$file is named and missing"
done
if grep -q '/\.Velmora\|__pycache__' <<<"$first"; then fail "something is left: $first"; fi
