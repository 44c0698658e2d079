"""What the documents name must exist: paths, commands, presets, build variables, functions."""

import json
import pathlib
import re
import subprocess

FIRST = ("README.md", "CONTRIBUTING.md", "SECURITY.md", "CHANGELOG.md", "tests/README.md")
# What a document may call that comes from a package.
COMMANDS = set("apt apt-get clang-format-19 cmake cpack ctest dpkg flatpak-builder git ninja sudo qt-cmake".split())
MADE = ("build/",)  # what commands make


def documents(project):
    return [path for path in project.all
            if path in FIRST or (path.startswith("docs/") and path.endswith(".md"))]


def code(text):
    """Code spans and blocks, each with its line: what is said to be typed, opened or called."""
    text = without_quotations(text)
    block, before = False, ""
    for number, line in enumerate(text.splitlines(), 1):
        block = line.startswith("    ") and (block or not before.strip())
        if block:
            yield number, line.split(" # ")[0].strip(), True
        else:
            yield from ((number, span, False) for span in re.findall(r"`([^`]+)`", line))
        before = line


def without_quotations(text):
    """A fenced block of a language is a quotation; its lines stay countable."""
    return re.sub(r"^```[a-z]+$.*?^```$", lambda found: "\n" * found.group(0).count("\n"), text,
                  flags=re.M | re.S)


def known(project):
    folders = {str(parent) for path in project.all for parent in pathlib.PurePath(path).parents}
    return set(project.all) | folders


def paths_in(words, tops):
    for word in words.split():
        word = re.sub(r"^[\"'(]*|[\"'),.:;]*$", "", word)
        if "://" in word or "=" in word or any(each in word for each in "<>*$"):
            continue
        own = word.startswith("./")
        word = word.removeprefix("./").rstrip("/")
        if own or ("/" in word and word.split("/")[0] in tops):
            yield word


def paths(project):
    there = known(project)
    tops = {path.split("/")[0] for path in project.all if "/" in path}
    found = []
    for document in documents(project):
        text = project.text(document)
        made = (*MADE, *re.findall(r"Make\s+the\s+file\s+`([^`]+)`", text))  # by who follows it
        for number, words, _ in code(text):
            found += [f"{document}:{number} names {path}" for path in paths_in(words, tops)
                      if path not in there and not path.startswith(made)]
    return found


def links(project):
    there, found = known(project), []
    for document in documents(project):
        folder = project.top / document
        for aim in re.findall(r"\]\(([^)#]+)[^)]*\)", without_quotations(project.text(document))):
            if "://" in aim:
                continue
            path = (folder.parent / aim).resolve().relative_to(project.top.resolve())
            if str(path) not in there:
                found.append(f"{document} links to {aim}")
    return found


def commands(project):
    tops = {path.split("/")[0] for path in project.all}
    found = []
    for document in documents(project):
        for number, words, whole in code(project.text(document)):
            first = words.split()[0]
            local = first.removeprefix("./").split("/")[0] in tops
            # An indented block may be a list of folders, which begins with one.
            if whole and not local and first not in COMMANDS and not first.endswith("/"):
                found.append(f"{document}:{number} calls {first}")
    return found


def settings(project):
    presets = {each["name"] for each in json.loads(project.text("CMakePresets.json"))[
        "configurePresets"]}
    cmake = "".join(project.text(path) for path in project.all
                    if path.endswith(("CMakeLists.txt", ".cmake")))
    found = []
    for document in documents(project):
        for number, words, _ in code(project.text(document)):
            for preset in re.findall(r"--preset[ =](\S+)", words):
                found += [f"{document}:{number} names the preset {preset}"] * (
                    preset not in presets)
            for variable in re.findall(r"\bLEAFUND_[A-Z_]+(?=$|=|\W)", words):
                found += [f"{document}:{number} names {variable}"] * (variable not in cmake)
    return found


def functions(project):
    """`Class::function` must be written so, or be declared in the header of that class."""
    sources = {path: project.text(path) for path in project.files(".h", ".cpp")}
    everything = "\n".join(sources.values())
    found = []
    for document in documents(project):
        for number, words, _ in code(project.text(document)):
            for owner, name in re.findall(r"\b([A-Z]\w+)::(\w+)", words):
                declared = "\n".join(text for path, text in sources.items()
                                     if path.endswith(f"/{owner}.h"))
                if f"{owner}::{name}" not in everything and not re.search(rf"\b{name}\(", declared):
                    found.append(f"{document}:{number} names {owner}::{name}")
    return found


def behaviours(project):
    sources = "".join(project.text(path) for path in project.files(".cpp") if path.endswith("Test.cpp"))
    tests = {".".join(names) for names in re.findall(r"^TEST(?:_F|_P)?\(\s*(\w+),\s*(\w+)\s*\)", sources, re.M)}
    found = []
    for document in ("tests/README.md", "SECURITY.md"):
        rows = [line for line in project.text(document).splitlines() if line.startswith("|")]
        named = {name for row in rows for name in re.findall(r"`(\w+Test\.\w+)`", row)}
        found += sorted(f"{document}: {name}" for name in named - tests)
        found += [] if named else [f"{document} holds no table of tests"]
    return found


def usages(project):
    """Commands that do not say how they are called, or take a word that they do not know."""
    found = []
    for path in project.scripts():
        if path not in ("run", "test") and not re.match(r"(bench|tools)/[^/]+$", path):
            continue
        asked, misused = (
            subprocess.run([project.top / path, word], cwd=project.top, capture_output=True, text=True, timeout=20)
            for word in ("--help", "--no-such-word")
        )
        if asked.returncode or path.split("/")[-1] not in asked.stdout:
            found.append(f"{path} --help")
        if misused.returncode != 2:
            found.append(f"{path} --no-such-word ends with {misused.returncode}")
    return found


def guides(project):
    """The sections of CONTRIBUTING.md that tell what to put where."""
    text = project.text("CONTRIBUTING.md")
    titles = [section.split("\n")[0] for section in re.split(r"^## ", text, flags=re.M)[1:] if "\n```" in section]
    followed = subprocess.run([project.top / "tools/follow", "--edits", *titles], cwd=project.top,
                              capture_output=True, text=True, timeout=20)
    return [line.removeprefix("FAIL ") for line in followed.stdout.splitlines() if line.startswith("FAIL ")] or (
        [followed.stderr.strip()] if followed.returncode else [])


CHECKS = (
    ("documents name what exists", "correct the path", paths),
    ("documents link to what exists", "correct the link", links),
    ("documents call what exists", "correct the command, or add its package's", commands),
    ("documents set what exists", "correct the preset or the variable", settings),
    ("tables name tests", "name one that exists", behaviours),
    ("commands say how they are called", "take --help, and end with 2 at a word they do not know", usages),
    ("guides name lines that are there", "correct CONTRIBUTING.md", guides),
    ("documents know the code", "correct the name of the function", functions),
)
