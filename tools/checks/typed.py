"""QML as Qt's own tools see it: every name is known to them, and most bindings compile ahead."""

import collections
import os
import re
import shutil
import subprocess

from .tree import Unavailable

TOOLS = "/usr/lib/qt6/bin"
MODULE = "interface/qml/Leafund"
LEAST_AHEAD = 0.9  # of the bindings and functions

# What qmllint 6.4 takes for a mistake and is none.
MISTAKEN = (
    r'Property "callLater" is a QJSValue',  # Qt.callLater is a function
    r'Property "show" not found on type "QObject"',  # Qt.inputMethod is given out as an object
    r"QQmlListProperty<QObject> to QList<QObject \*>",  # an item's children are a list
    # An id outside a component, which 6.4 has no way to bind.
    r"(CampaignList|Celebration|EditMenu|Meadow|Picture)\.qml:\d+:\d+: Unqualified access",
)


def builds(project):
    """Folders of builds that know the interface's types, the latest first."""
    known = project.top.glob(f"build/*/{MODULE}/*.qmltypes")
    newest = sorted(known, key=lambda path: path.stat().st_mtime, reverse=True)
    return [path.parent.parent for path in newest]


def warnings(project, *options):
    tool = shutil.which("qmllint", path=f"{TOOLS}{os.pathsep}{os.environ['PATH']}")
    if not tool:
        raise Unavailable("qmllint is not there")
    told = subprocess.run([tool, "--version"], capture_output=True, text=True).stdout
    if " 6.4." not in told:
        raise Unavailable(f"{told.strip()} judges otherwise than 6.4")
    if not builds(project):
        raise Unavailable("nothing is built whose types it could read")
    places = subprocess.run(
        ["qmake6", "-query", "QT_INSTALL_QML"], capture_output=True, text=True, check=True
    ).stdout.strip()
    skins = [path for path in project.files(".qml") if path.startswith("interface/qml/")]
    run = subprocess.run(
        [tool, "--bare", "-I", builds(project)[0], "-I", places, *options, *skins],
        cwd=project.top, capture_output=True, text=True,
    )
    return [line for line in (run.stdout + run.stderr).splitlines() if line.startswith("Warning: ")]


def linted(project):
    return [line for line in warnings(project)
            if not any(re.search(known, line) for known in MISTAKEN)]


def bindings(project):
    """How many bindings and functions of the QML compile ahead, and for each reason where others do
    not."""
    generated = builds(project)[0].glob(".rcc/qmlcache/**/*_qml.cpp") if builds(project) else []
    ahead = sum(len(re.findall(r"\{ \d+, QMetaType", path.read_text())) for path in generated)
    reasons = collections.defaultdict(list)
    for line in warnings(project, "--compiler", "warning"):
        found = re.search(r"/([^/:]+:\d+):\d+: Could not compile [^:]*: (.*)", line)
        if found:
            place, reason = found.groups()
            reasons[re.sub(r"\b(of|with type) .*", "", reason).strip()].append(place)
    return ahead, reasons


def compiled(project):
    ahead, reasons = bindings(project)
    whole = ahead + sum(map(len, reasons.values()))
    return [] if ahead >= LEAST_AHEAD * whole else [f"{ahead} of {whole} do; tools/bindings says why"]


CHECKS = (
    ("QML names what exists", "see the line, or list qmllint's mistake in tools/checks/typed.py",
     linted),
    ("bindings compile ahead", "give what they read a type", compiled),
)
