"""The names an image exports, from its export trie."""

from macho.error import MachOError
from macho.image import LC_DYLD_EXPORTS_TRIE


def exported_names(image):
    """A sorted list. An image without a trie exports nothing."""
    trie = image.blob(LC_DYLD_EXPORTS_TRIE)
    return sorted(_walk(trie, 0, b"", set())) if trie else []


def _walk(trie, offset, prefix, seen):
    if offset in seen or offset >= len(trie):
        raise MachOError(f"the export trie has a bad edge to {offset}")
    seen.add(offset)
    terminal, offset = _uleb(trie, offset)
    if terminal:
        yield prefix.decode()
    offset += terminal
    children = trie[offset]
    offset += 1
    for _ in range(children):
        end = trie.index(b"\0", offset)
        child, after = _uleb(trie, end + 1)
        yield from _walk(trie, child, prefix + trie[offset:end], seen)
        offset = after


def _uleb(data, offset):
    value = shift = 0
    while True:
        if offset >= len(data):
            raise MachOError("a number in the export trie is cut off")
        byte = data[offset]
        offset += 1
        value |= (byte & 0x7F) << shift
        shift += 7
        if not byte & 0x80:
            return value, offset
