#!/usr/bin/env python3
"""Makes small wrong changes to the extension, one at a time, and looks whether a phone script or a
random night of the model notices. README.md beside this file says more."""

import argparse
import collections
import json
import os
import pathlib
import sys
import time

import mutants as mutations
import survivors
from coverage import Coverage
from judge import NOTICED, SURVIVED, Judge
from player import Player
from project import Project, fingerprint

HERE = pathlib.Path(__file__).resolve().parent
ROOT = HERE.parents[1]


def options():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--build", type=pathlib.Path, default=ROOT / "build/dev")
    parser.add_argument("--library", type=pathlib.Path, help="default: the extension")
    parser.add_argument("--subject", default="tweak", help="the folder that is changed")
    parser.add_argument("--scripts", type=pathlib.Path,
                        help="default: tests/phone, and those that the build makes of templates")
    parser.add_argument("--survivors", type=pathlib.Path, default=HERE / "survivors.txt")
    parser.add_argument("--no-model", action="store_true", help="scripts only")
    choice = parser.add_argument_group("which mutants; all of them without")
    choice.add_argument("--sample", type=int, metavar="N",
                        help="always the same N, spread over files and operators")
    choice.add_argument("--file", help="those of files whose path contains this")
    choice.add_argument("--match", help="those whose name contains this")
    choice.add_argument("--from", dest="listed", type=pathlib.Path, metavar="FILE",
                        help="those that this file names, one a line; other lines do not matter")
    choice.add_argument("--only-survivors", action="store_true",
                        help="those that survived when they were last tried")
    parser.add_argument("--jobs", type=int, default=os.cpu_count(), help="mutants at a time")
    parser.add_argument("--list", action="store_true",
                        help="name them, with their changes; try none")
    parser.add_argument("--report", action="store_true",
                        help="what earlier runs have found; try none")
    parser.add_argument("--at-least", type=float, metavar="PERCENT", default=0,
                        help="fail if fewer are noticed")
    return parser.parse_args()


def chosen(wanted, everything, accepted, results):
    found = everything
    if wanted.file:
        found = [one for one in found if wanted.file in one.file]
    if wanted.match:
        found = [one for one in found if wanted.match in one.identity]
    if wanted.listed:
        lines = set(wanted.listed.read_text().splitlines())
        found = [one for one in found if one.identity in lines]
    if wanted.only_survivors:
        found = [one for one in found if results.get(one.identity, {}).get("verdict") == SURVIVED]
    if wanted.sample:
        open_ones = [one for one in found if one.identity not in accepted]
        found = mutations.sample(open_ones, wanted.sample)
    return found


def table(title, rows):
    print(f"\n{title:46} noticed  survived")
    for name, counts in sorted(rows.items()):
        whole = counts[NOTICED] + counts[SURVIVED]
        share = 100 * counts[NOTICED] / whole if whole else 100
        print(f"  {name:44} {counts[NOTICED]:7} {counts[SURVIVED]:9}  {share:5.1f} %")


def summary(tried, results, accepted):
    """Prints it all; the score in percent, and what is wrong."""
    verdicts = collections.Counter()
    by_operator, by_file = {}, {}
    for mutant in tried:
        verdict = results[mutant.identity]["verdict"]
        verdicts[verdict] += 1
        for rows, key in ((by_operator, mutant.operator), (by_file, mutant.file)):
            rows.setdefault(key, collections.Counter())[verdict] += 1
    alive = [one for one in tried if results[one.identity]["verdict"] == SURVIVED]
    new = [one for one in alive if one.identity not in accepted]
    for mutant in new:
        print(f"\nSURVIVED: {mutant.identity}\n{mutant.diff(ROOT)}")
    table("by operator", by_operator)
    table("by file", by_file)
    counted = verdicts[NOTICED] + verdicts[SURVIVED]
    score = 100 * verdicts[NOTICED] / counted if counted else 100
    print(f"\n{len(tried)} mutants: {verdicts[NOTICED]} noticed, {len(alive)} survived"
          f" ({len(alive) - len(new)} of them listed), {len(tried) - counted} do not count: they do"
          f" not compile or are the same machine code")
    print(f"score: {score:.1f} %")
    stale = [one.identity for one in tried
             if one.identity in accepted and results[one.identity]["verdict"] != SURVIVED]
    return score, new, stale


def main():
    wanted = options()
    started = time.monotonic()
    build = wanted.build.resolve()
    library = wanted.library or build / "simulator/Dozewell2.so"
    project = Project(build, library, wanted.subject, wanted.jobs)
    project.precompile()
    everything, users = mutations.known_mutants(project, sorted(HERE.glob("*.py")))
    accepted = survivors.read(wanted.survivors) if wanted.survivors.exists() else {}
    memory = project.work / "results.json"
    results = json.loads(memory.read_text()) if memory.exists() else {}
    tried = chosen(wanted, everything, accepted, results)
    gone = sorted(accepted.keys() - {one.identity for one in everything})
    if wanted.list:
        for mutant in tried:
            print(f"{mutant.identity}\n{mutant.diff(ROOT)}\n")
        return 0
    if wanted.report:
        summary([one for one in tried if one.identity in results], results, accepted)
        return 0

    model = None if wanted.no_model else build / "tests/model/model_nights"
    folders = [wanted.scripts] if wanted.scripts else [ROOT / "tests/phone", build / "tests/phone/made"]
    player = Player(project, build / "simulator/dozewell-simulator", build / "package", model,
                    sorted(script for folder in folders for script in folder.glob("*.phone")))
    objects = project.build_all("objects")
    world = fingerprint([*objects.values(), project.header_object, player.simulator, model])
    coverage = Coverage(project, player)
    broken = coverage.record(world + fingerprint([HERE / "Probe.cpp"], [project.texts()]))
    for name in broken:
        print(f"{name} fails without any mutant", flush=True)
    print(f"{len(tried)} of {len(everything)} mutants against {len(player.tests)} tests, after"
          f" {time.monotonic() - started:.0f} s", flush=True)

    done = 0

    def report(mutant, result):
        nonlocal done
        done += 1
        if result["verdict"] == SURVIVED:
            print(f"[{done}/{len(tried)}] survived: {mutant.identity}", flush=True)
        if done % 50 == 0:
            print(f"[{done}/{len(tried)}] {time.monotonic() - started:.0f} s", flush=True)
            memory.write_text(json.dumps(results, indent=0, sort_keys=True))

    Judge(project, world, objects, player, coverage, users, results).judge_all(tried, report)
    memory.write_text(json.dumps(results, indent=0, sort_keys=True))

    score, new, stale = summary(tried, results, accepted)
    for title, names in (("Listed, but noticed (or the same machine code)", stale),
                         ("Listed, but there is no such mutant", gone)):
        for name in names:
            print(f"{title}: {name}")
    print(f"{time.monotonic() - started:.0f} s")
    return 1 if broken or new or stale or gone or score < wanted.at_least else 0


if __name__ == "__main__":
    sys.exit(main())
