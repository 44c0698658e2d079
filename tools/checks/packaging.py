"""What desktops and catalogues of software read, as their own tools see it."""

import re
import shutil
import subprocess

DESKTOP = "desktop-file-validate"
CATALOGUE = "appstreamcli"

# What only the owner can say, by the catalogue's names; older versions of the tool do not ask for it.
OWNERS = {"url-homepage-missing", "developer-info-missing"}


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
    files = [path for path in project.all if path.endswith(".metainfo.xml")]
    if not files:
        return ["packaging/ holds no metainfo"]
    content, said = run([CATALOGUE, "validate", "--no-net", "--format", "yaml", *files], project.top)
    issues = [dict(re.findall(r"^ *(\w+): (.+)$", issue, re.M)) for issue in said.split("\n- ")[1:]]
    if not content and not issues:
        return said.splitlines()
    return [f"line {issue.get('line', '?')}: {issue['tag']}" for issue in issues
            if issue["severity"] != "pedantic" and issue["tag"] not in OWNERS]


def one_name(project):
    """The name under which desktops know the app stands in five places."""
    names = {
        "packaging/CMakeLists.txt": r"set\(appId (\S+)\)",
        "packaging/app.leafund.Leafund.desktop": r"^Icon=(\S+)",
        "packaging/app.leafund.Leafund.metainfo.xml": r"<id>(\S+)</id>",
        "packaging/app.leafund.Leafund.yaml": r"^id: (\S+)",
        "interface/qml/LeafundWindow.cpp": r'desktopFile = \D+?"([^"]+)"',
    }
    said = {path: re.findall(pattern, project.text(path), re.M)[:1]
            for path, pattern in names.items()}
    wanted = said["packaging/CMakeLists.txt"]
    return [f"{path} says {name}" for path, name in said.items() if not name or name != wanted]


def one_version(project):
    built = re.search(r"project\(\w+ VERSION (\S+)", project.text("CMakeLists.txt")).group(1)
    said = re.search(r'<release version="([^"]+)"', project.text(
        "packaging/app.leafund.Leafund.metainfo.xml")).group(1)
    log = re.search(r"^## (\S+)", project.text("CHANGELOG.md"), re.M).group(1)
    return [] if built == said == log else [f"built {built}, metainfo {said}, changelog {log}"]


CHECKS = (
    ("desktop entries are valid", "what the tool says", entries),
    ("the metainfo is valid", "what the tool says", metainfo),
    ("one name for desktops", "the name that packaging/CMakeLists.txt sets", one_name),
    ("one version", "the version of the root CMakeLists.txt", one_version),
)
