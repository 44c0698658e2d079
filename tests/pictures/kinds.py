"""Pictures of every kind, generated: the same bytes each time."""

import gifs
import jpegs
import pngs

CUTS = (5, 25, 50, 75, 95)  # percent
WHOLE = ("canvas-", "claims-", "long-", "tall-", "size-", "damage-", "orientation-")  # not worth cutting
SMALL = {"jpg": jpegs.kinds, "png": pngs.kinds, "gif": gifs.gif_kinds, "webp": gifs.webp_kinds}
LARGE = {"jpg": jpegs.large, "png": pngs.large, "webp": gifs.webp_large}


def write(folder, which):
    """The small ones, each cut at several places, too; or the large and the hostile ones."""
    folder.mkdir(parents=True, exist_ok=True)
    for ending, kinds in (LARGE if which == "large" else SMALL).items():
        for name, body in kinds():
            (folder / f"{ending}-{name}.{ending}").write_bytes(body)
            for cut in () if which == "large" or name.startswith(WHOLE) else CUTS:
                rest = body[: len(body) * cut // 100]
                (folder / f"{ending}-{name}-cut-{cut}.{ending}").write_bytes(rest)
