"""Whether what was drawn of a file is what it should be."""

import resource
import signal

import others
import rule
from PIL import Image, ImageChops, ImageStat

MOST_SECONDS = 2
MOST_KILOBYTES = 256_000_000 / 1024
# Of 255, and of all pixels the share that may differ by more than FAR. Decoders round colours and
# sample colours in ways of their own: that is 1 or 2 of 255, and more along hard edges alone. Filters
# differ more, so what was made smaller is compared at half of that size.
MOST_MEAN = 2.0
FAR = 24
MOST_FAR = 0.02
# Rows above a cut that decoders may leave out, or draw from half a block.
ROWS_OF_A_BLOCK = 16
# How a file is judged whose damage decoders take otherwise, each in its way.
BEHIND_DAMAGE = "differ behind their damage"


class Drawing:
    """One drawing at one size."""

    def __init__(self, fields):
        self.size = int(fields[0]), int(fields[1])
        self.blank = fields[2] == "1"
        self.seconds = float(fields[3])
        self.kilobytes = int(fields[4])
        self.pixels = b""


class Drawn:
    """What the program that draws answered for a file."""

    def __init__(self, line):
        fields = line.split() or ["died", "of itself"]
        self.outcome = fields[0]
        self.signal = fields[1] if self.outcome == "died" else None
        self.size = (int(fields[1]), int(fields[2])) if self.outcome == "picture" else None
        rest = fields[3:] if self.size else []
        self.drawings = [Drawing(rest[at : at + 5]) for at in range(0, len(rest), 5)]


def limit_this_process():
    resource.setrlimit(resource.RLIMIT_AS, (4 << 30, 4 << 30))
    resource.setrlimit(resource.RLIMIT_CPU, (120, 120))
    resource.setrlimit(resource.RLIMIT_CORE, (0, 0))
    signal.alarm(240)


def own_faults(first, second):
    """What needs no other decoder to be seen."""
    for drawn in (first, second):
        if drawn.outcome == "died":
            return [f"the program died by signal {drawn.signal}"]
    faults = []
    for one, other in zip(first.drawings, second.drawings):
        name = f"at {one.size[0]} by {one.size[1]}"
        seconds = min(one.seconds, other.seconds)
        if seconds > MOST_SECONDS:
            faults.append(f"{name} it takes {seconds:.1f} s")
        if one.kilobytes > MOST_KILOBYTES:
            faults.append(f"{name} it takes {one.kilobytes * 1024 // 1_000_000} MB")
        if one.pixels != other.pixels:
            faults.append(f"{name} it is drawn from memory that nobody wrote")
    return faults


def pixels_of(size, data):
    # In a mode of four plain bands, of which differences can be taken.
    return Image.frombytes("CMYK", size, data)


def last_row(picture):
    """The number of rows without those at the end that are of one and the same colour."""
    width, height = picture.size
    last = picture.getpixel((width - 1, height - 1))
    plain = Image.new(picture.mode, picture.size, last)
    box = merged(ImageChops.difference(picture, plain)).getbbox()
    return box[3] if box else 0


def merged(picture):
    """Of each pixel the greatest of its bands."""
    bands = picture.split()
    greatest = bands[0]
    for band in bands[1:]:
        greatest = ImageChops.lighter(greatest, band)
    return greatest


def difference(ours, theirs, is_scaled):
    """Nothing when they agree, or in words how much they do not."""
    if is_scaled:
        ours, theirs = ours.reduce(2), theirs.reduce(2)
    taken = ImageChops.difference(ours, theirs)
    mean = sum(ImageStat.Stat(taken).mean) / 4
    counts = merged(taken).histogram()
    far = sum(counts[FAR + 1 :]) / sum(counts)
    if mean <= MOST_MEAN and far <= MOST_FAR:
        return None
    return f"differs by {mean:.1f} of 255, and {far:.1%} of its pixels by more than {FAR}"


def damage_difference(ours, theirs, stored_height, is_scaled, body):
    """The same of what both have. Ours leaves the rest grey in a JPEG, else clear; theirs black."""
    margin = 1 + ROWS_OF_A_BLOCK * ours.height // stored_height
    have, has = last_row(ours), last_row(theirs)
    alpha = ours.getchannel(3)
    opaque = alpha.point(lambda alpha: 255 if alpha == 255 else 0)
    if alpha.getbbox() is None:
        return None if is_scaled or has <= margin else "has no pixels"
    # The end of a GIF's frame is not that of its canvas.
    if have < has - 2 * margin and rule.kind_of(body) != "GIF":
        return f"ends after {have} rows, the other after {has}"
    rows = min(have, has) - margin
    if rows < 1:
        return None
    lit = merged(Image.merge("RGB", theirs.split()[:3])).point(lambda light: 255 if light else 0)
    mask = Image.merge(ours.mode, [ImageChops.darker(opaque, lit)] * 4)
    box = (0, 0, ours.width, rows)
    ours, theirs = (ImageChops.darker(picture, mask).crop(box) for picture in (ours, theirs))
    found = difference(ours, theirs, is_scaled)
    if found and not (rule.comes_row_by_row(body) and differ_at_once(ours, theirs, margin)):
        return BEHIND_DAMAGE
    return found


def differ_at_once(ours, theirs, margin):
    """Whether they differ in the first rows already."""
    box = (0, 0, ours.width, min(ours.height, 8 * margin))
    return difference(ours.crop(box), theirs.crop(box), False) is not None


def compare(path, body, drawing, stored):
    """How it was compared, and what is wrong."""
    is_scaled = drawing.size not in (stored, stored[::-1])
    ours = None if drawing.blank else pixels_of(drawing.size, drawing.pixels)
    said, seen, behind = [], None, False
    for name, is_whole, picture in others.drawings(path, body, drawing.size):
        theirs = pixels_of(picture.size, picture.tobytes())
        if ours is None:
            found = "is blank"
        elif is_whole:
            found = difference(ours, theirs, is_scaled)
        else:
            found = damage_difference(ours, theirs, stored[1], is_scaled, body)
        word = "whole" if is_whole else "damaged"
        if found is None:
            return f"agree, {word}", None
        if found == BEHIND_DAMAGE:
            behind = True
            continue
        seen = seen or word
        said.append(f"{name} {found}" if ours else f"{name} draws it, and ours is blank")
    if behind:
        return BEHIND_DAMAGE, None
    if not said:
        return "not compared, for no other decoder draws them", None
    return f"disagree, {seen}", "; ".join(said)


def bytes_a_pixel(body):
    """At least: libwebp keeps lossless pixels twice."""
    return 9 if body[8:16] == b"WEBPVP8L" else 4


def verdict(path, first, second):
    """A word for how a file was judged, and what is wrong with it."""
    body = path.read_bytes()
    stored = rule.stored_size(body)
    faults = own_faults(first, second)
    if first.outcome == "died":
        return "died", faults
    if (first.outcome == "picture") != bool(stored):
        return "refused or taken wrongly", [*faults, f"{first.outcome}, and the rule: {stored}"]
    if not stored:
        return "no pictures", faults
    if first.size not in (stored, stored[::-1]):
        faults.append(f"its size is {first.size}, and the rule: {stored}")
    # Bounds that are told in the decision: what would take more memory than that is blank.
    if first.drawings[0].blank and bytes_a_pixel(body) * stored[0] * stored[1] > 256_000_000:
        return "blank, for they would take too much", faults
    word = "agree"
    for drawing in first.drawings:
        word, found = compare(path, body, drawing, stored)
        if found:
            faults.append(f"at {drawing.size[0]} by {drawing.size[1]}: {found}")
        if found or word == BEHIND_DAMAGE:
            break
    return word, faults
