"""Generated JPEGs: every kind of coding, colour, orientation and size."""

import io
import struct
import subprocess
import tempfile

import profiles
from PIL import Image
from scene import scene


def jpeg(picture, **options):
    file = io.BytesIO()
    picture.save(file, "JPEG", quality=options.pop("quality", 90), **options)
    return file.getvalue()


def by_cjpeg(picture, *options):
    file = io.BytesIO()
    picture.save(file, "PPM")
    command = ["cjpeg", "-quality", "90", *options]
    return subprocess.run(command, input=file.getvalue(), capture_output=True, check=True).stdout


def segment(marker, data):
    return struct.pack(">BBH", 0xFF, marker, len(data) + 2) + data


def without_application(body, marker):
    """Without the first segment of that marker."""
    at = body.index(bytes((0xFF, marker)))
    return body[:at] + body[at + 2 + int.from_bytes(body[at + 2 : at + 4], "big") :]


def exif(orientation, order="<"):
    start = {"<": b"II*\0", ">": b"MM\0*"}[order]
    entry = struct.pack(order + "HHIHH", 0x0112, 3, 1, orientation, 0)
    return b"Exif\0\0" + start + struct.pack(order + "IH", 8, 1) + entry + bytes(4)


def exif_with(orientation, kind, count=1, others=0):
    """Told as bytes or short numbers, or behind other entries, in a directory that stands further back."""
    value = struct.pack("<BBxx" if kind == 1 else "<HH", orientation, 0)
    entries = [struct.pack("<HHI", 0x0100 + at, 3, 1) + bytes(4) for at in range(others)]
    entries.append(struct.pack("<HHI", 0x0112, kind, count) + value)
    directory = struct.pack("<H", len(entries)) + b"".join(entries) + bytes(4)
    return b"Exif\0\0II*\0" + struct.pack("<I", 40) + bytes(32) + directory


def frame_at(body):
    return next(at for at in range(len(body)) if body[at : at + 2] in (b"\xff\xc0", b"\xff\xc2"))


def claiming(body, marker, bits=8, size=None):
    """The body with another kind of frame, depth of samples or size (width, height)."""
    at = frame_at(body)
    sides = struct.pack(">HH", size[1], size[0]) if size else body[at + 5 : at + 9]
    return body[:at] + bytes((0xFF, marker)) + body[at + 2 : at + 4] + bytes((bits,)) + sides + body[at + 9 :]


def with_scans(body, times):
    """The last scan so many times over."""
    last = body.rindex(b"\xff\xda")
    return body[:last] + body[last:-2] * times + b"\xff\xd9"


def inks(picture):
    """Some black among them."""
    cyan, magenta, yellow, _ = picture.convert("CMYK").split()
    black = Image.linear_gradient("L").resize(picture.size).point(lambda light: light // 2)
    return Image.merge("CMYK", (cyan, magenta, yellow, black))


def kinds():
    rgb, grey = scene(), scene(mode="L")
    cmyk = inks(rgb)
    yield "baseline", jpeg(rgb)
    yield "optimised", jpeg(rgb, optimize=True, quality=30)
    yield "progressive", jpeg(rgb, progressive=True)
    yield "progressive-grey", jpeg(grey, progressive=True)
    yield "arithmetic", by_cjpeg(rgb, "-arithmetic")
    yield "arithmetic-progressive", by_cjpeg(rgb, "-arithmetic", "-progressive")
    yield "grey", jpeg(grey)
    for sampling in ("1x1", "2x1", "1x2", "2x2", "4x1", "4x2", "3x1,1x1", "2x2,2x1"):
        yield f"sampling-{sampling.replace(',', '-')}", by_cjpeg(rgb, "-sample", sampling)
    yield "rgb", by_cjpeg(rgb, "-rgb")
    yield "restart-1-block", by_cjpeg(rgb, "-restart", "1B")
    yield "restart-2-rows", by_cjpeg(rgb, "-restart", "2", "-progressive")
    yield "cmyk", jpeg(cmyk)
    yield "cmyk-progressive", jpeg(cmyk, progressive=True)
    ycck = jpeg(cmyk).replace(b"Adobe\0d\0\0\0\0\0", b"Adobe\0d\0\0\0\0\2")
    yield "ycck", ycck
    yield "cmyk-without-adobe", without_application(jpeg(cmyk), 0xEE)
    for size in ((1, 1), (7, 9), (1, 300), (300, 1), (17, 33), (8, 16)):
        yield f"size-{size[0]}x{size[1]}", jpeg(scene(*size))
        yield f"size-{size[0]}x{size[1]}-progressive", jpeg(scene(*size), progressive=True)
    yield "long-65500x1", jpeg(scene(65500, 1))
    yield "tall-1x65500", jpeg(scene(1, 65500))
    yield "long-65535x8", claiming(jpeg(scene(65500, 8)), 0xC0, size=(65535, 8))
    yield "tall-8x65535", claiming(jpeg(scene(8, 65500)), 0xC0, size=(8, 65535))
    yield "claims-65535x65535", claiming(jpeg(rgb), 0xC0, size=(65535, 65535))
    yield "12-bit", claiming(jpeg(rgb), 0xC1, bits=12)
    yield "lossless", claiming(jpeg(rgb), 0xC3)
    yield "extended", claiming(jpeg(rgb), 0xC1)
    yield "bytes-before-a-marker", jpeg(rgb).replace(b"\xff\xdb", b"\0\0\xff\xff\xdb", 1)
    yield "bytes-behind", jpeg(rgb) + bytes(500)
    for orientation in range(9):
        order = "<>"[orientation % 2]
        yield f"orientation-{orientation}", jpeg(rgb, exif=exif(orientation, order))
    yield "orientation-6-progressive", jpeg(rgb, exif=exif(6), progressive=True)
    yield from coloured(rgb, grey, cmyk)
    yield from odd(rgb, grey)


def odd(rgb, grey):
    """What cameras, scanners and broken copies write."""
    plain = jpeg(rgb)
    with tempfile.NamedTemporaryFile("w", suffix=".scans") as scans:
        scans.write("0;\n1;\n2;\n")
        scans.flush()
        apart = by_cjpeg(rgb, "-scans", scans.name)
    yield "components-apart", apart
    # Its first scan alone.
    starts = [at for at in range(len(apart)) if apart[at : at + 2] == b"\xff\xda"]
    yield "components-missing", apart[: starts[1]] + b"\xff\xd9"
    yield "tables-of-16-bits", by_cjpeg(rgb, "-quality", "1")
    yield "tables-of-camera", without_application(plain, 0xC4)
    yield "end-missing", plain[:-2]
    yield "end-twice", plain + b"\xff\xd9"
    yield "start-twice", plain[:2] + plain
    yield "second-picture", plain + jpeg(grey)
    yield "second-frame", plain[: frame_at(plain)] + segment(0xC0, b"\x08\0\x08\0\x08\1\1\x11\0") + plain[frame_at(plain) :]
    yield "height-told-later", claiming(plain, 0xC0, size=(192, 0))
    yield "components-five", plain.replace(b"\x08\0\x80\0\xc0\x03", b"\x08\0\x80\0\xc0\x05", 1)
    restarts = by_cjpeg(rgb, "-restart", "1")
    third = restarts.index(b"\xff\xd2")
    yield "restart-missing", restarts[:third] + restarts[third + 2 :]
    yield "restart-wrong", restarts[:third] + b"\xff\xd6" + restarts[third + 2 :]
    jfif = b"JFIF\0\1\2\0\0\1\0\1"
    yield "thumbnail", plain[:2] + segment(0xE0, jfif + b"\x10\x10" + bytes(768)) + without_application(plain, 0xE0)[2:]
    words = segment(0xE1, b"http://ns.adobe.com/xap/1.0/\0<x:xmpmeta/>")
    # Not one of 32 bits, which browsers and we pass over, and Pillow takes.
    for name, told in (
        ("of-8-bits", exif_with(6, 1)),
        ("of-several", exif_with(6, 3, count=2)),
        ("behind-others", exif_with(6, 3, others=20)),
        ("in-a-cut-directory", exif_with(6, 3, others=20)[:100]),
    ):
        yield f"orientation-{name}", plain[:2] + words + segment(0xE1, told) + plain[2:]
    yield "orientation-twice", plain[:2] + segment(0xE1, exif(8)) + segment(0xE1, exif(3)) + plain[2:]


def coloured(rgb, grey, cmyk):
    for name, primaries, gamma in (
        ("srgb", profiles.SRGB, profiles.SRGB_CURVE),
        ("p3", profiles.DISPLAY_P3, profiles.SRGB_CURVE),
        ("adobe", profiles.ADOBE_RGB, 563 / 256),
        ("linear", profiles.SRGB, 1.0),
    ):
        icc = profiles.of_colours(primaries, gamma)
        yield f"profile-{name}", jpeg(rgb, icc_profile=icc)
        yield f"profile-{name}-grey", jpeg(grey, icc_profile=icc)
        yield f"profile-{name}-cmyk", jpeg(cmyk, icc_profile=icc)
    tabled = profiles.of_tabled_colours()
    yield "profile-table", jpeg(rgb, icc_profile=tabled)
    yield "profile-of-several-segments", jpeg(rgb, icc_profile=tabled + bytes(150_000))
    yield "profile-grey-gamma", jpeg(grey, icc_profile=profiles.of_greys(1.2))
    yield "profile-grey-of-colours", jpeg(rgb, icc_profile=profiles.of_greys(1.2))
    yield "profile-inks", jpeg(cmyk, icc_profile=profiles.of_inks())
    yield "profile-inks-progressive", jpeg(cmyk, icc_profile=profiles.of_inks(), progressive=True)
    yield "profile-inks-of-colours", jpeg(rgb, icc_profile=profiles.of_inks())
    yield "profile-cut", jpeg(rgb, icc_profile=tabled[:300])
    yield "profile-of-nothing", jpeg(rgb, icc_profile=b"x" * 200)


def large():
    """What takes long or is large."""
    for name, size in (("48", (8064, 6048)), ("108", (12032, 9024)), ("panorama", (15000, 2300))):
        picture = scene(*size)
        yield f"megapixels-{name}", jpeg(picture)
        yield f"megapixels-{name}-progressive", jpeg(picture, progressive=True)
        yield f"megapixels-{name}-inks", jpeg(inks(picture), icc_profile=profiles.of_inks())
    progressive = jpeg(scene(1600, 1600), progressive=True, quality=20)
    for times in (400, 20_000):
        yield f"scans-{times}", with_scans(progressive, times)
    plain = jpeg(scene())
    for name, marker in (("profiles", 0xE2), ("comments", 0xFE)):
        yield f"segments-of-{name}", plain[:2] + 200_000 * segment(marker, b"") + plain[2:]
    # What the header's reader does not pass over, but the decoder does.
    yield "segments-behind-the-frame", plain[: plain.index(b"\xff\xda")] + 200_000 * segment(0xE2, b"")
