#!/usr/bin/env python3
"""Checks the guide: check_help.py PAGES [HELP_FILE EXTRACTOR]

Every link leads somewhere, every page stands in the project and in its contents, has a title and
is reached from the first one. With a help file and the program that takes it apart, all pages and
pictures are in it, byte for byte."""

import html.parser
import pathlib
import re
import subprocess
import sys
import tempfile


class Page(html.parser.HTMLParser):
    def __init__(self, path):
        super().__init__()
        self.links, self.title, self.images_without_text = [], "", 0
        self._in_title = False
        self.feed(path.read_text(encoding="utf-8"))

    def handle_starttag(self, tag, attrs):
        values = dict(attrs)
        self._in_title = tag == "title"
        for name in ("href", "src"):
            if name in values:
                self.links.append(values[name])
        if tag == "img" and not values.get("alt"):
            self.images_without_text += 1

    def handle_data(self, data):
        if self._in_title:
            self.title += data.strip()

    def handle_endtag(self, tag):
        self._in_title = False


def reached_from(start, pages):
    seen, waiting = set(), [start]
    while waiting:
        name = waiting.pop()
        if name in seen or name not in pages:
            continue
        seen.add(name)
        waiting += pages[name].links
    return seen


def faults_of_pages(folder):
    pages = {path.name: Page(path) for path in folder.glob("*.html")}
    project = (folder / "velmora.hhp").read_text(encoding="ascii")
    listed = set(project.split("[FILES]")[1].split())
    locals_of = {kind: re.findall(r'name="Local" value="([^"]+)"',
                                  (folder / f"velmora.{kind}").read_text(encoding="ascii"))
                 for kind in ("hhc", "hhk")}
    travelling = {str(path.relative_to(folder)) for path in folder.rglob("*")
                  if path.suffix in (".html", ".css", ".png")}
    yield from (f"{name}: not in the project" for name in travelling - listed)
    yield from (f"{name}: in the project alone" for name in listed - travelling)
    for name, page in pages.items():
        if not page.title:
            yield f"{name}: no title"
        if page.images_without_text:
            yield f"{name}: a picture without a text"
        yield from (f"{name}: {link} leads nowhere" for link in page.links
                    if not (folder / link).is_file())
    for kind, targets in locals_of.items():
        yield from (f"velmora.{kind}: {name} leads nowhere" for name in set(targets) - set(pages))
    yield from (f"{name}: not in the contents" for name in set(pages) - set(locals_of["hhc"]))
    yield from (f"{name}: no way to it" for name in
                set(pages) - reached_from("index.html", pages))


def faults_of_help_file(folder, help_file, extractor):
    project = (folder / "velmora.hhp").read_text(encoding="ascii")
    with tempfile.TemporaryDirectory() as place:
        run = subprocess.run([extractor, help_file, place], capture_output=True, check=False)
        if run.returncode != 0:
            yield f"{help_file}: {extractor} can't read it"
            return
        for name in project.split("[FILES]")[1].split():
            packed = pathlib.Path(place, name)
            if not packed.is_file() or packed.read_bytes() != (folder / name).read_bytes():
                yield f"{help_file}: {name} is missing or differs"


def main():
    folder = pathlib.Path(sys.argv[1])
    faults = list(faults_of_pages(folder))
    if len(sys.argv) > 2:
        faults += faults_of_help_file(folder, sys.argv[2], sys.argv[3])
    print("\n".join(faults + [f"{len(faults)} faults"]))
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
