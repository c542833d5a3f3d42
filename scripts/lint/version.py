#!/usr/bin/env python3
"""Every place that names the project's version names the one in CMakeLists.txt: the package's file
in texts, and the newest entry of CHANGELOG.md. Each of the places must be there."""

import pathlib
import re
import sys

TOP = pathlib.Path(__file__).resolve().parents[2]
PACKAGE = re.compile(r"com\.corvane\.dozewell2_([^_\s]+)_iphoneos-arm64\.deb")
ENTRY = re.compile(r"^## (.+)$", re.MULTILINE)
NUMBER = re.compile(r"[0-9]+(?:\.[0-9]+)+")
TEXTS = ("README.md", "docs/install.md", "docs/publishing.md")


def project_version(source):
    return re.search(r"^project\(\w+ VERSION ([0-9.]+) ", source, re.MULTILINE)[1]


def complaints(version, texts, changelog):
    for name, text in texts.items():
        found = PACKAGE.findall(text)
        if not found:
            yield f"{name}: does not name the package's file, com.corvane.dozewell2_{version}_iphoneos-arm64.deb"
        for other in found:
            if other != version:
                yield f"{name}: the package's version is {version}, not {other}"
    newest = ENTRY.search(changelog)
    numbers = NUMBER.findall(newest[1]) if newest else []
    if numbers != [version]:
        yield f"CHANGELOG.md: the newest entry names {numbers or 'no version'}, not {version}"


def main():
    def read(name):
        return (TOP / name).read_text(encoding="utf-8")

    found = list(complaints(project_version(read("CMakeLists.txt")), {name: read(name) for name in TEXTS},
                            read("CHANGELOG.md")))
    for complaint in found:
        print(complaint, file=sys.stderr)
    sys.exit(1 if found else 0)


if __name__ == "__main__":
    main()
