#!/usr/bin/env python3
"""Plays random sessions of taps alone and looks at the screen wherever the fingers rest.

usage: run.py SIMULATOR SOURCES [--sessions N] [--seed N] [--refute]

SOURCES is the top of the repository. A session after which something is wrong is made shorter while
it stays wrong, and printed as a script. Without --sessions there are as many as DOZEWELL_TAPS in the
environment says, or as take some seconds. --refute shows instead that each check can fail.
"""

import argparse
import dataclasses
import os
import pathlib
import re
import subprocess
import sys
import tempfile

import refutation
from screens import PAGES, Screen, parse, units
from sessions import LANDSCAPE, LANGUAGES, PORTRAIT, Player, pages_of, points_of, survey

USUAL = 120
BATCH = 50  # sessions for each start of the simulator
MARK = re.compile(r'^UILabel \{\{0, 0\}, \{0, 0\}\} "(\d+) (\d+)"\n', re.MULTILINE)
KINDS_SHOWN = 3  # sessions printed of each kind


@dataclasses.dataclass
class Finding:
    kind: str
    words: str
    action: int | None  # after which it was seen; None where the script ended early


class Phone:
    def __init__(self, simulator, top):
        self.simulator = simulator
        self.texts = {language: units(top, language) for language in LANGUAGES}

    def play(self, sessions):
        """The screens of each, with the numbers of their actions; what was said of each that ended early."""
        with tempfile.TemporaryDirectory() as folder:
            scripts = [pathlib.Path(folder, f"{name}.phone") for name in range(len(sessions))]
            for name, session in enumerate(sessions):
                scripts[name].write_text(session.script(name), "utf-8")
            done = subprocess.run([self.simulator, "play", "--quiet", *scripts], text=True,
                                  capture_output=True)
            # What a host itself writes stands before its script's name, and is said again after it.
            errors = re.split(rf"^{re.escape(folder)}/(\d+)\.phone\b", done.stderr, flags=re.MULTILINE)
        if bool(errors[1:]) != bool(done.returncode):
            sys.exit(f"status {done.returncode}: {done.stderr}")
        screens, ends = [[] for _ in sessions], {}
        for name, words in zip(errors[1::2], errors[2::2]):
            ends.setdefault(int(name), words)
        marks = MARK.split(done.stdout)[1:]
        for name, action, text in zip(marks[::3], marks[1::3], marks[2::3]):
            if screen := self.screen(sessions[int(name)], text):
                screens[int(name)].append((int(action), screen))
        return screens, ends

    def screen(self, session, text):
        """None where the script ended as it printed it."""
        running, *lines = text.splitlines()
        if not lines:
            return None
        return Screen(parse(lines), running == "YES", self.texts[session.language], session.small)

    def findings(self, sessions):
        """What is wrong first with each; None where nothing is."""
        screens, ends = self.play(sessions)
        return [first_finding(screens[name], ends.get(name)) for name in range(len(sessions))]


def first_finding(screens, end):
    for action, screen in screens:
        for kind, words in screen.findings():
            return Finding(kind, words, action)
    if end is not None:
        return Finding("death" if "the phone stopped" in end else "refused", end.strip(": \n"), None)
    return None if screens else Finding("silent", "nothing was printed", None)


def shortened(phone, session, finding):
    """The session without whatever it can do without to be wrong in the same way."""
    if finding.action is not None:
        session = dataclasses.replace(session, actions=session.actions[: finding.action])
    size = max(len(session.actions) // 2, 1)
    while size:
        fewer = [dataclasses.replace(session, actions=session.actions[:at] + session.actions[at + size :])
                 for at in range(0, len(session.actions), size)]
        found = phone.findings(fewer) if fewer else []
        still = next((at for at, its in enumerate(found) if its and its.kind == finding.kind), None)
        if still is None:
            size //= 2
        else:
            session, finding = fewer[still], found[still]
    return session, finding


def explored(phone):
    """Where a finger may go, in each language and orientation."""
    places = [(language, orientation) for language in LANGUAGES for orientation in (PORTRAIT, LANDSCAPE)]
    screens, ends = phone.play([survey(*place) for place in places])
    if ends:
        sys.exit(f"the survey ended early: {ends}")
    found = {place: [screen for _, screen in its] for place, its in zip(places, screens)}
    for place, its in found.items():
        if pages_of(its) != set(PAGES):
            sys.exit(f"the survey of {place} saw {pages_of(its)}")
    return found


def played(phone, player, count, first):
    """How many sessions were wrong; prints each, or only its seed where its kind is known."""
    wrong, known = 0, {}
    for start in range(first, first + count, BATCH):
        if start > first and (start - first) % 1000 == 0:
            print(f"{start - first} sessions played", flush=True)
        seeds = range(start, min(start + BATCH, first + count))
        sessions = [player.session(seed) for seed in seeds]
        for seed, session, finding in zip(seeds, sessions, phone.findings(sessions)):
            if not finding:
                continue
            wrong += 1
            known[finding.kind] = known.get(finding.kind, 0) + 1
            print(f"# session {seed}: {finding.kind}: {finding.words}", flush=True)
            if known[finding.kind] <= KINDS_SHOWN:
                short, its = shortened(phone, session, finding)
                print(f"# {its.words}\n{short.script()}", flush=True)
    return wrong


def main():
    parser = argparse.ArgumentParser(usage=__doc__)
    parser.add_argument("simulator")
    parser.add_argument("top", type=pathlib.Path)
    parser.add_argument("--sessions", type=int, default=int(os.environ.get("DOZEWELL_TAPS", USUAL)))
    parser.add_argument("--seed", type=int, default=1)
    parser.add_argument("--refute", action="store_true")
    options = parser.parse_args()
    phone = Phone(options.simulator, options.top)
    screens = explored(phone)
    player = Player({place: points_of(its) for place, its in screens.items()})
    if options.refute:
        seen = [screen for its in screens.values() for screen in its]
        return refutation.run(phone, seen, player.opening(), shortened)
    wrong = played(phone, player, options.sessions, options.seed)
    print(f"{options.sessions} sessions, from {options.seed} on: {wrong} wrong")
    return bool(wrong)


sys.exit(main())
