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


# What every page has, and no head of a page names.
COMMON = {"root"}


def shown_in_window(project, screen):
    """The views that the head of the screen's page names, by the names they have there."""
    return set(re.findall(r"required property \w+ (\w+)", project.text(f"interface/qml/{screen}.qml"))) - COMMON


def shown_in_browser(project, screen):
    templates = re.findall(r'<template id="(\w+)"([^>]*)>(.*?)</template>', project.text("interface/web/index.html.in"), re.S)
    found = {name: (options, text) for name, options, text in templates}
    options, text = found[screen]
    if like := re.search(r'data-like="(\w+)"', options):
        _, text = found[like[1]]
    return {name[0].lower() + name[1:] for name in re.findall(r'data-view="(\w+)"', text)} - COMMON


def views(project):
    differing = []
    for screen in re.findall(r'\bscene\("(\w+)", ', project.text(TABLE)):
        window, browser = shown_in_window(project, screen), shown_in_browser(project, screen)
        differing += [f"{screen}: {view} is not on the page for a browser" for view in sorted(window - browser)]
        differing += [f"{screen}: {view} is not on the page for the window" for view in sorted(browser - window)]
    return differing


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


CHECKS = (
    ("scenes have all their parts", "add it; CONTRIBUTING.md, “A new screen”, says how", parts),
    ("scenes show the same views everywhere", "add it; CONTRIBUTING.md, “A first change”, says how", views),
)
