"""Runs the check that the command line names, and says what it has found."""

import sys


def run(failures):
    """`failures` gives those of a check, by its name and its arguments: the file, then what it is
    compared with. Gives the program's exit status."""
    name, *arguments = sys.argv[1:]
    found = list(failures(name, arguments))
    for failure in found:
        print(f"{name}: {arguments[0]}: {failure}")
    return 1 if found else 0
