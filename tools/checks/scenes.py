"""A scene has parts in several rooms. Whichever is missing is named with its screen."""

import re

TABLE = "shell/Storyboard.cpp"
# A file, {} for the screen's name, and what must stand in it; where that is empty, the file must be there.
PARTS = (
    ("interface/qml/{}.qml", ""),
    ("interface/web/index.html.in", '<template id="{}"'),
    ("tests/preview/PreviewStates.cpp", '"{}"'),
    ("tests/random/ReferenceScreen.h", '"{}"'),
)


def parts(project):
    missing = []
    for screen in re.findall(r'\bscene\("(\w+)", ', project.text(TABLE)):
        for place, text in PARTS:
            path, wanted = place.format(screen), text.format(screen)
            if path not in project.all:
                missing.append(f"{screen}: {path} is missing")
            elif wanted not in project.text(path):
                missing.append(f"{screen}: {path} has no {wanted}")
    return missing


CHECKS = (("scenes have all their parts", "add it; CONTRIBUTING.md, “A new screen”, says how", parts),)
