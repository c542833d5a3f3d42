"""The code of a slice: its instructions, the functions that they belong to, and what they call."""

import pathlib
import re
import subprocess
import sys
from dataclasses import dataclass

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[3] / "device"))
from macho.fixups import ChainedFixups  # noqa: E402
from macho.image import Image  # noqa: E402

STUB = 12  # bytes: adrp, ldr, br


@dataclass(frozen=True)
class Function:
    address: int
    size: int  # bytes
    name: str  # as the sources write it
    source: str

    def instructions(self):
        return range(self.address, self.address + self.size, 4)


class SliceCode:
    """`file` is a finished slice; beside it lies what its linker wrote, with the list of functions."""

    def __init__(self, file):
        image = Image.read(file)
        sections = {section.name: section for section in image.sections}
        text, stubs = sections["__text"], sections["__stubs"]
        self.address = text.address
        # What imports are called through follows the functions.
        self._code = image.data[text.offset:stubs.offset + stubs.size]
        self.instructions = range(text.address, text.address + text.size, 4)
        self.functions = _functions(file.parent / "linked" / (file.name + ".map"), self.instructions)
        names = {fixup.address: fixup.symbol.name for fixup in ChainedFixups(image) if fixup.symbol}
        self.imports = {stub: names[self._slot(stub)]
                        for stub in range(stubs.address, stubs.address + stubs.size, STUB)}

    def _slot(self, stub):
        page, load = self.word_at(stub), self.word_at(stub + 4)
        pages = (page >> 29 & 3) | (page >> 5 & 0x7FFFF) << 2
        return (stub & ~0xFFF) + (pages << 12) + (load >> 10 & 0xFFF) * 8

    def word_at(self, address):
        return int.from_bytes(self._code[address - self.address:][:4], "little")

    def is_at(self, address, words):
        offset = address - self.address
        return offset >= 0 and self._code[offset:offset + len(words)] == words

    def places(self, words):
        """Where in the slice these bytes of instructions are, all of them."""
        at = self._code.find(words)
        while at >= 0:
            if at % 4 == 0:
                yield self.address + at
            at = self._code.find(words, at + 1)


def signing(word):
    """What kind of signing or authenticating instruction this is; None for others."""
    if word & 0xFFFFFF1F == 0xD503231F:  # of the link register: pacibsp, autibsp
        return word
    if word & 0xFFFF0000 == 0xDAC10000:  # of any register
        return word & 0xFFFFFC00
    if word & 0xFE9FF800 == 0xD61F0800:  # within a branch, a call, a return
        return word & 0xFFFFFC00
    return None


def _functions(listed, instructions):
    sources, found, part = {}, {}, ""
    for line in listed.read_text(encoding="utf-8").splitlines():
        part = line if re.fullmatch("# [A-Z].*:", line) else part
        source = re.match(r"\[ *(\d+)\] .*/__/(.*)\.o$", line)
        symbol = re.match(r"0x([0-9A-F]+)\t0x([0-9A-F]+)\t\[ *(\d+)\] _(.*)", line)
        if part == "# Object files:" and source:
            sources[source[1]] = source[2]
        elif part == "# Symbols:" and symbol and int(symbol[1], 16) in instructions:
            size = int(symbol[2], 16)
            if size > 0:  # of several names for one place the first is as good as any
                found.setdefault(int(symbol[1], 16), (size, symbol[4], sources[symbol[3]]))
    names = _plain(name for _, name, _ in found.values())
    return [Function(address, size, name, source)
            for (address, (size, _, source)), name in zip(found.items(), names)]


def _plain(names):
    """As the sources write them, texts in templates included."""
    listed = subprocess.run(["llvm-cxxfilt-19"], input="".join(f"{name}\n" for name in names), check=True,
                            capture_output=True, text=True).stdout
    text = r"objc::FixedString<\d+ul>\{char \[\d+\]\{([^}]*)\}\}"
    characters = re.compile(r"\(char\)(\d+)")
    return [re.sub(text, lambda found: '"' + "".join(chr(int(number)) for number in
                                                     characters.findall(found[1])) + '"', line)
            for line in listed.splitlines()]
