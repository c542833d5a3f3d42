#!/usr/bin/env python3
"""Tells the linker what a phone's libraries export:

    stubs.py IMPORTS FOLDER

Writes one stub for each library of the list. One that is right already is left alone, so that nothing
is linked again.
"""

import pathlib
import sys

from imports import libraries


def stub(library):
    lines = [
        "--- !tapi-tbd",
        "tbd-version: 4",
        "targets: [ arm64-ios, arm64e-ios ]",
        f"install-name: '{library.name}'",
        f"current-version: {library.version}",
        f"compatibility-version: {library.version}",
    ]
    if library.symbols:
        lines += ["exports:", "  - targets: [ arm64-ios, arm64e-ios ]", "    symbols:"]
        lines += [f"      - {symbol}" for symbol in library.symbols]
    return "\n".join([*lines, "...", ""])


def main(imports, folder):
    for library in libraries(imports):
        path = pathlib.Path(folder, pathlib.PurePath(library.name).name + ".tbd")
        if not path.exists() or path.read_text() != stub(library):
            path.write_text(stub(library))


main(*sys.argv[1:])
