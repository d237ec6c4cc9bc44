"""The image buttons with all their states.

A state is told by the plate as well as by the sign: at rest a dark plate, under
the mouse a lit one with a bright rim, held down a sunken one with the sign in the accent,
switched on a plate in the accent with a dark sign.
"""

from canvas import ACCENT, ACCENT_DEEP, ACCENT_LIGHT, BRIGHT, COAL, INK, gradient, group, rect, text
import glyphs
from glyphs import Pen

UMBER = "#261700"
#       plate top, bottom, rim, light of the upper edge, ink, accent
REST = ("#5c5c5c", "#303030", "#161616", 0.22, INK, ACCENT)
HOVER = ("#787878", "#4c4c4c", "#f2f2f2", 0.4, BRIGHT, ACCENT_LIGHT)
PRESSED = ("#0e0e0e", "#2c2c2c", ACCENT_DEEP, 0.0, ACCENT, ACCENT)
ON = (ACCENT_LIGHT, ACCENT_DEEP, UMBER, 0.6, UMBER, "#6d2600")
ON_HOVER = ("#fff0d2", ACCENT, BRIGHT, 0.9, UMBER, "#8a3200")

HOVER_ONLY = {"": REST, "_hover": HOVER}
GLANCE = {"": REST, "_hvr": HOVER}
PUSH = {"": REST, "_hvr": HOVER, "_prs": PRESSED}
TOGGLE = {"": REST, "_hvr": HOVER, "_prs": ON, "_prs_hvr": ON_HOVER}
CHECK = {"": REST, "_hvr": HOVER, "_chk": ON, "_chk_hvr": ON_HOVER}


def plate(width, height, state, radius):
    top, bottom, rim, light, _, _ = state
    return f"<defs>{gradient('plate', top, bottom)}</defs>" + "".join(
        [
            rect(1, 1, width - 2, height - 2, radius, fill="url(#plate)", stroke=rim, stroke_width=1.2),
            rect(radius, 1.9, width - 2 * radius, 0.9, 0.4, fill="#ffffff", fill_opacity=light),
        ]
    )


def sign(draw, state, x, y, size, weight):
    """A sign of size by size at (x, y) with lines of the given weight in logical pixels."""
    scale = size / 24
    pen = Pen(state[4], state[5], round(weight / scale, 3))
    return group(draw(pen), transform=f"translate({x:g} {y:g}) scale({scale:g})")


def button(draw, width, height, size, state, weight=2.0, raise_by=0.0):
    left, top = (width - size) / 2, (height - size) / 2 - raise_by
    sink = 0.8 if state is PRESSED else 0.0
    return plate(width, height, state, min(6, height / 5)) + sign(draw, state, left, top + sink, size, weight)


def family(names, width, height, size, states, **options):
    for name, draw in names.items():
        for suffix, state in states.items():
            yield name + suffix, width, height, button(draw, width, height, size, state, **options)


def stepper(draw):
    """The arrow over a photo: it has no states, so it is plain on any picture."""
    glass = rect(6, 5, 44, 56, 10, fill=COAL, fill_opacity=0.66, stroke="#ffffff", stroke_opacity=0.6,
                 stroke_width=1.5)
    return glass + sign(draw, (0, 0, 0, 0, BRIGHT, ACCENT), 12, 17, 32, 3)


NETWORKS = {
    "facebook": ("Facebook", glyphs.people),
    "vkontakte": ("VKontakte", glyphs.bubble),
    "twitter": ("Twitter", glyphs.megaphone),
    "email": ("E-mail", glyphs.envelope),
}


def outreach(name, draw, deed, state):
    """A wide button: our own sign for the kind of place, its plain name, and what is done there."""
    ink = state[4]
    parts = [
        plate(190, 35, state, 7),
        sign(draw, state, 12, 6.5, 22, 2.0),
        rect(44, 8, 1, 19, fill=ink, fill_opacity=0.3),
        text(55, 22.4, 14, name, fill=ink, font_weight="bold"),
        sign(deed, state, 160, 8.5, 18, 1.8),
    ]
    return "".join(parts)


def networks():
    for key, (name, draw) in NETWORKS.items():
        for kind, deed in (("join", glyphs.join), ("share", glyphs.share)):
            for suffix, state in HOVER_ONLY.items():
                yield f"{key}{kind}{suffix}", 190, 35, outreach(name, draw, deed, state)


def pictures():
    bar = {"Help": glyphs.question, "share": glyphs.share, "join": glyphs.join,
           "settings": glyphs.sliders}
    yield from family(bar, 52, 32, 25, HOVER_ONLY)
    yield from family({"MoreAppsButton": glyphs.bag, "RateButton": glyphs.star}, 60, 32, 24, HOVER_ONLY)
    # These two open menus: the sheet puts the menu arrow along their lower edge.
    yield from family({"More": glyphs.tiles, "AppButton": glyphs.burger}, 60, 32, 18, HOVER_ONLY,
                      raise_by=3.0)
    yield from family({"FitToScreenButton": glyphs.fit}, 32, 32, 22, TOGGLE)
    # Deliberate: the names are crossed, ZoomOutButton is the one that enlarges.
    yield from family({"ZoomOutButton": glyphs.zoom_plus, "ZoomInButton": glyphs.zoom_minus},
                      32, 32, 21, PUSH)
    small = {"IconViewButton": glyphs.photo, "ShrinkButton": glyphs.expand,
             "BrowseButton": glyphs.folder, "BoldButton": glyphs.bold,
             "ItalicButton": glyphs.italic, "UnderlinedButton": glyphs.underlined}
    yield from family(small, 24, 24, 15, CHECK, weight=1.6)
    yield from family({"ThumbnailPreviewButton": glyphs.eye, "PreviewButton": glyphs.enlarge},
                      24, 24, 16, GLANCE, weight=1.7)
    yield "PreviousImageButton", 56, 66, stepper(glyphs.previous)
    yield "NextImageButton", 56, 66, stepper(glyphs.following)
    yield from family({"RotateLeft": glyphs.turned_left, "RotateRight": glyphs.turned_right},
                      85, 54, 42, PUSH, weight=2.4)
    # Each shows its axis of reflection: the vertical axis swaps left and right.
    yield from family({"MirrorH": glyphs.horizontal_axis, "MirrorV": glyphs.vertical_axis},
                      85, 54, 42, TOGGLE, weight=2.4)
    yield from networks()
