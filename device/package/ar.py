"""The outermost layer of a package: an ar archive of three members."""

from dataclasses import dataclass

from package.error import PackageError

MAGIC = b"!<arch>\n"
HEADER_SIZE = 60
HEADER_END = b"`\n"


@dataclass
class Member:
    name: str
    data: bytes
    time: int  # seconds since 1970
    owner: int = 0
    group: int = 0
    mode: int = 0o100644


def write(members):
    return MAGIC + b"".join(_written(member) for member in members)


def read(data):
    if not data.startswith(MAGIC):
        raise PackageError("it does not begin as an ar archive does")
    members = []
    position = len(MAGIC)
    while position < len(data):
        member, position = _read_at(data, position)
        members.append(member)
    return members


def _written(member):
    header = (
        f"{member.name:<16}{member.time:<12}{member.owner:<6}{member.group:<6}"
        f"{member.mode:<8o}{len(member.data):<10}"
    )
    padding = b"\n" if len(member.data) % 2 else b""
    return header.encode("ascii") + HEADER_END + member.data + padding


def _read_at(data, position):
    header = data[position : position + HEADER_SIZE]
    if len(header) < HEADER_SIZE or header[-2:] != HEADER_END:
        raise PackageError(f"there is no header of a member at byte {position}")
    start = position + HEADER_SIZE
    try:
        fields = header.decode("ascii")
        time, owner, group = int(fields[16:28]), int(fields[28:34]), int(fields[34:40])
        mode, size = int(fields[40:48], 8), int(fields[48:58])
    except ValueError as error:
        raise PackageError(f"the header at byte {position} cannot be read: {error}") from error
    if start + size > len(data):
        raise PackageError(f"the member at byte {position} ends behind the file")
    member = Member(fields[:16].rstrip(), data[start : start + size], time, owner, group, mode)
    return member, start + size + size % 2
