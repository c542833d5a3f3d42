"""All mutants of a folder. Each has a name that stays when the code around it changes."""

import concurrent.futures
import dataclasses
import difflib
import hashlib
import pickle
import re

import operators
from project import fingerprint
from syntax import FUNCTIONS, NAMED, CursorKind, Source, TokenKind, parse, span

LONGEST = 90  # characters of a name's text


@dataclasses.dataclass(frozen=True)
class Mutant:
    file: str  # from the top of the repository
    enclosing: str  # the qualified name of the function, variable or class
    operator: str
    what: str  # the change in words of the source, white space and length evened out
    ordinal: int  # among those that are equal so far, from 1, in the order of the source
    edits: tuple  # (start, end, replacement) in bytes, in order
    first_line: int
    last_line: int
    symbol: str  # of an inline function of a header, which exists once in the library; or empty

    @property
    def identity(self):
        number = f" #{self.ordinal}" if self.ordinal > 1 else ""
        # Editors take blanks at the end of a line away.
        return f"{self.file} | {self.enclosing} | {self.operator} | {self.what}{number}".rstrip()

    @property
    def digest(self):
        return hashlib.sha256(self.identity.encode()).hexdigest()

    def apply(self, text):
        for start, end, replacement in reversed(self.edits):
            text = text[:start] + replacement.encode() + text[end:]
        return text

    def diff(self, root):
        before = (root / self.file).read_bytes()
        lines = [text.decode().splitlines() for text in (before, self.apply(before))]
        return "\n".join(difflib.unified_diff(*lines, self.file, self.file, lineterm="", n=2))


def even(text):
    text = re.sub(r"\s+", " ", text).strip()
    return text if len(text) <= LONGEST else text[:LONGEST - 1] + "…"


def qualified(cursor):
    names = []
    while cursor is not None and cursor.kind != CursorKind.TRANSLATION_UNIT:
        if cursor.kind in NAMED and cursor.spelling:
            names.append(cursor.spelling)
        cursor = cursor.semantic_parent
    return "::".join(reversed(names))


class Finder:
    """Walks over one file of a translation unit."""

    def __init__(self, source, path, name, macros):
        self.source = source
        self.path = path
        self.name = name
        self.found = []  # (operator, edits, what, (enclosing, symbol))
        self.owners = []  # (start, end, (enclosing, symbol))
        self.skipped = []  # (start, end)
        self.macros = source.tokens.uses(macros)

    def walk(self, cursor, owner, inside_function):
        if cursor.location.file is None or cursor.location.file.name != self.path:
            return
        if cursor.kind == CursorKind.STATIC_ASSERT or cursor.kind.is_attribute():
            self.skipped.append(span(cursor))
            return
        if span(cursor) in self.macros:
            return  # stands elsewhere
        if cursor.kind in NAMED and not inside_function:
            owner = qualified(cursor), self.symbol(cursor)
            self.owners.append((*span(cursor), owner))
            inside_function = cursor.kind in FUNCTIONS
        for operator, *where in operators.edits(self.source, cursor):
            self.add(operator, where, owner)
        for child in cursor.get_children():
            self.walk(child, owner, inside_function)

    def symbol(self, cursor):
        inline = cursor.kind in (CursorKind.FUNCTION_DECL, CursorKind.CXX_METHOD)
        if not inline or self.path.endswith(".cpp") or cursor.linkage.name == "INTERNAL":
            return ""
        start, end = span(cursor)
        words = [token[2] for token in self.source.tokens.between(start, end)]
        declared = words[:words.index("{")] if "{" in words else words
        return "" if "constexpr" in declared else cursor.mangled_name

    def add(self, operator, where, owner):
        if operator == "swap":
            (first, second), (third, fourth), _ = where
            one, other = self.source.slice(first, second), self.source.slice(third, fourth)
            edits = ((first, second, other), (third, fourth, one))
            self.found.append((operator, edits, f"{even(one)} <-> {even(other)}", owner))
            return
        start, end, replacement, *context = where
        before = self.source.slice(start, end)
        if context:
            what = f"{even(context[0])} : {before} -> {replacement}"
        elif operator == "negate":
            opening = self.source.text.rfind(b"(", 0, start) + 1
            what = even(before or self.source.slice(opening, start))
        else:
            what = even(before)
        self.found.append((operator, ((start, end, replacement),), what, owner))

    def literals(self):
        """By tokens: template arguments and lists behind macros are constants, too."""
        tokens = self.source.tokens.all
        for at, (start, end, spelling, kind) in enumerate(tokens):
            if kind != TokenKind.LITERAL and spelling not in ("true", "false"):
                continue
            line = self.source.text[self.source.text.rfind(b"\n", 0, start) + 1:start].lstrip()
            directive = line.startswith(b"#") and not line.startswith(b"#define")
            if directive or tokens[at - 1][2] in ("extern", "operator"):
                continue
            # Names of classes and selectors: under another one it is the same as left out.
            argument = tokens[at - 1][2] == "<" or tokens[at + 1][2] == ">"
            if argument and spelling.endswith('"'):
                continue
            if any(first <= start < last for first, last in self.skipped):
                continue
            replacement = operators.constant(spelling)
            if replacement is not None:
                holders = [name for first, last, name in self.owners if first <= start < last]
                around = " ".join(token[2] for token in tokens[max(at - 3, 0):at + 3])
                owner = holders[-1] if holders else ("", "")
                self.add("constant", (start, end, replacement, around), owner)

    def mutants(self):
        result, seen, texts = [], {}, set()
        for operator, edits, what, owner in sorted(self.found, key=lambda one: (one[1], one[0])):
            text = self.apply(edits)
            if text in texts:
                continue  # two operators have had the same idea
            texts.add(text)
            key = (owner, operator, what)
            seen[key] = seen.get(key, 0) + 1
            lines = self.source.line(edits[0][0]), self.source.line(edits[-1][1])
            result.append(Mutant(self.name, owner[0], operator, what, seen[key], edits, *lines,
                                 owner[1]))
        return result

    def apply(self, edits):
        text = self.source.text
        for start, end, replacement in reversed(edits):
            text = text[:start] + replacement.encode() + text[end:]
        return hashlib.sha256(text).digest()


def mutants_of_unit(root, subject, path, arguments):
    """(mutants, files) of one source with the subject's headers that it includes."""
    unit = parse(path, arguments)
    names = {path} | {root / include.include.name for include in unit.get_includes()}
    files = sorted({name.resolve() for name in names} & set(subject.rglob("*")))
    macros = set()
    for file in files:
        macros |= set(re.findall(r"^\s*#define (\w+)", file.read_text(), re.MULTILINE))
    finders = {str(file): Finder(Source(unit, file), str(file), str(file.relative_to(root)), macros)
               for file in files}
    for cursor in unit.cursor.get_children():
        where = cursor.location.file
        if where is not None and where.name in finders:
            finders[where.name].walk(cursor, ("", ""), False)
    found = []
    for finder in finders.values():
        finder.literals()
        found += finder.mutants()
    return found, [str(file.relative_to(root)) for file in files]


def all_mutants(project):
    """(mutants, {file: sources that are compiled from it}) in the order of the names."""
    found, users = {}, {}
    with concurrent.futures.ProcessPoolExecutor(project.jobs) as pool:
        runs = {source: pool.submit(mutants_of_unit, project.root, project.subject, source,
                                    project.parse_arguments())
                for source in project.sources}
        for source, run in runs.items():
            mutants, files = run.result()
            for file in files:
                users.setdefault(file, []).append(source)
            for mutant in mutants:
                found.setdefault(mutant.identity, mutant)
    return sorted(found.values(), key=lambda one: one.identity), users


def known_mutants(project, tools):
    """The same, without looking again as long as neither the sources nor the tool changes."""
    stamp = fingerprint(tools, [project.texts()])
    file = project.work / "mutants.pickle"
    if file.exists():
        known, found = pickle.loads(file.read_bytes())
        if known == stamp:
            return found
    found = all_mutants(project)
    file.write_bytes(pickle.dumps((stamp, found)))
    return found


def sample(mutants, count):
    """The same ones everywhere and on every day, spread over operators and files."""
    by_operator = {}
    for mutant in sorted(mutants, key=lambda one: one.digest):
        by_operator.setdefault(mutant.operator, []).append(mutant)
    chosen, used = [], {}
    while len(chosen) < min(count, len(mutants)):
        for operator in sorted(by_operator):
            rest = by_operator[operator]
            if rest and len(chosen) < count:
                best = min(rest, key=lambda one: (used.get(one.file, 0), one.digest))
                rest.remove(best)
                used[best.file] = used.get(best.file, 0) + 1
                chosen.append(best)
    return chosen
