#!/usr/bin/env python3
"""usage: translations.py [FOLDER]

Every text of the served phone's page (FOLDER, by default simulator/web) is in the tables of all its
languages, every entry of these is a text of the page, and both have the same {places}. Texts are the
literals in calls of say() and sayCount(), see ui/language.js, and those of index.html.
"""
import html.parser
import json
import pathlib
import re
import sys

PLURALS = {
    "ar": {"zero", "one", "two", "few", "many", "other"},
    "de": {"one", "other"},
    "ja": {"other"},
}

LITERAL = r'"(?:[^"\\\n]|\\.)*"'
TEXT = rf"\s*({LITERAL}(?:\s*\+\s*{LITERAL})*)\s*"
IMPORT = re.compile(r'from "[^"]*\blanguage\.js"')
CALL = re.compile(r"(?<![.#\w])(say|sayCount)\(")
SAY = re.compile(rf"{TEXT}[,)]")
COUNT = re.compile(rf"{TEXT},{TEXT},")
PLACE = re.compile(r"\{\w+\}")
SPOKEN = ("aria-label", "title", "alt", "placeholder")
UNSEEN = ("script", "style", "title", "noscript")
VOID = ("meta", "link", "img", "input", "br", "hr")


def value(literals):
    return "".join(json.loads(each) for each in re.findall(LITERAL, literals))


def uncommented(text):
    return re.sub(r"(?m)^\s*//.*$", "", text)


class Document(html.parser.HTMLParser):
    """The texts of a document; `problems` are those that nothing translates."""

    def __init__(self):
        super().__init__()
        self.open, self.texts, self.problems = [], set(), []

    def handle_starttag(self, tag, attributes):
        attributes = dict(attributes)
        for name in SPOKEN:
            if name == "aria-label" and name in attributes:
                self.texts.add(attributes[name])
            elif name in attributes:
                self.problems.append(f"{name} of <{tag}> is not translated")
        if tag not in VOID:
            self.open.append((tag, attributes))

    def handle_endtag(self, tag):
        while self.open and self.open.pop()[0] != tag:
            pass

    def handle_data(self, data):
        if not data.strip() or any(tag in UNSEEN for tag, _ in self.open):
            return
        tag, attributes = self.open[-1]
        if "data-say" in attributes:
            self.texts.add(data)
        elif attributes.get("translate") != "no":
            self.problems.append(f"text of <{tag}> without data-say: {data.strip()}")


def texts_of(folder):
    """{text: whether it has plural forms}, and what is wrong with how it is said."""
    texts, problems = {}, []
    for path in sorted(folder.rglob("*.js")):
        source = uncommented(path.read_text())
        if not IMPORT.search(source):
            continue
        for call in CALL.finditer(source):
            is_count = call.group(1) == "sayCount"
            found = (COUNT if is_count else SAY).match(source, call.end())
            if found:
                texts[value(found.group(2 if is_count else 1))] = is_count
            else:
                line = source[: call.start()].count("\n") + 1
                problems.append(f"{path}:{line}: {call.group(1)}() without a literal text")
    document = Document()
    document.feed((folder / "index.html").read_text())
    texts.update(dict.fromkeys(document.texts, False))
    return texts, problems + [f"index.html: {each}" for each in document.problems]


def forms_of(language, text, translation, is_count):
    """The translation's texts by plural form, or what is wrong."""
    if is_count != isinstance(translation, dict):
        return {}, f"{language}: {text!r} wants {'plural forms' if is_count else 'one text'}"
    if is_count and set(translation) != PLURALS[language]:
        return {}, f"{language}: {text!r} wants {', '.join(sorted(PLURALS[language]))}"
    return (translation if is_count else {"": translation}), None


def problems_of_table(language, table, texts):
    missing = sorted(set(texts) - set(table))
    yield from (f"{language}: no translation of {text!r}" for text in missing)
    for text, translation in table.items():
        if text not in texts:
            yield f"{language}: nothing says {text!r}"
            continue
        forms, problem = forms_of(language, text, translation, texts[text])
        if problem:
            yield problem
        for form, each in forms.items():
            # One and two are often words.
            free = {"{count}"} if form in ("zero", "one", "two") else set()
            wanted, had = set(PLACE.findall(text)), set(PLACE.findall(each))
            if wanted - free != had - free:
                yield f"{language}: {text!r} and {each!r} have different places"


def once(pairs):
    names = [name for name, _ in pairs]
    twice = sorted({name for name in names if names.count(name) > 1})
    if twice:
        raise ValueError(f"twice: {twice}")
    return dict(pairs)


def main():
    folder = pathlib.Path(sys.argv[1] if len(sys.argv) > 1 else "simulator/web")
    texts, problems = texts_of(folder)
    for language in sorted(PLURALS):
        table = folder / "languages" / f"{language}.json"
        content = json.loads(table.read_text(), object_pairs_hook=once)
        problems += problems_of_table(language, content, texts)
    for problem in problems:
        print(problem)
    return 1 if problems or not texts else 0


if __name__ == "__main__":
    sys.exit(main())
