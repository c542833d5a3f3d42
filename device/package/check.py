#!/usr/bin/env python3
"""Runs one of the checks on a package. Run as a module from the folder device/:

    python3 -m package.check CHECK FILE.deb [REFERENCE...]

Prints what is wrong, one line each, and ends with status 1 if anything is.
"""

import sys

from macho.error import MachOError
from package.checks import archive, contents, control, members
from package.error import PackageError
from report import run

CHECKS = {
    "archive": archive.check,
    "control": control.check,
    "members": members.check_members,
    "owners": members.check_owners,
    "md5sums": contents.check_md5sums,
    "sources": contents.check_sources,
    "slices": contents.check_slices,
    "filter": contents.check_filter,
    "paths": contents.check_paths,
}


def failures(name, arguments):
    try:
        yield from CHECKS[name](*arguments)
    except (PackageError, MachOError, UnicodeDecodeError) as error:
        yield str(error)


if __name__ == "__main__":
    sys.exit(run(failures))
