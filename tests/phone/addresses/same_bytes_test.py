"""Plays scripts twice, in surroundings that have nothing in common: all that is printed must be the
same, addresses included.

usage: same_bytes_test.py SIMULATOR SHOWN.phone SHOWN.txt SCRIPT.phone…

What the first script prints is also the kept text, which was printed on another machine.
"""

import ctypes
import difflib
import os
import pathlib
import re
import subprocess
import sys
import tempfile

NO_RANDOMIZED_LAYOUT = 0x0040000  # see personality(2)


def printed(simulator, scripts, surroundings, folder, prepare=None):
    """What playing the scripts prints; an error of theirs ends the test."""
    environment = {"PATH": os.environ["PATH"], **surroundings}
    if "ASAN_OPTIONS" in os.environ:
        environment["ASAN_OPTIONS"] = os.environ["ASAN_OPTIONS"]
    played = subprocess.run([simulator, "play", *scripts], env=environment, cwd=folder,
                            preexec_fn=prepare, capture_output=True, text=True)
    if played.returncode != 0:
        sys.exit(played.stdout[-2000:] + played.stderr)
    # What cannot be read is named by its path on this machine, where the phone's folder is a new one.
    place = re.escape(surroundings["TMPDIR"]) + r"/dozewell-\w+"
    return played.stdout + re.sub(place, "PHONE", played.stderr)


def without_randomized_layout():
    # Where that is not allowed the layout is still another than before.
    ctypes.CDLL(None).personality(NO_RANDOMIZED_LAYOUT)


def require_same(first, second, what):
    if first == second:
        return
    lines = difflib.unified_diff(first.splitlines(), second.splitlines(), lineterm="", n=2)
    sys.exit(f"{what}:\n" + "\n".join(list(lines)[:40]))


def main(simulator, shown, kept, *scripts):
    scripts = [shown, *scripts]
    with tempfile.TemporaryDirectory() as folder:
        deep = pathlib.Path(folder, "a folder", "with a longer name")
        deep.mkdir(parents=True)
        usual = printed(simulator, scripts, {"TMPDIR": folder}, "/")
        other = printed(simulator, scripts,
                        {"PADDING": "x" * 100_000, "LANG": "tr_TR.UTF-8", "TZ": "Asia/Tokyo",
                         "HOME": str(deep), "TMPDIR": str(deep), "MALLOC_PERTURB_": "165",
                         "MALLOC_ARENA_MAX": "1", "MALLOC_TOP_PAD_": "1000000"},
                        deep, without_randomized_layout)
    require_same(usual, other, "two plays differ")
    addresses = usual.count("0x28")
    if addresses < 50:
        sys.exit(f"expected at least 50 addresses in what is printed, found {addresses}")
    text = pathlib.Path(kept).read_text(encoding="utf-8")
    require_same(text, usual[:len(text)], f"what {shown} prints is not as in {kept}")


main(*sys.argv[1:])
