"""What the generated pictures show: smooth, with edges, every corner another, and hard to pack below."""

import random

from PIL import Image, ImageDraw


def scene(width=192, height=128, mode="RGB"):
    across = Image.linear_gradient("L").rotate(90).resize((width, height))
    down = Image.linear_gradient("L").resize((width, height))
    lower = (width, max(1, height // 2))
    noise = Image.frombytes("L", lower, random.Random(1).randbytes(lower[0] * lower[1]))
    blue = Image.new("L", (width, height), 96)
    blue.paste(noise.point(lambda light: 64 + light // 4), (0, height - lower[1]))
    picture = Image.merge("RGB", (across, down, blue))
    draw = ImageDraw.Draw(picture)
    draw.rectangle((width // 12, height // 8, width // 3, height // 3), fill="red")
    draw.ellipse((width // 2, height // 4, width * 7 // 8, height * 3 // 4), fill="#20c060")
    draw.rectangle((0, height * 7 // 8, width // 8, height), fill="blue")
    return picture if mode == "RGB" else picture.convert(mode)


def with_holes(picture):
    """Clear in one corner, half clear in the next."""
    width, height = picture.size
    alpha = Image.new("L", picture.size, 255)
    ImageDraw.Draw(alpha).rectangle((0, 0, width // 3, height // 2), fill=0)
    ImageDraw.Draw(alpha).rectangle((width // 3, 0, width * 2 // 3, height // 2), fill=128)
    picture = picture.convert("RGBA")
    picture.putalpha(alpha)
    return picture
