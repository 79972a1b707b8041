#!/usr/bin/env python3
"""Runs one scenario on a fresh copy of the fixtures and compares its transcript.

run_scenario.py DRIVER NAME.scenario            compares with NAME.transcript, byte for byte
run_scenario.py --print DRIVER NAME.scenario    prints what the driver prints

A transcript may name a long text that many of them have: $NAME stands for the text of that name in
texts.txt.
"""

import difflib
import os
import shutil
import subprocess
import sys
import tempfile
from pathlib import Path


def named_texts(folder):
    """The lines of texts.txt, "NAME TEXT", as they are looked for and put in."""
    lines = (folder / "texts.txt").read_bytes().splitlines()
    return {b"$" + name: text for name, text in (line.split(b" ", 1) for line in lines)}


def expected_transcript(path):
    text = path.read_bytes()
    for name, meant in named_texts(path.parent).items():
        text = text.replace(name, meant)
    return text


def expected_status(transcript):
    """How the driver ends after this transcript."""
    lines = transcript.decode("utf-8").splitlines()
    return 1 if lines and lines[-1].startswith("fault ") else 0


def run(driver, scenario):
    with tempfile.TemporaryDirectory(prefix="velmora-scenarios-") as folder:
        work = Path(folder) / "work"
        shutil.copytree(scenario.parent / "fixtures", work)
        # A driver that is stopped leaves its folder behind; here it goes with ours.
        # No printer answers: a tester's own is not for test sheets.
        environment = dict(os.environ, TMPDIR=folder, CUPS_SERVER=f"{folder}/no-printers")
        return subprocess.run([driver, "--work", work, scenario], capture_output=True,
                              env=environment, timeout=280, check=False)


def difference(expected, printed):
    before, after = (text.decode("utf-8", "backslashreplace").splitlines()
                     for text in (expected, printed))
    return "\n".join(difflib.unified_diff(before, after, "expected", "printed", lineterm=""))


def main():
    words = [word for word in sys.argv[1:] if word != "--print"]
    driver, scenario = words[0], Path(words[1]).resolve()
    done = run(driver, scenario)
    sys.stderr.write(done.stderr.decode("utf-8", "replace"))
    if "--print" in sys.argv:
        sys.stdout.buffer.write(done.stdout)
        return done.returncode
    expected = expected_transcript(scenario.with_suffix(".transcript"))
    if done.stdout != expected:
        print(difference(expected, done.stdout))
        return 1
    if done.returncode != expected_status(expected):
        print(f"exit status {done.returncode}, expected {expected_status(expected)}")
        return 1
    return 0


if __name__ == "__main__":
    sys.exit(main())
