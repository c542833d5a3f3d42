"""A package as its layers: an ar archive of a version, a gzip and an xz archive."""

import gzip
import lzma
import zlib
from dataclasses import dataclass
from typing import List

from package import ar, tar
from package.error import PackageError

FORMAT = "debian-binary"
CONTROL = "control.tar.gz"
DATA = "data.tar.xz"
FORMAT_VERSION = b"2.0\n"


@dataclass
class Deb:
    members: List[ar.Member]
    control: List[tar.Entry]  # what the package manager reads
    data: List[tar.Entry]  # what lies on the phone afterwards

    def file(self, name):
        """The content of an installed file, by its path on the phone."""
        return _content(self.data, "." + name)

    def control_file(self, name):
        return _content(self.control, "./" + name)


def read(path):
    with open(path, "rb") as file:
        members = ar.read(file.read())
    control = _unpacked(members, CONTROL, gzip.decompress)
    data = _unpacked(members, DATA, lambda packed: lzma.decompress(packed, lzma.FORMAT_XZ))
    return Deb(members, tar.read(control), tar.read(data))


def as_we_write(found):
    """What `assemble` makes of what was read. Readers differ in what they make of damaged headers:
    what one passes over in silence another installs."""
    return assemble(found.control, found.data, found.members[0].time)


def assemble(control, data, time):
    """The package's bytes. The order of the entries is the caller's."""
    return ar.write(
        [
            ar.Member(FORMAT, FORMAT_VERSION, time),
            ar.Member(CONTROL, gzip.compress(tar.write(control), mtime=0), time),
            # Larger dictionaries than this preset's need more memory on the phone, and gain nothing.
            ar.Member(DATA, lzma.compress(tar.write(data), preset=6 | lzma.PRESET_EXTREME), time),
        ]
    )


def _unpacked(members, name, decompress):
    for member in members:
        if member.name == name:
            try:
                return decompress(member.data)
            except (OSError, EOFError, zlib.error, lzma.LZMAError) as error:
                raise PackageError(f"{name} cannot be unpacked: {error}") from error
    raise PackageError(f"there is no {name} in it")


def _content(entries, name):
    for entry in entries:
        if entry.name == name and entry.info.isreg():
            return entry.data
    raise PackageError(f"there is no file {name} in it")
