#!/usr/bin/env python3
"""Checks that a program is hardened: position independent, its tables read-only after the start,
no executable stack, guarded stack frames, checked containers; and that every source of the program
was compiled so.

check_hardened.py BUILD_DIR PROGRAM...
"""

import json
import re
import subprocess
import sys
from pathlib import Path


def readelf(option, program):
    return subprocess.run(["readelf", "-W", option, program],
                          capture_output=True, text=True, check=True).stdout


def faults(program):
    header = readelf("-h", program)
    if not re.search(r"Type:\s+DYN", header):
        yield "is not position independent"
    segments = readelf("-l", program)
    if "GNU_RELRO" not in segments:
        yield "has no read-only relocations"
    stack = re.search(r"GNU_STACK(?:\s+0x\w+){5}\s+([RWE ]{3})", segments)
    if not stack or "E" in stack[1]:
        yield "has an executable stack"
    if not re.search(r"\(FLAGS(_1)?\).*\b(BIND_)?NOW\b", readelf("-d", program)):
        yield "binds its symbols late"
    symbols = readelf("--dyn-syms", program)
    if "__stack_chk_fail" not in symbols:
        yield "has no guarded stack frame"
    if "__glibcxx_assert_fail" not in symbols:
        yield "does not check its containers"


FLAGS = ("-fstack-protector-strong", "-D_FORTIFY_SOURCE=2", "-D_GLIBCXX_ASSERTIONS")


def compile_faults(build):
    for entry in json.loads((build / "compile_commands.json").read_text()):
        if "/src/" not in entry["file"]:
            continue
        missing = [flag for flag in FLAGS if flag not in entry["command"]]
        if missing:
            yield f"{entry['file']}: compiled without {' '.join(missing)}"


def main():
    found = list(compile_faults(Path(sys.argv[1])))
    found += [f"{program}: {fault}" for program in sys.argv[2:] for fault in faults(program)]
    for fault in found:
        print(fault)
    print(f"{len(found)} faults")
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
