#!/usr/bin/env python3
"""Makes first-set.prc from the drawings beside this file.

    make.py PIXELWORKS_CLI

Each drawing is rendered in the four sizes of an icon on the mask colour, wrapped as plain 16-bit
Palm bitmaps into a draft database, and pixelworks-cli writes the iconset from that. Needs
rsvg-convert (librsvg2-bin) and pngtopnm (netpbm).
"""

import pathlib
import shutil
import struct
import subprocess
import sys
import tempfile

HERE = pathlib.Path(__file__).resolve().parent
MASK = (255, 0, 255)
LARGE, SMALL = ((32, 22), (64, 44)), ((15, 11), (30, 22))  # low-res, high-res

# Drawing, resource ID, sizes; even IDs are large icons.
PICTURES = [
    ("calendar", 3500, LARGE), ("calendar", 3501, SMALL),
    ("address", 3502, LARGE), ("address", 3503, SMALL),
    ("memo", 3504, LARGE), ("memo", 3505, SMALL),
    ("calculator", 3506, LARGE), ("calculator", 3507, SMALL),
    ("leaf", 3508, LARGE), ("leaf", 3509, SMALL),
    ("compass", 3510, LARGE), ("compass", 3511, SMALL),
    ("start", 2000, LARGE), ("start", 2001, SMALL),
    ("lock", 2098, LARGE),
]
# Type, creator, large, small. Date Book and Calendar share the first two.
INDEX = [
    ("appl", "date", 3500, 3501), ("appl", "PDat", 3500, 3501), ("appl", "addr", 3502, 3503),
    ("appl", "memo", 3504, 3505), ("appl", "calc", 3506, 3507), ("appl", "LEAF", 3508, 3509),
    ("appl", "CMPS", 3510, 3511),
]


def pixels(drawing, width, height):
    png = subprocess.run(["rsvg-convert", "-w", str(width), "-h", str(height), "-b", "#ff00ff",
                          str(HERE / "drawings" / (drawing + ".svg"))],
                         check=True, capture_output=True).stdout
    ppm = subprocess.run(["pngtopnm", "-quiet"], input=png, check=True, capture_output=True).stdout
    assert ppm.startswith(b"P6")
    return ppm[-width * height * 3:]


def body(rgb):
    def word(i):
        r, g, b = rgb[i:i + 3]
        return round(r * 31 / 255) << 11 | round(g * 63 / 255) << 5 | round(b * 31 / 255)
    return b"".join(struct.pack(">H", word(i)) for i in range(0, len(rgb), 3))


def family(drawing, sizes):
    (lw, lh), (hw, hh) = sizes
    low = body(pixels(drawing, lw, lh))
    low += bytes(-len(low) % 4)
    record = struct.pack(">HHHHBBHBBH", lw, lh, lw * 2, 0x2400, 16, 2, (24 + len(low)) // 4, 0, 255, 0)
    record += bytes([5, 6, 5, 0, 0, *MASK]) + low
    mark = bytes(8) + b"\xff\x01" + bytes(6)
    high = struct.pack(">HHHHBBBBBBHII", hw, hh, hw * 2, 0x2000, 16, 3, 24, 1, 0, 255, 144, 0xF81F, 0)
    return record + mark + high + body(pixels(drawing, hw, hh))


def database(resources):
    offset = 80 + 10 * len(resources)
    listing, data = b"", b""
    for kind, number, content in resources:
        listing += kind + struct.pack(">HI", number, offset + len(data))
        data += content
    header = b"First Set".ljust(60, b"\0") + b"ICONVNTR" + bytes(8)
    return header + struct.pack(">H", len(resources)) + listing + bytes(2) + data


def main(tool):
    index = b"".join((kind + creator).encode() + struct.pack(">HHI", large, small, 0)
                     for kind, creator, large, small in INDEX)
    resources = [(b"tAIB", number, family(drawing, sizes)) for drawing, number, sizes in PICTURES]
    with tempfile.TemporaryDirectory() as name:
        folder = pathlib.Path(name)
        for catalog in ("AppList.dat", "PalmApp.dat", "VY_Icons.dat"):
            shutil.copy(HERE.parent / catalog, folder)
        # The lock is an icon of the launcher here and of nothing in the shipped catalog: an orphan.
        with open(folder / "VY_Icons.dat", "a") as catalog:
            catalog.write("\n[Sample Lock (Large Icon)]\nID=2098\n")
        (folder / "draft.prc").write_bytes(database(resources + [(b"iTbl", 1000, index)]))
        subprocess.run([tool, "convert", folder / "draft.prc", HERE / "first-set.prc",
                        "--app-folder", folder, "--work", folder / "work"], check=True)


main(sys.argv[1])
