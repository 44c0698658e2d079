"""The tree itself: its files, their names and sizes, the pictures, the words that stay out."""

import collections
import pathlib
import re
import subprocess

LIMITS = {".h": 250, ".cpp": 250, ".js": 250, ".mjs": 250, ".py": 250, ".sh": 250, "": 250, ".qml": 200}
REPEATED = {"CMakeLists.txt", "README.md", "main.cpp", "package.json", "package-lock.json", "run"}


class Unavailable(Exception):
    """What a check would need and this machine does not have."""


class Project:
    """The files that are tracked, or would be; of a tree without a repository all but what is built."""

    def __init__(self, top):
        self.top = pathlib.Path(top)
        paths = self._tracked() if (self.top / ".git").exists() else self._found()
        self.all = sorted(path for path in paths if (self.top / path).is_file())
        self.texts = {}

    def _tracked(self):
        # The tree may belong to another user than the one who checks it, as in a container.
        git = ["git", "-c", f"safe.directory={self.top}", "-C", self.top]
        tracked = ["ls-files", "-z", "--cached", "--others", "--exclude-standard"]
        listed = subprocess.run([*git, *tracked], check=True, capture_output=True, text=True)
        return set(listed.stdout.split("\0")) - {""}

    def _found(self):
        paths = (str(path.relative_to(self.top)) for path in self.top.rglob("*"))
        return {path for path in paths if not path.startswith("build/") and "__pycache__" not in path}

    def files(self, *suffixes):
        return [path for path in self.all if pathlib.Path(path).suffix in suffixes]

    def text(self, path):
        if path not in self.texts:
            self.texts[path] = (self.top / path).read_text(encoding="utf-8", errors="replace")
        return self.texts[path]

    def scripts(self):
        return [path for path in self.files("") if self.text(path).startswith("#!")]


def unique_names(project):
    places = collections.defaultdict(list)
    for path in project.all:
        places[pathlib.Path(path).name].append(path)
    return [
        " and ".join(paths)
        for name, paths in places.items()
        if len(paths) > 1 and name not in REPEATED
    ]


def small_files(project):
    found = []
    for path in project.files(*LIMITS.keys() - {""}) + project.scripts():
        length = project.text(path).count("\n")
        if length > LIMITS[pathlib.Path(path).suffix]:
            found.append(f"{path} has {length} lines")
    return found


def pictures(project):
    seeds = project.text("model/SeedCampaigns.cpp") + project.text("model/PictureHost.cpp")
    found = []
    for name in sorted(set(re.findall(r'"([\w-]+\.(?:jpe?g|png|gif|svg))"', seeds))):
        path = project.top / "pictures" / name
        body = path.read_bytes() if path.exists() else b""
        if f"pictures/{name}" not in project.all:
            found.append(f"pictures/{name} is missing")
        elif not (body.startswith(b"\xff\xd8\xff") and body.endswith(b"\xff\xd9")):
            found.append(f"pictures/{name} is no whole JPEG")
        elif len(body) >= 80_000:
            found.append(f"pictures/{name} has {len(body)} bytes")
    return found or ([] if "pictureFile" in seeds else ["model/SeedCampaigns.cpp names no picture"])


def foreign_words(project):
    # In pieces, so that this file does not hold them.
    pieces = (
        r"\bspeci" + r"fications?\b",
        r"\bPa" + r"rts? \d+\.\d+",
        r"(?<![\w.])/(wo" + r"rk|ro" + r"ot|ho" + r"me)/\w",
        r"\b(reg" + r"istry|deb|pypi)\.[a-z]+\.(org|com|net)\b",
    )
    wanted = re.compile("|".join(pieces), re.I)
    return [
        f"{path}:{number}  {line.strip()[:100]}"
        for path in project.all
        if pathlib.Path(path).suffix not in {".jpg", ".png"}
        for number, line in enumerate(project.text(path).splitlines(), 1)
        if wanted.search(line)
    ]


CHECKS = (
    ("file names are unique", "rename one of them", unique_names),
    ("files are small", "cut it in two along its subject", small_files),
    ("pictures are there", "make them with pictures/make; JPEG, under 80,000 bytes", pictures),
    ("no foreign words", "give the reason instead, and no path of one machine", foreign_words),
)
