#!/usr/bin/env python3
"""Holds the pages on the code against it: check_names.py SOURCE_DIR

What stands between back ticks on these pages is a file of the project or a word of its sources. A
page that names what is gone sends the reader astray.
"""

import re
import subprocess
import sys
from pathlib import Path

PAGES = ["docs/ARCHITECTURE.md", "docs/GLOSSARY.md", "docs/ONE_POINT.md"]
SEARCHED = ["src/", "data/", "tests/", "script/", "bench/", "docs/help/", "cmake/", "CMakeLists"]
TICKED = re.compile(r"`([^`\n]+)`")
WORD = re.compile(r"\w+")
# A place, a pattern or a command, not one name: "NAME.cpp", "ctest --preset release".
PATTERN = re.compile(r"[ *<>$|=]|\b[A-Z]*NAME\b|\.\.\.")


def files_of(root):
    return subprocess.run(["git", "-C", root, "ls-files", "--cached", "--others",
                           "--exclude-standard"],
                          capture_output=True, text=True, check=True).stdout.splitlines()


def words_of(root, files):
    words = set()
    for name in files:
        if name.startswith(tuple(SEARCHED)) and (root / name).is_file():
            words.update(WORD.findall((root / name).read_text(encoding="utf-8", errors="ignore")))
    return words


def stands(name, places, words):
    """A path from the root or from below it, with its ending or without."""
    if "/" not in name:
        return all(word in words for word in WORD.findall(name))
    path = "/" + name.rstrip("/")
    return any(("/" + place).endswith(path) or f"{path}." in "/" + place for place in places)


def check_page(root, page, places, words):
    for number, line in enumerate((root / page).read_text(encoding="utf-8").splitlines(), 1):
        for name in TICKED.findall(line):
            if not PATTERN.search(name) and not stands(name, places, words):
                yield f"{page}:{number}: nothing in the project is called `{name}`"


def main():
    root = Path(sys.argv[1]).resolve()
    files = files_of(root)
    here = [name for name in files if (root / name).exists()]
    places = set(here)
    for name in here:
        places.update(parent.as_posix() for parent in Path(name).parents)
    words = words_of(root, [name for name in here if name not in PAGES])
    faults = [fault for page in PAGES for fault in check_page(root, page, places, words)]
    for fault in faults:
        print(fault)
    print(f"{len(faults)} faults")
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
