"""Reads imports.txt."""

import collections

Library = collections.namedtuple("Library", "version name symbols data")  # data: those that are variables


def libraries(path):
    found = []
    with open(path, encoding="utf-8") as file:
        for line in file:
            words = line.split("#")[0].split()
            if words[:1] == ["library"]:
                found.append(Library(*words[1:], [], set()))
            elif words:
                found[-1].symbols.append(words[-1])
                if words[0] == "data":
                    found[-1].data.add(words[-1])
    return found


def symbols(path):
    return {symbol for library in libraries(path) for symbol in library.symbols}


def variables(path):
    return {symbol for library in libraries(path) for symbol in library.data}
