"""Load-time initialisers are offsets, which the loader signs itself, and not pointers."""

import struct

from macho.image import SECTION_INIT_OFFSETS, SECTION_MOD_INIT_FUNCS, Image


def check(path):
    image = Image.read(path)
    for section in image.sections:
        if section.type == SECTION_MOD_INIT_FUNCS:
            yield f"{section.full_name} holds initialisers as pointers"
    tables = [section for section in image.sections if section.type == SECTION_INIT_OFFSETS]
    if not tables:
        yield "there is no __init_offsets: nothing would run when the phone loads the extension"
    for table in tables:
        yield from _check_table(image, table)


def _check_table(image, table):
    if table.align < 2 or table.size == 0 or table.size % 4:
        yield f"{table.full_name} has {table.size} bytes, aligned to 2^{table.align}"
        return
    for (offset,) in struct.iter_unpack("<I", image.content(table)):
        target = image.section_at(image.segments[0].address + offset)
        if target is None or not target.holds_code:
            yield f"the initialiser at {offset:#x} is not code"
