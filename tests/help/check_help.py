#!/usr/bin/env python3
"""Checks the guide: check_help.py GUIDE [HELP_FILES EXTRACTOR]

GUIDE has a folder a language. In each every link leads somewhere, every page stands in the
project and in its contents under its title and is reached from the first one. All have the same
pages as the Spanish one, with the same headings, lists, tables, notes, pictures and links. With a
folder of help files and the program that takes one apart, all pages and pictures are in them, byte
for byte."""

import html
import html.parser
import pathlib
import re
import subprocess
import sys
import tempfile

FIRST = "es"
STYLE = "velmora.css"  # one for all languages, beside their folders
BLOCKS = {"h1", "h2", "h3", "p", "ul", "ol", "li", "table", "tr", "th", "td", "img", "br"}


class Page(html.parser.HTMLParser):
    def __init__(self, path):
        super().__init__()
        self.links, self.title, self.images_without_text = [], "", 0
        self.structure = []
        self._in_title = False
        self.feed(path.read_text(encoding="utf-8"))

    def handle_starttag(self, tag, attrs):
        values = dict(attrs)
        self._in_title = tag == "title"
        for name in ("href", "src"):
            if name in values:
                self.links.append(values[name])
        if tag in BLOCKS:
            self.structure.append(" ".join([tag, values.get("class", ""), values.get("src", "")]))
        if tag == "img" and not values.get("alt"):
            self.images_without_text += 1

    def handle_data(self, data):
        if self._in_title:
            self.title += data.strip()

    def handle_endtag(self, tag):
        self._in_title = False


def pages_of(folder):
    return {path.name: Page(path) for path in sorted(folder.glob("*.html"))}


def reached_from(start, pages):
    seen, waiting = set(), [start]
    while waiting:
        name = waiting.pop()
        if name in seen or name not in pages:
            continue
        seen.add(name)
        waiting += pages[name].links
    return seen


def listed_in(folder):
    return (folder / "velmora.hhp").read_text(encoding="ascii").split("[FILES]")[1].split()


def sitemap(folder, kind):
    """Page by page, the names that it stands under."""
    text = (folder / f"velmora.{kind}").read_text(encoding="ascii")
    entry = re.compile(r'name="Name" value="([^"]+)">.*?name="Local" value="([^"]+)"', re.I)
    names = {}
    for name, page in entry.findall(text):
        names.setdefault(page, []).append(html.unescape(name))
    return names


def faults_of_pages(folder):
    pages = pages_of(folder)
    listed = set(listed_in(folder))
    travelling = {str(path.relative_to(folder)) for path in folder.rglob("*")
                  if path.suffix in (".html", ".png")} | {STYLE}
    yield from (f"{name}: not in the project" for name in travelling - listed)
    yield from (f"{name}: in the project alone" for name in listed - travelling)
    for name, page in pages.items():
        if not page.title:
            yield f"{name}: no title"
        if page.images_without_text:
            yield f"{name}: a picture without a text"
        yield from (f"{name}: {link} leads nowhere" for link in page.links
                    if link != STYLE and not (folder / link).is_file())
    contents, index = (sitemap(folder, kind) for kind in ("hhc", "hhk"))
    yield from (f"{name}: in contents or index alone" for name in
                (set(contents) | set(index)) - set(pages))
    yield from (f"{name}: not in the contents" for name in set(pages) - set(contents))
    yield from (f"{name}: another title in the contents" for name in set(contents) & set(pages)
                if name != "index.html" and contents[name] != [pages[name].title])
    yield from (f"{name}: no way to it" for name in
                set(pages) - reached_from("index.html", pages))


def faults_of_structure(folder, first):
    pages, model = pages_of(folder), pages_of(first)
    yield from (f"{name}: not in every language" for name in set(pages) ^ set(model))
    for name in sorted(set(pages) & set(model)):
        if sorted(pages[name].links) != sorted(model[name].links):
            yield f"{name}: other links than in {first.name}"
        pairs = zip(pages[name].structure + ["the end"], model[name].structure + ["the end"])
        for place, (here, there) in enumerate(pairs):
            if here != there:
                yield f"{name}: {here!r} in place {place}, in {first.name} {there!r}"
                break


def faults_of_help_file(folder, help_file, extractor):
    with tempfile.TemporaryDirectory() as place:
        run = subprocess.run([extractor, help_file, place], capture_output=True, check=False)
        if run.returncode != 0:
            yield f"{help_file}: {extractor} can't read it"
            return
        for name in listed_in(folder):
            source = folder.parent / name if name == STYLE else folder / name
            packed = pathlib.Path(place, name)
            if not packed.is_file() or packed.read_bytes() != source.read_bytes():
                yield f"{help_file}: {name} is missing or differs"


def help_file_of(folder, place):
    name = "velmora.chm" if folder.name == FIRST else f"velmora_{folder.name}.chm"
    return pathlib.Path(place, name)


def main():
    guide = pathlib.Path(sys.argv[1])
    faults = []
    for folder in sorted(path.parent for path in guide.glob("*/velmora.hhp")):
        found = list(faults_of_pages(folder)) + list(faults_of_structure(folder, guide / FIRST))
        if len(sys.argv) > 2:
            found += faults_of_help_file(folder, help_file_of(folder, sys.argv[2]), sys.argv[3])
        faults += [f"{folder.name}: {fault}" for fault in found]
    print("\n".join(faults + [f"{len(faults)} faults"]))
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
