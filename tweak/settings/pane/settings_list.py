"""Reads the extension's list of settings, Settings.def."""

import json
import re
from dataclasses import dataclass

_LINE = re.compile(r"^SETTING\((\d+), (\w+), (\w+), ([^)]+)\)", re.MULTILINE)
_TYPES = {"bool": "bool", "long": "integer", "double": "real", "NSString": "text"}
_WORDS = {"true": True, "false": False, "nullptr": None}


@dataclass(frozen=True)
class Setting:
    number: int  # its turn when the settings are registered
    type: str  # bool, integer, real or text
    default: object  # None: none


def read_settings(path):
    """The settings by their names. ValueError for a line that is not understood."""
    text = path.read_text(encoding="utf-8")
    settings = {
        name: Setting(int(number), _TYPES[of], _value(default))
        for number, of, name, default in _LINE.findall(text)
    }
    if text.count("\nSETTING(") != len(settings):
        raise ValueError(f"{path}: a line that is no SETTING(NUMBER, TYPE, NAME, DEFAULT)")
    return settings


def _value(text):
    return _WORDS[text] if text in _WORDS else json.loads(text)
