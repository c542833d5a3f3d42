"""No pointer to code that the loader writes anywhere but in the table of imports.

Such a pointer is unsigned on arm64e. Only the calls through __got expect that.
"""

import imports
from macho.fixups import ChainedFixups
from macho.image import Image

GOT = "__DATA_CONST,__got"


def check(path, allowed_imports):
    image = Image.read(path)
    data_symbols = imports.variables(allowed_imports)
    for fixup in ChainedFixups(image):
        section = image.section_at(fixup.address)
        place = section.full_name if section else "no section"
        if place == GOT:
            continue
        if fixup.symbol is not None:
            if fixup.symbol.name not in data_symbols:
                yield f"{fixup.address:#x} in {place} is bound to the function {fixup.symbol.name}"
            continue
        target = image.section_at(fixup.target)
        if target is None:
            yield f"{fixup.address:#x} in {place} points at {fixup.target:#x}, in no section"
        elif target.holds_code:
            yield f"{fixup.address:#x} in {place} points at code, {fixup.target:#x}"
