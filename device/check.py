#!/usr/bin/env python3
"""Runs one of the checks on a built extension:

    check.py CHECK FILE [REFERENCE...]

Prints what is wrong, one line each, and ends with status 1 if anything is.
"""

import sys

from checks import (
    assembly,
    code_pointers,
    fat_file,
    initializers,
    instructions,
    layout,
    libraries,
    objc_metadata,
    signature,
    size,
    symbols,
)
from macho.error import MachOError
from report import run

CHECKS = {
    "assembly": assembly.check,
    "code-pointers": code_pointers.check,
    "imports": symbols.check_imports,
    "exports": symbols.check_exports,
    "objc-metadata": objc_metadata.check,
    "signature": signature.check,
    "size": size.check,
    "initializers": initializers.check,
    "fat-file": fat_file.check,
    "instructions": instructions.check,
    "layout": layout.check,
    "libraries": libraries.check,
}


def failures(name, arguments):
    try:
        yield from CHECKS[name](*arguments)
    except MachOError as error:
        yield str(error)


if __name__ == "__main__":
    sys.exit(run(failures))
