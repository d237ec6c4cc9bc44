"""The small parts of controls, the icons of menu rows, and the pictures of the update box."""

import glyphs
from buttons import ON, ON_HOVER, UMBER, sign
from canvas import ACCENT, BRIGHT, COAL, INK, circle, gradient, lifted, line, path, rect, twins

GREYED = ("#484848", "#3c3c3c", "#6a6a6a", 0.0, "#7a7a7a", "#7a7a7a")


def knob(state):
    """The slider's handle: a round knob with the accent in its middle."""
    top, bottom, rim, light, _, accent = state
    return f"<defs>{gradient('knob', top, bottom)}</defs>" + "".join(
        [
            circle(10, 11, 8.6, fill="#000000", fill_opacity=0.35),
            circle(10, 10, 8.4, fill="url(#knob)", stroke=rim, stroke_width=1.2),
            path("M4 7.4A6.8 6.8 0 0 1 16 7.4", fill="none", stroke="#ffffff", stroke_opacity=light,
                 stroke_width=1),
            circle(10, 10, 3.2, fill=accent),
        ]
    )


BRASS = ("#d4d4d4", "#6e6e6e", "#141414", 0.8, COAL, ACCENT)
BRASS_LIT = ("#ffffff", "#9a9a9a", ACCENT, 0.9, COAL, "#e08600")


def check(state, ticked):
    top, bottom, rim, _, ink, _ = state
    mark = line("M3.4 7.4L6 10.2L10.8 4", ink, 2.2) if ticked else ""
    return f"<defs>{gradient('cell', top, bottom)}</defs>" + rect(
        0.8, 0.8, 12.4, 12.4, 2.5, fill="url(#cell)", stroke=rim, stroke_width=1.3) + mark


OPEN = ("#141414", "#303030", "#b4b4b4", 0.0, INK, ACCENT)
OPEN_LIT = ("#2c2c2c", "#4a4a4a", BRIGHT, 0.0, INK, ACCENT)


def menu_icon(draw):
    return lifted(sign(draw, (0, 0, 0, 0, INK, ACCENT), 1, 1, 22, 2.4))


ROWS = {
    "moreappsicon": glyphs.tiles,
    "feedback": glyphs.bubble,
    "webpage": glyphs.globe,
    "star": glyphs.star,
    "new": glyphs.blank_sheet,
    "save": glyphs.into_tray,
    "delete": glyphs.bin_,
    "GotoIcon": glyphs.folder_out,
}


def update(available):
    """The update box: a parcel that comes down, or one that has come."""
    parts = [
        path("M24 58L64 40L104 58V100L64 118L24 100Z", fill="url(#night)", stroke=INK, stroke_width=5,
             stroke_linejoin="round"),
        line("M24 58L64 76L104 58M64 76V118", INK, 5),
    ]
    if available:
        parts.append(path("M54 8H74V40H90L64 68L38 40H54Z", fill="url(#lamp)", stroke=COAL, stroke_width=3,
                          stroke_linejoin="round"))
    else:
        parts.append(circle(92, 40, 25, fill="url(#lamp)", stroke=COAL, stroke_width=3))
        parts.append(line("M80 41L89 50L105 32", "#261700", 7))
    return lifted(*parts)


def coin(top, bottom, *parts):
    """A round sign of a message, 48 by 48."""
    return f"<defs>{gradient('coin', top, bottom)}</defs>" + lifted(
        circle(24, 23.5, 20, fill="url(#coin)", stroke=INK, stroke_width=3), *parts)


def messages():
    """What a dialog has to say, told by shape as well as by colour."""
    yield "message_information", coin(
        "#3a3a3a", "#161616", circle(24, 14.5, 3, fill=ACCENT), line("M24 22.5V33.5", ACCENT, 5))
    yield "message_question", coin(
        "#3a3a3a", "#161616", circle(24, 34, 2.9, fill=ACCENT),
        line("M17.6 18.4C17.6 14.8 20.2 12.4 24 12.4C27.8 12.4 30.4 14.8 30.4 18C30.4 22.6 24 22.6 24 27.4",
             ACCENT, 4.6))
    yield "message_critical", coin("#ef5a50", "#a81f18", line("M16.5 16L31.5 31M31.5 16L16.5 31", BRIGHT, 5))
    yield "message_warning", lifted(
        path("M24 6L43.5 41H4.5Z", fill="url(#lamp)", stroke=INK, stroke_width=3, stroke_linejoin="round"),
        line("M24 17.5V28.5", UMBER, 5), circle(24, 35, 2.9, fill=UMBER))


def pictures():
    yield "dart", 20, 20, knob(BRASS)
    yield "dart_hvr", 20, 20, knob(BRASS_LIT)
    yield "dart_dis", 20, 20, knob(GREYED)
    yield "spinbox_button1", 10, 5, path("M0.6 4.6L5 0.5L9.4 4.6Z", fill=INK)
    yield "spinbox_button2", 10, 5, path("M0.6 0.4L5 4.5L9.4 0.4Z", fill=INK)
    yield "spinbox_button1_dis", 10, 5, path("M0.6 4.6L5 0.5L9.4 4.6Z", fill="#707070")
    yield "spinbox_button2_dis", 10, 5, path("M0.6 0.4L5 4.5L9.4 0.4Z", fill="#707070")
    yield "arrowleft", 16, 16, line("M10.6 2.4L5 8L10.6 13.6", INK, 2.6)
    yield "arrowright", 16, 16, line("M5.4 2.4L11 8L5.4 13.6", INK, 2.6)
    yield "arrowleft_dis", 16, 16, line("M10.6 2.4L5 8L10.6 13.6", "#707070", 2.6)
    yield "arrowright_dis", 16, 16, line("M5.4 2.4L11 8L5.4 13.6", "#707070", 2.6)
    yield "check_off", 14, 14, check(OPEN, False)
    yield "check_off_hvr", 14, 14, check(OPEN_LIT, False)
    yield "check_off_dis", 14, 14, check(GREYED, False)
    yield "check_on", 14, 14, check(ON, True)
    yield "check_on_hvr", 14, 14, check(ON_HOVER, True)
    yield "check_on_dis", 14, 14, check(GREYED, True)
    for name, draw in ROWS.items():
        yield name, 24, 24, menu_icon(draw)
    for name, drawing in messages():
        yield from twins(name, 48, 48, drawing)
    yield from twins("update_available", 128, 128, update(True))
    yield from twins("update_not_available", 128, 128, update(False))
