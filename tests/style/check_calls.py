#!/usr/bin/env python3
"""Holds the arrows between the rooms for calls, by the symbols of the libraries' objects.

check_calls.py SOURCE_DIR BUILD_DIR

The arrows are those of includes (check_style.py). The refresh after a change is the one interface
that runs against them: what document/refresh.h declares may be called from every room.
"""

import re
import subprocess
import sys
from pathlib import Path

from check_style import ROOMS, room_of

REFRESH = "src/document/refresh.h"
DEFINED = set("TDBRVW")


def refresh_routines(root):
    return set(re.findall(r"^\w[\w:]* (\w+)\(", (root / REFRESH).read_text(), re.M))


def objects(root, build):
    """The objects of sources that still exist, by their source below src/."""
    for folder in sorted((build / "src/CMakeFiles").glob("velmora_*.dir")):
        for path in sorted(folder.rglob("*.o*")):
            source = path.relative_to(folder).with_suffix("")
            if path.suffix in (".o", ".obj") and (root / "src" / source).is_file():
                yield source, path


def symbols(path):
    listed = subprocess.run(["nm", "--demangle", path], capture_output=True, text=True, check=True)
    for line in listed.stdout.splitlines():
        yield line[17:18], line[19:]


def check_calls(root, build):
    allowed = refresh_routines(root)
    defined, called = {}, []
    for source, path in objects(root, build):
        for kind, name in symbols(path):
            if kind in DEFINED:
                defined.setdefault(name, source)
            elif kind == "U":
                called.append((source, name))
    if not called:
        yield "no object found"
    for source, name in called:
        target = defined.get(name)
        if target is None:
            continue
        room, other = room_of(source), room_of(target)
        if other == room or other in ROOMS[room]:
            continue
        routine = re.match(r"velmora::(\w+)\(", name)
        if not routine or routine[1] not in allowed:
            yield f"src/{source}: {room} may not call {other}: {name} of src/{target}"


def main():
    faults = list(check_calls(Path(sys.argv[1]).resolve(), Path(sys.argv[2]).resolve()))
    for fault in faults:
        print(fault)
    print(f"{len(faults)} faults")
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
