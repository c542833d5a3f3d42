"""The package installs exactly the listed files, as root's, and each folder before what is in it."""

import pathlib

from package import deb

# Not those of the module that writes them: it may be wrong.
FILE_MODE = 0o644
FOLDER_MODE = 0o755


def check_members(path, listing):
    files = _listed(listing)
    folders = {str(parent) for file in files for parent in pathlib.PurePosixPath(file).parents}
    entries = deb.read(path).data
    found = [_installed_path(entry) for entry in entries]
    for missing in sorted({*files, *folders} - set(found)):
        yield f"{missing} is not in it"
    for entry, name in zip(entries, found):
        kinds = (entry.info.isreg(), entry.info.isdir())
        if kinds != (name in files, name in folders):
            yield f"{name} is in it, as {'a folder' if kinds[1] else 'a file or something else'}"
    if found != sorted(found, key=lambda name: name.split("/")):
        yield "the entries are not in order"
    if len(set(found)) != len(found):
        yield "an entry comes twice"


def check_owners(path):
    package = deb.read(path)
    times = {member.time for member in package.members}
    for entry in package.control + package.data:
        info = entry.info
        owner = (info.uid, info.gid, info.uname, info.gname)
        if owner != (0, 0, "root", "root"):
            yield f"{entry.name} belongs to {owner}"
        mode = FOLDER_MODE if info.isdir() else FILE_MODE
        if info.mode != mode:
            yield f"{entry.name} has mode {info.mode:o}, not {mode:o}"
        if info.mtime not in times:
            yield f"{entry.name} is from {info.mtime}, the package from {sorted(times)}"
        if info.pax_headers:
            yield f"{entry.name} has an extended header"


def _listed(name):
    lines = pathlib.Path(name).read_text(encoding="utf-8").splitlines()
    return [line for line in lines if line and not line.startswith("#")]


def _installed_path(entry):
    """On the phone: "/…". Names that are no such path stay as they are, and are not expected."""
    return "/" if entry.name == "." else entry.name[1:] if entry.name.startswith("./") else entry.name
