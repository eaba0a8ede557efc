#!/usr/bin/env python3
"""Checks a built .chm against the pages that it was made of, with chmls as the reader.

    check_chm.py CHM [HELP_FOLDER [PICTURE_FOLDER]]

Every page, the style sheet and every picture that a page names are objects of the file, byte for
byte; each context of topics.json leads to its page; no folder of this machine is in the file,
packed or not. Prints what is wrong, a line for each, and ends with 1 if anything is.
"""

import json
import pathlib
import re
import struct
import subprocess
import sys
import tempfile


def extracted(chm, folder):
    subprocess.run(["chmls", "extractall", str(chm), str(folder)], check=True,
                   stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    return {path.relative_to(folder).as_posix(): path.read_bytes()
            for path in folder.rglob("*") if path.is_file()}


def expected(help_folder, picture_folder):
    pages = {page.name: page.read_bytes() for page in help_folder.glob("*.html")}
    named = set()
    for page in pages.values():
        named |= set(re.findall(r'<img src="([^"]+)"', page.decode("utf-8")))
    pictures = {name: (picture_folder / name).read_bytes() for name in named}
    return pages | pictures | {"help.css": (help_folder / "help.css").read_bytes()}


def contexts(objects):
    """Pairs of a context and an offset into the texts, behind the length of all pairs."""
    table, texts = objects["#IVB"], objects["#STRINGS"]
    pairs = struct.iter_unpack("<II", table[4:])
    return {str(context): texts[at:texts.index(b"\0", at)].decode() for context, at in pairs}


def main():
    if len(sys.argv) < 2:
        sys.exit(__doc__)
    chm = pathlib.Path(sys.argv[1])
    help_folder = pathlib.Path(sys.argv[2] if len(sys.argv) > 2 else pathlib.Path(__file__).parent)
    picture_folder = pathlib.Path(sys.argv[3] if len(sys.argv) > 3
                                  else help_folder / ".." / "docs" / "screenshots")
    with tempfile.TemporaryDirectory() as name:
        objects = extracted(chm, pathlib.Path(name))
    wrong = []
    for file, content in expected(help_folder, picture_folder).items():
        if objects.get(file) != content:
            wrong.append(f"{file} is " + ("another one" if file in objects else "missing"))
    topics = json.loads((help_folder / "topics.json").read_text(encoding="utf-8"))
    found = contexts(objects)
    for context, page in topics["contexts"].items():
        if found.get(context) != page:
            wrong.append(f"{context} leads to {found.get(context)}, not to {page}")
    made = [text for file, text in objects.items() if not file.endswith((".html", ".png"))]
    for content in [chm.read_bytes(), *made]:
        for folder in ("/work", "/tmp/", "/home/", "/root/", "/proc/", str(help_folder.resolve())):
            if any(folder.encode(code) in content for code in ("ascii", "utf-16-le")):
                wrong.append(f"it names the folder {folder}")
    for line in wrong:
        print(line)
    print(f"{len(objects)} objects, {len(wrong)} faults")
    return 1 if wrong else 0


if __name__ == "__main__":
    sys.exit(main())
