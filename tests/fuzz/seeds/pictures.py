"""Small pictures, whole and broken, put together byte by byte."""

import base64
import struct
import zlib

PNG = b"\x89PNG\r\n\x1a\n"


def chunk(name, data=b""):
    checksum = zlib.crc32(name + data)
    return struct.pack(">I", len(data)) + name + data + struct.pack(">I", checksum)


def png(width, height, depth=8, colour=2, interlace=0, before=b"", rows=None):
    channels = {0: 1, 2: 3, 3: 1, 4: 2, 6: 4}[colour]
    row = (width * channels * depth + 7) // 8
    if rows is None:
        lines = (bytes((x * 7 + y * 31) & 255 for x in range(row)) for y in range(height))
        rows = b"".join(bytes([y % 5]) + line for y, line in enumerate(lines))
    header = struct.pack(">IIBBBBB", width, height, depth, colour, 0, 0, interlace)
    body = chunk(b"IDAT", zlib.compress(rows))
    return PNG + chunk(b"IHDR", header) + before + body + chunk(b"IEND")


def segment(marker, content):
    return bytes([0xFF, marker]) + struct.pack(">H", len(content) + 2) + content


def frame(marker, width, height, factors):
    content = struct.pack(">BHHB", 8, height, width, len(factors))
    return segment(marker, content + b"".join(
        bytes([at, factor, 0]) for at, factor in enumerate(factors, 1)))


def scan(components, first=0, last=63, bits=0):
    named = b"".join(bytes([at, 0]) for at in components)
    return segment(0xDA, bytes([len(components)]) + named + bytes([first, last, bits]))


QUANTISATION = segment(0xDB, b"\0" + bytes(range(1, 65)))
JFIF = segment(0xE0, b"JFIF\0\1\1\0\0\1\0\1\0\0")
# Differences of up to 3 bits, and short runs, so that flipped bits of a scan make other pictures.
DC = segment(0xC4, b"\0\0\3\1" + bytes(13) + b"\0\1\2\3")
AC = segment(0xC4, b"\x10\0\2\3" + bytes(13) + b"\0\1\x11\2\xf0")
# Differences of nothing alone, and blocks that end at once.
FLAT = segment(0xC4, b"\0\1" + bytes(15) + b"\0") + segment(0xC4, b"\x10\1" + bytes(15) + b"\0")
NOISE = bytes((at * 89 + at * at * 7) & 0x7F for at in range(90))


def jpeg(width, height, factors=(0x11,), marker=0xC0, before=b"", tables=DC + AC, scans=None):
    everything = tuple(range(1, len(factors) + 1))
    scans = scans or scan(everything) + NOISE
    return b"\xff\xd8" + JFIF + before + QUANTISATION + frame(marker, width, height, factors) + \
        tables + scans + b"\xff\xd9"


def progressive():
    first = scan((1, 2, 3), 0, 0, 1) + bytes(12) + scan((1,), 1, 5, 2) + NOISE[:30]
    return first + scan((1, 2, 3), 0, 0, 0x10) + bytes(9) + scan((1,), 6, 63, 0) + NOISE


def gif(width, height, version=b"89a", before=b"", interlace=0, left=0, top=0, codes=None, flags=0x91):
    table = bytes(range(0, 240, 20)) if flags & 0x80 else b""
    screen = struct.pack("<HHBBB", width, height, flags, 0, 0)
    # Cleared before each pixel, codes keep their three bits.
    pixels = [code for at in range(width * height) for code in (4, at * 5 % 4)] + [5]
    bits = sum(code << 3 * at for at, code in enumerate(pixels if codes is None else codes))
    data = bits.to_bytes(3 * (len(pixels) + len(codes or ())) // 8 + 1, "little")
    blocks = b"".join(bytes([len(data[at:at + 255])]) + data[at:at + 255]
                      for at in range(0, len(data), 255))
    local = b"\x2c" + struct.pack("<HHHHB", left, top, width, height, interlace)
    return b"GIF" + version + screen + table + before + local + b"\2" + blocks + b"\0\x3b"


def riff(name, data):
    return name + struct.pack("<I", len(data)) + data + bytes(len(data) % 2)


def webp(*chunks):
    return riff(b"RIFF", b"WEBP" + b"".join(chunks))


def canvas(width, height):
    return riff(b"VP8X", bytes(4) + struct.pack("<I", width - 1)[:3] + struct.pack("<I", height - 1)[:3])


# A gradient of 8 by 6 pixels, written by ImageMagick: its coding cannot be written by hand.
LOSSLESS = base64.b64decode("UklGRjoAAABXRUJQVlA4TC0AAAAvB0ABAC8AEIT/bRMz8+b/+U+WBoRsJOkUTuEVXuEV3l+rE9H/+HjV"
                            "rQ62GgAA")
LOSSY = base64.b64decode("UklGRk4AAABXRUJQVlA4IEIAAACwAgCdASoIAAYAAoBCJagCdGuA/gGEAev+B6IBX4AA/vRbD1eEn/lrFblE"
                         "h/vjR8okP/9g4/et/3kOIz9dIXy5eAA=")
TIFF = b"II*\0\x08\0\0\0\1\0\x12\1\3\0\1\0\0\0\6\0\0\0\0\0\0\0"
MOVING = struct.pack("<I", 1)[:3] + bytes(3) + b"\7\0\0\5\0\0" + bytes(4) + LOSSLESS[12:]

CONTROL = b"\x21\xf9\4\5\1\0\0\0"
PALETTE = chunk(b"PLTE", bytes(range(48)))
WHOLE_PNG = png(9, 7)
WHOLE_JPEG = jpeg(24, 16, (0x22, 0x11, 0x11))
WHOLE_GIF = gif(8, 6)

CORPORA = {"picture": {
    "png-colour": WHOLE_PNG,
    "png-alpha": png(9, 7, colour=6),
    "png-grey1": png(17, 5, 1, 0),
    "png-grey16": png(5, 4, 16, 0),
    "png-grey-alpha": png(6, 6, 8, 4),
    "png-palette": png(9, 9, 4, 3, before=PALETTE),
    "png-clear-colours": png(9, 9, 4, 3, before=PALETTE + chunk(b"tRNS", b"\0\x80\xff")),
    "png-interlaced": png(9, 9, interlace=1),
    "png-chunks": png(4, 4, before=chunk(b"gAMA", struct.pack(">I", 45455)) +
                      chunk(b"pHYs", struct.pack(">IIB", 2835, 2835, 1)) + chunk(b"tEXt", b"a\0b") +
                      chunk(b"cHRM", struct.pack(">8I", *8 * [31270])) + chunk(b"sRGB", b"\0")),
    "png-wide": png(2000, 1, 1, 0),
    "png-no-palette": png(9, 9, 4, 3),
    "png-short": WHOLE_PNG[:-30],
    "png-header": WHOLE_PNG[:45],
    "png-wrong-sum": WHOLE_PNG.replace(b"IHDR\0", b"IHDR\1"),
    "png-huge": png(60000, 60000, rows=b""),
    "png-empty": png(1, 1, rows=b""),
    "jpeg-colour": WHOLE_JPEG,
    "jpeg-grey": jpeg(16, 16),
    "jpeg-flat": jpeg(50, 40, tables=FLAT, scans=scan((1,)) + bytes(20)),
    "jpeg-four": jpeg(16, 16, (0x11, 0x11, 0x11, 0x11)),
    "jpeg-adobe": jpeg(16, 16, (0x11,) * 4, before=segment(0xEE, b"Adobe\0d\0\0\0\0\2")),
    "jpeg-rgb": jpeg(16, 16, (0x11,) * 3, before=segment(0xEE, b"Adobe\0d\0\0\0\0\0")),
    "jpeg-narrow-colours": jpeg(40, 9, (0x21, 0x11, 0x11)),
    "jpeg-progressive": jpeg(24, 16, (0x22, 0x11, 0x11), 0xC2, scans=progressive()),
    "jpeg-extended": jpeg(16, 16, marker=0xC1),
    "jpeg-restarts": jpeg(32, 16, before=segment(0xDD, b"\0\1"),
                          scans=scan((1,)) + b"\xff\xd0".join(NOISE[at:at + 9] for at in (0, 9, 18))),
    "jpeg-usual-tables": jpeg(16, 16, tables=b""),
    "jpeg-separate-scans": jpeg(16, 16, (0x11,) * 3,
                                scans=b"".join(scan((at,)) + NOISE[:20] for at in (1, 2, 3))),
    "jpeg-exif": jpeg(16, 8, before=segment(0xE1, b"Exif\0\0II*\0\x08\0\0\0\1\0\x12\1\3\0\1\0\0\0\6\0"
                                            b"\0\0\0\0\0\0")),
    "jpeg-arithmetic": jpeg(16, 16, marker=0xC9),
    "jpeg-lossless": jpeg(16, 16, marker=0xC3),
    "jpeg-huge": jpeg(65000, 65000),
    "jpeg-no-lines": jpeg(16, 0, scans=scan((1,)) + NOISE + segment(0xDC, b"\0\x10")),
    "jpeg-short": WHOLE_JPEG[:-60],
    "jpeg-start": b"\xff\xd8\xff",
    "gif-small": WHOLE_GIF,
    "gif-87a": gif(8, 6, b"87a"),
    "gif-interlaced": gif(9, 9, interlace=0x40),
    "gif-control": gif(5, 5, before=CONTROL),
    "gif-loop": gif(5, 5, before=b"\x21\xff\x0bNETSCAPE2.0\3\1\0\0\0\x21\xfe\2hi\0" + CONTROL),
    "gif-two-frames": gif(4, 4)[:-1] + gif(4, 4)[25:],
    "gif-outside": gif(5, 5, left=3, top=60000),
    "gif-no-table": gif(5, 5, flags=1),
    "gif-no-size": gif(0, 0, codes=[4, 1, 5]),
    "gif-late-codes": gif(5, 5, codes=[4, 1, 6, 7, 7, 3, 5]),
    "gif-short": WHOLE_GIF[:40],
    "webp-lossless": LOSSLESS,
    "webp-lossy": LOSSY,
    "webp-canvas": webp(canvas(8, 6), LOSSLESS[12:]),
    "webp-exif": webp(canvas(8, 6), LOSSY[12:], riff(b"EXIF", TIFF)),
    "webp-moving": webp(canvas(20, 10), riff(b"ANIM", bytes(6)), riff(b"ANMF", MOVING)),
    "webp-moves-outside": webp(canvas(9, 6), riff(b"ANMF", MOVING)),
    "webp-profile": webp(canvas(8, 6), riff(b"ICCP", bytes(128)), LOSSLESS[12:]),
    "webp-huge": webp(canvas(65535, 65535), LOSSLESS[12:]),
    "webp-short": LOSSY[:60],
    "webp-sound": webp(riff(b"ALPH", bytes(9))),
    "png-exif": png(9, 7, before=chunk(b"eXIf", TIFF)),
    "svg": b"<svg xmlns='http://www.w3.org/2000/svg' width='9' height='9'/>",
    "none": b"",
}}
