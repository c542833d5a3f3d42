"""What the slice asks of the phone, and what it shows to it."""

import imports
from macho.exports import exported_names
from macho.fixups import ChainedFixups
from macho.image import Image


def read_names(path):
    """One a line; `#` starts a comment."""
    with open(path, encoding="utf-8") as file:
        lines = [line.split("#")[0].strip() for line in file]
    return {line for line in lines if line}


def check_imports(path, allowed_path):
    """One missing import and the phone does not load the extension, without a word."""
    allowed = imports.symbols(allowed_path)
    found = ChainedFixups(Image.read(path)).imports
    if not found:
        yield "the slice imports nothing, so it cannot be the extension"
    for symbol in found:
        if symbol.name not in allowed:
            yield f"imports {symbol.name}, which {allowed_path} does not allow"
        if symbol.library in (0, 0xFD, 0xFE, 0xFF):
            yield f"imports {symbol.name} from no library in particular"


def check_exports(path, expected_path):
    expected = read_names(expected_path)
    found = set(exported_names(Image.read(path)))
    for name in sorted(found - expected):
        yield f"exports {name}, which {expected_path} does not list"
    for name in sorted(expected - found):
        yield f"does not export {name}, which {expected_path} lists"
