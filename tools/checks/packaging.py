"""What desktops and catalogues of software read, as their own tools see it."""

import re
import shutil
import subprocess

DESKTOP = "desktop-file-validate"
CATALOGUE = "appstreamcli"


def told(command, top):
    if not shutil.which(command[0]):
        return [f"{command[0]} is not installed"]
    run = subprocess.run(command, cwd=top, capture_output=True, text=True)
    return (run.stdout + run.stderr).strip().splitlines() if run.returncode else []


def entries(project):
    files = [path for path in project.files(".desktop") if path.startswith("packaging/")]
    return told([DESKTOP, *files], project.top) if files else ["packaging/ holds no desktop entry"]


def metainfo(project):
    files = [path for path in project.all if path.endswith(".metainfo.xml")]
    if not files:
        return ["packaging/ holds no metainfo"]
    return told([CATALOGUE, "validate", "--no-net", *files], project.top)


def one_name(project):
    """The name under which desktops know the app stands in five places."""
    names = {
        "packaging/CMakeLists.txt": r"set\(appId (\S+)\)",
        "packaging/app.leafund.Leafund.desktop": r"^Icon=(\S+)",
        "packaging/app.leafund.Leafund.metainfo.xml": r"<id>(\S+)</id>",
        "packaging/app.leafund.Leafund.yaml": r"^id: (\S+)",
        "platform/qt/QtHost.cpp": r'setDesktopFileName\(\D+?"([^"]+)"',
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
