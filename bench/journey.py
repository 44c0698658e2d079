#!/usr/bin/python3 -B
"""journey.py ROUNDS FOLDER PROGRAM...: takes each program in turn from its start through a pledge to
the thanks, with real clicks and keys on a virtual screen of its own, and prints, a line a journey,
the name and the milliseconds of processor time that the program had taken by then.

Every page has to come up and to come to rest before the next step: the rows with their pictures, the
campaign with its own. The pages are left in FOLDER, as NAME-PAGE.xwd, for whoever wants to look.
"""

import os
import pathlib
import subprocess
import sys
import tempfile
import time

from screen import PATIENCE, WIDTH, Program, Screen

BAR = 56  # the height of the bar on top of a page
ROW = 160
# From the upper edge of a button: its own middle, and the middles of the inputs above it.
MIDDLE, INPUT, SECOND_INPUT = 26, -44, -112
PHOTOGRAPH = 300  # colours that words and borders do not have


class Walk:
    def __init__(self, screen, path, folder):
        self.screen, self.path, self.folder = screen, path, folder

    def xdotool(self, *arguments):
        subprocess.run(["xdotool", *map(str, arguments)], check=True,
                       env={**os.environ, "DISPLAY": self.screen.name})

    def click(self, y, x=WIDTH // 2):
        self.xdotool("mousemove", x, y, "click", 1)

    def enter(self, text, y):
        """Clicks into an input and types; the last letter has to have changed something."""
        self.click(y)
        self.xdotool("type", text[:-1])
        time.sleep(0.2)
        before = self.screen.pixels()
        self.xdotool("type", text[-1])
        began = time.perf_counter()
        while self.screen.pixels() == before:
            if time.perf_counter() > began + PATIENCE:
                raise SystemExit(f"journey.py: {self.path} takes no text")
            time.sleep(0.01)

    def reach(self, page, wanted):
        self.screen.at_rest(wanted, f"{self.path}: {page}")
        self.screen.save(pathlib.Path(self.folder, f"{pathlib.Path(self.path).name}-{page}.xwd"))
        return self.screen.button()

    def rows_are_there(self):
        """Two rows with pictures, and no button any more."""
        tops = (BAR + row * ROW for row in range(2))
        return self.screen.button() is None and all(
            self.screen.colours(0, top, WIDTH // 4, ROW) > PHOTOGRAPH for top in tops)

    def portrait_is_there(self):
        return self.screen.colours(WIDTH // 2 - 50, BAR + 24, 100, 130) > PHOTOGRAPH

    def pledge(self):
        screen = self.screen
        sign_in = self.reach("landing", lambda: screen.button() is not None)
        self.enter("ada@example.org", sign_in + SECOND_INPUT)
        self.enter("secret", sign_in + INPUT)
        self.click(sign_in + MIDDLE)
        self.reach("browse", self.rows_are_there)
        self.click(BAR + ROW // 2, WIDTH * 2 // 3)
        fund = self.reach("campaign",
                          lambda: screen.button() is not None and self.portrait_is_there())
        self.enter("25", fund + INPUT)
        self.click(fund + MIDDLE)
        yes = self.reach("confirm",
                         lambda: screen.button() is not None and not self.portrait_is_there())
        self.click(yes + MIDDLE)
        self.reach("thanks", lambda: screen.button() not in (None, yes))


def main():
    rounds, folder, paths = int(sys.argv[1]), sys.argv[2], sys.argv[3:]
    with tempfile.TemporaryDirectory() as state:
        screen = Screen(state)
        try:
            for turn in range(rounds):
                for path in paths if turn % 2 else reversed(paths):
                    program = Program(screen, path)
                    try:
                        Walk(screen, path, folder).pledge()
                        taken = program.processor_seconds() * 1000
                        print(pathlib.Path(path).name, f"{taken:.1f}", flush=True)
                    finally:
                        program.end()
                    while screen.button() is not None:  # the window is still on its way out
                        time.sleep(0.01)
        finally:
            screen.end()


if __name__ == "__main__":
    main()
