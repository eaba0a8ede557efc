#!/usr/bin/env python3
"""Builds the help for readers of .chm files, by chmcmd.

    build_chm.py HELP_FOLDER PICTURE_FOLDER TARGET

Everything is copied flat into a folder of its own, and no folder of this machine is in the file. It
holds the time of its making: two builds differ.
"""

import html
import json
import os
import pathlib
import re
import shutil
import struct
import subprocess
import sys
import tempfile

TITLE = "VY Pixelworks Help"
HOME = "start.html"
SITEMAP = '<!DOCTYPE HTML PUBLIC "-//IETF//DTD HTML//EN">\n<HTML><BODY>\n<UL>\n{}</UL>\n</BODY></HTML>\n'
# Where the project seems to stand: chmcmd writes the folder before each topic that has a context.
NEUTRAL = "/proc/self/cwd/"


def sitemap_entry(name, page):
    name, page = html.escape(name), html.escape(page)
    return (f'<LI><OBJECT type="text/sitemap"><param name="Name" value="{name}">'
            f'<param name="Local" value="{page}"></OBJECT>\n')


def contents(entries):
    text = ""
    for entry in entries:
        text += sitemap_entry(entry["title"], entry["page"])
        if "children" in entry:
            text += f"<UL>\n{contents(entry['children'])}</UL>\n"
    return text


def project(files, contexts):
    lines = ["[OPTIONS]", "Compiled file=VYPX.chm", "Contents file=VYPX.hhc",
             "Index file=VYPX.hhk", f"Default topic={HOME}", f"Title={TITLE}", "Language=0x409",
             "Full-text search=Yes", "[FILES]", *files, "[ALIAS]"]
    lines += [f"IDH_{number}={page}" for number, page in contexts.items()]
    lines.append("[MAP]")
    lines += [f"#define IDH_{number} {number}" for number in contexts]
    return "\n".join(lines) + "\n"


def gather(help_folder, picture_folder, folder):
    """Copies what the file is made of and writes its project."""
    topics = json.loads((help_folder / "topics.json").read_text(encoding="utf-8"))
    files, pictures = [], set()
    for page in sorted(help_folder.glob("*.html")):
        shutil.copy(page, folder)
        files.append(page.name)
        pictures |= set(re.findall(r'<img src="([^"]+)"', page.read_text(encoding="utf-8")))
    shutil.copy(help_folder / "help.css", folder)
    for picture in sorted(pictures):
        shutil.copy(picture_folder / picture, folder)
    index = "".join(sitemap_entry(entry["word"], entry["page"]) for entry in topics["index"])
    made = {
        "VYPX.hhc": SITEMAP.format(contents(topics["contents"])),
        "VYPX.hhk": SITEMAP.format(index),
        "VYPX.hhp": project([*files, "help.css", *sorted(pictures)], topics["contexts"]),
    }
    for name, text in made.items():
        (folder / name).write_bytes(text.encode("ascii", "xmlcharrefreplace"))


def compiled(folder):
    """The bytes that chmcmd makes of the project in a folder."""
    seems = NEUTRAL if os.path.isdir(NEUTRAL) else f"{folder}/"
    run = subprocess.run(["chmcmd", f"{seems}VYPX.hhp"], cwd=folder, check=False,
                         stdout=subprocess.PIPE, stderr=subprocess.STDOUT)
    result = folder / "VYPX.chm"
    if run.returncode != 0 or not result.is_file():
        sys.exit(run.stdout.decode(errors="replace") + "chmcmd made no help file")
    topics = folder / "strings"
    subprocess.run(["chmls", "extract", str(result), "/#STRINGS", str(topics)], check=True,
                   stdout=subprocess.DEVNULL)
    return bytearray(result.read_bytes()), topics.read_bytes(), seems.encode()


def without_folder(texts, folder):
    """Texts end in NUL and are known by their offset: what goes in front comes back behind."""
    return b"\0".join(text[len(folder):] + b"\0" * len(folder) if text.startswith(folder) else text
                      for text in texts.split(b"\0"))


def number(data, at):
    """A number in 7 bits a byte, highest first, and where it ends."""
    value = 0
    while True:
        value = value << 7 | data[at] & 0x7F
        at += 1
        if data[at - 1] < 0x80:
            return value, at


def put_number(data, at, end, value):
    """Leading zeros fill up the room that is there."""
    if value >> 7 * (end - at):
        sys.exit("the help file is too large for its directory")
    for place in range(end - at):
        bits = value >> 7 * (end - at - 1 - place) & 0x7F
        data[at + place] = bits | (0 if place == end - at - 1 else 0x80)


class Directory:
    """The objects of a file: section (0 stands as it is, 1 is packed), offset and length."""

    def __init__(self, data):
        self.data = data
        self.sizes, = struct.unpack_from("<Q", data, 0x38)
        start, = struct.unpack_from("<Q", data, 0x48)
        self.plain, = struct.unpack_from("<Q", data, 0x58)
        head, = struct.unpack_from("<I", data, start + 0x08)
        self.chunk, = struct.unpack_from("<I", data, start + 0x10)
        count, = struct.unpack_from("<I", data, start + 0x2C)
        self.chunks = [start + head + i * self.chunk for i in range(count)]

    def find(self, name):
        """Where an object's section, offset and length stand, and where the last of them ends."""
        for chunk in self.chunks:
            if self.data[chunk:chunk + 4] != b"PMGL":
                continue
            free, = struct.unpack_from("<I", self.data, chunk + 4)
            at, end = chunk + 0x14, chunk + self.chunk - free
            while at < end:
                length, at = number(self.data, at)
                found = bytes(self.data[at:at + length]) == name
                places = [at + length]
                for _ in range(3):
                    places.append(number(self.data, places[-1])[1])
                if found:
                    return places
                at = places[-1]
        sys.exit(f"the help file has no {name.decode()}")

    def append(self, name, content):
        """The object's content, of the same length, from the packed part to the file's end."""
        section, offset, length, _ = self.find(name)
        put_number(self.data, section, offset, 0)
        put_number(self.data, offset, length, len(self.data) - self.plain)
        self.data += content
        struct.pack_into("<Q", self.data, self.sizes + 8, len(self.data))


def main():
    if len(sys.argv) != 4:
        sys.exit(__doc__)
    help_folder, picture_folder, target = map(pathlib.Path, sys.argv[1:])
    with tempfile.TemporaryDirectory() as name:
        folder = pathlib.Path(name)
        gather(help_folder, picture_folder, folder)
        data, texts, seems = compiled(folder)
    directory = Directory(data)
    # Readers look for a topic as it is named there, so a folder before it would hide it.
    directory.append(b"/#STRINGS", without_folder(texts, seems))
    target.write_bytes(data)


if __name__ == "__main__":
    main()
