"""What a picture is, stated a second time and without the product's code.

A body is one when it begins as a JPEG, PNG, GIF or WebP, and its frame size, of a GIF the canvas,
can be read, in a JPEG among the first million markers, and is 1 to 65,535 pixels a side.
"""

import struct

LONGEST_SIDE = 65535
MOST_MARKERS = 1_000_000
FRAMES = set(range(0xC0, 0xD0)) - {0xC4, 0xC8, 0xCC}


def jpeg_segments(body):
    """Each marker with its segment, to the first scan."""
    at = 2
    for _ in range(MOST_MARKERS):
        at = body.find(b"\xff", at)
        while 0 <= at < len(body) and body[at] == 0xFF:
            at += 1
        if at < 0 or at >= len(body) or body[at] in (0xDA, 0xD9):
            return
        marker, at = body[at], at + 1
        if marker in (0, 1) or 0xD0 <= marker <= 0xD8:
            continue
        if at + 2 > len(body):
            return
        length = max(2, int.from_bytes(body[at : at + 2], "big"))
        yield marker, body[at + 2 : at + length]
        at += length


def jpeg_size(body):
    for marker, segment in jpeg_segments(body):
        if marker in FRAMES:
            return struct.unpack(">HH", segment[1:5])[::-1]
    return None


def png_size(body):
    return struct.unpack(">II", body[16:24]) if body[12:16] == b"IHDR" else None


def gif_size(body):
    return struct.unpack("<HH", body[6:10])


def webp_size(body):
    kind, length = body[12:16], int.from_bytes(body[16:20], "little")
    chunk = body[20 : 20 + length]
    if kind == b"VP8X":
        sides = chunk[4:10]
        if len(sides) < 6:
            return None
        return tuple(1 + int.from_bytes(sides[at : at + 3], "little") for at in (0, 3))
    if kind == b"VP8 " and chunk[3:6] == b"\x9d\x01\x2a":
        return tuple(side & 0x3FFF for side in struct.unpack("<HH", chunk[6:10]))
    if kind == b"VP8L" and chunk[:1] == b"\x2f":
        bits = struct.unpack("<I", chunk[1:5])[0]
        return 1 + (bits & 0x3FFF), 1 + (bits >> 14 & 0x3FFF)
    return None


def comes_row_by_row(body):
    """Whether damage leaves the rows above it alone, as far as the header tells."""
    if kind_of(body) == "JPEG":
        return any(marker in (0xC0, 0xC1) for marker, _ in jpeg_segments(body))
    return kind_of(body) == "PNG" and body[28:29] == b"\0"


def kind_of(body):
    if body[:3] == b"\xff\xd8\xff":
        return "JPEG"
    if body[:8] == b"\x89PNG\r\n\x1a\n":
        return "PNG"
    if body[:4] == b"GIF8":
        return "GIF"
    if body[:4] == b"RIFF" and body[8:12] == b"WEBP":
        return "WebP"
    return None


def stored_size(body):
    """Width and height of the picture as it is stored, or nothing when the body is none."""
    readers = {"JPEG": jpeg_size, "PNG": png_size, "GIF": gif_size, "WebP": webp_size}
    kind = kind_of(body)
    try:
        size = readers[kind](body) if kind else None
    except struct.error:  # The body ends too soon.
        return None
    return size if size and all(1 <= side <= LONGEST_SIDE for side in size) else None
