#!/usr/bin/env python3
"""usage: layers.py

Checks that includes lead only to what comes before: among the top folders, and among the folders of
simulator/."""

import pathlib
import re
import subprocess
import sys

TOP = pathlib.Path(__file__).resolve().parents[2]

# What the sources of each top folder may include.
MAY_INCLUDE = {
    "objc": ["objc"],
    "platform": ["objc", "platform"],
    "tweak": ["objc", "platform", "tweak"],
    "tools": ["tools"],
    "simulator": ["objc", "tools", "simulator"],
}

# The folders of simulator/, from the ground up.
ORDER = [
    "runtime", "substrate",  # Objective-C itself
    "machine", "standin", "dispatch",  # clock, queue, journal, phone; how stand-ins register
    "foundation", "coregraphics", "coretext", "quartzcore", "uikit",
    "mediaremote", "services", "cephei", "radios", "donotdisturb", "runwright", "backboard",
    "springboard", "mediacontrols", "coversheet", "controlcenter", "preferences",
    "drawing",
    "macho",  # extensions built for phones
    "launch", "libraries",  # all frameworks, and the extensions
    "script", "host", "serve", "program",
]

INCLUDE = re.compile(r'^[ \t]*#[ \t]*include[ \t]+"([^"]+)"', re.MULTILINE)


def sources():
    """The text of each tracked C++ file, by its path from the top."""
    listing = subprocess.run(["git", "-c", f"safe.directory={TOP}", "ls-files", "-z", "--",
                              *(f"{folder}/*{end}" for folder in MAY_INCLUDE
                                for end in (".h", ".cpp", ".cpp.in", ".def", ".S"))],
                             cwd=TOP, check=True, text=True, capture_output=True).stdout
    paths = [pathlib.Path(name) for name in listing.split("\0") if name]
    return {path: (TOP / path).read_text(encoding="utf-8") for path in paths if (TOP / path).exists()}


def among_layers(path, included):
    """What is wrong with an include within simulator/; None when nothing is."""
    if len(path.parts) < 3:  # main.cpp
        return None
    folder, other = path.parts[1], included.split("/")[1]
    for each in (folder, other):
        if each not in ORDER:
            return f"simulator/{each} has no place yet in the order of scripts/lint/layers.py"
    if ORDER.index(other) > ORDER.index(folder):
        return f"simulator/{folder} must not include simulator/{other}, which comes after it"
    return None


def complaint(path, included):
    folder, other = path.parts[0], included.split("/")[0]
    if other not in MAY_INCLUDE[folder]:
        return f"{folder}/ must not include {other}/"
    return among_layers(path, included) if folder == other == "simulator" else None


def complaints(texts):
    """As (path, line, text)."""
    for path, text in texts.items():
        for match in INCLUDE.finditer(text):
            found = complaint(path, match[1])
            if found is not None:
                yield path, text.count("\n", 0, match.start(1)) + 1, found


def main():
    if len(sys.argv) != 1:
        sys.exit(__doc__)
    texts = sources()
    if len(texts) < 800:
        sys.exit(f"only {len(texts)} sources found")
    found = list(complaints(texts))
    for path, line, text in found:
        print(f"{path}:{line}: {text}", file=sys.stderr)
    sys.exit(1 if found else 0)


if __name__ == "__main__":
    main()
