#!/usr/bin/env python3
"""Renders every picture of the program anew into app/resources.

Needs rsvg-convert (librsvg2-bin) and, for the animations, ImageMagick's convert.
Arguments, if given, are the names of the only pictures to render.
"""

import importlib
import pathlib
import subprocess
import sys

import marks
import movies
import nodes
from canvas import SCALE, page

HERE = pathlib.Path(__file__).resolve().parent
RESOURCES = HERE.parent / "resources"
ROOMS = ("nodes", "scenes", "buttons", "smallware", "marks")
ICON_SIZES = (16, 24, 32, 48, 64, 128, 256, 512)


def rasterize(svg, target):
    target.parent.mkdir(parents=True, exist_ok=True)
    subprocess.run(["rsvg-convert", "--output", str(target)], input=svg.encode(), check=True)


def every_picture():
    for room in ROOMS:
        yield from importlib.import_module(room).pictures()


def render_masters():
    """The pictures that are wanted at any size: the operations' icons and the program's own."""
    folder = HERE / "svg"
    folder.mkdir(exist_ok=True)
    for tag, draw in nodes.OPERATIONS.items():
        (folder / f"Icon_{tag}.svg").write_text(page(64, 64, draw(), 1))
    icons = HERE / "icons"
    icons.mkdir(exist_ok=True)
    (icons / "tessarin.svg").write_text(page(256, 256, marks.program_sign(), 1))
    for size in ICON_SIZES:
        rasterize(page(256, 256, marks.program_sign(plain=size <= 32), size / 256),
                  icons / f"tessarin-{size}.png")


def main(wanted):
    for name, width, height, body, *scale in every_picture():
        if not wanted or name in wanted:
            rasterize(page(width, height, body, *(scale or [SCALE])), RESOURCES / f"{name}.png")
    movies.render(RESOURCES, wanted)
    if not wanted:
        render_masters()


if __name__ == "__main__":
    main(set(sys.argv[1:]))
