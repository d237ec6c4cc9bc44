"""The fourteen operation icons, 64 by 64, and the picture of an operation switched off.

They also stand at 16 pixels in menus and on tabs, so each is one bold idea:
light strokes 4 wide, and one part in the accent that says what changes.
"""

from canvas import ACCENT, COAL, DIM, INK, circle, group, landscape, lifted, line, path, rect, shape, twins

W = 4.0  # line weight at 64


def brightness():
    rays = line("M32 4V10M32 54V60M4 32H10M54 32H60M12.2 12.2L16.4 16.4M47.6 47.6L51.8 51.8"
                "M51.8 12.2L47.6 16.4M16.4 47.6L12.2 51.8", ACCENT, W + 1)
    disc = [
        circle(32, 32, 14, fill=COAL, stroke=INK, stroke_width=W),
        path("M32 18A14 14 0 0 1 32 46Z", fill="url(#paper)"),
    ]
    return lifted(rays, *disc)


def crop():
    return lifted(
        rect(16, 16, 32, 32, fill="#ffffff", fill_opacity=0.14),
        line("M16 4V48H60", INK, W + 1.5, stroke_linejoin="miter", stroke_linecap="butt"),
        line("M4 16H48V60", ACCENT, W + 1.5, stroke_linejoin="miter", stroke_linecap="butt"),
    )


def resize():
    return lifted(
        line("M8 26V10A4 4 0 0 1 12 6H52A4 4 0 0 1 56 10V52A4 4 0 0 1 52 56H38", DIM, W,
             stroke_dasharray="6 6.4"),
        rect(6, 34, 24, 24, 3, fill="url(#paper)"),
        line("M31 33L46 18", ACCENT, W + 1.5),
        line("M33 16H48V31", ACCENT, W + 1.5),
    )


def rotate():
    return lifted(
        group(rect(18, 23, 28, 22, 3, fill="#ffffff", fill_opacity=0.14, stroke=INK, stroke_width=W),
              transform="rotate(-18 32 34)"),
        line("M10.2 41.6A24 24 0 1 1 53.8 44", ACCENT, W + 1),
        path("M45.6 41.6L61.4 39.4L54.6 54.4Z", fill=ACCENT),
    )


def mirror():
    return lifted(
        line("M32 4V60", ACCENT, W, stroke_dasharray="7 6.4"),
        path("M24 14V50H4Z", fill="url(#paper)", stroke=INK, stroke_width=W, stroke_linejoin="round"),
        path("M40 14V50H60Z", fill="none", stroke=INK, stroke_width=W, stroke_linejoin="round"),
    )


def watermark():
    return lifted(
        rect(5, 9, 54, 42, 4, fill=COAL, stroke=INK, stroke_width=W),
        path("M9 45L22 27L33 41V47H9Z", fill=DIM),
        circle(21, 20, 4.5, fill=DIM),
        circle(44, 42, 16, fill=COAL, stroke=ACCENT, stroke_width=W),
        line("M49.6 37.4A7.2 7.2 0 1 0 49.6 46.6", ACCENT, W),
    )


def histogram():
    heights = (8, 17, 31, 42, 34, 23, 13)
    bars = [rect(5 + 8 * i, 48 - h, 6, h, 1, fill="url(#paper)") for i, h in enumerate(heights)]
    return lifted(
        *bars,
        line("M4 50H60", INK, 3),
        path("M14 51L21 61H7Z", fill=ACCENT),
        path("M50 51L57 61H43Z", fill=ACCENT),
    )


def vignetting():
    fall = (
        '<defs><radialGradient id="fall" cx=".5" cy=".5" r=".62"><stop offset=".2" '
        'stop-color="#ffffff"/><stop offset=".55" stop-color="#5c5c5c"/>'
        '<stop offset=".82" stop-color="#0a0a0a"/></radialGradient></defs>'
    )
    return fall + lifted(
        rect(5, 9, 54, 46, 4, fill="url(#fall)", stroke=INK, stroke_width=W),
        shape("ellipse", cx=32, cy=32, rx=20.5, ry=16.5, fill="none", stroke=ACCENT, stroke_width=W,
              stroke_dasharray="8 6.6", stroke_linecap="round"),
    )


def frame():
    return lifted(
        rect(8, 8, 48, 48, 3, fill=COAL, stroke="url(#lamp)", stroke_width=9),
        path("M4 4L13 13M60 4L51 13M4 60L13 51M60 60L51 51", stroke="#6b3f00", stroke_width=1.6,
             stroke_opacity=0.7),
        landscape(15, 15, 34, 34, sun=INK, hills="url(#paper)"),
        rect(13.5, 13.5, 37, 37, fill="none", stroke="#000000", stroke_opacity=0.45, stroke_width=1.5),
    )


def rgb_order():
    return lifted(
        circle(13, 43, 11, fill="#e2463f"),
        circle(51, 43, 11, fill="#4a83e8"),
        circle(32, 43, 11, fill="#49b356", stroke=COAL, stroke_width=2),
        line("M14 24C18 8 46 8 50 24", ACCENT, W + 1),
        path("M5 18L21.5 19.5L12 31Z", fill=ACCENT),
        path("M59 18L42.5 19.5L52 31Z", fill=ACCENT),
    )


def blur():
    return (
        '<defs><clipPath id="left"><rect x="0" y="0" width="32" height="64"/></clipPath>'
        '<clipPath id="right"><rect x="32" y="0" width="32" height="64"/></clipPath></defs>'
    ) + lifted(
        group(circle(32, 32, 23, fill="url(#paper)", filter="url(#soft)"), clip_path="url(#right)",
              opacity=0.8),
        group(circle(32, 32, 23, fill="url(#paper)"), clip_path="url(#left)"),
        line("M32 4V60", ACCENT, W, stroke_dasharray="7 6.4"),
    )


def invert():
    return lifted(
        rect(6, 6, 52, 52, 5, fill=COAL),
        path("M32 6H11A5 5 0 0 0 6 11V53A5 5 0 0 0 11 58H32Z", fill="url(#paper)"),
        path("M32 18A14 14 0 0 0 32 46Z", fill=COAL),
        path("M32 18A14 14 0 0 1 32 46Z", fill=ACCENT),
        rect(6, 6, 52, 52, 5, fill="none", stroke=INK, stroke_width=W),
    )


def binarization():
    ramp = (
        '<defs><linearGradient id="ramp" x1="0" x2="1" y1="0" y2="0"><stop offset="0" '
        'stop-color="#000"/><stop offset="1" stop-color="#fff"/></linearGradient></defs>'
    )
    return ramp + lifted(
        rect(6, 6, 52, 22, 4, fill="url(#ramp)", stroke=INK, stroke_width=W),
        rect(6, 36, 52, 22, 4, fill="#000000", stroke=INK, stroke_width=W),
        path("M36 36H54A4 4 0 0 1 58 40V54A4 4 0 0 1 54 58H36Z", fill="#ffffff"),
        line("M36 3V61", ACCENT, W + 1),
    )


def grayscale():
    """A colour wheel whose right half is the same five hues as grey."""
    rim = ((32, 8), (46.2, 13.1), (55.6, 24.8), (55.6, 39.2), (46.2, 50.9), (32, 56))
    hues = ("#4a83e8", "#9a5fd0", "#e2463f", "#ffb02e", "#f4e06a")
    greys = ("#161616", "#4e4e4e", "#8a8a8a", "#c4c4c4", "#ffffff")
    slices = []
    for i, (hue, grey) in enumerate(zip(hues, greys)):
        (x0, y0), (x1, y1) = rim[i], rim[i + 1]
        slices.append(path(f"M32 32L{x0} {y0}A24 24 0 0 1 {x1} {y1}Z", fill=grey))
        slices.append(path(f"M32 32L{64 - x0:g} {y0}A24 24 0 0 0 {64 - x1:g} {y1}Z", fill=hue))
    return lifted(
        *slices,
        circle(32, 32, 25.5, fill="none", stroke=INK, stroke_width=W),
        line("M32 8V56", COAL, 3, stroke_linecap="butt"),
    )


def disabled():
    """A result that is switched off: a dimmed print under the sign of the power switch."""
    body = [
        rect(14, 14, 332, 332, 22, fill="url(#night)", stroke="#6a6a6a", stroke_width=6),
        group(landscape(36, 80, 288, 228, sun="#565656", hills="#484848")),
        group(
            line("M128 136A74 74 0 1 0 232 136", "#1a1a1a", 42),
            line("M180 92V176", "#1a1a1a", 42),
            line("M128 136A74 74 0 1 0 232 136", "#cfcfcf", 22),
            line("M180 92V176", "#cfcfcf", 22),
        ),
    ]
    return "".join(body)


OPERATIONS = {
    "BRT": brightness,
    "CRP": crop,
    "RSZ": resize,
    "RTT": rotate,
    "MRR": mirror,
    "WMR": watermark,
    "HST": histogram,
    "WGN": vignetting,
    "FRM": frame,
    "RGB": rgb_order,
    "BLR": blur,
    "INV": invert,
    "BIN": binarization,
    "GRS": grayscale,
}


def pictures():
    for tag, draw in OPERATIONS.items():
        yield from twins(f"Icon_{tag}", 64, 64, draw())
    yield "DisabledNode", 360, 360, disabled()
