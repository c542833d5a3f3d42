#!/usr/bin/env python3
"""usage: captures.py [FILE...]

No block of the extension captures what may be gone when it runs. A lambda that captures `this`,
everything, or anything by reference is refused, unless it is an argument of a function whose name
begins with forEach: those call their argument before they return, and keep nothing. Blocks capture
owners instead: objc::retain(view), and retained() for the object whose member makes the block.

Without files, looks at all of tweak/ that is tracked."""

import pathlib
import re
import subprocess
import sys

# Literals and comments, which are blanked: they may hold brackets. An apostrophe after a digit
# divides a number.
NOT_CODE = re.compile(
    r"//[^\n]*|/\*.*?\*/"
    r'|R"(?P<end>[^()\s]*)\(.*?\)(?P=end)"|"(?:[^"\\\n]|\\.)*"'
    r"|(?<![0-9a-fA-F])'(?:[^'\\\n]|\\.)*'", re.DOTALL)
# A lambda's captures are followed by its parameters or its body, and follow no operand.
LAMBDA = re.compile(
    r"(?:(?<![\w\])>])|(?<=\breturn))\s*"
    r"\[(?!\[)([^\[\]]*(?:\[[^\[\]]*\][^\[\]]*)*)\]"
    r"\s*(?=[({<]|->|mutable\b|noexcept\b|constexpr\b)")
# By reference; `this`; or, under another name, an address or the object itself without an owner.
REFUSED = re.compile(
    r"^\s*(?:[&=]|.*\bthis\b|\w+\s*=\s*(?:&|(?:\w+(?:\.|->))?(?:self|view)\(\)\s*$))", re.DOTALL)
IMMEDIATE = re.compile(r"\bforEach\w*\s*$")


def blank(match):
    return re.sub(r"[^\n]", " ", match.group())


def captures(text):
    """The captures of a lambda, one by one: what stands between the commas outside of brackets."""
    depth, start = 0, 0
    for index, letter in enumerate(text):
        depth += (letter in "([{<") - (letter in ")]}>")
        if letter == "," and depth == 0:
            yield text[start:index]
            start = index + 1
    yield text[start:]


def caller(code, end):
    """The text up to the bracket of the call that what stands at `end` is an argument of."""
    depth = 0
    for index in range(end - 1, -1, -1):
        if code[index] in ")}]":
            depth += 1
        elif code[index] in "({[":
            if depth == 0:
                return code[:index] if code[index] == "(" else ""
            depth -= 1
    return ""


def refused(text):
    """The lines of the lambdas that are refused, with their captures."""
    code = NOT_CODE.sub(blank, text)
    for found in LAMBDA.finditer(code):
        if not any(REFUSED.match(one) for one in captures(found.group(1))):
            continue
        if not IMMEDIATE.search(caller(code, found.start())):
            yield code.count("\n", 0, found.start(1)) + 1, " ".join(found.group(1).split())


def tracked():
    listing = subprocess.run(["git", "-c", f"safe.directory={pathlib.Path.cwd()}", "ls-files", "-z",
                              "--", "tweak/*.cpp", "tweak/*.h"],
                             check=True, text=True, capture_output=True).stdout
    return listing.split("\0")[:-1]


def main(files):
    status = 0
    for file in files or tracked():
        for line, text in refused(pathlib.Path(file).read_text()):
            print(f"{file}:{line}: [{text}] may be gone when the block runs: capture an owner")
            status = 1
    return status


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
