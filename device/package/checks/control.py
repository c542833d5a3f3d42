"""The package manager is told what it must know, and is given no script to run."""

import pathlib
import re

from package import deb
from package.control import fields, installed_size

FILES = [".", "./control", "./md5sums"]
LONGEST_LINE = 80  # what package managers show without wrapping
MAINTAINER = re.compile(r"[^<>]+ <[^<>@ ]+@[^<>@ ]+>")


def check(path, template):
    """`template`: the control file without the field that is computed."""
    package = deb.read(path)
    names = [entry.name for entry in package.control]
    if names != FILES:
        yield f"the control archive holds {', '.join(names)}, not {', '.join(FILES)}"
    found = fields(package.control_file("control").decode())
    expected = fields(pathlib.Path(template).read_text(encoding="utf-8"))
    expected["Installed-Size"] = str(installed_size(package.data))
    for field in {**expected, **found}:
        if found.get(field) != expected.get(field):
            yield f"{field} is {found.get(field)!r}, not {expected.get(field)!r}"
    yield from _check_values(path, found)


def _check_values(path, found):
    name = "_".join(found.get(field, "") for field in ("Package", "Version", "Architecture")) + ".deb"
    if pathlib.Path(path).name != name:
        yield f"the file's name is not {name}"
    if not MAINTAINER.fullmatch(found.get("Maintainer", "")):
        yield "Maintainer is no NAME <ADDRESS>"
    synopsis, *rest = found.get("Description", "").split("\n")
    if not synopsis or not rest:
        yield "Description needs a line, and more lines that explain it"
    if any(len(line) > LONGEST_LINE for line in (synopsis, *rest)):
        yield f"Description has a line of more than {LONGEST_LINE} letters"
