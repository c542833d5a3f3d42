"""What an emulator says of the code that it has run."""

import re
import struct

LINE = re.compile(r"0x([0-9a-f]+): +([0-9a-f]{8})\b")


class RunLog:
    """Reads what `-d in_asm` writes: each piece of code once, up to the branch that ends it, when it is run
    for the first time."""

    def __init__(self, code):
        self.code = code
        self.bases = []  # where the slice has lain: processes may place it differently

    def addresses(self, lines):
        """The slice's addresses of all instructions that were run."""
        run = set()
        for start, words in self._pieces(lines):
            base = self._base_of(start, words)
            if base is not None:
                run.update(range(start - base, start - base + len(words), 4))
        return run

    @staticmethod
    def _pieces(lines):
        start, words = 0, bytearray()
        for line in lines:
            row = LINE.match(line)
            if row and words and int(row[1], 16) == start + len(words):
                words += struct.pack("<I", int(row[2], 16))
                continue
            if words:
                yield start, bytes(words)
            start, words = (int(row[1], 16), struct.pack("<I", int(row[2], 16))) if row else (0, b"")
            words = bytearray(words)
        if words:
            yield start, bytes(words)

    def _base_of(self, start, words):
        for base in self.bases:
            if self.code.is_at(start - base, words):
                return base
        # Slices begin at the beginning of a page.
        found = [start - place for place in self.code.places(words) if (start - place) % 0x1000 == 0]
        if len(found) != 1 or len(words) < 24:
            return None
        self.bases.append(found[0])
        return found[0]
