"""What the extension registers with the preferences library, as the simulated phone saw it."""

import json
import os
import pathlib
import re
import subprocess
import tempfile

TYPES = {"Bool": "bool", "Integer": "integer", "Float": "real", "Object": "text"}
_LINE = re.compile(r'call -\[HBPreferences register(\w+):.* default:(.*) forKey:"(\w+)"\]')
_WORDS = {"YES": True, "NO": False, "nil": None}


def registered():
    """{key: (type, default)}"""
    script = "".join(f"trace HBPreferences register{of}:default:forKey:\n" for of in TYPES) + "boot\n"
    journal = play(script)
    return {
        key: (TYPES[of], _WORDS[default] if default in _WORDS else json.loads(default))
        for of, default, key in _LINE.findall(journal)
    }


def play(script):
    """The journal. subprocess.CalledProcessError when an expectation fails."""
    with tempfile.TemporaryDirectory() as folder:
        file = pathlib.Path(folder) / "settings.phone"
        file.write_text(script, encoding="utf-8")
        done = subprocess.run([os.environ["SIMULATOR"], "play", file], check=True,
                              capture_output=True, encoding="utf-8")
        return done.stdout
