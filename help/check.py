#!/usr/bin/env python3
"""Checks the help: links, anchors and pictures resolve, every page stands in the contents, every
page that topics.json names is there, and tidy finds nothing where it is installed.

    check.py [HELP_FOLDER [PICTURE_FOLDER]]

Prints what is wrong, a line for each, and ends with 1 if anything is.
"""

import html.parser
import json
import pathlib
import shutil
import subprocess
import sys

LEAST_INDEX_WORDS = 150
CONTEXTS = {"1030", "1040", "1080"}
OUTSIDE = ("http:", "https:", "mailto:")


class Page(html.parser.HTMLParser):
    """What a page holds that can be checked against others."""

    def __init__(self, path):
        super().__init__()
        self.anchors, self.links, self.pictures, self.styles = set(), [], [], []
        self.repeated = []
        self.headings = 0
        self.title = ""
        self._in_title = False
        self.feed(path.read_text(encoding="utf-8"))

    def handle_starttag(self, tag, attributes):
        values = dict(attributes)
        name = values.get("id") or (values.get("name") if tag == "a" else None)
        if name:
            if name in self.anchors:
                self.repeated.append(name)
            self.anchors.add(name)
        if tag == "a" and "href" in values:
            self.links.append(values["href"])
        elif tag == "img":
            self.pictures.append((values.get("src", ""), values.get("alt")))
        elif tag == "link":
            self.styles.append(values.get("href", ""))
        elif tag == "h1":
            self.headings += 1
        self._in_title = tag == "title"

    def handle_endtag(self, tag):
        self._in_title = False

    def handle_data(self, data):
        if self._in_title:
            self.title += data


class Check:
    def __init__(self, folder, pictures):
        self.folder, self.picture_folder = folder, pictures
        self.pages = {path.name: Page(path) for path in sorted(folder.glob("*.html"))}
        self.topics = json.loads((folder / "topics.json").read_text(encoding="utf-8"))
        self.wrong = []

    def say(self, where, what):
        self.wrong.append(f"{where}: {what}")

    def target(self, where, target, here=None):
        """A page, with or without an anchor; `here` is the page of an anchor alone."""
        name, _, anchor = target.partition("#")
        name = name or here
        if name not in self.pages:
            self.say(where, f"there is no page {target}")
        elif anchor and anchor not in self.pages[name].anchors:
            self.say(where, f"there is no anchor {target}")

    def page(self, name, page):
        if not page.title.strip():
            self.say(name, "it has no title")
        if page.headings != 1:
            self.say(name, f"it has {page.headings} headings h1, not one")
        for anchor in page.repeated:
            self.say(name, f"the anchor {anchor} stands there twice")
        for link in page.links:
            if not link.startswith(OUTSIDE):
                self.target(name, link, name)
        for picture, words in page.pictures:
            if not (self.picture_folder / picture).is_file():
                self.say(name, f"there is no picture {picture}")
            if not words:
                self.say(name, f"the picture {picture} has no words in its place")
        for style in page.styles:
            if not (self.folder / style).is_file():
                self.say(name, f"there is no style sheet {style}")

    def contents(self):
        listed = set()
        pending = list(self.topics["contents"])
        while pending:
            entry = pending.pop()
            listed.add(entry["page"].partition("#")[0])
            self.target("contents", entry["page"])
            if not entry["title"].strip():
                self.say("contents", f"{entry['page']} has no title")
            pending += entry.get("children", [])
        for name in self.pages.keys() - listed:
            self.say("contents", f"{name} is missing")

    def index(self):
        words = set()
        for entry in self.topics["index"]:
            self.target(f"index, {entry['word']}", entry["page"])
            if entry["word"].lower() in words:
                self.say("index", f"{entry['word']} stands there twice")
            words.add(entry["word"].lower())
        if len(words) < LEAST_INDEX_WORDS:
            self.say("index", f"it has {len(words)} words, less than {LEAST_INDEX_WORDS}")

    def names(self):
        if self.topics["contexts"].keys() != CONTEXTS:
            self.say("contexts", f"they are not {sorted(CONTEXTS)}")
        for kind in ("contexts", "windows"):
            for name, target in self.topics[kind].items():
                self.target(f"{kind}, {name}", target)

    def tidy(self):
        if not shutil.which("tidy"):
            print("tidy is not installed: the HTML was not checked")
            return
        for name in self.pages:
            run = subprocess.run(["tidy", "-e", "-q", str(self.folder / name)],
                                 capture_output=True, text=True, check=False)
            for line in run.stderr.splitlines():
                self.say(name, line)

    def run(self):
        for name, page in self.pages.items():
            self.page(name, page)
        self.contents()
        self.index()
        self.names()
        self.tidy()
        return sorted(self.wrong)


def main():
    folder = pathlib.Path(sys.argv[1] if len(sys.argv) > 1 else pathlib.Path(__file__).parent)
    pictures = (pathlib.Path(sys.argv[2]) if len(sys.argv) > 2
                else folder.parent / "docs" / "screenshots")
    check = Check(folder, pictures)
    wrong = check.run()
    for line in wrong:
        print(line)
    print(f"{len(check.pages)} pages, {len(wrong)} faults")
    return 1 if wrong else 0


if __name__ == "__main__":
    sys.exit(main())
