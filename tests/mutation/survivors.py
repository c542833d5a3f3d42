"""The list of mutants that nobody could see, each with the reason.

One or more lines that name mutants as the tool prints them, then the reason, indented:

    tweak/engine/Example.cpp | Example::show | leave-out | label.setHidden(false)
        A new label is never hidden.
"""

import sys


def read(path):
    """{identity: reason}"""
    accepted, waiting, reasons = {}, [], []
    for number, line in enumerate(path.read_text().splitlines() + [""], 1):
        if line.startswith(" "):
            if not waiting:
                sys.exit(f"{path}:{number}: a reason without a mutant")
            reasons.append(line.strip())
            continue
        if reasons:
            accepted |= {identity: " ".join(reasons) for identity in waiting}
            waiting, reasons = [], []
        if line and not line.startswith("#"):
            if line in accepted or line in waiting:
                sys.exit(f"{path}:{number}: listed twice")
            waiting.append(line)
    if waiting:
        sys.exit(f"{path}: {waiting[0]} has no reason")
    return accepted
