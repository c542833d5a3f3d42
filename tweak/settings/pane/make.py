#!/usr/bin/env python3
"""Makes what shows the extension's settings to people, from the extension's list of them and from
one table of wording:

    make.py pane FOLDER              the pane on the phone
    make.py page TEMPLATE OUTPUT     the Settings tab of the simulator's page
    make.py docs OUTPUT              the page of the documentation
"""

import json
import pathlib
import sys

from docs import docs
from page import write_source
from pane import write_pane
from settings_list import read_settings
from texts import Language

HERE = pathlib.Path(__file__).resolve().parent


def languages():
    tables = HERE / "texts"
    bundle = HERE.parent.parent / "resources"
    names = sorted(path.stem for path in tables.glob("*.strings"))
    return {name: Language(name, tables, bundle) for name in names}


def check(wording, settings):
    worded = [words["key"] for group in wording["groups"] for words in group["settings"]]
    if sorted(worded) != sorted(settings):
        sys.exit(f"wording.json has not each setting once: {set(worded) ^ set(settings)}")


def main(what, *paths):
    settings = read_settings(HERE.parent / "Settings.def")
    wording = json.loads((HERE / "wording.json").read_text(encoding="utf-8"))
    check(wording, settings)
    paths = [pathlib.Path(path) for path in paths]
    if what == "pane":
        write_pane(*paths, wording, settings, languages())
    elif what == "page":
        template, output = paths
        write_source(output, template, wording, settings, languages()["en"])
    elif what == "docs":
        paths[0].write_text(docs(wording, settings, languages()["en"]), encoding="utf-8")
    else:
        sys.exit(__doc__)


if __name__ == "__main__":
    main(*sys.argv[1:]) if len(sys.argv) > 2 else sys.exit(__doc__)
