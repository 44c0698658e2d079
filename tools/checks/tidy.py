"""clang-tidy over everything that ships: minutes, so only in tools/lint --all."""

import concurrent.futures
import json
import os
import re
import shutil
import subprocess

from .tree import Unavailable

NEWEST = 40  # of the versions looked for
FOLDERS = ("build/debug", "build/release")  # where ./test and ./run leave their compile commands
SHIPS = ("model/", "platform/", "screens/", "interface/scenes/", "shell/")


def commands(project):
    """The first build folder that knows how every file is compiled."""
    for folder in FOLDERS:
        path = project.top / folder / "compile_commands.json"
        if path.exists():
            return folder, {each["file"] for each in json.loads(path.read_text())}
    return None, set()


def newest(tool):
    """The newest version of a tool of LLVM that is there."""
    names = (f"{tool}-{version}" for version in range(NEWEST, 0, -1))
    return next(filter(shutil.which, names), None)


def tidy(project):
    tool = newest("clang-tidy")
    folder, compiled = commands(project)
    if not tool or folder is None:
        raise Unavailable("needs clang-tidy and a build by ./test")
    paths = [path for path in project.files(".cpp")
             if path.startswith(SHIPS) and str(project.top / path) in compiled]

    def told(path):
        run = subprocess.run([tool, "--quiet", "-p", folder, path], cwd=project.top,
                             capture_output=True, text=True)
        said = re.findall(r"^.*(?:warning|error): .*", run.stdout, re.M)
        return said or ([f"{path}: {tool} failed"] if run.returncode else [])

    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        return sorted({line.removeprefix(f"{project.top}/") for said in pool.map(told, paths)
                       for line in said})


CHECKS = (("clang-tidy is content", "what it says; .clang-tidy lists its checks", tidy),)
