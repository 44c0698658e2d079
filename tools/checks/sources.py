"""C++ as its own tools see it. QML is read by the build."""

import concurrent.futures
import os
import re
import shutil
import subprocess

from mistakes import mutants

from .tree import Unavailable

FORMAT = "clang-format-19"
KEYWORDS = {"if", "for", "while", "switch", "return", "sizeof", "decltype", "noexcept", "requires"}


def told(command, top):
    """What a command complains about; nothing when it is content."""
    run = subprocess.run(command, cwd=top, capture_output=True, text=True)
    return (run.stdout + run.stderr).strip().splitlines()[:3] if run.returncode else []


def each(project, paths, command):
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        answers = pool.map(lambda path: told(command(path), project.top), paths)
        return [line for answer in answers for line in answer]


def headers(project):
    """The build proves a header that its own source includes first; the others are tried here."""

    def proved(path):
        source = path.removesuffix("h") + "cpp"
        if source not in project.all:
            return False
        return re.findall(r'#include\s+["<]([^">]+)', project.text(source))[0] == path

    far = ("platform/qt/", "interface/qml/", "tests/", "bench/")
    paths = [path for path in project.files(".h") if not path.startswith(far) and not proved(path)]
    alone = ["g++", "-std=c++20", "-fsyntax-only", "-I.", "-x", "c++", "/dev/null", "-include"]
    return each(project, paths, lambda path: [*alone, path])


def guards(project):
    return [path for path in project.files(".h") if "#pragma once" not in project.text(path)]


def formatted(project):
    if not shutil.which(FORMAT):
        raise Unavailable(f"{FORMAT} is not there, and others set the lines otherwise")
    told_of = each(
        project, project.files(".h", ".cpp"), lambda path: [FORMAT, "--dry-run", "--Werror", path]
    )
    named = {line.split(":")[0] for line in told_of if "clang-formatted" in line}
    return sorted(named or set(told_of))


OPERATION = re.compile(
    r"^\s+(?:[\w:<>,&*\s\[\]]+[\s&*])(\w+)\([^;{]*\)[^;{()]*[;{]", re.M
)


def operations(text):
    """The names of a header's public operations, roughly."""
    text = re.sub(r"//.*|/\*.*?\*/", "", text)
    for section in re.split(r"^\s*(?=public:|protected:|private:)", text, flags=re.M):
        if section.startswith(("protected:", "private:")):
            continue
        for name in OPERATION.findall(section):
            if name not in KEYWORDS and name[0].islower() and not name.endswith("_"):
                yield name


# Toolkit operations that the application never calls, and why they are there all the same.
KEPT = {
    "actionsForControlEvent": "names the action that a control is wired to, which its effect does not",
    "releaseView": "a screen whose view went and came again is a case that every screen must survive",
    "rowHeight": "a table remembers what it is told, and is laid out by its delegate all the same",
    "unconnectedOutlets": "an outlet without a view ends the process only when it is used",
}


def callers(project):
    """Operations without a caller in the application, and kept ones that have one or are gone. Tests
    are no callers: what they alone call, no user can meet."""
    everything = {
        path: project.text(path)
        for path in project.files(".h", ".cpp")
        if not path.startswith(("tests/", "bench/"))
    }
    unused = {}
    for path in everything:
        if not path.startswith("platform/uikit/") or not path.endswith(".h"):
            continue
        own = {path, path.removesuffix("h") + "cpp"}
        others = "\n".join(text for other, text in everything.items() if other not in own)
        for name in dict.fromkeys(operations(everything[path])):
            if not re.search(rf"\b{name}\b", others):
                unused[name] = path
    return [f"{path}: {name}" for name, path in unused.items() if name not in KEPT] + [
        f"tools/checks/sources.py: {name} need not be kept" for name in KEPT if name not in unused
    ]


def stale_mistakes(_project):
    return [mutant.headline for mutant in mutants() if mutant.stale()]


CHECKS = (
    ("headers stand alone", "include in the header what it uses", headers),
    ("headers are read once", "begin it with #pragma once", guards),
    ("C++ is formatted", f"{FORMAT} -i on the files named", formatted),
    ("toolkit operations are used", "take the operation away, or use it", callers),
    ("mistakes can be made", "give tools/mutants.d the text as it stands, once", stale_mistakes),
)
