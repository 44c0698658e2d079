"""The words of the scenes by screen and view, so that a walk finds a control whatever it says."""

import pathlib
import re

TOP = pathlib.Path(__file__).resolve().parent.parent
TEXT = r'"((?:[^"\\]|\\.)*)"'
# An outlet or a name, and the text that a scene gives it; one may begin within another.
GIVEN = re.compile(
    rf'(?=(?:screen\.(\w+)|"(\w+)")(?:,|(?:\(\)->|\)\s*\.)setAccessibilityLabel\()\s*(?:\{{\s*\.placeholder = )?{TEXT})')


def read():
    said = {}
    for path in (*TOP.glob("interface/scenes/*.cpp"), TOP / "shell/ShellScenes.cpp"):
        source = re.sub(r'"\s*\n\s*"', "", path.read_text(encoding="utf-8"))  # one text on two lines
        for scene in re.split(r"\nvoid (?=\w+\(Scene<)", source)[1:]:
            screen = re.match(r"\w+\(Scene<(\w+)>", scene).group(1)
            if title := re.search(rf"scene\.title\({TEXT}\)", scene):
                said[f"{screen}.title"] = title.group(1)
            for outlet, name, text in GIVEN.findall(scene):
                said.setdefault(f"{screen}.{outlet or name}", text)
    return said


CAPTIONS = read()


def caption(view):
    """What the view says, such as "LandingPageVC.signInButton", or the screen's bar: "SignUpVC.title"."""
    if view not in CAPTIONS:
        raise KeyError(f"no scene gives words to {view}")
    return CAPTIONS[view]
