#!/usr/bin/env python3
"""Plays scripts with a slice, as its package has installed it, and with what the simulator loads on this
machine: every script must pass, and what is printed must be the same, byte for byte. Then says what of
the slice was run, and which functions never were.

    play.py [OPTIONS] SLICE SCRIPT.phone...

SLICE is arm64 or arm64e. The presets dev, device and aarch64 have built what is played.
"""

import argparse
import concurrent.futures
import difflib
import os
import pathlib
import subprocess
import sys
import tempfile

import reports
from run_log import RunLog
from slice_code import SliceCode, signing

ROOT = pathlib.Path(__file__).resolve().parents[3]
EMULATOR = ["qemu-aarch64", "-cpu", "max,pauth-impdef=on", "-L", "/usr/aarch64-linux-gnu"]
LIBRARY = "var/jb/Library/MobileSubstrate/DynamicLibraries/Dozewell2.dylib"
# Where the emulator places what is mapped after the program's own libraries.
REGION = "0x5505000000+0x4000000"


def arguments():
    parser = argparse.ArgumentParser(usage=__doc__)
    parser.add_argument("--phone", type=pathlib.Path, default=ROOT / "build/device/tests/package/phone",
                        help="the folders of a phone on which the package is installed")
    parser.add_argument("--touch", type=float, metavar="PERCENT",
                        help="fail unless so many instructions were run, in each source, and each import "
                             "that is called, each kind of signature")
    parser.add_argument("--never", type=pathlib.Path, metavar="FILE",
                        help="fail unless the functions that were never entered are those of the file")
    parser.add_argument("--quiet", action="store_true", help="print no report")
    parser.add_argument("--jobs", type=int, default=os.cpu_count())
    parser.add_argument("--together", type=int, default=20, help="scripts that a program plays")
    parser.add_argument("slice", choices=("arm64", "arm64e"))
    parser.add_argument("scripts", nargs="+")
    return parser.parse_args()


def journal(command, scripts):
    played = subprocess.run([*command, *scripts], capture_output=True, text=True, check=False)
    # On a phone a hook with a misspelt name does nothing, in silence.
    if played.returncode != 0 or "which no phone has" in played.stderr:
        raise RuntimeError(f"exit status {played.returncode} of {command[0]}:\n"
                           f"{played.stdout[-2000:]}{played.stderr[-4000:]}")
    return played.stdout


def run_addresses(options, code, scripts):
    """Plays them both ways. Gives the addresses of the slice's instructions that were run."""
    built = ROOT / "build/dev/simulator"
    play = ["play", "--limit", "0", "--package", options.phone, "--tweak"]
    expected = journal([built / "dozewell-simulator", *play, built / "Dozewell2.so"], scripts)
    with tempfile.TemporaryDirectory() as folder:
        log = pathlib.Path(folder, "log")
        emulated = [*EMULATOR, "-d", "in_asm", "-dfilter", REGION, "-D", log,
                    ROOT / "build/aarch64/simulator/dozewell-simulator"]
        found = journal([*emulated, *play, options.phone / LIBRARY, "--slice", options.slice], scripts)
        if found != expected:
            lines = difflib.unified_diff(expected.splitlines(), found.splitlines(), "this machine",
                                         options.slice, lineterm="", n=2)
            raise RuntimeError("\n".join(list(lines)[:40]))
        with open(log, encoding="utf-8", errors="replace") as lines:
            return RunLog(code).addresses(lines)


def main():
    options = arguments()
    code = SliceCode(ROOT / f"build/device/{options.slice}/Dozewell2.dylib")
    groups = [options.scripts[at:at + options.together]
              for at in range(0, len(options.scripts), options.together)]
    run, complaints = set(), []
    with concurrent.futures.ThreadPoolExecutor(options.jobs) as pool:
        for future in [pool.submit(run_addresses, options, code, group) for group in groups]:
            try:
                run |= future.result()
            except RuntimeError as error:
                complaints.append(str(error))
    if not options.quiet:
        print(*reports.printed(code, run), sep="\n")
    if options.touch:
        complaints += reports.untouched(code, run, signing)
        if reports.share(code, run) < options.touch:
            complaints.append(f"only {reports.share(code, run):.1f} % of the instructions were run")
    if options.never:
        complaints += reports.differences(code, run, reports.read_kept(options.never))
    if complaints:
        sys.exit("\n".join(complaints))


main()
