"""The layers of the package are in the one form that every phone's package manager takes, and hold
nothing that depends on the machine or the moment."""

from package import ar, deb

GZIP_HEADER = b"\x1f\x8b\x08\x00\x00\x00\x00\x00"  # no name, no time
XZ_HEADER = b"\xfd7zXZ\x00"
EXPECTED = {deb.FORMAT: b"2.0\n", deb.CONTROL: GZIP_HEADER, deb.DATA: XZ_HEADER}


def check(path):
    with open(path, "rb") as file:
        members = ar.read(file.read())
    names = [member.name for member in members]
    if names != list(EXPECTED):
        yield f"the members are {', '.join(names)}, not {', '.join(EXPECTED)}"
    for member in members:
        if not member.data.startswith(EXPECTED.get(member.name, b"")):
            yield f"{member.name} begins with {member.data[:8]!r}"
        if (member.owner, member.group, member.mode) != (0, 0, 0o100644):
            yield f"{member.name} is of {member.owner}:{member.group}, mode {member.mode:o}"
    if len({member.time for member in members}) > 1:
        yield "the members are not equally old"
    version = [member.data for member in members if member.name == deb.FORMAT]
    if version != [deb.FORMAT_VERSION]:
        yield f"the format is {version}, not {deb.FORMAT_VERSION!r}"
    with open(path, "rb") as file:
        if file.read() != deb.as_we_write(deb.read(path)):
            yield "it is not what is written of the entries that can be read in it"
