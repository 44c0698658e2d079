"""Colour profiles, written byte by byte: of colours, of greys and of inks, by formula or by table."""

import struct

D50 = (0.9642, 1.0, 0.8249)
D65 = (0.3127, 0.3290)
SRGB = ((0.64, 0.33), (0.30, 0.60), (0.15, 0.06))
DISPLAY_P3 = ((0.680, 0.320), (0.265, 0.690), (0.150, 0.060))
ADOBE_RGB = ((0.64, 0.33), (0.21, 0.71), (0.15, 0.06))
SRGB_CURVE = (2.4, 1 / 1.055, 0.055 / 1.055, 1 / 12.92, 0.04045)
BRADFORD = ((0.8951, 0.2664, -0.1614), (-0.7502, 1.7135, 0.0367), (0.0389, -0.0685, 1.0296))


def times(matrix, vector):
    return tuple(sum(a * b for a, b in zip(row, vector)) for row in matrix)


def product(left, right):
    columns = [times(left, column) for column in zip(*right)]
    return tuple(zip(*columns))


def inverse(m):
    (a, b, c), (d, e, f), (g, h, i) = m
    whole = a * (e * i - f * h) - b * (d * i - f * g) + c * (d * h - e * g)
    parts = (
        (e * i - f * h, c * h - b * i, b * f - c * e),
        (f * g - d * i, a * i - c * g, c * d - a * f),
        (d * h - e * g, b * g - a * h, a * e - b * d),
    )
    return tuple(tuple(part / whole for part in row) for row in parts)


def tristimulus(x, y):
    return x / y, 1.0, (1 - x - y) / y


def to_d50(primaries, white):
    """From linear light of these primaries to XYZ as profiles have it, adapted to D50."""
    lights = tuple(zip(*(tristimulus(*primary) for primary in primaries)))
    shares = times(inverse(lights), tristimulus(*white))
    matrix = tuple(tuple(a * b for a, b in zip(row, shares)) for row in lights)
    was, becomes = times(BRADFORD, tristimulus(*white)), times(BRADFORD, D50)
    scaled = tuple(
        tuple(becomes[at] / was[at] if at == other else 0 for other in range(3)) for at in range(3)
    )
    return product(product(inverse(BRADFORD), product(scaled, BRADFORD)), matrix)


def fixed(number):
    return struct.pack(">i", round(number * 65536))


def curve(gamma):
    """A power, or the five numbers of a curve that begins straight."""
    if isinstance(gamma, tuple):
        return b"para" + bytes(4) + struct.pack(">HH", 3, 0) + b"".join(map(fixed, gamma))
    return b"para" + bytes(4) + struct.pack(">HH", 0, 0) + fixed(gamma)


def profile(space, connection, tags):
    kind = b"prtr" if space == b"CMYK" else b"mntr"
    tags = {b"wtpt": b"XYZ " + bytes(4) + b"".join(map(fixed, D50)), **tags}
    table, data = b"", b""
    for name, tag in tags.items():
        tag += bytes(-len(tag) % 4)
        table += name + struct.pack(">II", 132 + 12 * len(tags) + len(data), len(tag))
        data += tag
    header = struct.pack(">I4sI4s4s4s", 0, bytes(4), 0x04200000, kind, space, connection)
    header += bytes(12) + b"acsp" + bytes(28) + b"".join(map(fixed, D50))
    header += bytes(128 - len(header))
    whole = header + struct.pack(">I", len(tags)) + table + data
    return struct.pack(">I", len(whole)) + whole[4:]


def of_colours(primaries=SRGB, gamma=SRGB_CURVE, white=D65):
    columns = zip(*to_d50(primaries, white))
    tags = {
        name + b"XYZ": b"XYZ " + bytes(4) + b"".join(map(fixed, column))
        for name, column in zip((b"r", b"g", b"b"), columns)
    }
    tags.update({name + b"TRC": curve(gamma) for name in (b"r", b"g", b"b")})
    return profile(b"RGB ", b"XYZ ", tags)


def of_greys(gamma):
    return profile(b"GRAY", b"XYZ ", {b"kTRC": curve(gamma)})


def lab(red, green, blue):
    """Of linear light of sRGB, in 8 bits as tables of profiles have it."""
    ratios = [a / b for a, b in zip(times(to_d50(SRGB, D65), (red, green, blue)), D50)]
    x, y, z = (r ** (1 / 3) if r > 0.008856 else 7.787 * r + 16 / 116 for r in ratios)
    numbers = ((116 * y - 16) * 2.55, 500 * (x - y) + 128, 200 * (y - z) + 128)
    return bytes(min(255, max(0, round(number))) for number in numbers)


def of_table(space, colour, grid=9):
    """What `colour` makes, in linear light, of each crossing of a grid, tabled."""
    count = 4 if space == b"CMYK" else 3
    points = bytearray()
    for index in range(grid**count):
        at = [index // grid**place % grid / (grid - 1) for place in range(count)][::-1]
        points += lab(*colour(*at))
    straight = bytes(range(256))
    unit = b"".join(fixed(1.0 if at % 4 == 0 else 0.0) for at in range(9))
    table = b"mft1" + bytes(4) + bytes((count, 3, grid, 0)) + unit
    table += straight * count + bytes(points) + straight * 3
    return profile(space, b"Lab ", {b"A2B0": table})


def of_inks():
    """Inks that are none too clear, so that the profile is seen to count."""
    return of_table(
        b"CMYK",
        lambda c, m, y, k: tuple((1 - 0.9 * ink) * (1 - 0.95 * k) for ink in (c, m, y)),
    )


def of_tabled_colours():
    """A table alone, and one that turns the colours round."""
    return of_table(b"RGB ", lambda r, g, b: (g * g, b * b, r * r))
