"""Generated PNGs, written byte by byte: every depth, colour type and interlacing, and what chunks say."""

import io
import struct
import zlib

import profiles
from jpegs import exif
from PIL import Image
from scene import scene, with_holes

SIGNATURE = b"\x89PNG\r\n\x1a\n"
GREY, COLOURS, PALETTE, GREY_ALPHA, COLOURS_ALPHA = 0, 2, 3, 4, 6
DEPTHS = {GREY: (1, 2, 4, 8, 16), COLOURS: (8, 16), PALETTE: (1, 2, 4, 8)}
DEPTHS.update({GREY_ALPHA: (8, 16), COLOURS_ALPHA: (8, 16)})
PASSES = ((0, 0, 8, 8), (4, 0, 8, 8), (0, 4, 4, 8), (2, 0, 4, 4), (0, 2, 2, 4), (1, 0, 2, 2), (0, 1, 1, 2))


def chunk(name, data):
    return struct.pack(">I", len(data)) + name + data + struct.pack(">I", zlib.crc32(name + data))


def packed(samples, depth):
    """A row of samples of 0 to 255, in that depth."""
    if depth == 16:
        low = {0: 0, 255: 255}  # so that what is clear or opaque is so in 16 bits, too
        return b"".join(bytes((sample, low.get(sample, 255 - sample))) for sample in samples)
    if depth == 8:
        return bytes(samples)
    bits, row = 0, bytearray()
    per_byte = 8 // depth
    for at, sample in enumerate(samples):
        bits = bits << depth | sample >> 8 - depth
        if at % per_byte == per_byte - 1:
            row.append(bits)
            bits = 0
    if left := len(samples) % per_byte:
        row.append(bits << depth * (per_byte - left) & 0xFF)
    return bytes(row)


def filtered(rows, step):
    """Each row by another filter in turn."""
    before, out = b"", b""
    for number, row in enumerate(rows):
        kind = number % 5
        before = before if len(before) == len(row) else bytes(len(row))
        out += bytes((kind,))
        left = bytes(step) + row
        corner = bytes(step) + before
        guesses = {
            0: lambda at: 0,
            1: lambda at: left[at],
            2: lambda at: before[at],
            3: lambda at: (left[at] + before[at]) // 2,
            4: lambda at: paeth(left[at], before[at], corner[at]),
        }[kind]
        out += bytes((row[at] - guesses(at)) & 0xFF for at in range(len(row)))
        before = row
    return out


def paeth(left, above, corner):
    guess = left + above - corner
    return min((left, above, corner), key=lambda each: abs(guess - each))


def samples_of(kind, width, height):
    picture = with_holes(scene(width, height))
    if kind == PALETTE:
        return picture.convert("RGB").convert("L").tobytes(), 1
    mode = {GREY: "L", COLOURS: "RGB", GREY_ALPHA: "LA", COLOURS_ALPHA: "RGBA"}[kind]
    converted = picture.convert("RGB").convert(mode) if "A" not in mode else picture.convert(mode)
    return converted.tobytes(), len(mode)


def png(kind, depth, interlaced=False, before=(), size=(96, 64), piece=4096):
    width, height = size
    data, bands = samples_of(kind, width, height)
    step = max(1, bands * depth // 8)

    def rows(x0, y0, dx, dy):
        for y in range(y0, height, dy):
            samples = []
            for x in range(x0, width, dx):
                at = (y * width + x) * bands
                samples += data[at : at + bands]
            yield packed(samples, depth)

    passes = PASSES if interlaced else ((0, 0, 1, 1),)
    # A pass that no pixel falls in has no rows.
    body = b"".join(filtered(rows(*each), step) for each in passes if each[0] < width)
    header = struct.pack(">IIBBBBB", width, height, depth, kind, 0, 0, interlaced)
    chunks = [chunk(b"IHDR", header), *(chunk(*each) for each in before)]
    if kind == PALETTE and not any(name == b"PLTE" for name, _ in before):
        chunks.append(chunk(b"PLTE", palette(depth)))
    pixels = zlib.compress(body)
    chunks += [chunk(b"IDAT", pixels[at : at + piece]) for at in range(0, len(pixels), piece)]
    return SIGNATURE + b"".join(chunks) + chunk(b"IEND", b"")


def palette(depth):
    count = 2**depth
    return b"".join(
        bytes((at * 255 // (count - 1), 255 - at * 255 // (count - 1), at * 37 % 256))
        for at in range(count)
    )


def gamma(number):
    return b"gAMA", struct.pack(">I", round(number * 100_000))


def primaries(which, white=profiles.D65):
    numbers = [round(part * 100_000) for point in (white, *which) for part in point]
    return b"cHRM", struct.pack(">8I", *numbers)


def icc(data):
    return b"iCCP", b"named\0\0" + zlib.compress(data)


def with_header(body, depth, kind):
    """With another depth and colour type in its header, and a checksum that fits."""
    return body[:8] + chunk(b"IHDR", body[16:24] + bytes((depth, kind)) + body[26:29]) + body[33:]


def odd():
    """Sizes at which passes are empty, pixels in many pieces, and what each chunk may get wrong."""
    for side in (1, 2, 3, 4, 5, 7, 8, 9, 33):
        for interlaced in (False, True):
            name = f"size-{side}{'-interlaced' if interlaced else ''}"
            yield name, png(PALETTE, 4, interlaced, size=(side, side))
            yield f"{name}-low", png(COLOURS, 8, interlaced, size=(40, side))
            yield f"{name}-narrow", png(GREY, 1, interlaced, size=(side, 40))
    yield "pieces-of-1", png(COLOURS, 8, piece=1)
    plain = png(COLOURS, 8)
    pixels, end = plain.index(b"IDAT") - 4, plain.index(b"IEND") - 4
    empty = chunk(b"IDAT", b"")
    yield "pieces-of-nothing", plain[:pixels] + empty + plain[pixels:end] + empty + plain[end:]
    yield "pixels-missing", plain[:pixels] + plain[end:]
    yield "pixels-behind-a-chunk", plain[:pixels] + chunk(b"teXt", b"a") + plain[pixels:]
    yield "damage-header-checksum", plain[:29] + b"oops" + plain[33:]
    yield "damage-pixels-checksum", plain[: end - 4] + b"oops" + plain[end:]
    for depth, kind in ((8, 1), (8, 9), (0, 2), (3, 3), (99, 2), (16, 3), (4, 6)):
        yield f"damage-depth-{depth}-type-{kind}", with_header(plain, depth, kind)
    # Not palettes without enough colours: libpng draws black or nothing, and Pillow colours of its own.
    yield "palette-of-colours", png(COLOURS, 8, before=[(b"PLTE", palette(4))])
    yield "palette-clear-beyond", png(PALETTE, 2, before=[(b"PLTE", palette(2)), (b"tRNS", bytes(9))])
    yield "clear-before-palette", png(PALETTE, 2, before=[(b"tRNS", bytes(2)), (b"PLTE", palette(2))])
    yield "clear-of-alpha", png(COLOURS_ALPHA, 8, before=[(b"tRNS", bytes(6))])
    yield "significant-bits", png(COLOURS, 8, before=[(b"sBIT", bytes((5, 6, 5)))])
    yield "signature-of-text", plain.replace(b"\r\n", b"\n", 1)


def saved(picture, **options):
    file = io.BytesIO()
    picture.save(file, "PNG", **options)
    return file.getvalue()


def kinds():
    for kind, depths in DEPTHS.items():
        for depth in depths:
            for interlaced in (False, True):
                name = f"type-{kind}-depth-{depth}{'-interlaced' if interlaced else ''}"
                yield name, png(kind, depth, interlaced)
    for depth in DEPTHS[GREY]:
        yield f"clear-grey-{depth}", png(GREY, depth, before=[(b"tRNS", b"\0\0")])
    red = {8: (255, 0, 0), 16: (0xFFFF, 0, 0)}
    for depth, colour in red.items():
        for interlaced in (False, True):
            clear = [(b"tRNS", struct.pack(">HHH", *colour))]
            yield f"clear-colour-{depth}-{interlaced}", png(COLOURS, depth, interlaced, clear)
    for depth in DEPTHS[PALETTE]:
        yield f"clear-palette-{depth}", png(PALETTE, depth, before=[(b"PLTE", palette(depth)), (b"tRNS", b"\0\x80")])
    for number in (0.25, 0.45455, 0.55, 1.0, 1.8, 0.00001):
        yield f"gamma-{number}", png(COLOURS, 8, before=[gamma(number)])
        yield f"gamma-{number}-grey", png(GREY, 8, before=[gamma(number)])
    yield "gamma-1-16-bit", png(COLOURS, 16, before=[gamma(1)])
    yield "gamma-1-clear", png(COLOURS_ALPHA, 8, True, [gamma(1)])
    yield "gamma-0", png(COLOURS, 8, before=[gamma(0)])
    yield "gamma-of-palette", png(PALETTE, 4, before=[gamma(1)])
    p3 = profiles.of_colours(profiles.DISPLAY_P3)
    for name, chunks in {
        "chromaticities-p3": [gamma(0.45455), primaries(profiles.DISPLAY_P3)],
        "chromaticities-srgb": [gamma(0.45455), primaries(profiles.SRGB)],
        "chromaticities-adobe": [gamma(0.4547), primaries(profiles.ADOBE_RGB)],
        "chromaticities-of-d50": [gamma(0.45455), primaries(profiles.SRGB, (0.3457, 0.3585))],
        "chromaticities-alone": [primaries(profiles.DISPLAY_P3)],
        "chromaticities-of-nothing": [gamma(0.45455), primaries(((0, 0),) * 3)],
        "srgb-before-gamma": [(b"sRGB", b"\0"), gamma(1)],
        "profile-p3": [icc(p3)],
        "profile-before-gamma": [icc(p3), gamma(1)],
        "profile-table": [icc(profiles.of_tabled_colours())],
        "profile-grey-of-colours": [icc(profiles.of_greys(1.2))],
        "profile-inks-of-colours": [icc(profiles.of_inks())],
        "profile-cut": [icc(p3[:200])],
        "words": [(b"tEXt", b"Comment\0" + b"x" * 5000), (b"bKGD", b"\0\xff\0\0\0\0")],
    }.items():
        yield name, png(COLOURS, 8, before=chunks)
    yield "profile-p3-clear", png(COLOURS_ALPHA, 8, before=[icc(p3)])
    yield "profile-grey", png(GREY, 8, before=[icc(profiles.of_greys(1.2))])
    yield "profile-grey-clear", png(GREY_ALPHA, 8, before=[icc(profiles.of_greys(1.2))])
    yield "profile-p3-of-grey", png(GREY, 8, before=[icc(p3)])
    yield "profile-p3-palette", png(PALETTE, 8, before=[icc(p3)])
    for orientation in (1, 3, 6, 8):
        tiff = exif(orientation)[6:]
        yield f"orientation-{orientation}", png(COLOURS, 8, before=[(b"eXIf", tiff)])
    frames = [with_holes(scene()), with_holes(scene()).transpose(Image.Transpose.ROTATE_180)]
    for default in (False, True):
        yield f"animated-{default}", saved(
            frames[0], save_all=True, append_images=frames[1:], duration=100, default_image=default
        )
    yield from odd()
    yield "long-65535x1", saved(scene(65535, 1))
    yield "tall-1x65535", saved(scene(1, 65535))
    header = struct.pack(">IIBBBBB", 65535, 65535, 8, 2, 0, 0, 0)
    yield "claims-65535x65535", SIGNATURE + chunk(b"IHDR", header) + chunk(b"IEND", b"")
    yield "bytes-behind", png(COLOURS, 8) + bytes(100)


def large():
    yield "megapixels-12", saved(scene(4000, 3000))
    yield "megapixels-48", saved(scene(8064, 6048))
    yield "megapixels-108", saved(scene(12032, 9024), compress_level=1)
