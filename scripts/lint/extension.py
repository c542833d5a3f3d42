#!/usr/bin/env python3
"""usage: extension.py names|folders

Checks how the files of tweak/ reach each other and their host.

names: only platform/ looks classes of the host up and sends them messages. In tweak/ messages are
sent by the headers of its own classes alone, and only under names that these register; the state
behind a class is included by files of that class only.

folders: no two folders of tweak/ include each other, directly or by way of others."""

import pathlib
import re
import subprocess
import sys

TOP = pathlib.Path(__file__).resolve().parents[2]

# What gives the extension's own classes, and its additions to the host's, their selectors.
REGISTERED = re.compile(r'(?:method|classMethod|property|readonlyProperty|computedProperty|addMethod|'
                        r'addAttachedProperty)<\s*"([^"]+)"')
SETTING = re.compile(r"^SETTING\(\d+, \w+, (\w+), ", re.MULTILINE)
SENT = re.compile(r'objc::(?:send|sendVariadic|respondsTo)<[^"#;]*(?:"([^"]+)"|#(\w+))')
SELECTOR = re.compile(r'objc::selector<\s*"([^"]+)"')
LOOKED_UP = re.compile(r"\b(?:objc_getClass|classNamed|NSClassFromString)\b")
KEY = re.compile(r"\b(?:safeValueForKey|valueForKey)\(")
IMPLEMENTATION = re.compile(r'#include "tweak/\w+/(\w+)Implementation\.h"')
INCLUDE = re.compile(r'#include "tweak/(\w+)/')


def sources():
    """The text of each tracked C++ file of tweak/, by its path from the top."""
    listing = subprocess.run(["git", "-c", f"safe.directory={TOP}", "ls-files", "-z", "--", "tweak/*.h",
                              "tweak/*.cpp", "tweak/*.def"], cwd=TOP, check=True, text=True,
                             capture_output=True).stdout
    paths = [pathlib.Path(name) for name in listing.split("\0") if name]
    return {path: (TOP / path).read_text(encoding="utf-8") for path in paths if (TOP / path).exists()}


def own_selectors(texts):
    found = set()
    for text in texts.values():
        for name in REGISTERED.findall(text):
            found |= {name, f"set{name[0].upper()}{name[1:]}:"}
        found |= set(SETTING.findall(text))
    return found


def names(texts):
    """Complaints as (path, line, text)."""
    own = own_selectors(texts)
    for path, text in texts.items():
        def at(match, complaint, text=text, path=path):
            return path, text.count("\n", 0, match.start()) + 1, complaint

        for match in LOOKED_UP.finditer(text):
            yield at(match, f"{match[0]}: classes of the host are named in platform/")
        for match in KEY.finditer(text):
            yield at(match, f"{match[0]}…): keys of the host are named in platform/")
        for match in SENT.finditer(text):
            if path.suffix != ".h":
                yield at(match, "a message is sent by a typed view: put it into the class's header")
            elif match[1] is not None and match[1] not in own:
                yield at(match, f'"{match[1]}" is not of the extension: platform/ sends it')
        for match in SELECTOR.finditer(text):
            if match[1] not in own:
                yield at(match, f'"{match[1]}" is not of the extension: platform/ names it')
        for match in IMPLEMENTATION.finditer(text):
            if not path.name.startswith(match[1]):
                yield at(match, f"the state of {match[1]} is its own files' affair: include {match[1]}.h")


def reachable(graph, folder):
    found, todo = set(), [folder]
    while todo:
        for other in graph.get(todo.pop(), {}):
            if other not in found:
                found.add(other)
                todo.append(other)
    return found


def folders(texts):
    """Complaints as (path, line, text): one for each include that is part of a circle."""
    graph = {}  # folder -> each folder that it includes -> (path, line) of one include
    for path, text in texts.items():
        others = graph.setdefault(path.parts[1], {})
        for match in INCLUDE.finditer(text):
            if match[1] != path.parts[1]:
                others[match[1]] = path, text.count("\n", 0, match.start()) + 1
    for folder, others in sorted(graph.items()):
        for other, (path, line) in sorted(others.items()):
            if folder in reachable(graph, other):
                yield path, line, f"tweak/{other} includes tweak/{folder} in turn, or by way of others"


def main(words):
    checks = {"names": names, "folders": folders}
    if len(words) != 1 or words[0] not in checks:
        sys.exit(__doc__)
    texts = sources()
    if len(texts) < 40:
        sys.exit(f"only {len(texts)} files found below tweak/")
    complaints = list(checks[words[0]](texts))
    for path, line, complaint in complaints:
        print(f"{path}:{line}: {complaint}", file=sys.stderr)
    sys.exit(1 if complaints else 0)


if __name__ == "__main__":
    main(sys.argv[1:])
