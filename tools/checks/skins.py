"""What QML may hold: layout and look, no words, no decisions, every token from the theme."""

import re

THEME = "interface/qml/Theme.qml"


def lines(project, theme=False):
    """Every line of QML without its comments."""
    for path in project.files(".qml"):
        if path == THEME and not theme:
            continue
        for number, line in enumerate(project.text(path).splitlines(), 1):
            yield path, number, re.sub(r"(^|\s)//.*", "", line)


def matching(project, pattern, theme=False):
    return [
        f"{path}:{number}  {line.strip()}"
        for path, number, line in lines(project, theme)
        if re.search(pattern, line)
    ]


def words(project):
    """A literal beside a property that a user reads, or one that looks like a sentence."""
    read = r'\b(text|title|placeholder|label|name|description)\s*:\s*[^/]*"[^"]*[A-Za-z][^"]*"'
    found = matching(project, read) + matching(project, r'"[^"/:]*[A-Za-z] [^"]*"|qsTr\s*\(')
    # objectName and font.family are for programs, not for readers.
    internal = re.compile(r"\b(objectName|family)\s*:")
    return [line for line in dict.fromkeys(found) if not internal.search(line)]


def blocks(text, kind):
    """The bodies of all objects of a type, and where they begin."""
    for found in re.finditer(rf"\b{kind}\s*\{{", text):
        depth, end = 1, found.end()
        while depth and end < len(text):
            depth += {"{": 1, "}": -1}.get(text[end], 0)
            end += 1
        yield text.count("\n", 0, found.start()) + 1, text[found.end() : end]


def plain_text(project):
    return [
        f"{path}:{number}"
        for path in project.files(".qml")
        for kind in ("Text", "TextEdit")
        for number, body in blocks(project.text(path), kind)
        if f"textFormat: {kind}.PlainText" not in body
    ]


def tokens(project):
    colour = r'"#[0-9A-Fa-f]{3,8}"|Qt\.(rgba|hsla|hsva|lighter|darker|tint)\s*\('
    named = r'\b\w*[cC]olor\s*:.*"(?!transparent")[a-z]+"'
    # Half of something's own width is geometry, a number by itself is a token.
    number = r"[^;}]*(?<![\w.])(?<!/ )[1-9]\d*"
    size = r"\b(pixelSize|pointSize|duration|spacing|radius|weight)\s*:" + number
    return matching(project, f"{colour}|{named}|{size}")


def heavy(project):
    imports = r"import QtQuick\.(Controls|Layouts)"
    effects = r"layer\.(effect|enabled)|ShaderEffect|MultiEffect|GraphicalEffects"
    return matching(project, f"{imports}|{effects}", theme=True)


CHECKS = (
    ("no words in QML", "say it in interface/scenes and bind to the view's text", words),
    ("plain text only", "textFormat: Text.PlainText, or use Words.qml", plain_text),
    ("tokens from the theme", "give the colour, size or duration a name in Theme.qml", tokens),
    ("no controls, no effects", "draw it in C++ once; see the reasons in docs", heavy),
)
