"""What desktops and catalogues of software read, as their own tools see it."""

import pathlib
import re
import shutil
import subprocess
import tempfile

DESKTOP = "desktop-file-validate"
CATALOGUE = "appstreamcli"
METAINFO = "packaging/app.leafund.Leafund.metainfo.xml.in"

# What only the owner can say, by the catalogue's names: a homepage, who they are, and the name of the app, which
# is to be of their domain and small letters. Older versions of the tool do not ask for all of it.
OWNERS = {"url-homepage-missing", "developer-info-missing", "cid-contains-uppercase-letter"}


def run(command, top):
    """Whether the tool is content, and what it says."""
    if not shutil.which(command[0]):
        return False, f"{command[0]} is not installed"
    ended = subprocess.run(command, cwd=top, capture_output=True, text=True)
    return ended.returncode == 0, (ended.stdout + ended.stderr).strip()


def entries(project):
    files = [path for path in project.files(".desktop") if path.startswith("packaging/")]
    if not files:
        return ["packaging/ holds no desktop entry"]
    content, said = run([DESKTOP, *files], project.top)
    return [] if content else said.splitlines()


def metainfo(project):
    text = project.text(METAINFO)
    text = text.replace("@releaseLines@", '<release version="1.0.0" date="2026-01-01"/>')
    text = text.replace("@LEAFUND_SCREENSHOTS@", "https://screens.example.org")
    with tempfile.TemporaryDirectory() as folder:
        made = pathlib.Path(folder) / pathlib.Path(METAINFO).stem
        made.write_text(text, encoding="utf-8")
        content, said = run([CATALOGUE, "validate", "--no-net", "--pedantic", "--format", "yaml", made],
                            project.top)
    issues = [dict(re.findall(r"^ *(\w+): (.+)$", issue, re.M)) for issue in said.split("\n- ")[1:]]
    if not content and not issues:
        return said.splitlines()
    return [f"line {issue.get('line', '?')}: {issue['tag']}" for issue in issues
            if issue["tag"] not in OWNERS]


def one_name(project):
    """The name under which desktops know the app stands in five places."""
    names = {
        "packaging/CMakeLists.txt": r"set\(appId (\S+)\)",
        "packaging/app.leafund.Leafund.desktop": r"^Icon=(\S+)",
        METAINFO: r"<id>(\S+)</id>",
        "packaging/app.leafund.Leafund.yaml": r"^id: (\S+)",
        "interface/qml/LeafundWindow.cpp": r'desktopFile = \D+?"([^"]+)"',
    }
    said = {path: re.findall(pattern, project.text(path), re.M)[:1]
            for path, pattern in names.items()}
    wanted = said["packaging/CMakeLists.txt"]
    return [f"{path} says {name}" for path, name in said.items() if not name or name != wanted]


CHECKS = (
    ("desktop entries are valid", "what the tool says", entries),
    ("the metainfo is valid", "what the tool says", metainfo),
    ("one name for desktops", "the name that packaging/CMakeLists.txt sets", one_name),
)
