"""What independent decoders make of a picture: Pillow, and where that does not agree, ImageMagick.

Upright by Exif, in sRGB by its profile, what is clear kept, at the size asked for.
"""

import io
import shutil
import struct
import subprocess
import warnings

import profiles
import rule
from PIL import Image, ImageCms, ImageFile, ImageOps

Image.MAX_IMAGE_PIXELS = None
warnings.simplefilter("ignore")
SRGB = ImageCms.createProfile("sRGB")
SPACES = {"GRAY": "L", "RGB ": "RGB", "CMYK": "CMYK"}
PATIENCE = 60  # seconds
# As Debian calls it beside other things of that name, as of version 7, and as of old.
CONVERT = next(filter(shutil.which, ("convert-im6.q16", "magick", "convert")), "convert")


def png_chunks(body):
    at = 8
    while at + 12 <= len(body):
        length, name = struct.unpack(">I4s", body[at : at + 8])
        if name == b"IDAT":
            return
        yield name, body[at + 8 : at + 8 + length]
        at += 12 + length


def png_profile(body):
    """What a PNG says of its colours without a profile, as one; nothing where it is sRGB."""
    chunks = dict(png_chunks(body))
    if b"sRGB" in chunks or len(chunks.get(b"gAMA", b"")) != 4:
        return None
    gamma = struct.unpack(">I", chunks[b"gAMA"])[0] / 100_000
    if not 0.00016 <= gamma <= 6250:
        return None
    # Most write a gamma of 1 / 2.2 and mean sRGB.
    shown = 1 / gamma if abs(gamma * 2.2 - 1) > 0.05 else profiles.SRGB_CURVE
    if len(chunks.get(b"cHRM", b"")) != 32:
        return profiles.of_colours(gamma=shown) if shown is not profiles.SRGB_CURVE else None
    at = [number / 100_000 for number in struct.unpack(">8I", chunks[b"cHRM"])]
    white, *primaries = zip(at[::2], at[1::2])
    try:
        return profiles.of_colours(primaries, shown, white)
    except (ZeroDivisionError, struct.error):
        return None


def in_srgb(picture, icc, body):
    """RGBA, from whatever the picture has: by its profile, or by what a PNG tells in place of one."""
    is_png = rule.kind_of(body) == "PNG"
    is_greys_alone = icc and is_png
    if is_png:
        icc = icc or png_profile(body)
    has_alpha = "A" in picture.mode or "a" in picture.mode or "transparency" in picture.info
    if picture.mode in ("I", "I;16", "I;16B"):  # Pillow cuts off what is above 255.
        picture = picture.convert("I").point(lambda light: light / 257).convert("L")
    base = {"1": "L", "LA": "L", "L": "L", "CMYK": "CMYK"}.get(picture.mode, "RGB")
    alpha = None
    if has_alpha:
        alpha = picture.convert("RGBA").getchannel("A")
        base = "L" if picture.mode in ("L", "LA", "1") else "RGB"
    flat = picture.convert("RGBA").convert("RGB") if has_alpha else picture
    flat = flat.convert(base)
    try:
        known = ImageCms.ImageCmsProfile(io.BytesIO(icc)) if icc else None
        space = SPACES.get(known.profile.xcolor_space) if known else None
        # PNG allows a grey picture no other profile, and readers pass over it.
        if space == "RGB" and base == "L" and not is_greys_alone:
            flat = flat.convert(base := "RGB")
        if space == base:
            flat = ImageCms.profileToProfile(
                flat, known, SRGB, ImageCms.Intent.PERCEPTUAL, outputMode="RGB"
            )
    except (ImageCms.PyCMSError, OSError, ValueError):
        pass
    flat = flat.convert("RGB")
    if alpha:
        flat.putalpha(alpha)
    return flat.convert("RGBA")


def at_size(picture, size):
    picture = picture.convert("RGBa")
    return picture if picture.size == size else picture.resize(size, Image.Resampling.BOX)


def by_pillow(path, body, size, lenient=False):
    """Premultiplied RGBA, or nothing."""
    ImageFile.LOAD_TRUNCATED_IMAGES = lenient
    try:
        picture = Image.open(path)
        canvas = rule.stored_size(body)
        icc = picture.info.get("icc_profile")
        orientation = picture.getexif().get(0x0112, 1)
        if picture.format == "JPEG":
            turned = isinstance(orientation, int) and orientation >= 5
            picture.draft(None, size[::-1] if turned else size)
        extent = picture.tile[0][1] if picture.format == "GIF" and picture.tile else None
        picture.load()
        if picture.format == "PNG":
            orientation = picture.getexif().get(0x0112, 1)
        shown = in_srgb(picture, icc, body)
        if extent:  # Pillow fills the rest of the canvas, and lets it grow.
            frame = shown.crop(extent)
            shown = Image.new("RGBA", canvas)
            shown.paste(frame, extent[:2])
        shown.getexif()[0x0112] = orientation
        return at_size(ImageOps.exif_transpose(shown), size)
    except Exception:  # pylint: disable=broad-except # Whatever it is, it draws nothing.
        return None


def by_imagemagick(path, body, size):
    kind = rule.kind_of(body)
    command = [CONVERT, f"{kind.lower()}:{path}[0]", "-auto-orient"]
    if kind == "GIF":
        command.append("-coalesce")  # on its canvas
    picture = subprocess.run(
        [*command, "-depth", "8", "tiff:-"], capture_output=True, timeout=PATIENCE, check=False
    )
    try:
        read = Image.open(io.BytesIO(picture.stdout))
        return at_size(in_srgb(read, read.info.get("icc_profile"), body), size)
    except Exception:  # pylint: disable=broad-except
        return None


def kind_and_interlacing(body):
    return (body[25:26], body[28:29]) if rule.kind_of(body) == "PNG" else None


def shows_something(picture):
    """Where decoders find nothing, they may say so by one colour."""
    return any(low != high for low, high in picture.getextrema())


def drawings(path, body, size):
    """One after the other: who drew it, whether it found nothing wrong, and the pixels."""
    strict = by_pillow(path, body, size)
    if strict:
        yield "Pillow", True, strict
    magick = by_imagemagick(path, body, size)
    if magick and (strict or shows_something(magick)):
        yield "ImageMagick", bool(strict), magick
    # What is missing of these, it paints in any colour.
    passes_of_palette = kind_and_interlacing(body) == (b"\3", b"\1")
    lenient = None if strict or passes_of_palette else by_pillow(path, body, size, lenient=True)
    if lenient and shows_something(lenient):
        yield "Pillow, leniently,", False, lenient
