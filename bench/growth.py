#!/usr/bin/env python3
"""Prints what things cost against how many there are, and the exponent of their growth: 1 is linear.

usage: bench/growth.py BENCH SIMULATOR     dozewell-bench and dozewell-simulator of one build

Exit status 1 when one grows faster than it may.
"""

import json
import math
import os
import resource
import subprocess
import sys
import tempfile

MOST = 1.25  # of caches that no longer hold it all, and of trees
# What libplist keeps in tables of a fixed size: no more than its share of a small file may show.
ALLOWED = {"growthOfPreferenceKeys": 2.1}
LINES = [4000, 16000, 64000, 256000]


def of_bench(program):
    """Microseconds by size, by name."""
    run = subprocess.run([program, "--benchmark_filter=^growthOf", "--benchmark_format=json"],
                         stdout=subprocess.PIPE, check=True)
    figures = {}
    for entry in json.loads(run.stdout)["benchmarks"]:
        name, size = entry["name"].split("/")
        figures.setdefault(name, {})[int(size)] = entry["cpu_time"]
    return figures


def seconds_to_play(simulator, script):
    before = resource.getrusage(resource.RUSAGE_CHILDREN)
    subprocess.run([simulator, "play", "--quiet", script], check=True)
    after = resource.getrusage(resource.RUSAGE_CHILDREN)
    return after.ru_utime + after.ru_stime - before.ru_utime - before.ru_stime


def of_played_scripts(simulator):
    figures = {}
    with tempfile.TemporaryDirectory() as folder:
        script = os.path.join(folder, "long.phone")
        for lines in LINES:
            with open(script, "w", encoding="utf-8") as stream:
                stream.write("boot\n" + "advance 1s\n" * lines)
            figures[lines] = seconds_to_play(simulator, script) * 1e6
    return {"growthOfAPlayedScript": figures}


def exponent(figures):
    """The slope of the last step, on logarithmic scales: fixed costs weigh least there."""
    (size, cost), (larger, dearer) = sorted(figures.items())[-2:]
    return math.log(dearer / cost) / math.log(larger / size)


def main():
    if len(sys.argv) != 3:
        sys.exit(__doc__)
    failed = False
    for name, figures in {**of_bench(sys.argv[1]), **of_played_scripts(sys.argv[2])}.items():
        grows = exponent(figures)
        too_fast = grows > ALLOWED.get(name, MOST)
        failed |= too_fast
        print(f"{name}: exponent {grows:.2f}{', TOO FAST' if too_fast else ''}")
        widest = max(cost / size for size, cost in figures.items())
        for size, cost in sorted(figures.items()):
            bar = "#" * round(40 * cost / size / widest)
            print(f"  {size:8} {cost / 1000:12.3f} ms {1000 * cost / size:10.1f} ns each  {bar}")
    sys.exit(1 if failed else 0)


if __name__ == "__main__":
    main()
