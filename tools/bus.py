"""The app on the accessibility bus: where to find it, how to wait for it, and how to go a walk."""

import argparse
import os
import sys
import time

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402

LIMIT = 15.0  # seconds that any one step may take
LOOK_AGAIN = 0.08  # seconds, or as long as a look took: it asks the app some hundred questions
# A role's name in words differs from version to version, a role does not.
Role = Atspi.Role
FIELDS = {Role.TEXT, Role.ENTRY, Role.PASSWORD_TEXT, Role.EDITBAR}


class WalkBroken(Exception):
    pass


def check(holds, what):
    if not holds:
        raise WalkBroken(f"expected: {what}")


class App:
    """An app that runs as a process; what it is seen by and driven with is a subclass's."""

    def __init__(self, process):
        self.process = process
        Atspi.init()
        self.application = self.wait("the app on the accessibility bus", self._find_application)
        Atspi.Accessible.set_cache_mask(self.application, Atspi.Cache.NONE)

    def wait(self, what, condition):
        """What the condition gives, as soon as that is anything."""
        end = time.monotonic() + LIMIT
        while True:
            self._take_events()
            began = time.monotonic()
            try:
                result = condition()
            except GLib.Error:
                result = None  # it left while it was looked at
            if result:
                return result
            if not os.path.exists(f"/proc/{self.process}"):
                raise WalkBroken(f"the app ended; expected {what}")
            now = time.monotonic()
            if now > end:
                raise WalkBroken(f"not within {LIMIT:.0f} s: {what}")
            time.sleep(max(LOOK_AGAIN, now - began))

    def walk(self, enters):
        """Every node, in reading order; below one that is not to be entered, none."""
        waiting = [self.application]
        while waiting:
            node = waiting.pop()
            try:
                if not enters(node):
                    continue
                children = [node.get_child_at_index(i) for i in range(node.get_child_count())]
            except GLib.Error:
                continue  # it left while it was looked at
            yield node
            waiting.extend(child for child in reversed(children) if child)

    def _find_application(self):
        desktop = Atspi.get_desktop(0)
        for index in range(desktop.get_child_count()):
            child = desktop.get_child_at_index(index)
            if child and child.get_process_id() == self.process and child.get_child_count():
                return child
        return None

    @staticmethod
    def _take_events():
        context = GLib.MainContext.default()
        while context.iteration(False):
            pass


def arguments(usage, **kinds):
    """The command's words, by their names and each made its kind; a list's kind is that of the rest."""
    whole = argparse.RawDescriptionHelpFormatter
    parser = argparse.ArgumentParser(description=usage, formatter_class=whole)
    for name, kind in kinds.items():
        rest = {"nargs": argparse.REMAINDER} if kind is list else {"type": kind}
        parser.add_argument(name, metavar=name.upper(), **rest)
    return parser.parse_args()


def go(walk, make_app, prefix=""):
    """Goes the steps of a walk, and says of each that it is done; returns the exit status."""
    app = None
    try:
        app = make_app()
        for step in walk(app).steps():
            step()
            print(f"{prefix}{step.__name__.replace('_', ' ')}: done", flush=True)
    except WalkBroken as reason:
        print(f"The walk broke: {prefix}{reason}", file=sys.stderr)
        if app:
            print(f"What is there:\n{app.describe()}", file=sys.stderr)
        return 1
    return 0
