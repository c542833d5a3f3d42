#!/usr/bin/env python3
"""Writes simulator/coretext/faces/: how wide the characters of the phone's fonts are.

usage: scripts/font-widths.py [--check]    --check only says whether the tables are current

Needs python3-fonttools, fonts-inter and fonts-noto-core. Text must break and fit alike on every
machine, so the tables are kept, not read from whatever fonts a machine has.
"""

import pathlib
import sys
import textwrap

from fontTools.ttLib import TTFont

FOLDER = pathlib.Path(__file__).resolve().parent.parent / "simulator" / "coretext" / "faces"
FONTS = pathlib.Path("/usr/share/fonts")
UNITS = 10000  # of one em

# Latin with its extensions, combining marks, Greek, Cyrillic, Vietnamese, punctuation, currencies,
# arrows and mathematical signs.
LATIN = [(0x20, 0x7E), (0xA0, 0x24F), (0x2B0, 0x36F), (0x370, 0x3FF), (0x400, 0x4FF),
         (0x1E00, 0x1EFF), (0x2010, 0x2044), (0x20A0, 0x20BF), (0x2100, 0x2122), (0x2190, 0x2199),
         (0x2202, 0x2265)]
FACES = {
    **{f"Inter{style}": (f"opentype/inter/Inter-{style}.otf", LATIN)
       for style in ("Regular", "Medium", "SemiBold", "Bold")},
    **{f"InterDisplay{style}": (f"opentype/inter/InterDisplay-{style}.otf", LATIN)
       for style in ("Thin", "Light", "Regular", "Medium", "SemiBold", "Bold")},
    **{f"Noto{script}{style}": (f"truetype/noto/NotoSans{script}-{style}.ttf", [block])
       for script, block in (("Hebrew", (0x590, 0x5FF)), ("Arabic", (0x600, 0x6FF)),
                             ("Devanagari", (0x900, 0x97F)))
       for style in ("Regular", "Bold")},
}


def joined_forms(font):
    """What each glyph may become between others: sets of glyphs by glyph."""
    forms = {}
    if "GSUB" not in font:
        return forms
    table = font["GSUB"].table
    wanted = {index for record in table.FeatureList.FeatureRecord
              if record.FeatureTag in ("init", "medi", "fina")
              for index in record.Feature.LookupListIndex}
    for index in sorted(wanted):
        for subtable in table.LookupList.Lookup[index].SubTable:
            subtable = getattr(subtable, "ExtSubTable", subtable)
            for glyph, form in getattr(subtable, "mapping", {}).items():
                if isinstance(form, str):
                    forms.setdefault(glyph, set()).add(form)
    return forms


def advances(path, blocks):
    """Of each character in the blocks, in units; nothing where the font has none. A letter that
    changes with its neighbours counts with the mean of its forms."""
    font = TTFont(path)
    names, metrics, forms = font.getBestCmap(), font["hmtx"], joined_forms(font)
    for first, last in blocks:
        for character in range(first, last + 1):
            glyph = names.get(character)
            if glyph is None:
                yield None
                continue
            widths = [metrics[name][0] for name in [glyph, *sorted(forms.get(glyph, ()))]]
            yield round(sum(widths) / len(widths) * UNITS / font["head"].unitsPerEm)


def source(name, path, blocks):
    numbers = ["none" if width is None else str(width) for width in advances(path, blocks)]
    body = textwrap.fill(", ".join(numbers), width=100, initial_indent="    ",
                         subsequent_indent="    ")
    ranges = ", ".join(f"{{{first:#x}, {last:#x}}}" for first, last in blocks)
    listed = textwrap.fill(ranges, width=100, initial_indent="    ", subsequent_indent="    ")
    none = "constexpr std::uint16_t none = FontTable::none;\n" if "none" in numbers else ""
    return (f"// Written by scripts/font-widths.py from {path.name}.\n"
            "#include \"simulator/coretext/FontTable.h\"\n\n"
            "namespace sim {\nnamespace {\n\n"
            "// clang-format off\n"
            f"{none}"
            f"constexpr FontTable::Block blocks[] = {{\n{listed}}};\n"
            f"constexpr std::uint16_t advances[] = {{\n{body}}};\n"
            "// clang-format on\n\n"
            "}  // namespace\n\n"
            f"const FontTable face{name}{{blocks, advances}};\n\n"
            "}  // namespace sim\n")


def main():
    check = sys.argv[1:] == ["--check"]
    for name, (path, blocks) in FACES.items():
        text = source(name, FONTS / path, blocks)
        file = FOLDER / f"{name}.cpp"
        if not check:
            file.write_text(text, encoding="utf-8")
        elif not file.exists() or file.read_text(encoding="utf-8") != text:
            sys.exit(f"{file} is not what the font gives: run scripts/font-widths.py")


if __name__ == "__main__":
    main()
