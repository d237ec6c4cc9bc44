"""The program's sign, the maker's mark, and the signs of the maker's other products."""

import math

import glyphs
from buttons import sign
from canvas import ACCENT, COAL, INK, circle, group, lifted, line, path, rect, twins


def point(radius, degrees):
    turn = math.radians(degrees)
    return radius * math.cos(turn), radius * math.sin(turn)


def aperture(count, outer, hole, twist, tones):
    """Blades round a hole, each lying on the next one: (0, 0) is the middle."""
    corners = [point(hole, twist + 360 * i / count) for i in range(count)]
    tips = []
    for i, (x, y) in enumerate(corners):
        # The edge of a blade runs from the next corner through this one out to the rim.
        nx, ny = corners[(i + 1) % count]
        dx, dy = x - nx, y - ny
        length = math.hypot(dx, dy)
        dx, dy = dx / length, dy / length
        along = x * dx + y * dy
        reach = -along + math.sqrt(along * along + outer * outer - hole * hole)
        tips.append((x + dx * reach, y + dy * reach))
    blades = []
    for i in range(count):
        k = (i + 1) % count
        (ax, ay), (bx, by), (cx, cy), (dx, dy) = corners[i], tips[i], tips[k], corners[k]
        blades.append(
            path(f"M{ax:.2f} {ay:.2f}L{bx:.2f} {by:.2f}A{outer} {outer} 0 0 1 {cx:.2f} {cy:.2f}"
                 f"L{dx:.2f} {dy:.2f}Z", fill=tones[i % len(tones)], stroke=COAL, stroke_width=outer / 28,
                 stroke_linejoin="round")
        )
    return "".join(blades)


def program_sign(plain=False):
    """A four-bladed aperture, 256 by 256: the steps of a flow as tones of grey, and the light
    that comes through. The plain one fills the whole field and is for small sizes."""
    glow = (
        '<defs><radialGradient id="light"><stop offset="0" stop-color="#fff3da"/><stop offset=".5" '
        f'stop-color="#ffc766"/><stop offset="1" stop-color="{ACCENT}"/></radialGradient>'
        '<linearGradient id="edge" x1="0" y1="0" x2="0" y2="1"><stop offset="0" stop-color="#ffffff" '
        'stop-opacity=".5"/><stop offset="1" stop-color="#ffffff" stop-opacity="0"/></linearGradient>'
        '<linearGradient id="sheen" x1="0" y1="0" x2="0" y2="1"><stop offset="0" stop-color="#ffffff" '
        'stop-opacity=".3"/><stop offset=".55" stop-color="#ffffff" stop-opacity="0"/><stop offset="1" '
        'stop-color="#000000" stop-opacity=".3"/></linearGradient></defs>'
    )
    hole = "L".join(f"{x:.2f} {y:.2f}" for x, y in (point(44, -68 + 90 * i) for i in range(4)))
    lens = group(
        circle(0, 0, 97, fill=COAL),
        aperture(4, 90, 44, -68, ("#f4f4f4", "#c6c6c6", "#8b8b8b", "#b0b0b0")),
        circle(0, 0, 90, fill="url(#sheen)"),
        path(f"M{hole}Z", fill="url(#light)", stroke=COAL, stroke_width=90 / 28, stroke_linejoin="round"),
        transform=f"translate(128 128) scale({1.28 if plain else 1})",
    )
    if plain:
        return glow + lens
    return glow + "".join(
        [
            rect(10, 10, 236, 236, 52, fill="url(#slate)", stroke="#0c0c0c", stroke_width=4),
            path("M20 62A42 42 0 0 1 62 14H194A42 42 0 0 1 236 62", fill="none", stroke="url(#edge)",
                 stroke_width=3),
            lens,
        ]
    )


def crow(ink):
    """A crow that stands on a weather vane and looks along its arrow, 200 by 200."""
    bird = path(
        "M176 55C166 44 158 41 151 40C146 30 137 25 127 26C112 27 102 38 94 54C84 76 72 98 54 118"
        "L12 152C22 157 34 156 46 152L74 142C86 148 98 149 108 146C132 140 148 120 152 94"
        "C154 82 153 72 152 62C160 61 168 59 176 55Z"
        "M139 44A4.5 4.5 0 1 1 130 44A4.5 4.5 0 1 1 139 44Z"
        "M128 82C122 104 104 122 74 132C98 132 124 118 132 90Z",
        fill=ink, fill_rule="evenodd",
    )
    return bird + "".join(
        [
            line("M100 146L96 166M114 144L112 166", ink, 5),
            line("M22 170H172", ink, 7),
            path("M196 170L166 156V184Z", fill=ink),
            path("M4 156H26L38 170L26 184H4L16 170Z", fill=ink),
            line("M104 172V196", ink, 7),
        ]
    )


LETTERS = {
    "C": "M38 14A24 24 0 1 0 38 50",
    "O": "M26 8A24 24 0 1 1 26 56A24 24 0 1 1 26 8Z",
    "R": "M6 56V8H24A14 14 0 0 1 24 36H6M22 36L38 56",
    "V": "M2 8L22 56L42 8",
    "A": "M2 56L22 8L42 56M10 40H34",
    "N": "M6 56V8L40 56V8",
    "E": "M36 8H6V56H36M6 32H32",
}
ADVANCES = {"C": 54, "O": 66, "R": 54, "V": 52, "A": 60, "N": 60, "E": 44}


def wordmark(ink, weight):
    parts, x = [], 0
    for letter in "CORVANE":
        parts.append(group(line(LETTERS[letter], ink, weight), transform=f"translate({x} 0)"))
        x += ADVANCES[letter]
    return "".join(parts)


WORD_WIDTH = sum(ADVANCES.values())


def makers_mark(ink, weight=8):
    """Crow and name side by side, 620 by 200."""
    return crow(ink) + group(wordmark(ink, weight), transform="translate(222 84)")


def watermark():
    """The default watermark: white with a dark edge, so that it reads on light and dark photos."""
    edge = '<defs><filter id="edge" x="-5%" y="-10%" width="110%" height="120%">' \
        '<feMorphology in="SourceAlpha" operator="dilate" radius="2.2"/>' \
        '<feGaussianBlur stdDeviation="1.6"/>' \
        '<feComponentTransfer><feFuncA type="linear" slope="0.8"/></feComponentTransfer>' \
        '<feMerge><feMergeNode/><feMergeNode in="SourceGraphic"/></feMerge></filter></defs>'
    return edge + group(
        group(crow("#ffffff"), transform="translate(212 14) scale(0.92)"),
        group(wordmark("#ffffff", 9), transform="translate(104 216)"),
        filter="url(#edge)",
    )


# Five tools; then six for music, video and programming.
PRODUCTS = {
    "ledgerline": glyphs.ledger,
    "quillbox": glyphs.quill,
    "dovecrate": glyphs.crate,
    "pinfolder": glyphs.pin,
    "hourspan": glyphs.hourglass,
    "tonewright": glyphs.wave,
    "chordlamp": glyphs.note,
    "reelspan": glyphs.reel,
    "framewick": glyphs.stack_of_frames,
    "bracewright": glyphs.braces,
    "byteloom": glyphs.loom,
}


def product(draw):
    """Without a plate, and bold: the catalogue shows these in menu rows at 16 pixels."""
    return lifted(sign(draw, (0, 0, 0, 0, INK, ACCENT), 4, 3, 56, 5))


def pictures():
    yield "app", 290, 290, group(program_sign(), transform=f"scale({290 / 256})")
    yield "appicon", 24, 24, group(program_sign(plain=True), transform=f"scale({24 / 256})")
    yield "corvane", 600, 300, watermark()
    logo = group(makers_mark("#f2f2f2", 10), transform="translate(2 1) scale(0.11)")
    yield from twins("pix/corvanelogo", 72, 24, logo)
    for name, draw in PRODUCTS.items():
        yield name, 64, 64, product(draw), 1  # rows of a menu show them at less than half of that
