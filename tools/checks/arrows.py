"""Who may include whom: arrows between rooms run one way."""

import re

BELOW_UIKIT = {"platform", "platform/foundation", "platform/dispatch", "platform/graphics"}
TOOLKIT = BELOW_UIKIT | {"platform/uikit"}

# A room, and the rooms it may include besides itself. The longest name that fits is a file's room.
ARROWS = {
    "model": set(),
    **{room: BELOW_UIKIT for room in BELOW_UIKIT},
    "platform/uikit": BELOW_UIKIT,
    "platform/display": TOOLKIT,
    "platform/headless": TOOLKIT,
    "platform/curl": {"platform", "platform/foundation"},
    "platform/qt": TOOLKIT | {"platform/display", "platform/curl"},
    "interface/qml": TOOLKIT | {"platform/display", "platform/qt"},
    "platform/web": TOOLKIT | {"platform/display"},
    "screens": {"model"} | TOOLKIT,
    "interface/scenes": {"model", "screens"} | TOOLKIT,
    "shell": {"model", "screens", "interface/scenes"} | TOOLKIT,
}
# What puts a host's program together; tests and benchmarks may stand on anything.
FREE = ("shell/main.cpp", "shell/WebMain.cpp", "tests/", "bench/")

# A library, the includes that betray it, and the rooms that may use it.
LIBRARIES = (
    ("Qt", r"<(Q[A-Z]|Qt[A-Z])", "platform/qt", "interface/qml"),
    ("ICU", r"<unicode/", "platform/foundation"),
    ("uriparser", r"<uriparser/", "tests/support"),
    ("libcurl", r"<curl/", "platform/curl"),
    ("libjpeg", r"<jpeglib", "platform/qt"),
    ("libpng", r"<png\.h", "platform/qt"),
    ("giflib", r"<gif_lib\.h", "platform/qt"),
    ("Little CMS", r"<lcms2\.h", "platform/qt"),
    ("libwebp", r"<webp/", "platform/qt"),
)


def room_of(path):
    fitting = [room for room in ARROWS if path.startswith(room + "/")]
    return max(fitting, key=len, default=None)


def includes(project):
    """File, line number and what is included, as written."""
    for path in project.files(".h", ".cpp"):
        for number, line in enumerate(project.text(path).splitlines(), 1):
            found = re.match(r'\s*#\s*include\s+(["<][^">]+)', line)
            if found:
                yield path, number, found.group(1)


def rooms(project):
    wrong = []
    for path, number, target in includes(project):
        source, aim = room_of(path), room_of(target[1:])
        if path.startswith(FREE) or source is None or aim is None or aim == source:
            continue
        if aim not in ARROWS[source]:
            wrong.append(f"{path}:{number} includes {target[1:]}")
    return wrong


def homeless(project):
    """A file outside every room would escape the arrows."""
    return [
        path
        for path in project.files(".h", ".cpp", ".qml")
        if room_of(path) is None and not path.startswith(FREE)
    ]


def relative(project):
    """An include by a bare name would escape them, too."""
    return [
        f"{path}:{number} includes {target[1:]}"
        for path, number, target in includes(project)
        if target[0] == '"' and not (project.top / target[1:]).exists()
        and not target.endswith(".moc")
    ]


def libraries(project):
    return [
        f"{path}:{number} includes {target[1:]}: {name} belongs to {' and '.join(homes)}"
        for path, number, target in includes(project)
        for name, pattern, *homes in LIBRARIES
        if re.match(pattern, target) and not path.startswith((*(f"{home}/" for home in homes), *FREE[2:]))
    ]


def skin_loaders(project):
    return [
        f"{path}:{number}"
        for path in project.files(".h", ".cpp")
        if not path.startswith(("interface/qml/", *FREE))
        for number, line in enumerate(project.text(path).splitlines(), 1)
        if re.search(r"interface/qml|qrc:|\.qml\b", line)
    ]


def reference_model(project):
    """What the application is compared with must not be made of its own code."""
    return [
        f"{path}:{number} includes {target[1:]}"
        for path, number, target in includes(project)
        if path.startswith("tests/random/Reference") and target[0] == '"'
        and not path.endswith("Test.cpp")
        and not re.match(r'"tests/random/(Reference|Sheet|Action\.h)', target)
    ]


CHECKS = (
    ("arrows between rooms", "include only what tools/checks/arrows.py lists for the room", rooms),
    ("every source has a room", "move it, or add its room to tools/checks/arrows.py", homeless),
    ("includes from the top", 'write #include "room/File.h"', relative),
    ("libraries at home", "reach the library through its room's own header", libraries),
    ("reference model on its own", "it may include the standard library alone", reference_model),
    ("one loader of skins", "only main may know interface/qml", skin_loaders),
)
