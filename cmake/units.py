#!/usr/bin/env python3
"""usage: units.py SOURCE...

Prints for each source the number of the unit to compile it in: sources that seem to share a name
are kept apart. A stand-in's functions are named as its methods are: init, description, setFrame."""

import pathlib
import re
import sys

LARGEST_UNIT = 16
# What a source declares at the start of a line, of no class: as far as it is easily seen.
OWN_NAME = re.compile(r"^(?!namespace|template|using (?!\w+ =))\w[\w:<>,*&\[\] ]*?[ *&](\w+)(?=[({\[;]| [={:])",
                      re.MULTILINE)


def units(sources):
    """Lists of sources, each as early as it can come."""
    made = []
    for source in sources:
        names = set(OWN_NAME.findall(source.read_text()))
        for unit, taken in made:
            if len(unit) < LARGEST_UNIT and not names & taken:
                break
        else:
            unit, taken = [], set()
            made.append((unit, taken))
        unit.append(source)
        taken |= names
    return [unit for unit, _ in made]


if __name__ == "__main__":
    given = list(map(pathlib.Path, sys.argv[1:]))
    number = {source: at for at, unit in enumerate(units(given)) for source in unit}
    print(";".join(str(number[source]) for source in given), end="")
