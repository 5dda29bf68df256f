#!/usr/bin/python3
"""Writes all pictures of the program: data/icons and src/desktop/icons/icons.qrc.

Needs Debian's python3-fonttools and fonts-materialdesignicons-webfont. Run it after a change of tables.py or shapes.py:

    tools/icons/make_icons.py
"""

import pathlib
import re
import sys

from fontTools.pens.boundsPen import BoundsPen
from fontTools.pens.svgPathPen import SVGPathPen
from fontTools.pens.transformPen import TransformPen
from fontTools.ttLib import TTFont

sys.dont_write_bytecode = True  # the two tables lie in the source tree
import shapes
import tables

FONT = "/usr/share/fonts/truetype/materialdesignicons-webfont/materialdesignicons-webfont.ttf"
COPYRIGHT = "/usr/share/doc/fonts-materialdesignicons-webfont/copyright"
ROOT = pathlib.Path(__file__).resolve().parents[2]
ICONS = ROOT / "data/icons"
LIGHT, DARK = "#ffffff", "#232629"


def luminance(colour):
    """Relative luminance of #rrggbb as WCAG 2 defines it."""
    channels = (int(colour[i:i + 2], 16) / 255 for i in (1, 3, 5))
    linear = [c / 12.92 if c <= 0.04045 else ((c + 0.055) / 1.055) ** 2.4 for c in channels]
    return 0.2126 * linear[0] + 0.7152 * linear[1] + 0.0722 * linear[2]


def contrast(a, b):
    high, low = sorted((luminance(a), luminance(b)), reverse=True)
    return (high + 0.05) / (low + 0.05)


class Pictograms:
    """Draws a pictogram of the tables into a square box."""

    def __init__(self):
        font = TTFont(FONT)
        self.glyphs = font.getGlyphSet()
        self.names = set(font.getBestCmap().values())
        self.unit = font["head"].unitsPerEm / 24

    def glyph(self, name, centre, box, colour):
        if name not in self.names:
            sys.exit(f"the font has no glyph {name}")
        bounds = BoundsPen(self.glyphs)
        self.glyphs[name].draw(bounds)
        left, bottom, right, top = bounds.bounds
        # A 20 unit pictogram fills the box; small ones grow a little, but stay smaller than the others.
        scale = min(box / max(right - left, top - bottom), box / (17 * self.unit))
        pen = SVGPathPen(self.glyphs, ntos=lambda v: f"{v:.2f}".rstrip("0").rstrip(".") if v % 1 else f"{v:.0f}")
        move = (scale, 0, 0, -scale, centre - scale * (left + right) / 2, centre + scale * (top + bottom) / 2)
        self.glyphs[name].draw(TransformPen(pen, move))
        return f'<path d="{pen.getCommands()}" fill="{colour}"/>'

    def draw(self, name, centre, box, colour):
        kind, _, rest = name.partition(":")
        if kind == "digit":
            return shapes.digit(int(rest), box * 0.72, centre, colour)
        if kind == "own":
            scale = box / 20
            move = centre - 12 * scale
            body = shapes.SHAPES[rest].format(c=colour)
            return f'<g transform="translate({move:.3f} {move:.3f}) scale({scale:.3f})">{body}</g>'
        return self.glyph(name, centre, box, colour)


def svg(size, body, source):
    origin = "" if ":" in source else f"<!-- outline: Material Design Icons, {source}, CC BY 4.0 -->\n"
    return f'<svg xmlns="http://www.w3.org/2000/svg" width="{size}" height="{size}" viewBox="0 0 {size} {size}">\n{origin}{body}\n</svg>\n'


def tree_icon(pictograms, name, colour):
    return svg(16, pictograms.draw(name, 8, 15, colour), name)


def outline(form, inset, colour):
    if form == "disc":
        return f'<circle cx="10" cy="10" r="{9.8 - inset:.2f}" fill="{colour}"/>'
    side = 19.2 - 2 * inset
    start = 10 - side / 2
    if form == "diamond":
        # Bulging sides keep the area that a plain square on its tip would lose.
        r, bulge = 10 - inset, 0.74 * (10 - inset)
        low, high = 10 - bulge, 10 + bulge
        return (f'<path d="M10 {10 - r:.2f}Q{high:.2f} {low:.2f} {10 + r:.2f} 10Q{high:.2f} {high:.2f} 10 {10 + r:.2f}'
                f'Q{low:.2f} {high:.2f} {10 - r:.2f} 10Q{low:.2f} {low:.2f} 10 {10 - r:.2f}Z" fill="{colour}"/>')
    return (f'<rect x="{start:.2f}" y="{start:.2f}" width="{side:.2f}" height="{side:.2f}"'
            f' rx="{4.6 - inset:.2f}" fill="{colour}"/>')


def map_picture(pictograms, name, family):
    colour, form = tables.MAP_FAMILIES[family]
    box = {"disc": 12, "square": 12.6, "diamond": 10.6}[form]
    shade = outline(form, 0, "#000000").replace("/>", ' fill-opacity=".45"/>')
    body = shade + outline(form, 0.5, "#ffffff") + outline(form, 1.5, colour) + pictograms.draw(name, 10, box, "#ffffff")
    return svg(20, body, name)


def action_icon(pictograms, name):
    text = svg(24, pictograms.draw(name, 12, 20, "currentColor"), name)
    return text.replace("<svg ", '<svg color="#4d4d4d" ', 1)


def write_all(pictograms):
    """Path below data/icons -> text, in the order of the tables."""
    files = {}
    for key, (name, family) in tables.TREE.items():
        files[f"tree/{key}.svg"] = tree_icon(pictograms, name, tables.TREE_COLOURS[family])
    for number, (name, family) in sorted(tables.MAP.items()):
        files[f"map/{number}.svg"] = map_picture(pictograms, name, family)
    for action, name in tables.ACTIONS.items():
        files[f"actions/{action}.svg"] = action_icon(pictograms, name)
    files["ruvenmark.svg"] = shapes.PROGRAM
    return files


def write_licences():
    """The licence texts as Debian's copyright file gives them."""
    text = pathlib.Path(COPYRIGHT).read_text(encoding="utf-8")
    body = text.split("License: SIL-OPEN-FONT-LICENSE-and-CC-BY\n")[-1]
    lines = ["" if line.strip() == "." else line[1:] for line in body.splitlines()]
    plain = "\n".join(lines)
    font, _, icons = plain.partition("Attribution 4.0 International\n")
    notice = ("Material Design Icons\nCopyright (c) 2014, Austin Andrews (http://materialdesignicons.com/),\n"
              "with Reserved Font Name Material Design Icons.\nCopyright (c) 2014, Google (http://www.google.com/design/)\n\n")
    icons = re.sub(r"\n\s*Status API Training Shop.*", "\n", icons, flags=re.S)
    (ICONS / "LICENSE-OFL-1.1.txt").write_text(notice + font.rstrip() + "\n", encoding="utf-8")
    (ICONS / "LICENSE-CC-BY-4.0.txt").write_text(notice + "Attribution 4.0 International\n" + icons.rstrip() + "\n", encoding="utf-8")


def check_colours():
    for family, colour in tables.TREE_COLOURS.items():
        on_light, on_dark = contrast(colour, LIGHT), contrast(colour, DARK)
        if min(on_light, on_dark) < 3:
            sys.exit(f"tree colour {family} {colour}: {on_light:.2f} on light, {on_dark:.2f} on dark; 3 is wanted")
    for family, (colour, _) in tables.MAP_FAMILIES.items():
        if contrast(colour, "#ffffff") < 3.5:
            sys.exit(f"map colour {family} {colour}: white on it has {contrast(colour, '#ffffff'):.2f}")


def main():
    check_colours()
    files = write_all(Pictograms())
    for folder in ("tree", "map", "actions"):
        (ICONS / folder).mkdir(parents=True, exist_ok=True)
        for old in (ICONS / folder).glob("*.svg"):
            if f"{folder}/{old.name}" not in files:
                old.unlink()
    for path, text in files.items():
        (ICONS / path).write_text(text, encoding="utf-8")
    write_licences()
    entries = "".join(f'    <file alias="{path}">../../../data/icons/{path}</file>\n' for path in files)
    qrc = f'<RCC>\n  <qresource prefix="/ruvenmark/icons">\n{entries}  </qresource>\n</RCC>\n'
    target = ROOT / "src/desktop/icons/icons.qrc"
    target.parent.mkdir(parents=True, exist_ok=True)
    target.write_text(qrc, encoding="utf-8")
    print(f"{len(files)} pictures")


if __name__ == "__main__":
    main()
