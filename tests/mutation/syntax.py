"""A C++ source as libclang sees it: its tokens, and the small questions that operators ask."""

import bisect
import sys

try:
    import clang.cindex
except ModuleNotFoundError:  # a Python that is not Debian's, on a Debian machine
    sys.path.append("/usr/lib/python3/dist-packages")
    import clang.cindex

from clang.cindex import CursorKind, TokenKind  # noqa: F401: for those who use this module

FUNCTIONS = {
    CursorKind.FUNCTION_DECL, CursorKind.CXX_METHOD, CursorKind.CONSTRUCTOR, CursorKind.DESTRUCTOR,
    CursorKind.CONVERSION_FUNCTION, CursorKind.FUNCTION_TEMPLATE,
}
NAMED = FUNCTIONS | {
    CursorKind.VAR_DECL, CursorKind.FIELD_DECL, CursorKind.STRUCT_DECL, CursorKind.CLASS_DECL,
    CursorKind.CLASS_TEMPLATE, CursorKind.ENUM_DECL, CursorKind.ENUM_CONSTANT_DECL,
    CursorKind.NAMESPACE,
}
LITERALS = {
    CursorKind.INTEGER_LITERAL, CursorKind.FLOATING_LITERAL, CursorKind.STRING_LITERAL,
    CursorKind.CHARACTER_LITERAL, CursorKind.CXX_BOOL_LITERAL_EXPR,
    CursorKind.CXX_NULL_PTR_LITERAL_EXPR,
}
# What stands around an expression without a word of its own in the source.
WRAPPERS = {CursorKind.UNEXPOSED_EXPR, CursorKind.CALL_EXPR}


def bare(cursor):
    """The expression itself, without the conversions that the compiler has put around it."""
    while cursor.kind in WRAPPERS:
        inner = list(cursor.get_children())
        if len(inner) != 1 or span(inner[0]) != span(cursor):
            return cursor
        cursor = inner[0]
    return cursor


def span(cursor):
    """From the first byte to the one after the last."""
    return cursor.extent.start.offset, cursor.extent.end.offset


def is_expression(cursor):
    return cursor.kind.is_expression()


class Tokens:
    """All tokens of one file, in their order, found by where they stand."""

    def __init__(self, unit, name, length):
        file = unit.get_file(name)
        start = clang.cindex.SourceLocation.from_offset(unit, file, 0)
        end = clang.cindex.SourceLocation.from_offset(unit, file, length)
        extent = clang.cindex.SourceRange.from_locations(start, end)
        self.all = [(token.extent.start.offset, token.extent.end.offset, token.spelling, token.kind)
                    for token in unit.get_tokens(extent=extent)
                    if token.kind != TokenKind.COMMENT]
        self.starts = [token[0] for token in self.all]

    def index_at(self, offset):
        """Of the first token at the offset or behind it."""
        return bisect.bisect_left(self.starts, offset)

    def between(self, start, end):
        return self.all[self.index_at(start):self.index_at(end)]

    def find(self, spelling, start, end):
        """Where the first such token lies in this range, or None."""
        for token in self.between(start, end):
            if token[2] == spelling:
                return token[0], token[1]
        return None

    def uses(self, macros):
        """Where these are used, with their arguments: (start, end) of each."""
        found = set()
        for at, (start, end, spelling, _) in enumerate(self.all[:-1]):
            if spelling in macros:
                called = self.all[at + 1][2] == "("
                found.add((start, self.all[self.closing(at + 1)][1] if called else end))
        return found

    def closing(self, index):
        """The index of the parenthesis that closes the one at the index."""
        depth = 0
        for at in range(index, len(self.all)):
            spelling = self.all[at][2]
            depth += (spelling in "([{") - (spelling in ")]}") if len(spelling) == 1 else 0
            if depth == 0:
                return at
        return len(self.all) - 1


class Source:
    """One file of a translation unit."""

    def __init__(self, unit, path):
        self.text = path.read_bytes()
        self.tokens = Tokens(unit, str(path), len(self.text))

    def of(self, cursor):
        start, end = span(cursor)
        return self.text[start:end].decode()

    def slice(self, start, end):
        return self.text[start:end].decode()

    def line(self, offset):
        return self.text.count(b"\n", 0, offset) + 1


def parse(path, arguments):
    """The translation unit; SystemExit if it does not compile."""
    index = clang.cindex.Index.create(excludeDecls=True)
    unit = index.parse(str(path), args=arguments)
    errors = [d for d in unit.diagnostics if d.severity >= clang.cindex.Diagnostic.Error]
    if errors:
        sys.exit(f"{path} does not compile: {errors[0]}")
    return unit
