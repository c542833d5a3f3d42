#!/usr/bin/env python3
"""Runs the benchmarks and prints one table: each figure, what it is to be compared with, the aim.

usage: bench/table.py PROGRAM [OPTION...]     options go to the program (--benchmark_filter=...)

Each is run in a process of its own: what one leaves loaded or cached does not serve the next.
"""

import json
import subprocess
import sys

NANOSECONDS = {"ns": 1, "us": 1e3, "ms": 1e6, "s": 1e9}

# name: (what it is divided by, aim for the ratio) or (None, aim in nanoseconds)
AIMS = {
    "bridgedSend": ("virtualCall", 3.0),
    "bridgedSendToFourClasses": ("bridgedSend", 3.0),
    "bridgedSendToNil": ("virtualCall", None),
    "bridgedSendCold": ("bridgedSend", None),
    "directCall": ("virtualCall", None),
    "retainAndRelease": ("virtualCall", None),
    "weakReferenceAlone": ("virtualCall", None),
    "weakReferenceAmongMany": ("weakReferenceAlone", 4.0),
    "makeAndReleaseBlock": ("virtualCall", None),
    "loadExtension": ("loadExtensionUnchecked", None),
    "loadExtensionUnchecked": (None, 100e3),
    "layOutThePanel": (None, 1e6),
    "showTheNextSecond": ("layOutThePanel", 0.2),
    "eightHoursRefreshedEverySecond": (None, 20e6),
    "buildScene": (None, 2e6),
    "buildAndCompareScene": (None, 2e6),
    "writeSvg": (None, None),
}


def readable(nanoseconds):
    for unit in ("s", "ms", "us"):
        if nanoseconds >= NANOSECONDS[unit]:
            return f"{nanoseconds / NANOSECONDS[unit]:.2f} {unit}"
    return f"{nanoseconds:.2f} ns"


def row(name, figures):
    other, aim = AIMS.get(name, (None, None))
    value = figures[name]
    if other in figures:
        ratio = value / figures[other]
        goal = f"at most {aim:g}: {'met' if ratio <= aim else 'MISSED'}" if aim else ""
        return f"{name:32} {readable(value):>12}  {ratio:8.2f} x {other:14} {goal}"
    goal = f"under {readable(aim)}: {'met' if value < aim else 'MISSED'}" if aim else ""
    return f"{name:32} {readable(value):>12}  {'':26} {goal}"


def figure(program, name, options):
    """Nanoseconds."""
    run = subprocess.run([program, *options, f"--benchmark_filter=^{name}$",
                          "--benchmark_format=json"], stdout=subprocess.PIPE, check=True)
    (entry,) = json.loads(run.stdout)["benchmarks"]
    # Loading is timed by hand, so its "CPU time" means nothing.
    time = "real_time" if "manual_time" in name else "cpu_time"
    return entry[time] * NANOSECONDS[entry["time_unit"]]


def main():
    if len(sys.argv) < 2 or sys.argv[1] in ("-h", "--help"):
        print(__doc__, file=sys.stderr)
        return 2
    program, *options = sys.argv[1:]
    # What grows has a table of its own, by growth.py.
    listed = subprocess.run([program, "--benchmark_filter=-^growthOf", *options,
                             "--benchmark_list_tests"], stdout=subprocess.PIPE, text=True,
                            check=True).stdout.split()
    figures = {name.split("/")[0]: figure(program, name, options) for name in listed}
    for name in figures:
        print(row(name, figures).rstrip())
    return 0


sys.exit(main())
