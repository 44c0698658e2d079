"""What QML may hold: layout and look, no words, no decisions, what skins share from the tokens."""

import json
import re

ROOM = "interface/qml/"
TOKENS = "interface/tokens.json"


def skins(project):
    """The interface's files; what a benchmark draws for comparison follows no theme."""
    return [path for path in project.files(".qml") if path.startswith(ROOM)]


def lines(project):
    """Every line of QML without its comments."""
    for path in skins(project):
        for number, line in enumerate(project.text(path).splitlines(), 1):
            yield path, number, re.sub(r"(^|\s)//.*", "", line)


def matching(project, pattern):
    return [
        f"{path}:{number}  {line.strip()}"
        for path, number, line in lines(project)
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
        for path in skins(project)
        for kind in ("Text", "TextEdit")
        for number, body in blocks(project.text(path), kind)
        if f"textFormat: {kind}.PlainText" not in body
    ]


def colours(project):
    literal = r'"#[0-9A-Fa-f]{3,8}"|Qt\.(rgba|hsla|hsva|color|lighter|darker|tint|alpha)\s*\('
    named = r'\b\w*[cC]olor\s*:.*"[a-z]+"'
    return matching(project, f"{literal}|{named}")


# A number by itself has a name: a token's, or that of a property of the one skin that uses it.
# These are no such numbers: nothing, one, two and their like below one, which are shares; a factor
# or divisor, which tells a relation to something that has a name; a quarter turn; how far lines
# stand apart; and bounds that are not of the screen.
NUMBER = re.compile(r"(?<![\w.#])(0x[0-9a-fA-F]+|\d+(?:\.\d+)?)(?![\w.])")
SHARE = re.compile(r"0(\.\d+)?|[12](\.0)?")
NO_TOKEN = re.compile(r"\b(rotation|lineHeight|maximumLength)\s*:")
NAMED = re.compile(r"readonly property (real|int) \w+: [\d.]+$")
# Where the parts of a drawing stand, in units of the drawing.
PLACE = re.compile(r"\{ x: -?[\d.]+, y: -?[\d.]+, size: [^}]*\}")


def is_token(line, found):
    before, after = line[: found.start()].rstrip(), line[found.end() :].lstrip()
    related = before.endswith(("*", "/")) or after.startswith(("*", "/"))
    return not related and not SHARE.fullmatch(found.group())


def numbers(project):
    found = []
    for path, number, line in lines(project):
        bare = PLACE.sub("", re.sub(r'"[^"]*"', '""', line))
        if bare.startswith("import") or NO_TOKEN.search(bare) or NAMED.search(bare.rstrip()):
            continue
        if any(is_token(bare, each) for each in NUMBER.finditer(bare)):
            found.append(f"{path}:{number}  {line.strip()}")
    return found


def tokens(project):
    return sorted(set(colours(project) + numbers(project)))


def used_tokens(project):
    known = json.loads(project.text(TOKENS))
    groups = [known["color"]["day"], *(known[group] for group in known if group not in ("color", "$description"))]
    names = [name for group in groups for name in group if not name.startswith("$")]
    used = "".join(project.text(path) for path in project.files(".qml", ".cpp") if path.startswith(ROOM))
    return [name for name in names
            if not re.search(rf"\bTheme\.{name}\b|\btokens::k{name[0].upper()}{name[1:]}\b", used)]


def heavy(project):
    imports = r"import QtQuick\.(Controls|Layouts)"
    effects = r"layer\.(effect|enabled)|ShaderEffect|MultiEffect|GraphicalEffects"
    return matching(project, f"{imports}|{effects}")


CHECKS = (
    ("no words in QML", "say it in interface/scenes and bind to the view's text", words),
    ("plain text only", "textFormat: Text.PlainText, or use Words.qml", plain_text),
    ("tokens from the theme", "give the colour, size or duration a name in interface/tokens.json", tokens),
    ("tokens have users", "take it out of interface/tokens.json", used_tokens),
    ("no controls, no effects", "draw it in C++ once; see the reasons in docs", heavy),
)
