#!/usr/bin/env python3
"""Checks what a person forgets: formatting, line length, blanks, include arrows, file size.

check_style.py SOURCE_DIR            all checks that read the sources
check_style.py SOURCE_DIR BUILD_DIR  that no object of velmora_core saw a toolkit's header
"""

import re
import subprocess
import sys
from pathlib import Path

MAX_COLUMNS = 100
MAX_LINES = 500

# Who may include whom, besides oneself. An arrow points one way.
LOGIC = ["runtime", "platform", "document", "services"]
OPERATIONS = LOGIC + ["shapeops", "canvas", "cad", "formats", "cutprep", "generators", "import",
              "cutting", "cutview"]
# Where the headers stand that an adapter answers for, and what all adapters share.
CONTRACTS = ["runtime", "platform", "canvas", "cad", "generators", "adapters"]
ROOMS = {
    "runtime": [],
    "platform": ["runtime"],
    "document": ["runtime", "platform"],
    "services": ["runtime", "platform", "document"],
    "shapeops": LOGIC,
    "canvas": LOGIC + ["shapeops"],
    "cad": LOGIC,
    "formats": LOGIC + ["cad"],
    "cutprep": LOGIC + ["formats"],
    "generators": ["runtime", "platform", "document", "cad"],
    "import": ["runtime"],
    "cutting": ["runtime", "document", "formats", "cutprep", "import"],
    "cutview": [],
    "forms": LOGIC + ["shapeops", "cad", "cutprep", "generators", "import", "cutting", "cutview"],
    "commands": LOGIC + ["shapeops", "canvas", "cad", "formats", "forms"],
    "toolkit": [],
    "ui": OPERATIONS + ["forms", "commands", "toolkit"],
    "adapters": ["cad"],
    "adapters/com": CONTRACTS,
    "adapters/dbus": CONTRACTS + ["toolkit"],
    "adapters/qt": CONTRACTS + ["toolkit"],
    "adapters/sqlite": CONTRACTS,
}
ROOMS["app"] = list(ROOMS)
# The command that imports is a program of its own.
ROOMS["import_tool"] = ["runtime", "document", "formats", "import"]
ROOMS["import_main.cpp"] = ["import_tool"]
# The headers of abstract services that stand in the room of their subject.
ABSTRACT = {"canvas/surface.h", "cad/autocad.h"}
# The rooms that see more than the standard library.
OUTER = {"adapters", "toolkit", "ui", "app", "import_main.cpp"}

# The sources without a header of their own name, and the header that declares them on purpose.
ALONE = {
    "app/main.cpp": "a program",
    "import_main.cpp": "a program",
    "adapters/com/com_autocad.cpp": "adapters/running_cad.h: one interface, a source a platform",
    "canvas/dibuja.cpp": "document/refresh.h: what every operation calls after a change",
    "canvas/layout.cpp": "document/refresh.h",
    "commands/cad_menu.cpp": "commands/handlers.h: all handlers in one list, a source a menu",
    "commands/file_menu.cpp": "commands/handlers.h",
    "commands/point_menu.cpp": "commands/handlers.h",
    "commands/shape_menu.cpp": "commands/handlers.h",
    "commands/window_menus.cpp": "commands/handlers.h",
    "runtime/error_texts.cpp": "runtime/error.h: the table of its texts in five languages",
    "runtime/number_printing.cpp": "runtime/numbers.h: one door to all that numbers do",
    "runtime/number_reading.cpp": "runtime/numbers.h",
    "runtime/rounding.cpp": "runtime/numbers.h",
    "ui/dispatcher.cpp": "ui/window_host.h: the half of the host that runs handlers",
}

STANDARD_HEADERS = re.compile(r"^[a-z_]+$")
TOOLKITS = re.compile(r"/(qt6|Qt[A-Z]\w*)/|/sqlite3\.h|/dbus|/canberra")


def sources(root, *suffixes):
    listed = subprocess.run(
        ["git", "-C", root, "ls-files", "--cached", "--others", "--exclude-standard"],
        capture_output=True, text=True, check=True).stdout.splitlines()
    return [root / name for name in listed
            if name.endswith(suffixes) and (root / name).is_file()]


def check_text(root):
    for path in sources(root, ".cpp", ".h", ".py", ".cmake", ".txt", ".ui", ".json", ".md", ".sh"):
        text = path.read_bytes()
        name = path.relative_to(root)
        if b"\r" in text:
            yield f"{name}: carriage return"
        if text and not text.endswith(b"\n"):
            yield f"{name}: no line end at the end"
        for number, line in enumerate(text.decode("utf-8").split("\n"), 1):
            if line != line.rstrip():
                yield f"{name}:{number}: blanks at the end of the line"
            if "\t" in line:
                yield f"{name}:{number}: tab"
            if path.suffix in (".cpp", ".h", ".py") and len(line) > MAX_COLUMNS:
                yield f"{name}:{number}: {len(line)} columns, {MAX_COLUMNS} are allowed"


def check_format(root):
    files = [str(path) for path in sources(root, ".cpp", ".h")]
    run = subprocess.run(["clang-format", "--dry-run", "--Werror", *files],
                         capture_output=True, text=True)
    for line in run.stderr.splitlines():
        if "error:" in line:
            yield line.replace(str(root) + "/", "") + " (script/format mends it)"


def check_size(root):
    for path in sources(root, ".cpp", ".h"):
        lines = path.read_text().count("\n")
        if path.is_relative_to(root / "src") and lines > MAX_LINES:
            yield f"{path.relative_to(root)}: {lines} lines; what is its second subject?"


def check_test_names(root):
    """A test's name is a sentence in snake_case; names of the program's own keep their capitals."""
    test = re.compile(r"\bTEST(?:_F|_P)?\(\s*\w+,\s*(\w+)")
    for path in sources(root, "_test.cpp"):
        for name in test.findall(path.read_text(encoding="utf-8")):
            if "_" not in name and name != name.lower():
                yield f"{path.relative_to(root)}: the test {name} is not in snake_case"


def check_pairs(root):
    """A source has a header of its own name: who reads one finds the other."""
    source_files = {path.relative_to(root / "src").as_posix()
                    for path in sources(root, ".cpp", ".h") if path.is_relative_to(root / "src")}
    alone = {name for name in source_files
             if name.endswith(".cpp") and name[:-4] + ".h" not in source_files}
    for name in sorted(alone - ALONE.keys()):
        yield f"src/{name}: no header of its name"
    for name in sorted(ALONE.keys() - alone):
        yield f"src/{name}: has a header of its name, or is gone; take it off the list ALONE"


def room_of(path):
    """Of a path below src/. Each adapter is a room of its own."""
    parts = Path(path).parts
    return "/".join(parts[:2]) if parts[0] == "adapters" and len(parts) > 2 else parts[0]


def check_arrows(root):
    include = re.compile(r'^#include\s+(?:"([^"]+)"|<([^>]+)>)')
    for path in sources(root, ".cpp", ".h"):
        if not path.is_relative_to(root / "src"):
            continue
        name = path.relative_to(root / "src")
        room = room_of(name)
        inner = name.parts[0] not in OUTER
        for number, line in enumerate(path.read_text().splitlines(), 1):
            match = include.match(line)
            if not match:
                continue
            own, system = match.groups()
            where = f"src/{name}:{number}"
            if inner and system and not STANDARD_HEADERS.match(system):
                yield f"{where}: the logic includes <{system}>; the standard library alone is its"
            if own and own not in ABSTRACT:
                target = room_of(own)
                if target != room and target not in ROOMS.get(room, []):
                    yield f"{where}: {room} may not include {target}"


def check_core_objects(root, build):
    """Reads the compiler's own record of the headers that each object saw."""
    deps = subprocess.run(["ninja", "-C", build, "-t", "deps"],
                          capture_output=True, text=True, check=True).stdout
    core_objects = 0
    current = None
    for line in deps.splitlines():
        if line and not line.startswith(" "):
            current = line.split(":")[0]
            if "velmora_core.dir" in current:
                core_objects += 1
        elif current and "velmora_core.dir" in current and TOOLKITS.search(line):
            yield f"{current} saw {line.strip()}"
    if core_objects == 0:
        yield "no object of velmora_core found"


def main():
    root = Path(sys.argv[1]).resolve()
    if len(sys.argv) > 2:
        faults = list(check_core_objects(root, sys.argv[2]))
    else:
        checks = (check_text, check_format, check_size, check_arrows, check_pairs,
                  check_test_names)
        faults = [fault for check in checks for fault in check(root)]
    for fault in faults:
        print(fault)
    print(f"{len(faults)} faults")
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
