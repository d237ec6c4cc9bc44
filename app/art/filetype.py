#!/usr/bin/env python3
"""Renders the icon of flow files into app/art/icons, beside the program's own.

Needs rsvg-convert (librsvg2-bin).
"""

import marks
import render
from canvas import COAL, INK, group, line, page, path

SHEET = "M58 8H158L222 72V230A18 18 0 0 1 204 248H58A18 18 0 0 1 40 230V26A18 18 0 0 1 58 8Z"
SHEET_SMALL = "M40 4H152L232 84V236A16 16 0 0 1 216 252H40A16 16 0 0 1 24 236V20A16 16 0 0 1 40 4Z"
FOLD = "M158 8V58A14 14 0 0 0 172 72H222Z"
FOLD_SMALL = "M152 4V70A14 14 0 0 0 166 84H232Z"


def flow_file(plain=False):
    """A sheet with a folded corner that bears the program's sign, 256 by 256. The plain one is for
    small sizes: its sheet is wider, its sign larger."""
    sheet, fold = (SHEET_SMALL, FOLD_SMALL) if plain else (SHEET, FOLD)
    scale, middle = (0.68, 160) if plain else (0.56, 152)
    sign = group(
        marks.program_sign(plain=True),
        transform=f"translate({128 - 128 * scale + (0 if plain else 3):g} {middle - 128 * scale:g}) scale({scale})",
    )
    return "".join(
        [
            path(sheet, fill="url(#slate)", stroke=COAL, stroke_width=4),
            path(fold, fill=INK, stroke=COAL, stroke_width=4, stroke_linejoin="round"),
            "" if plain else line("M66 36H132M66 58H112", INK, 8, opacity=0.55),
            sign,
        ]
    )


def main():
    icons = render.HERE / "icons"
    (icons / "flow-file.svg").write_text(page(256, 256, flow_file(), 1))
    for size in render.ICON_SIZES:
        small = size <= 32
        render.rasterize(page(256, 256, flow_file(plain=small), size / 256), icons / f"flow-file-{size}.png")


if __name__ == "__main__":
    main()
