#!/usr/bin/python3 -B
"""outside_user.py PROCESS PORT OUTPUT REFERENCE ACTIONS SEED: does random actions in the app that runs as
PROCESS and takes fingers on PORT: on $DISPLAY with real clicks and keys, too, and where there is none, on a
Wayland screen, with fingers alone. Compares what assistive technology is told, and what the app printed to the
file OUTPUT, with the program REFERENCE after each. Prints the actions, and fails at the first difference.
"""

import os
import random
import subprocess
import sys
import time
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parents[2] / "tools"))
from bus import FIELDS, Atspi, Role, WalkBroken, check  # noqa: E402
from finger import Fingers  # noqa: E402
from window import CONTROLS, ROWS, TABS, Window  # noqa: E402

BUTTONS = {Role.PUSH_BUTTON}
ADDRESS = "http://127.0.0.1:9/none.jpg"  # nobody answers there, so the picture stays empty
# Pressing these exchanges the screen, so that a double click is one tap.
LEAVING = {"newButton", "yesButton", "noButton", "homeButton", "campaignUpdates"}
TWICE = 0.08  # seconds between two presses that are one
TEXTS = ("wren@example.org", "secret", "25", "1.50", "0", "nan", "x", "Rain Barrels")


class Reference:
    def __init__(self, program):
        self.program = subprocess.Popen([program], stdin=subprocess.PIPE, stdout=subprocess.PIPE, text=True)
        self.printed = ""
        self.do("")

    def do(self, *action):
        print(*action, sep="\t", file=self.program.stdin, flush=True)
        self.views, self.rows, self.back = [], [], False
        while (line := self.program.stdout.readline().rstrip("\n")) != ".":
            if not line and self.program.poll() is not None:
                raise WalkBroken("the reference has ended")
            kind, *fields = line.split("\t")
            if kind == "printed":
                self.printed += fields[0] + "\n"
            elif kind == "back":
                self.back = fields[0] == "1"
            elif kind == "row":
                self.rows.append(fields[1])
            elif kind != "screen":
                name, hidden, selected, masked, spoken, text = fields
                self.views.append((kind, name, hidden == "1", selected == "1", masked == "1", spoken, text))

    def seen(self, *kinds):
        return [view for view in self.views if view[0] in kinds and not view[2]]


class Hand(Window):
    """Presses with a pointer or a finger, as the lot says; without $DISPLAY with a finger."""

    def __init__(self, process, port, lot):
        self.lot, self.fingers, self.on_x = lot, Fingers(port), "DISPLAY" in os.environ
        super().__init__(process)

    def press(self, place, options=()):
        if self.on_x and self.lot.random() < 0.6:
            return super().press(place, options)
        self._tap(place)
        if options:
            time.sleep(TWICE)
            self._tap(place)
        return None

    def type_into(self, field, text):
        if self.on_x:
            return super().type_into(field, text)
        self.click(field, FIELDS)
        nodes = [node for node in self.walk(lambda _: True) if node.get_role() in FIELDS
                 and node.get_name() == field and self._place(node)[3] > 0]
        check(len(nodes) == 1, f"one field “{field}”: {len(nodes)}")
        return Atspi.EditableText.set_text_contents(nodes[0], text)

    def scroll(self):
        x, y = self.width // 2, self.height // 2
        if self.on_x and self.lot.random() < 0.5:
            wheel = ("click", "--repeat", self.lot.randint(1, 8), "--delay", 30, self.lot.choice("45"))
            self._xdotool("mousemove", *map(str, (x, y, *wheel)))
            return wheel
        way = self.lot.choice((-1, 1)) * self.lot.randint(40, 300)  # less is a tap
        self._draw((x, y), (x, y + way))
        return way

    def go_back(self):
        """By a key or from the edge, without the button; the same key soon again is one press."""
        self.pause()
        if self.on_x and self.lot.random() < 0.7:
            return self._xdotool("key", self.lot.choice(("Escape", "alt+Left")))
        return self._draw((5, 300), (260, 310))

    def _tap(self, place):
        self.fingers.tap((self.width, self.height), place)

    def _draw(self, start, end):
        self.fingers.draw((self.width, self.height), start, end)

    def _screen(self):
        if self.on_x:
            return super()._screen()
        frame = self.application.get_child_at_index(0).get_extents(Atspi.CoordType.SCREEN)
        return frame.width, frame.height

    def scroll_towards(self, y):
        if self.on_x:
            return super().scroll_towards(y)
        middle = (self.width // 2, self.height // 2)
        return self._draw(middle, (middle[0], middle[1] + (-150 if y > middle[1] else 150)))


class User:
    def __init__(self, window, output, reference, lot):
        self.window, self.output, self.reference, self.lot = window, output, reference, lot

    def act(self):
        """One action, by window and reference; its words."""
        reference = self.reference
        # A campaign without an address would stop the app, as it should.
        addressed = any(view[1] == "imageURL" and view[-1] == ADDRESS for view in reference.views)
        choices = [("tap", *view[1:]) for view in reference.seen("button", "tab")
                   if view[1] != "createButton" or addressed]
        choices += [("type", *view[1:]) for view in reference.seen("input")]
        shown = self.window.rows()
        choices += [("row", row, title) for row, title in enumerate(reference.rows)
                    if title in shown and reference.rows.count(title) == 1]
        choices += [("scroll",)] * 4 * bool(shown)
        choices += [("back",)] * 2 * reference.back
        verb, *what = self.lot.choice(choices)
        twice = ("--repeat", 2, "--delay", int(1000 * TWICE)) if self.lot.random() < 0.3 else ()
        if verb == "tap":
            self.window.click(what[5], BUTTONS | TABS, twice if what[0] in LEAVING else ())
            reference.do("tap", what[0])
            return f"tap {what[0]} {twice}"
        if verb == "type":
            text = ADDRESS if what[0] == "imageURL" else self.lot.choice(TEXTS)
            self.window.type_into(what[4], text)
            reference.do("enter", what[0])
            reference.do("type", what[0], text)
            return f"type {what[0]} {text}"
        if verb == "row":
            self.window.click(what[1], ROWS, twice)
            reference.do("row", what[0])
            return f"row {what[0]} {twice}"
        if verb == "scroll":
            return f"scroll {self.window.scroll()}"
        if self.lot.random() < 0.5:
            self.window.click("Back", BUTTONS)
        else:
            self.window.go_back()
        reference.do("back")
        return "back"

    def compare(self):
        last = []

        def same():
            last[:] = self.differences()
            return not last

        try:
            self.window.wait("the window like the reference", same)
        except WalkBroken as reason:
            raise WalkBroken("\n".join([str(reason), *last])) from reason

    def differences(self):
        shown = self.window._showing()
        names = [(name, role) for name, role, _ in shown]
        words = {name for name, _ in names}
        for kind, name, hidden, _, masked, spoken, text in self.reference.views:
            if kind == "button" and ((text, Role.PUSH_BUTTON) in names) == hidden:
                yield f"{name} is {'' if hidden else 'not '}there"
            elif kind == "label" and not hidden and text:
                if not any(text in each for each in words):
                    yield f"{name} does not say {text!r}"
            elif kind == "input" and not hidden and (spoken, "•" * len(text) if masked else text) not in self.fields():
                yield f"{name} does not hold {text!r}: {self.fields()}"
        rows, expected = self.window.rows(), self.reference.rows
        if expected and not any(expected[at:at + len(rows)] == rows for at in range(len(expected))):
            yield f"rows {rows} instead of a part of {expected}"
        printed = Path(self.output).read_text(encoding="utf-8")
        if printed != self.reference.printed:
            yield f"printed {printed!r} instead of {self.reference.printed!r}"

    def fields(self):
        return [(node.get_name(), Atspi.Text.get_text(node, 0, -1)) for node in self.window.walk(lambda _: True)
                if node.get_role() in FIELDS]


def main(process, port, output, program, actions, seed):
    lot = random.Random(int(seed))
    user = User(Hand(int(process), int(port), lot), output, Reference(program), lot)
    try:
        user.compare()
        for number in range(int(actions)):
            print(f"{number + 1}: {user.act()}", flush=True)
            user.compare()
    except WalkBroken as reason:
        print(f"seed {seed} diverges: {reason}\n{user.window.describe()}", file=sys.stderr)
        return 1
    return 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
