#!/usr/bin/env bash
# drawings_test.py in a FreeCAD with a home of its own. drawings_test.sh FOLDER_OF_THE_ADD_ON
set -euo pipefail
command -v freecadcmd >/dev/null || { echo "skipped: FreeCAD is not installed"; exit 77; }
home=$(mktemp -d)
trap 'rm -rf "$home"' EXIT
unset XDG_CONFIG_HOME XDG_DATA_HOME XDG_CACHE_HOME
HOME=$home LC_ALL=C.UTF-8 PYTHONDONTWRITEBYTECODE=1 VELMORA_ADDON=$1 \
    freecadcmd "$(dirname "$0")/drawings_test.py" </dev/null
