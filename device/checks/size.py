"""The slice stays small: it lies in the home screen's process for as long as that lives.

Templates make it grow where nobody looks: what the bridge writes out for each message, method and
property. bench/size.py says what each of them costs.
"""

from macho.image import Image

CODE_AND_CONSTANTS = 120_000  # bytes
FILE = 160_000


def check(path):
    image = Image.read(path)
    constant = ("__TEXT", "__DATA_CONST")
    size = sum(section.size for section in image.sections if section.segment in constant)
    if size > CODE_AND_CONSTANTS:
        yield f"has {size} bytes of code and constants, more than {CODE_AND_CONSTANTS}"
    if len(image.data) > FILE:
        yield f"has {len(image.data)} bytes, more than {FILE}"
    local = [symbol for symbol in image.symbols() if not symbol.external]
    if local:
        yield f"names {len(local)} symbols that are not exported, such as {local[0].name}"
