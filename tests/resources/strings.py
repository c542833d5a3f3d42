"""A strict reader of text tables of strings: stricter than the platform's, for our own tables."""

import re

_COMMENT = re.compile(r"\s*/\*(?P<comment>.*?)\*/", re.DOTALL)
_ENTRY = re.compile(r'\s*"(?P<key>[^"\\\n]+)" = "(?P<text>(?:[^"\\\n]|\\["\\n])*)";\n')


class StringsError(Exception):
    pass


def _match(pattern, source, position, wanted):
    found = pattern.match(source, position)
    if not found:
        line = 1 + source.count("\n", 0, position)
        raise StringsError(f"{wanted} expected behind line {line}")
    return found


def read_strings(source):
    """The texts by key. Every entry is preceded by a comment, and no key comes twice."""
    texts = {}
    position = 0
    while source[position:].strip():
        comment = _match(_COMMENT, source, position, "a comment")
        entry = _match(_ENTRY, source, comment.end(), "an entry")
        if not comment["comment"].strip():
            raise StringsError(f"{entry['key']} has an empty comment")
        if entry["key"] in texts:
            raise StringsError(f"{entry['key']} comes twice")
        texts[entry["key"]] = entry["text"]
        position = entry.end()
    return texts
