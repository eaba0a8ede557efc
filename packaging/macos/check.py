#!/usr/bin/env python3
"""check.py INFO_PLIST ICONS: what macOS must find in the property list of the bundle."""

import pathlib
import plistlib
import sys

info = plistlib.loads(pathlib.Path(sys.argv[1]).read_bytes())
faults = []


def expect(holds, what):
    if not holds:
        faults.append(what)


def endings(key):
    return {
        declared["UTTypeIdentifier"]: set(declared["UTTypeTagSpecification"]["public.filename-extension"])
        for declared in info[key]
    }


imported, exported = endings("UTImportedTypeDeclarations"), endings("UTExportedTypeDeclarations")
expect(set().union(*imported.values()) == {"prc", "pdb"}, "types of others: prc and pdb")
expect(list(exported.values()) == [{"vpt"}], "types of our own: vpt")
expect(all(name.startswith(info["CFBundleIdentifier"] + ".") for name in exported), "our types' names")
for document in info["CFBundleDocumentTypes"]:
    for name in document["LSItemContentTypes"]:
        expect(name in imported or name in exported, f"{name} is declared nowhere")
        expect((document["LSHandlerRank"] == "Owner") == (name in exported), f"the rank for {name}")
expect(info["NSHighResolutionCapable"] is True, "high resolution")
for key in ("CFBundleExecutable", "CFBundleName", "CFBundleVersion", "LSMinimumSystemVersion"):
    expect(info.get(key), key)
expect("@" not in str(info), "a name was not filled in")
icons = pathlib.Path(sys.argv[2])
expect(icons.name == info["CFBundleIconFile"] and icons.read_bytes()[:4] == b"icns", "the icon")
print("\n".join(faults) or "as it should be")
sys.exit(1 if faults else 0)
