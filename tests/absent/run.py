#!/usr/bin/env python3
"""Plays one evening on phones that each lack one class which the extension looks up, and on one
that lacks all of them.

usage: run.py SIMULATOR SOURCES SCRIPT

SOURCES is the top of the repository: the classes are those that its sources name. The script says
with "unless CLASS... :" before a line that the line needs these classes.
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


def script_without(absent, template):
    lines = [f"missing {name}" for name in absent]
    for line in template.splitlines():
        condition, _, command = line.partition(" : ")
        if condition.startswith("unless "):
            if set(condition.split()[1:]) & set(absent):
                continue
            line = command
        lines.append(line)
    return "\n".join(lines) + "\n"


def play(simulator, absent, template, folder):
    script = folder / "evening.phone"
    script.write_text(script_without(absent, template), encoding="utf-8")
    run = subprocess.run([simulator, "play", "--quiet", script], text=True,
                         stdout=subprocess.PIPE, stderr=subprocess.STDOUT)
    if run.returncode != 0:
        print(f"without {', '.join(absent)}: status {run.returncode}\n{run.stdout}", file=sys.stderr)
    return run.returncode == 0


def main(words):
    if len(words) != 3:
        print(__doc__, file=sys.stderr)
        return 2
    simulator, top, template = words[0], pathlib.Path(words[1]), pathlib.Path(words[2]).read_text("utf-8")
    names = classes(top)
    if len(names) < 20:
        print(f"only {len(names)} classes found below {top}: {names}", file=sys.stderr)
        return 1
    with tempfile.TemporaryDirectory() as folder:
        cases = [[], *([name] for name in names), names]
        results = [play(simulator, absent, template, pathlib.Path(folder)) for absent in cases]
    print(f"{sum(results)} of {len(results)} evenings went as they should")
    return 0 if all(results) else 1


sys.exit(main(sys.argv[1:]))
