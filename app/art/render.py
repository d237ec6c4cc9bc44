#!/usr/bin/env python3
"""Renders every picture of the program anew into app/resources.

Needs rsvg-convert (librsvg2-bin) and, for the animations, ImageMagick's convert.
Arguments, if given, are the names of the only pictures to render.
"""

import importlib
import pathlib
import subprocess
import sys

import movies
from canvas import SCALE, page

HERE = pathlib.Path(__file__).resolve().parent
RESOURCES = HERE.parent / "resources"
ROOMS = ("nodes", "scenes", "buttons")


def rasterize(svg, target):
    target.parent.mkdir(parents=True, exist_ok=True)
    subprocess.run(["rsvg-convert", "--output", str(target)], input=svg.encode(), check=True)


def main(wanted):
    for room in ROOMS:
        for name, width, height, body, *scale in importlib.import_module(room).pictures():
            if wanted and name not in wanted:
                continue
            rasterize(page(width, height, body, *(scale or [SCALE])), RESOURCES / f"{name}.png")
    movies.render(RESOURCES, wanted)


if __name__ == "__main__":
    main(set(sys.argv[1:]))
