"""The Settings tab of the simulator's page. It takes any number in a range, where the pane has a
list; it asks the phone for the defaults."""

import json

from pane import choices, titles


def page(wording, settings, english):
    """[a setting…] in display order."""
    return [
        {"group": group["title"], "footer": group["footer"],
         **_field(words, settings[words["key"]], english)}
        for group in wording["groups"]
        for words in group["settings"]
    ]


def _field(words, setting, english):
    field = {"key": words["key"], "type": setting.type, "label": words["label"]}
    if "unit" in words:
        field["unit"] = words["unit"]
    if "range" in words:
        field.update(zip(("min", "max", "step"), words["range"]))
    elif setting.type in ("integer", "real"):
        field["choices"] = [
            {"value": value, "label": title}
            for (value, _), title in zip(choices(words, setting),
                                         titles(words, setting, english))
        ]
    return field


def write_source(path, template, wording, settings, english):
    """As a constant of the program: it must not depend on where it finds the wording."""
    text = json.dumps(page(wording, settings, english), ensure_ascii=False, indent=1)
    source = template.read_text(encoding="utf-8").replace("@SETTINGS_WORDING@", text)
    path.write_text(source, encoding="utf-8")
