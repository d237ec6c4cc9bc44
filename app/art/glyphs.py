"""One-colour signs on a field of 24 by 24, drawn with a pen so that each state may colour them.

A sign has at most one part in the pen's accent: the part that tells what happens.
"""

from canvas import circle, line, path, rect


class Pen:
    """The two colours of a sign and its line weight in the sign's own units."""

    def __init__(self, ink, accent, width=2.0):
        self.ink, self.accent, self.width = ink, accent, width

    def line(self, d, **values):
        return line(d, self.ink, self.width, **values)

    def mark(self, d, **values):
        return line(d, self.accent, self.width, **values)

    def fill(self, d, **values):
        return path(d, fill=self.ink, **values)

    def stamp(self, d, **values):
        return path(d, fill=self.accent, **values)

    def box(self, x, y, width, height, radius=1.5):
        return rect(x, y, width, height, radius, fill="none", stroke=self.ink, stroke_width=self.width,
                    stroke_linejoin="round")

    def ring(self, cx, cy, r):
        return circle(cx, cy, r, fill="none", stroke=self.ink, stroke_width=self.width)

    def dot(self, cx, cy, r, accent=False):
        return circle(cx, cy, r, fill=self.accent if accent else self.ink)


def question(pen):
    return pen.ring(12, 12, 9.6) + pen.mark(
        "M8.9 9.4C8.9 7.6 10.2 6.5 12 6.5C13.8 6.5 15.1 7.6 15.1 9.2C15.1 11.4 12 11.6 12 13.9"
    ) + pen.dot(12, 17.3, 1.35, accent=True)


def share(pen):
    return pen.line("M7 12L17.5 5.6M7 12L17.5 18.4") + pen.dot(5.6, 12, 3.4) + pen.dot(
        18.4, 5, 3.2, accent=True) + pen.dot(18.4, 19, 3.2, accent=True)


def person(x):
    return f"M{x} 20.5C{x} 16.2 {x + 2.4} 14 {x + 6} 14S{x + 12} 16.2 {x + 12} 20.5Z"


def join(pen):
    return pen.dot(8, 8, 4) + pen.fill(person(2)) + pen.mark("M18.6 6.5V14.5M14.6 10.5H22.6")


def people(pen):
    return pen.dot(16.6, 8.6, 3.1, accent=True) + pen.stamp(
        "M16 13.6C20.4 13 22.8 15.4 22.8 19.4H17.4C17.3 17 16.8 15.2 15 13.8Z"
    ) + pen.dot(8.4, 7.6, 3.9) + pen.fill(
        "M1.6 20.5C1.6 15.8 4.2 13.2 8.4 13.2S15.2 15.8 15.2 20.5Z"
    )


def sliders(pen):
    return "".join(
        [
            pen.line("M2.5 5.5H21.5M2.5 12H21.5M2.5 18.5H21.5"),
            pen.dot(8, 5.5, 2.9, accent=True),
            pen.dot(16, 12, 2.9, accent=True),
            pen.dot(9.5, 18.5, 2.9, accent=True),
        ]
    )


def tiles(pen):
    return pen.box(3, 3, 7, 7) + pen.box(14, 3, 7, 7) + pen.box(3, 14, 7, 7) + pen.mark(
        "M17.5 13.5V21.5M13.5 17.5H21.5")


def bag(pen):
    return pen.line("M4.5 8H19.5L20.6 21H3.4Z") + pen.line("M8.4 10.5V6.6A3.6 3.6 0 0 1 15.6 6.6V10.5"
                                                          ) + pen.mark("M12 12.2V18M9.1 15.1H14.9")


def burger(pen):
    return pen.line("M3.5 6H20.5M3.5 18H20.5") + pen.mark("M3.5 12H20.5")


STAR = "M12 2.4L14.9 8.6L21.7 9.4L16.7 14L18.1 20.8L12 17.4L5.9 20.8L7.3 14L2.3 9.4L9.1 8.6Z"


def star(pen):
    return pen.stamp(STAR, stroke=pen.accent, stroke_width=1, stroke_linejoin="round")


def fit(pen):
    return pen.box(2.2, 3.2, 19.6, 17.6) + pen.mark(
        "M10 10.6L6.4 7.2M6.2 10.2V7H9.4M14 13.4L17.6 16.8M17.8 13.8V17H14.6") + pen.mark(
        "M14 10.6L17.6 7.2M14.6 7H17.8V10.2M10 13.4L6.4 16.8M6.2 13.8V17H9.4")


def expand(pen):
    return pen.line("M14.6 9.4L21 3M15.5 2.8H21.2V8.5M9.4 14.6L3 21M8.5 21.2H2.8V15.5") + pen.mark(
        "M9.4 9.4L3 3M8.5 2.8H2.8V8.5M14.6 14.6L21 21M15.5 21.2H21.2V15.5")


def magnifier(pen):
    return pen.ring(10, 10, 7.6) + line("M16 16L21.4 21.4", pen.ink, pen.width * 1.6)


def zoom_plus(pen):
    return magnifier(pen) + pen.mark("M10 6.4V13.6M6.4 10H13.6")


def zoom_minus(pen):
    return magnifier(pen) + pen.mark("M6.4 10H13.6")


def photo(pen):
    return pen.box(2.2, 3.6, 19.6, 16.8) + pen.dot(16.2, 8.6, 2, accent=True) + pen.fill(
        "M4.5 17.8L9.6 10.6L13.4 15.4L15.6 13L19.6 17.8Z")


def folder(pen):
    return pen.line("M2.5 19V5.5H9L11.4 8H19.5V10.5") + pen.mark("M2.6 19.4L6 11H22L18.8 19.4Z")


def bold(pen):
    return path("M6.2 4V20M6.2 4H12.6A3.9 3.9 0 0 1 12.6 11.8H6.2M6.2 11.8H13.6A4.1 4.1 0 0 1 13.6 20H6.2",
                fill="none", stroke=pen.ink, stroke_width=pen.width * 1.75, stroke_linejoin="round",
                stroke_linecap="round")


def italic(pen):
    return pen.line("M14.6 3.8L9.4 20.2M11 3.8H18.4M5.6 20.2H13")


def underlined(pen):
    return pen.line("M6.4 3V9.8A5.6 5.6 0 0 0 17.6 9.8V3") + pen.mark("M4.6 20.6H19.4")


def eye(pen):
    return pen.line("M1.8 12C4.6 7.2 8 4.9 12 4.9S19.4 7.2 22.2 12C19.4 16.8 16 19.1 12 19.1S4.6 16.8 1.8 12Z"
                    ) + pen.dot(12, 12, 3.6, accent=True)


def enlarge(pen):
    return pen.line("M11 4.2H3.2V20.8H20.8V14") + pen.mark("M11.4 12.6L20.6 3.4M14.4 3H21V9.6")


def turned_right(pen):
    return pen.box(4.6, 13.6, 12.4, 8) + pen.mark("M3.4 9.6A8.3 8.3 0 0 1 19.2 7.6") + pen.stamp(
        "M15.4 7.4L23.6 7.4L19.5 13.2Z")


def turned_left(pen):
    return pen.box(7, 13.6, 12.4, 8) + pen.mark("M20.6 9.6A8.3 8.3 0 0 0 4.8 7.6") + pen.stamp(
        "M8.6 7.4L0.4 7.4L4.5 13.2Z")


def vertical_axis(pen):
    return pen.mark("M12 1.6V22.4", stroke_dasharray="3 3.3") + pen.fill(
        "M8.6 5.4V18.6L1.2 18.6Z", stroke=pen.ink, stroke_width=pen.width, stroke_linejoin="round"
    ) + pen.line("M15.4 5.4V18.6L22.8 18.6Z")


def horizontal_axis(pen):
    return f'<g transform="rotate(90 12 12)">{vertical_axis(pen)}</g>'


def previous(pen):
    return line("M15.6 3.4L7 12L15.6 20.6", pen.ink, pen.width * 1.6)


def following(pen):
    return line("M8.4 3.4L17 12L8.4 20.6", pen.ink, pen.width * 1.6)


def bubble(pen):
    return pen.line("M3 4.5H21V16H12.5L7.5 20.6V16H3Z") + pen.mark("M7.5 8.6H16.5M7.5 12H13.5")


def globe(pen):
    return pen.ring(12, 12, 9.4) + pen.line("M2.8 12H21.2") + pen.mark(
        "M12 2.6C7.4 7.4 7.4 16.6 12 21.4C16.6 16.6 16.6 7.4 12 2.6Z")


def megaphone(pen):
    return pen.line("M3 9.5H7L17 4.5V19.5L7 14.5H3ZM7 15V20H10V16") + pen.mark("M20.6 9.4C21.8 11 21.8 13 20.6 14.6")


def envelope(pen):
    return pen.box(2, 5, 20, 14.5) + pen.mark("M3 6.4L12 13.4L21 6.4")


def blank_sheet(pen):
    return pen.line("M5 2.5H14.5L19.5 7.5V21.5H5Z") + pen.mark("M14 3V8H19")


def into_tray(pen):
    return pen.line("M3 14.5V21H21V14.5") + pen.mark("M12 2.5V15M7 10.2L12 15.2L17 10.2")


def bin_(pen):
    return pen.line("M5.5 7L6.6 21.4H17.4L18.5 7M10 11V17.5M14 11V17.5") + pen.mark("M3 6.6H21M9 6V2.8H15V6")


def folder_out(pen):
    return pen.line("M21 12V19.5H2.5V4.5H9L11.4 7.5H13") + pen.mark("M11.5 14.5L21 5M15 4.2H21.6V10.8")


def ledger(pen):
    return pen.box(4, 2.5, 16, 19) + pen.line("M8 7.5H16M8 11.5H12") + pen.mark("M8 17L11 14.8L13.4 16.4L16.4 13")


def quill(pen):
    return pen.line("M4 20.5C8 20.5 17.5 18.5 20.6 3.4C12.4 4 6.5 8.4 7.6 16.4") + pen.mark("M3.4 21.4L14 9.6")


def crate(pen):
    """A box that takes in a letter."""
    return pen.line("M3 11H5.5M18.5 11H21V21.5H3V11M9.2 16H14.8") + pen.mark(
        "M6 13V3H18V13M6.4 3.8L12 9L17.6 3.8")


def pin(pen):
    """A folder with a slip pinned to it."""
    return pen.line("M2.5 20.5V4.5H9L11.4 7.5H21.5V20.5Z") + pen.mark("M12 14.4V18") + pen.dot(
        12, 12.4, 2.7, accent=True)


def hourglass(pen):
    return pen.line("M5.5 2.8H18.5M5.5 21.2H18.5M7 3C7 8.6 12 9.4 12 12C12 14.6 7 15.4 7 21M17 3C17 8.6 12 9.4 "
                    "12 12C12 14.6 17 15.4 17 21") + pen.stamp("M9 20.4C9.2 17.8 12 17.6 12 15.4C12 17.6 14.8 17.8 15 20.4Z")


def note(pen):
    return pen.line("M9 18V5L19.5 2.8V15.8") + pen.dot(6.2, 18.2, 3, accent=True) + pen.dot(
        16.8, 16, 3, accent=True)


def wave(pen):
    return pen.line("M2.4 10V14M6.2 6.5V17.5M17.8 6.5V17.5M21.6 10V14") + pen.mark("M10 2.8V21.2M14 8V16")


def reel(pen):
    return pen.box(2.5, 4.5, 19, 15) + pen.line("M7 5V19M17 5V19M3 9.4H7M3 14.6H7M17 9.4H21M17 14.6H21") + pen.stamp(
        "M10 8.8L15 12L10 15.2Z")


def stack_of_frames(pen):
    return pen.line("M6.5 6.5V3H21.5V14.5H18") + pen.box(2.5, 8, 14, 12.5) + pen.stamp("M7.4 11L13 14.2L7.4 17.4Z")


def braces(pen):
    return pen.line("M8.4 3C4 3 7 10.4 3 12C7 13.6 4 21 8.4 21M15.6 3C20 3 17 10.4 21 12C17 13.6 20 21 15.6 21"
                    ) + pen.dot(12, 8.6, 1.7, accent=True) + pen.mark("M12 13.6C12.4 15 11.8 16 10.8 17")


def loom(pen):
    return pen.line("M3 4H21M3 20H21M6.5 4V20M12 4V20M17.5 4V20") + pen.mark("M3.4 9.4H9M15 9.4H20.6M9 14.6H15")
