"""Kills the host at every line of a night's journal, one line a play.

usage: kill_everywhere.py SIMULATOR EXTENSION NIGHT.phone [STEP]

With STEP at each line so far from the one before only; DOZEWELL_EVERY_LINE in the environment
overrides it.

The disk must then hold one of the timers that the night names (`# stored: ...`), the very one that
was written last; the new host must go on from it; and the phone must still start and end a timer.
"""

import datetime
import os
import plistlib
import re
import subprocess
import sys
import tempfile
from pathlib import Path

ENGINE = "Dozewell2Manager.sharedInstance"
KEY = "com.corvane.dozewell2.persisted"
DATE, TRACKS = KEY + "TimerDate", KEY + "NbTracksLeft"
BOOT = datetime.datetime(2027, 1, 1, 22)
DEFAULTS = "var/mobile/Library/Preferences/com.apple.springboard.plist"
LINE = re.compile(r" *(\d+\.\d{3})  (.*)")

# Whatever was before: a reset, then a timer from its start to its end.
AFTERMATH = f"""\
send {ENGINE} reinit
send {ENGINE} reinit
expect {ENGINE}.isRunning NO
set volumeFadeOutEnabled NO
set letTheSongFinishEnabled NO
clear-journal
send {ENGINE} startTimerWithMode:andValue: 0 3
expect {ENGINE}.timerModeIsRunning YES
advance 4s
expect-journal "-[SBMediaController pauseForEventSource:0]" times 1
expect {ENGINE}.isRunning NO
send NSUserDefaults.standardUserDefaults objectForKey: "{DATE}"
expect-last nil
"""


class Failure(Exception):
    pass


class Played:
    """A script that was played: its journal, and what the phone's disk held then."""

    def __init__(self, program, lines):
        with tempfile.TemporaryDirectory() as folder:
            script, root = Path(folder, "night.phone"), Path(folder, "phone")
            script.write_text("\n".join(lines) + "\n")
            done = subprocess.run(
                [*program, "--root", root, script], capture_output=True, text=True
            )
            if done.returncode != 0:
                raise Failure(f"{done.stderr}--- journal\n{done.stdout}--- script\n"
                              + script.read_text())
            self.journal = [m.groups() for m in map(LINE.fullmatch, done.stdout.splitlines()) if m]
            self.stored = stored_on(root / DEFAULTS)


def stored_on(file):
    left_over = [path.name for path in file.parent.glob(file.name + "*") if path != file]
    if left_over:
        raise Failure(f"beside the user defaults lies {left_over}")
    values = plistlib.loads(file.read_bytes()) if file.exists() else {}
    unknown = set(values) - {DATE, TRACKS}
    if unknown:
        raise Failure(f"the user defaults hold {unknown}")
    return values.get(DATE), values.get(TRACKS)


def named_states(lines):
    """What the night says may be stored, as pairs of date and tracks."""
    states = set()
    for line in lines:
        found = re.fullmatch(r"# stored: (none|(?:date (\S+))? ?(?:tracks (\d+))?)", line)
        if found:
            clock = found[2] and datetime.time.fromisoformat(found[2])
            states.add((clock and datetime.datetime.combine(BOOT.date(), clock),
                        int(found[3]) if found[3] else None))
    return states


def written(journal):
    """What the disk holds after each line: what was set and removed before the last synchronize."""
    memory, disk, after = {DATE: None, TRACKS: None}, (None, None), []
    for _, text in journal:
        if found := re.fullmatch(r'-\[NSUserDefaults setObject:(.*) forKey:"(.*)"\]', text):
            is_date = found[2] == DATE
            memory[found[2]] = (
                datetime.datetime.strptime(found[1], "%Y-%m-%d %H:%M:%S +0000")
                if is_date else int(found[1])
            )
        elif found := re.fullmatch(r'-\[NSUserDefaults removeObjectForKey:"(.*)"\]', text):
            memory[found[1]] = None
        elif text == "-[NSUserDefaults synchronize]":
            disk = (memory[DATE], memory[TRACKS])
        elif text == "-[SpringBoard applicationDidFinishLaunching:]":
            memory = {DATE: disk[0], TRACKS: disk[1]}
        after.append(disk)
    return after


def lines_after(play, commands):
    """How long the journal is after each command."""
    boot = commands.index("boot")
    return [len(play(commands[: end + 1]).journal) if end >= boot else 0
            for end in range(len(commands))]


def cut(commands, lengths, count, time):
    """The commands up to the one that writes that line; one that lets time pass ends with it."""
    end = next(index for index, length in enumerate(lengths) if length >= count)
    is_advance = commands[end].startswith("advance")
    return commands[:end] + [f"advance-to {time}" if is_advance else commands[end]]


def restored(state, time):
    """What the new host must make of what is stored."""
    date, tracks = state
    seconds = (date - BOOT).total_seconds() - float(time) if date else 0
    counts = date is None and (tracks or 0) > 0
    expected = [
        f"expect {ENGINE}.timerModeIsRunning {'YES' if seconds > 0 else 'NO'}",
        f"expect {ENGINE}.nbSongsModeIsRunning {'YES' if counts else 'NO'}",
    ]
    if seconds > 0:
        expected.append(f"expect {ENGINE}.getTimerRemainingTime {int(seconds)} within 0.001")
    if counts:
        expected.append(f"expect {ENGINE}.getTimerRemainingTracks {tracks}")
    return expected


def kill_at(play, count, commands, lengths, entry, state):
    """Both plays of one death; gives what was stored then."""
    until_death = cut(commands, lengths, count, entry[0])
    stored = play([f"kill-at {count}", *until_death, *restored(state, entry[0])]).stored
    if stored != state:
        raise Failure(f"stored is {stored}, expected {state}")
    play([f"kill-at {count}", *commands, *AFTERMATH.splitlines()])
    return stored


def main(simulator, extension, night, step="1"):
    step = 1 if "DOZEWELL_EVERY_LINE" in os.environ else int(step)
    def play(lines):
        return Played([simulator, "play", "--tweak", extension], lines)

    lines = Path(night).read_text().splitlines()
    journal = play(lines).journal
    commands = [line for line in lines if line and not line.startswith(("#", "expect"))]
    lengths = lines_after(play, commands)
    named, seen = named_states(lines), set()
    for count, state in list(enumerate(written(journal), start=1))[::step]:
        try:
            seen.add(kill_at(play, count, commands, lengths, journal[count - 1], state))
        except Failure as failure:
            sys.exit(f"{night}: killed at line {count}, {' '.join(journal[count - 1])}: {failure}")
    if not seen <= named or (step == 1 and seen != named):
        sys.exit(f"{night}: stored at some death is {seen}, the night names {named}")
    print(f"{night}: killed at {len(journal[::step])} of {len(journal)} lines, "
          f"{len(seen)} stored states")


if __name__ == "__main__":
    main(*sys.argv[1:])
