#!/usr/bin/env python3
"""Packs the program's icon for systems that want all sizes in one file.

icons.py TARGET: writes TARGET, an .ico or an .icns file, of the pictures in app/art/icons.
"""

import pathlib
import struct
import sys

ICONS = pathlib.Path(__file__).resolve().parent.parent / "app" / "art" / "icons"
ICO_SIZES = (16, 24, 32, 48, 64, 128, 256)
# The kinds of entries, by size, that hold PNG files.
ICNS_KINDS = {16: b"icp4", 32: b"icp5", 64: b"icp6", 128: b"ic07", 256: b"ic08", 512: b"ic09"}


def picture(size):
    return (ICONS / f"tessarin-{size}.png").read_bytes()


def ico():
    pictures = [picture(size) for size in ICO_SIZES]
    entries, offset = b"", 6 + 16 * len(pictures)
    for size, content in zip(ICO_SIZES, pictures):
        # One byte each for width and height: 256 is told as 0.
        entries += struct.pack("<BBBBHHII", size % 256, size % 256, 0, 0, 1, 32, len(content), offset)
        offset += len(content)
    return struct.pack("<HHH", 0, 1, len(pictures)) + entries + b"".join(pictures)


def icns():
    body = b""
    for size, kind in ICNS_KINDS.items():
        content = picture(size)
        body += kind + struct.pack(">I", 8 + len(content)) + content
    return b"icns" + struct.pack(">I", 8 + len(body)) + body


if __name__ == "__main__":
    target = pathlib.Path(sys.argv[1])
    target.write_bytes({".ico": ico, ".icns": icns}[target.suffix]())
