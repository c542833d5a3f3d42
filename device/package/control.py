"""What the package manager is told: fields, and the sums of the files."""

import hashlib
import re

from package.error import PackageError

FIELD = re.compile(r"([A-Za-z][-A-Za-z0-9]*):[ \t]*(.*)")


def fields(text):
    """Name and value of each field, in order; of a value in several lines, all of them."""
    if not text.endswith("\n"):
        raise PackageError("control: the last line does not end")
    found = {}
    name = None
    for line in text.splitlines():
        match = FIELD.fullmatch(line)
        if match and match[1] not in found:
            name = match[1]
            found[name] = match[2]
        elif line.startswith(" ") and line.strip() and name:
            found[name] += "\n" + line
        else:
            raise PackageError(f"control: a new field or the rest of one expected, found {line!r}")
    return found


def installed_size(entries):
    """In KiB: each file is counted in whole ones, and each folder as one, as dpkg's own tools do."""
    return sum(-(-len(entry.data) // 1024) if entry.info.isreg() else 1 for entry in entries)


def md5sums(entries):
    """Of the installed files, as `dpkg --verify` reads them."""
    return "".join(
        f"{hashlib.md5(entry.data).hexdigest()}  {entry.name[2:]}\n"
        for entry in entries
        if entry.info.isreg()
    )
