"""The words of one language: the pane's own table, and behind it those that the bundle has."""

import re

_ENTRY = re.compile(r'^"((?:[^"\\]|\\.)+)" = "((?:[^"\\]|\\.)*)";$', re.MULTILINE)
_IGNORED = re.compile(r"/\*.*?\*/|\s+", re.DOTALL)
_ESCAPED = re.compile(r"\\(.)")
BUNDLE_TABLES = ("Localizable", "Accessibility")


def read_strings(path):
    """The texts by key. ValueError for what is no entry, and for a key that comes twice."""
    source = path.read_text(encoding="utf-8")
    texts = {}
    for key, text in _ENTRY.findall(source):
        if key in texts:
            raise ValueError(f"{path}: {key} comes twice")
        texts[key] = _ESCAPED.sub(r"\1", text)
    rest = _IGNORED.sub("", _ENTRY.sub("", source))
    if rest:
        raise ValueError(f"{path}: no entry: {rest[:40]}")
    return texts


def quoted(text):
    return '"' + text.replace("\\", "\\\\").replace('"', '\\"') + '"'


def _bundle_texts(bundle, language):
    folder = bundle / f"{language}.lproj"
    return {
        key: text
        for table in BUNDLE_TABLES
        for key, text in read_strings(folder / f"{table}.strings").items()
    }


class Language:
    def __init__(self, name, tables, bundle):
        """`tables` has NAME.strings, `bundle` the NAME.lproj folders of the resource bundle."""
        self.name = name
        self.own = read_strings(tables / f"{name}.strings")
        self.bundle = _bundle_texts(bundle, name)
        # A text that the bundle has in English is not translated a second time.
        self._keys = {text: key for key, text in _bundle_texts(bundle, "en").items()}

    def __call__(self, key):
        """A symbolic key's text. KeyError when neither table has it."""
        return self.own[key] if key in self.own else self.bundle[key]

    def translate(self, english):
        """KeyError when there is no translation."""
        if self.name == "en":
            return english
        if english in self.own:
            return self.own[english]
        if english in self._keys:
            return self.bundle[self._keys[english]]
        raise KeyError(f"{self.name}.strings has no {quoted(english)}")
