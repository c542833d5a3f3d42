#!/usr/bin/env python3
"""Makes the package. Run as a module from the folder device/:

    python3 -m package.make --control FILE --output DEB [--placeholder TEXT]... PATH=SOURCE...

Each SOURCE, a file or all of a folder, is installed at PATH. Every entry is root's and as old as
SOURCE_DATE_EPOCH says; without that they are all from 1980, because nothing on a phone asks for
their age, and the same sources shall give the same package. Warns of each placeholder that is
still in the package.
"""

import argparse
import os
import pathlib
import sys

from package import deb, tar
from package.control import installed_size, md5sums

START_OF_1980 = 315532800  # seconds since 1970


def installed_files(pairs):
    """What is in each file of the package, by its path on the phone."""
    found = {}
    for pair in pairs:
        path, source = pair.split("=", 1)
        source = pathlib.Path(source)
        if source.is_dir():
            for file in source.rglob("*"):
                if file.is_file():
                    found[f"{path}/{file.relative_to(source).as_posix()}"] = file.read_bytes()
        else:
            found[path] = source.read_bytes()
    return found


def entries(files, time):
    """Folders come before what is in them. Ordered by code points, whatever the locale."""
    folders = {str(parent) for path in files for parent in pathlib.PurePosixPath(path).parents}
    for path in sorted(folders | set(files), key=lambda path: path.split("/")):
        name = "." if path == "/" else "." + path
        yield tar.file_entry(name, files[path], time) if path in files else tar.folder_entry(name, time)


def package(control_text, files, time):
    data = list(entries(files, time))
    control_text += f"Installed-Size: {installed_size(data)}\n"
    control = [
        tar.folder_entry(".", time),
        tar.file_entry("./control", control_text.encode(), time),
        tar.file_entry("./md5sums", md5sums(data).encode(), time),
    ]
    return deb.assemble(control, data, time)


def warn_of(placeholders, control_text, files):
    for placeholder in placeholders:
        content = [control_text.encode(), *files.values()]
        if any(placeholder.encode() in data for data in content):
            print(f"warning: the package still names {placeholder}: see docs/publishing.md before "
                  "you publish it", file=sys.stderr)


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--control", required=True, type=pathlib.Path)
    parser.add_argument("--output", required=True, type=pathlib.Path)
    parser.add_argument("--placeholder", action="append", default=[])
    parser.add_argument("files", nargs="+", metavar="PATH=SOURCE")
    options = parser.parse_args()
    time = int(os.environ.get("SOURCE_DATE_EPOCH", START_OF_1980))
    control_text = options.control.read_text(encoding="utf-8")
    files = installed_files(options.files)
    warn_of(options.placeholder, control_text, files)
    options.output.write_bytes(package(control_text, files, time))


if __name__ == "__main__":
    main()
