"""Generated GIFs and WebPs."""

import io
import struct

import profiles
from jpegs import exif
from PIL import Image
from scene import scene, with_holes


def saved(picture, kind, **options):
    file = io.BytesIO()
    picture.save(file, kind, **options)
    return file.getvalue()


def gif(picture, **options):
    return saved(picture, "GIF", **options)


def descriptor_at(body):
    """Where the first frame's descriptor begins."""
    at = 13 + (3 << (body[10] & 7) + 1 if body[10] & 0x80 else 0)
    while body[at : at + 1] == b"!":
        at += 2
        while body[at]:
            at += 1 + body[at]
        at += 1
    return at


def placed(body, canvas, x, y):
    """The frame at another place of another canvas."""
    at = descriptor_at(body)
    body = body[: at + 1] + struct.pack("<HH", x, y) + body[at + 5 :]
    return body[:6] + struct.pack("<HH", *canvas) + body[10:]


def clear_index(body, index):
    """With an extension that makes a colour clear, before the first frame."""
    at = descriptor_at(body)
    return body[:at] + b"!\xf9\x04\x01\0\0" + bytes((index, 0)) + body[at:]


def gif_kinds():
    numbered = scene().quantize(64)
    still = gif(numbered)
    plain = gif(numbered, interlace=0)
    yield "still", still
    yield "plain", plain
    yield "two-colours", gif(scene(mode="1"))
    yield "two-hundred", gif(scene().quantize(256))
    yield "one-pixel", gif(scene(1, 1).quantize(2))
    yield "clear", clear_index(plain, 5)
    yield "clear-interlaced", clear_index(still, 5)
    turned = numbered.transpose(Image.Transpose.ROTATE_180)
    frames = {"save_all": True, "append_images": [turned, numbered], "duration": 100}
    yield "animated", gif(numbered, loop=0, **frames)
    yield "animated-clear", gif(with_holes(scene()), **frames)
    for name, canvas, x, y in (
        ("inside", (300, 200), 50, 40),
        ("over-the-edge", (192, 128), 60, 50),
        ("larger-than-the-canvas", (96, 64), 0, 0),
        ("beyond-the-canvas", (192, 128), 500, 500),
        ("far-beyond-the-canvas", (192, 128), 65000, 65000),
    ):
        for interlaced in (False, True):
            body = placed(still if interlaced else plain, canvas, x, y)
            yield f"frame-{name}{'-interlaced' if interlaced else ''}", body
    yield "frame-inside-clear", placed(clear_index(plain, 5), (300, 200), 50, 40)
    yield "canvas-65535", placed(plain, (65535, 65535), 0, 0)
    yield "canvas-7000", placed(plain, (7000, 7000), 0, 0)
    yield "long-65535x1", gif(scene(65535, 1).quantize(16))
    yield "tall-1x65535", gif(scene(1, 65535).quantize(16))
    for version in (b"GIF87a", b"GIF89v", b"GIF8\0\xff"):
        yield f"version-{version[4:].hex()}", version + still[6:]
    yield "without-colours", plain[:10] + bytes((plain[10] & 0x7F,)) + plain[11:13] + plain[descriptor_at(plain) :]
    yield "without-an-end", plain[:-1]
    yield "bytes-behind", plain + bytes(100)


def riff(chunks):
    body = b"".join(name + struct.pack("<I", len(data)) + data + bytes(len(data) % 2) for name, data in chunks)
    return b"RIFF" + struct.pack("<I", 4 + len(body)) + b"WEBP" + body


def webp(picture, **options):
    return saved(picture, "WEBP", **options)


def webp_kinds():
    rgb, clear = scene(), with_holes(scene())
    for name, options in {
        "lossy": {"quality": 80},
        "lossy-poor": {"quality": 5},
        "lossless": {"lossless": True},
    }.items():
        yield name, webp(rgb, **options)
        yield f"{name}-alpha", webp(clear, **options)
        for primaries, which in (("p3", profiles.DISPLAY_P3), ("adobe", profiles.ADOBE_RGB)):
            yield f"{name}-{primaries}", webp(clear, icc_profile=profiles.of_colours(which), **options)
        yield f"{name}-table", webp(rgb, icc_profile=profiles.of_tabled_colours(), **options)
        yield f"{name}-inks-profile", webp(rgb, icc_profile=profiles.of_inks(), **options)
        for orientation in (1, 3, 6, 8):
            yield f"{name}-orientation-{orientation}", webp(rgb, exif=exif(orientation), **options)
        turned = clear.transpose(Image.Transpose.ROTATE_180)
        frames = {"save_all": True, "append_images": [turned], "duration": 100}
        yield f"{name}-animated", webp(clear, **frames, **options)
    for size in ((1, 1), (1, 300), (300, 1), (16383, 1), (1, 16383), (17, 33)):
        yield f"size-{size[0]}x{size[1]}", webp(scene(*size))
        yield f"size-{size[0]}x{size[1]}-lossless", webp(scene(*size), lossless=True)
    body = webp(rgb)
    yield "canvas-larger-than-the-frame", riff([(b"VP8X", bytes(4) + b"\xff\0\0\xff\0\0"), (b"VP8 ", body[20:])])
    yield "bytes-behind", body + bytes(100)


def webp_large():
    yield "megapixels-48", webp(scene(8064, 6048), method=0)
    yield "megapixels-48-lossless", webp(scene(8064, 6048), lossless=True, method=0, quality=0)
