"""The large pictures: what the drop window, the empty options panel and the panels stand on."""

from canvas import ACCENT, COAL, DIM, INK, circle, group, landscape, line, path, rect, twins
import nodes


def photo_print(x, y, angle, sky="url(#sky)"):
    """A paper print, 110 by 90, centred at (x, y) and lying at an angle."""
    return group(
        rect(-55, -43, 110, 90, 3, fill="#000000", fill_opacity=0.3),
        rect(-55, -46, 110, 90, 3, fill="url(#sheet)"),
        rect(-48, -39, 96, 70, fill=sky),
        landscape(-48, -39, 96, 70, hills="#23292e"),
        transform=f"translate({x} {y}) rotate({angle})",
    )


def drop_area():
    """Prints that fall into a tray; calm at the top, where the heading stands, and at the
    bottom, where the button does."""
    sheet = (
        '<defs><linearGradient id="sheet" x1="0" y1="0" x2="0" y2="1"><stop offset="0" '
        'stop-color="#ffffff"/><stop offset="1" stop-color="#dcdcdc"/></linearGradient></defs>'
    )
    return sheet + "".join(
        [
            rect(34, 74, 292, 222, 16, fill="#000000", fill_opacity=0.1, stroke="#2a2a2a",
                 stroke_width=3, stroke_dasharray="12 9", stroke_linecap="round"),
            photo_print(116, 164, -14),
            photo_print(244, 160, 12),
            photo_print(180, 138, -2),
            # The tray: a back edge behind the arrow, a front that the prints drop behind.
            path("M76 214H284L306 250V268A12 12 0 0 1 294 280H66A12 12 0 0 1 54 268V250Z",
                 fill="#000000", fill_opacity=0.3, transform="translate(0 4)"),
            path("M76 214H284L306 250H54Z", fill=COAL),
            path("M54 250H124C128 250 130 252 132 256L136 262C138 265 140 266 144 266H216"
                 "C220 266 222 265 224 262L228 256C230 252 232 250 236 250H306V268"
                 "A12 12 0 0 1 294 280H66A12 12 0 0 1 54 268Z", fill="url(#steel)"),
            line("M54 250H124C128 250 130 252 132 256L136 262C138 265 140 266 144 266H216"
                 "C220 266 222 265 224 262L228 256C230 252 232 250 236 250H306", "#c9c9c9", 2),
            path("M166 158H194V206H214L180 246L146 206H166Z", fill="url(#lamp)", stroke=COAL,
                 stroke_width=4, stroke_linejoin="round"),
        ]
    )


def small_node(draw, x, y, size):
    return group(draw(), transform=f"translate({x} {y}) scale({size / 64})")


class Reading:
    """Lays a picture of the given width out for readers from the left or from the right."""

    def __init__(self, width, from_right):
        self.width = width
        self.from_right = from_right

    def place(self, x, width=0):
        """Where a thing of that width, placed from the left, comes to stand."""
        return self.width - x - width if self.from_right else x

    def turned(self, *parts):
        """Lines that tell a direction."""
        if not self.from_right:
            return group(*parts)
        return group(*parts, transform=f"translate({self.width} 0) scale(-1 1)")


def first_steps(reading):
    """The options panel while no operation exists. Two places are kept free: the lower corner where
    reading starts for the moving arrow that points at the add button, and the middle, from 136 to
    444, for the words, which the program lays over it in the user's language."""
    parts = [reading.turned(line("M124 62C94 62 70 68 56 89", ACCENT, 3, stroke_dasharray="1 8"))]
    x = 460
    for draw in (nodes.crop, nodes.rotate, nodes.watermark):
        if x > 460:
            arrow = line(f"M{x - 14} 87H{x - 5}M{x - 9} 83L{x - 5} 87L{x - 9} 91", DIM, 2)
            parts.append(reading.turned(arrow))
        left = reading.place(x, 72)
        parts.append(rect(left, 51, 72, 72, 10, fill="url(#night)", stroke="#7a7a7a",
                          stroke_width=1.5))
        parts.append(small_node(draw, left + 10, 61, 52))
        x += 91
    return "".join(parts)


def menu_bar():
    """The strip behind the menu bar: lit along its upper edge, with a thin lamp line below."""
    return "".join(
        [
            rect(0, 0, 735, 45, fill="url(#slate)"),
            rect(0, 0, 735, 1, fill="#8a8a8a"),
            rect(0, 41, 735, 4, fill="#141414"),
            '<defs><linearGradient id="glow" x1="0" x2="1" y1="0" y2="0"><stop offset="0" '
            f'stop-color="{ACCENT}" stop-opacity="0"/><stop offset=".5" stop-color="{ACCENT}"/>'
            f'<stop offset="1" stop-color="{ACCENT}" stop-opacity="0"/></linearGradient></defs>',
            rect(0, 41, 735, 1, fill="url(#glow)", fill_opacity=0.75),
        ]
    )


def panel_tile():
    """A tile of fine twill."""
    cells = [rect(0, 0, 8, 8, fill="#343434")]
    for y in range(0, 8, 2):
        for x in range(0, 8, 4):
            cells.append(rect((x + y) % 8, y, 2, 1, fill="#3b3b3b"))
            cells.append(rect((x + y) % 8, y + 1, 2, 1, fill="#2d2d2d"))
    return "".join(cells)


def open_files():
    """With room at its right, since buttons put a caption close to an icon."""
    parts = "".join(
        [
            path("M2 6A2 2 0 0 1 4 4H9L11.5 6.5H19A2 2 0 0 1 21 8.5V19H2Z", fill="#a8690b"),
            rect(5, 7.5, 13, 9, 1, fill="#ffffff"),
            path("M6 14L9 10.5L11.5 13L13.5 11.5L17 14Z", fill="#5a5a5a"),
            path("M4.6 12H23.2L20.6 20.2A1.4 1.4 0 0 1 19.3 21H3.2A1.3 1.3 0 0 1 2 19.6Z",
                 fill="url(#lamp)"),
        ]
    )
    return group(parts, transform="translate(-1.6 2.2) scale(0.8)")


def pictures():
    yield "droparea", 360, 360, drop_area()
    yield "initlabel_en", 735, 175, first_steps(Reading(735, from_right=False))
    yield "initlabel_ar", 735, 175, first_steps(Reading(735, from_right=True))
    yield "openfiles", 24, 24, open_files()
    yield "backgroundbar", 735, 45, menu_bar()
    yield from twins("panelbackground", 8, 8, panel_tile())
