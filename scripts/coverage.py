#!/usr/bin/env python3
"""Prints what the extension does, and the script that holds each of it: a page of Markdown.

It is made from the scripts' opening comments; a script's name begins with its subject. Fails when
one has no comment or no known subject.
"""

import pathlib
import sys

SCRIPTS = pathlib.Path(__file__).resolve().parent.parent / "tests" / "phone"

SUBJECTS = {
    "startup": "Loading into the host",
    "launch": "When the host has launched",
    "settings": "Settings",
    "timer": "The timer",
    "songs": "Counting songs",
    "restore": "Over a restart of the host",
    "fade": "The fade-out",
    "volume": "The volume",
    "pause": "Pausing",
    "skip": "Skipping",
    "actions": "Start and end actions",
    "format": "Time left as text",
    "indicators": "Time left on the screen",
    "lockscreen": "The lock screen",
    "button": "The timer button",
    "embedding": "The panel in the media module",
    "panel": "The panel",
    "choose": "The panel's page for choosing",
    "current": "The panel's page while a timer runs",
    "end": "The panel's page for start and end actions",
    "pane": "The settings pane",
    "spoken": "For a screen reader",
    "road": "Whole roads by taps",
    "support": "Alerts and helpers",
    "haptics": "Taps and buzzes",
    "resources": "Texts, images and digits",
    "companions": "Other extensions of the media module",
    "absent": "A host that lacks something",
    "night": "Whole nights",
    "host": "The simulated phone itself",
}


class CoverageError(Exception):
    pass


def behaviour(script):
    """The comment that opens a script, as one line."""
    lines = []
    for line in script.read_text(encoding="utf-8").splitlines():
        if not line.startswith("#"):
            break
        lines.append(line.lstrip("#").strip())
    if not lines:
        raise CoverageError(f"{script.name}:1: expected a comment that says what must be true")
    return " ".join(lines)


def rows_by_subject():
    rows = {subject: [] for subject in SUBJECTS}
    for script in sorted([*SCRIPTS.glob("*.phone"), *SCRIPTS.glob("*.phone.in")]):
        name = script.name.split(".")[0]
        subject = name.split("-")[0]
        if subject not in rows:
            raise CoverageError(f"{script.name}: expected a name that begins with one of {', '.join(SUBJECTS)}")
        text = behaviour(script).replace("|", "\\|")
        rows[subject].append(f"| {text} | {name} |")
    return rows


def main():
    try:
        rows = rows_by_subject()
    except CoverageError as error:
        print(f"coverage: {error}", file=sys.stderr)
        return 1
    print("# What is held by which script")
    for subject, lines in rows.items():
        if lines:
            print(f"\n## {SUBJECTS[subject]}\n", "| behaviour | script |", "|---|---|", *lines, sep="\n")
    return 0


sys.exit(main())
