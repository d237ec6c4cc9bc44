"""The animations, frame by frame.

GIF knows no half transparency, so each frame's soft edge is mixed with the
colour it will lie on, and cut where little of the drawing is left.
"""

import math
import pathlib
import subprocess
import tempfile

from canvas import ACCENT, COAL, circle, group, page, path

ARROW_FRAMES = 16
LOADING_FRAMES = 12


def arrow(step):
    """The arrow to the middle of the add button: it dips towards its tip and comes back."""
    dip = 8.0 * (0.5 - 0.5 * math.cos(2 * math.pi * step / ARROW_FRAMES))
    body = path(
        "M86 8C56 8 40 24 38 46H22L46 78L70 46H56C58 34 68 26 88 25Z",
        fill="url(#lamp)", stroke=COAL, stroke_width=4, stroke_linejoin="round",
    )
    return group(body, transform=f"translate({-14 - 0.35 * dip:.2f} {dip + 6:.2f})")


def arrow_from_right(step):
    """The same for readers from the right, whose add button is at the right."""
    return group(arrow(step), transform="translate(100 0) scale(-1 1)")


def loading(step):
    """A ring of dots whose bright head runs round."""
    dots = [circle(48, 48, 44, fill="#242424", stroke="#6a6a6a", stroke_width=2)]
    for i in range(LOADING_FRAMES):
        turn = 2 * math.pi * i / LOADING_FRAMES
        age = (step - i) % LOADING_FRAMES
        strength = max(0.14, 1.0 - age / 8)
        dots.append(
            circle(round(48 + 28 * math.sin(turn), 2), round(48 - 28 * math.cos(turn), 2),
                   round(3.4 + 2.4 * strength, 2), fill=ACCENT, fill_opacity=round(strength, 2))
        )
    return "".join(dots)


def assemble(target, size, frames, delay, matte):
    with tempfile.TemporaryDirectory() as folder:
        names = []
        for number, body in enumerate(frames):
            name = pathlib.Path(folder) / f"{number:03}.png"
            subprocess.run(["rsvg-convert", "--output", str(name)],
                           input=page(size, size, body).encode(), check=True)
            mixed = ["convert", str(name), "(", "+clone", "-alpha", "extract", "-threshold", "35%", ")",
                     "(", "-clone", "0", "-background", matte, "-flatten", ")", "-delete", "0",
                     "+swap", "-alpha", "off", "-compose", "CopyOpacity", "-composite", str(name)]
            subprocess.run(mixed, check=True)
            names.append(str(name))
        subprocess.run(["convert", "-delay", str(delay), "-dispose", "Background", "-loop", "0",
                        *names, "-layers", "OptimizeTransparency", str(target)], check=True)


def render(resources, wanted):
    """Delays are in hundredths of a second; all loops last about a second."""
    for name, draw in (("arrow", arrow), ("arrow_rtl", arrow_from_right)):
        if not wanted or name in wanted:
            frames = [draw(step) for step in range(ARROW_FRAMES)]
            assemble(resources / f"{name}.gif", 100, frames, 6, "#404040")
    if not wanted or "loading_image" in wanted:
        frames = [loading(step) for step in range(LOADING_FRAMES)]
        assemble(resources / "loading_image.gif", 96, frames, 8, "#303030")
