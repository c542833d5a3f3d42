#!/usr/bin/env python3
"""Plays one evening on phones that each lack one class which the extension looks up, and on one
that lacks all of them.

usage: run.py SIMULATOR SOURCES SCRIPT SYSTEM...

SOURCES is the top of the repository: the classes are those that its sources name. The script says
with "unless CLASS... :" before a line that the line needs these classes. Which of them a system has,
the simulator itself tells.
"""

import pathlib
import re
import subprocess
import sys
import tempfile

# Nothing on the phone works without these: not the journal, not the scripts.
ESSENTIAL = {
    "NSObject", "NSString", "NSMutableString", "NSNumber", "NSValue", "NSDate", "NSDictionary",
    "NSArray", "NSMutableArray",
}

# Our layouts hold objects of these, and the platform ends a host that reads a layout without them.
OF_LAYOUTS = {"UIButton", "UILabel", "UIStackView"}

# Own classes are made of these: without them nothing is installed, which a phone script holds.
SUPERCLASSES = {"UIView", "UIViewController"}


def classes(top):
    found = set()
    for source in [*top.glob("platform/**/*.h"), *top.glob("tweak/**/*.cpp"), *top.glob("tweak/**/*.h")]:
        text = source.read_text(encoding="utf-8")
        found |= set(re.findall(r'(?:objc_getClass\(|classNamed<)"(\w+)"', text))
        found |= set(re.findall(r'objc::hook<"(\w+)"', text))
    found.discard("DozewellButton")
    return sorted(found - ESSENTIAL - OF_LAYOUTS - SUPERCLASSES)


def systems_of(simulator):
    """The major versions of the system that have it, for each class."""
    page = subprocess.run([simulator, "fidelity"], text=True, stdout=subprocess.PIPE, check=True).stdout
    titles = re.findall(r"^### (\w+) \((?:(\d+) and earlier|(\d+) and later|(\d+) to (\d+)|(\d+)|all versions)\)$",
                        page, re.MULTILINE)
    if not titles:
        sys.exit("the fidelity page names no versions")
    found = {}
    for name, earlier, later, first, last, only in titles:
        low, high = later or first or only or "0", earlier or last or only or "1000"
        found[name] = range(int(low), int(high) + 1)
    return found


def script_without(system, lacking, absent, template):
    lines = [f"ios {system}", *(f"missing {name}" for name in absent)]
    for line in template.splitlines():
        condition, _, command = line.partition(" : ")
        if condition.startswith("unless "):
            if set(condition.split()[1:]) & {*absent, *lacking}:
                continue
            line = command
        lines.append(line)
    return "\n".join(lines) + "\n"


def cases(system, names, known):
    """The classes that the phones of that system are to lack, and those that all of them do."""
    major = int(system.partition(".")[0])
    lacking = {name for name in names if name in known and major not in known[name]}
    there = [name for name in names if name not in lacking]
    return [[], *([name] for name in there), there], lacking


def main(words):
    if len(words) < 4:
        print(__doc__, file=sys.stderr)
        return 2
    simulator, top, template = words[0], pathlib.Path(words[1]), pathlib.Path(words[2]).read_text("utf-8")
    systems = words[3:]
    names = classes(top)
    if len(names) < 20:
        print(f"only {len(names)} classes found below {top}: {names}", file=sys.stderr)
        return 1
    known = systems_of(simulator)
    with tempfile.TemporaryDirectory() as folder:
        scripts = []
        for system in systems:
            absences, lacking = cases(system, names, known)
            for absent in absences:
                which = absent[0] if len(absent) == 1 else "all" if absent else "nothing"
                scripts.append(pathlib.Path(folder) / f"{system}-without-{which}.phone")
                scripts[-1].write_text(script_without(system, lacking, absent, template), encoding="utf-8")
        status = subprocess.run([simulator, "play", "--quiet", *scripts]).returncode
    print(f"{len(scripts)} evenings on {', '.join(systems)}: status {status}")
    return status


sys.exit(main(sys.argv[1:]))
