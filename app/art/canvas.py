"""The visual language: colours, line weights, light, and the SVG page they are drawn on.

Every picture of the program is a function that returns SVG elements in logical
units (the size at which it is shown); page() wraps them at twice that size.
"""

INK = "#ececec"  # lines of a picture at rest
BRIGHT = "#ffffff"  # lines under the mouse
DIM = "#9c9c9c"  # secondary lines
ACCENT = "#ffb02e"  # the one accent: lamp light on a dark desk
ACCENT_LIGHT = "#ffcf7a"
ACCENT_DEEP = "#d98512"
DESK = "#474747"  # the page, rgb(71,71,71)
COAL = "#1c1c1c"
SCALE = 2

# Light falls from above: every shaded surface runs from its light end down to its dark one.
SURFACES = {
    "paper": ("#ffffff", "#bdbdbd"),
    "lamp": (ACCENT_LIGHT, ACCENT_DEEP),
    "steel": ("#8e8e8e", "#4c4c4c"),
    "slate": ("#5a5a5a", "#2c2c2c"),
    "night": ("#3a3a3a", "#161616"),
    "sky": ("#5d6b78", "#39434c"),
}


def gradient(name, top, bottom):
    return (
        f'<linearGradient id="{name}" x1="0" y1="0" x2="0" y2="1">'
        f'<stop offset="0" stop-color="{top}"/><stop offset="1" stop-color="{bottom}"/>'
        "</linearGradient>"
    )


def definitions():
    surfaces = "".join(gradient(name, *ends) for name, ends in SURFACES.items())
    return (
        f"<defs>{surfaces}"
        '<filter id="lift" x="-20%" y="-20%" width="140%" height="150%">'
        '<feGaussianBlur in="SourceAlpha" stdDeviation="1.1"/><feOffset dy="1.2"/>'
        '<feComponentTransfer><feFuncA type="linear" slope="0.75"/></feComponentTransfer>'
        '<feMerge><feMergeNode/><feMergeNode in="SourceGraphic"/></feMerge></filter>'
        '<filter id="soft" x="-40%" y="-40%" width="180%" height="180%">'
        '<feGaussianBlur stdDeviation="3.2"/></filter></defs>'
    )


def page(width, height, body, scale=SCALE):
    """An SVG document of the logical size, rendered at scale times that size."""
    return (
        f'<svg xmlns="http://www.w3.org/2000/svg" width="{width * scale:g}" '
        f'height="{height * scale:g}" viewBox="0 0 {width:g} {height:g}">\n'
        f"{definitions()}\n{body}\n</svg>\n"
    )


def twins(name, width, height, body):
    """A picture that is laid out pixel for pixel, and its twin for dense screens."""
    yield name, width, height, body, 1
    yield f"{name}@2x", width, height, body, SCALE


def attributes(values):
    """Keyword arguments as XML attributes: stroke_width becomes stroke-width."""
    return "".join(f' {key.rstrip("_").replace("_", "-")}="{value}"' for key, value in values.items())


def shape(tag, **values):
    return f"<{tag}{attributes(values)}/>"


def path(d, **values):
    return shape("path", d=d, **values)


def line(d, color=INK, width=2.0, **values):
    """An open, round-ended line: the stroke that all the drawings are made of."""
    values = {"stroke_linecap": "round", "stroke_linejoin": "round", **values}
    return shape("path", d=d, fill="none", stroke=color, stroke_width=width, **values)


def rect(x, y, width, height, radius=0.0, **values):
    return shape("rect", x=x, y=y, width=width, height=height, rx=radius, **values)


def circle(cx, cy, r, **values):
    return shape("circle", cx=cx, cy=cy, r=r, **values)


def group(*parts, **values):
    return f"<g{attributes(values)}>{''.join(parts)}</g>"


def lifted(*parts):
    """Parts with a small shadow under them, so that they read on light rows as well."""
    return group(*parts, filter="url(#lift)")


def text(x, y, size, content, **values):
    values = {"fill": INK, "font_family": "DejaVu Sans", "font_size": size, **values}
    return f'<text x="{x}" y="{y}"{attributes(values)}>{content}</text>'


def landscape(x, y, width, height, sun="url(#lamp)", hills="url(#paper)", sky="none"):
    """The program's sign for a photo: a sun and two hills within a rectangle."""
    w, h = width, height
    ground = (
        f"M{x} {y + h * 0.98:g}L{x} {y + h * 0.78:g}L{x + w * 0.32:g} {y + h * 0.42:g}"
        f"L{x + w * 0.56:g} {y + h * 0.72:g}L{x + w * 0.7:g} {y + h * 0.57:g}"
        f"L{x + w:g} {y + h * 0.88:g}L{x + w:g} {y + h * 0.98:g}Z"
    )
    return "".join(
        [
            rect(x, y, w, h, fill=sky),
            circle(x + w * 0.72, y + h * 0.27, min(w, h) * 0.14, fill=sun),
            path(ground, fill=hills),
        ]
    )
