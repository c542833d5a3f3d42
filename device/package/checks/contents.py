"""What is in the installed files."""

import plistlib
from xml.parsers.expat import ExpatError

from macho.fat import slices_in
from macho.image import Image
from package import deb
from package.control import md5sums
from package.make import installed_files

LIBRARY = "/var/jb/Library/MobileSubstrate/DynamicLibraries/Dozewell2.dylib"
FILTER = "/var/jb/Library/MobileSubstrate/DynamicLibraries/Dozewell2.plist"
HOST = "com.apple.springboard"


def check_md5sums(path):
    package = deb.read(path)
    found = package.control_file("md5sums").decode().splitlines()
    expected = md5sums(package.data).splitlines()
    for line in sorted(set(found) ^ set(expected)):
        yield f"{line.split('  ')[-1]}: the sum in md5sums is not the file's"
    if found != expected:
        yield "md5sums does not list each file once, in the order of the package"


def check_sources(path, *pairs):
    """Every file is byte for byte what the build has made: PATH=SOURCE, as for package.make."""
    entries = deb.read(path).data
    found = {entry.name[1:]: entry.data for entry in entries if entry.info.isreg()}
    expected = installed_files(pairs)
    for name in sorted({**found, **expected}):
        if found.get(name) != expected.get(name):
            yield f"{name} is not what was built ({_size(found, name)}, not {_size(expected, name)})"


def check_slices(path, *thin_paths):
    """The slices are those that were linked, finished and checked."""
    slices = slices_in(deb.read(path).file(LIBRARY))
    thin = [Image.read(thin_path).data for thin_path in thin_paths]
    if sorted(part.data for part in slices) != sorted(thin):
        yield "the slices are not the checked ones byte for byte"


def check_filter(path):
    """The library is injected into the home screen, and nowhere else."""
    try:
        found = plistlib.loads(deb.read(path).file(FILTER))
    except (plistlib.InvalidFileException, ExpatError, ValueError) as error:
        yield f"{FILTER} cannot be read: {error}"
        return
    if found != {"Filter": {"Bundles": [HOST]}}:
        yield f"{FILTER} is {found}, not a filter for {HOST} alone"


def check_paths(path, *folders):
    """Nothing in it names a folder of the machine that has built it."""
    package = deb.read(path)
    for entry in package.control + package.data:
        for folder in folders:
            if folder.encode() in entry.data or folder in entry.name:
                yield f"{entry.name} names {folder}"


def _size(files, name):
    return f"{len(files[name])} bytes" if name in files else "no such file"
