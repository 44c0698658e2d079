#!/usr/bin/python3 -B
"""fling_walk.py PROCESS SECONDS LOG: flings the long list that the app running as PROCESS shows on $DISPLAY,
four times down and once up, for so long. LOG is that of the picture host, and tells how many rows have shown
their picture. Fails when memory grows by more than two mebibytes and a kibibyte for each three of them,
between a fifth of the time and its end: a row keeps 225 bytes for each time it is shown, by intent.
"""

import pathlib
import sys
import time

from bus import Role, arguments, check, go
from visit_walk import resident
from window import Window

STEP = 0.016  # seconds between two places of a pointer that is moved
LEAST_PICTURES = 5  # a second, or nothing was flung


class Walk:
    def __init__(self, window, seconds, log):
        self.window, self.seconds, self.log = window, seconds, log

    def steps(self):
        return (self.fling,)

    def fling(self):
        self.window.expect("Campaign 1", {Role.LIST_ITEM})
        self._for(self.seconds / 5)
        memory, pictures = self._now()
        self._for(self.seconds * 4 / 5)
        more, all_pictures = self._now()
        shown = all_pictures - pictures
        print(f"{memory} KiB after a fifth, {more} KiB after {self.seconds} s; {shown} pictures between", flush=True)
        check(shown > LEAST_PICTURES * self.seconds * 4 / 5, "rows that went by with their pictures")
        check(more - memory <= 2048 + shown / 3, "memory that stays as it is")

    def _for(self, seconds):
        end, flings = time.monotonic() + seconds, 0
        while time.monotonic() < end:
            self.window.fling(down=flings % 5 < 4)
            flings += 1

    def _now(self):
        time.sleep(3)  # until nothing moves and every picture is there
        return resident(self.window.process), self.log.read_text(errors="replace").count("response:200")


class FlungWindow(Window):
    def fling(self, down):
        """By a finger's length of pointer, fast, and let go while it moves."""
        across, length = self.width // 2, self.height // 2
        start = self.height * 3 // 4 if down else self.height // 4
        moves = []
        for share in (0.1, 0.3, 0.6, 1):
            y = start + (-1 if down else 1) * round(length * share)
            moves += ["mousemove", across, y, "sleep", STEP]
        self._xdotool(*map(str, ("mousemove", across, start, "mousedown", 1, *moves, "mouseup", 1)))
        time.sleep(0.7)


if __name__ == "__main__":
    given = arguments(__doc__, process=int, seconds=int, log=pathlib.Path)
    sys.exit(go(lambda window: Walk(window, given.seconds, given.log), lambda: FlungWindow(given.process)))
