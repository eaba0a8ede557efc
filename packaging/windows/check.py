#!/usr/bin/env python3
"""check.py INSTALLED HELPER: looks into the programs of an installation, and into the folder of the
helper of 32 bits, for what the system shows of them: icon, version and manifest."""

import pathlib
import struct
import sys
import xml.etree.ElementTree as xml

ICON, GROUP_ICON, VERSION, MANIFEST = 3, 14, 16, 24
SIZES = {16, 24, 32, 48, 64, 128, 256}  # pixels of the icon's pictures


class Program:
    """The resources of a program or module: by type, a list of their bytes."""

    def __init__(self, path):
        self.bytes = path.read_bytes()
        pe = self.at("<I", 0x3C)
        assert self.bytes[pe : pe + 4] == b"PE\0\0", f"{path} is no program"
        self.machine, sections = self.at("<HH", pe + 4)
        optional = pe + 24
        is64 = self.at("<H", optional) == 0x20B
        directories = optional + (112 if is64 else 96)
        table = optional + self.at("<H", pe + 20)
        self.sections = [self.at("<IIII", table + 40 * i + 8) for i in range(sections)]
        self.resources = {}
        root = self.at("<I", directories + 2 * 8)
        if root:
            self.base = self.place(root)
            for kind, folder in self.entries(self.base):
                for _, name in self.entries(folder):
                    for _, leaf in self.entries(name):
                        address, size = self.at("<II", leaf)
                        data = self.bytes[self.place(address) :][:size]
                        self.resources.setdefault(kind, []).append(data)

    def at(self, form, offset):
        values = struct.unpack_from(form, self.bytes, offset)
        return values[0] if len(values) == 1 else values

    def place(self, address):
        for size, start, stored, offset in self.sections:
            if start <= address < start + max(size, stored):
                return address - start + offset
        raise ValueError(f"{address:#x} is in no section")

    def entries(self, folder):
        named, numbered = self.at("<HH", folder + 12)
        for i in range(named + numbered):
            kind, offset = self.at("<II", folder + 16 + 8 * i)
            yield kind, self.base + (offset & 0x7FFFFFFF)

    def icon_sizes(self):
        (group,) = self.resources.get(GROUP_ICON, [b"\0" * 6])
        count = struct.unpack_from("<H", group, 4)[0]
        return {group[6 + 14 * i] or 256 for i in range(count)}

    def says(self, text):
        return any(text.encode("utf-16-le") in data for data in self.resources.get(VERSION, []))

    def manifest(self):
        return [xml.fromstring(data) for data in self.resources.get(MANIFEST, [])]


def settings_of(manifest):
    return {node.tag.partition("}")[2]: node.text for node in manifest.iter()}


def main():
    installed, helper = map(pathlib.Path, sys.argv[1:])
    found = [
        (installed / "pixelworks-cli.exe", True, True),
        (installed / "VYPX.dll", False, False),
        (helper / "vypx-instaide.exe", False, True),
    ]
    if (installed / "vy-pixelworks.exe").exists():
        found.append((installed / "vy-pixelworks.exe", True, True))
    faults = []

    def expect(holds, what):
        if not holds:
            faults.append(what)

    for path, has_icon, has_manifest in found:
        program = Program(path)
        expect(program.icon_sizes() == (SIZES if has_icon else set()), f"{path}: icon")
        expect(len(program.resources.get(VERSION, [])) == 1, f"{path}: no version")
        for text in ("VY Pixelworks", path.name, "FileVersion"):
            expect(program.says(text), f"{path}: the version does not say {text}")
        manifests = program.manifest()
        expect(len(manifests) == (1 if has_manifest else 0), f"{path}: {len(manifests)} manifests")
        for manifest in manifests:
            settings = settings_of(manifest)
            is_helper = path.name == "vypx-instaide.exe"
            expect("requestedExecutionLevel" in settings, f"{path}: no level of rights")
            expect(settings.get("activeCodePage") == (None if is_helper else "UTF-8"),
                f"{path}: code page {settings.get('activeCodePage')}")
            expect(is_helper or settings.get("longPathAware") == "true", f"{path}: long paths")
    for name in ("libstdc++-6.dll", "libgcc_s_seh-1.dll", "libwinpthread-1.dll", "data/AppList.dat",
                 "data/samples/first-set.prc"):
        expect((installed / name).is_file(), f"{name} is not installed")
    expect(Program(helper / "vypx-instaide.exe").machine == 0x14C, "the helper is not of 32 bits")
    print("\n".join(faults) or f"{len(found)} programs and modules as they should be")
    return 1 if faults else 0


sys.exit(main())
