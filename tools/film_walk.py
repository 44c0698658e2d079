#!/usr/bin/python3 -B
"""film_walk.py PROCESS PORT RECORDER...: pledges something in the app that runs as PROCESS on $DISPLAY and takes
fingers on PORT, at a hand's pace, while RECORDER runs, and waits for it to end."""

import subprocess
import sys
import time

from bus import FIELDS, arguments, go
from finger import Fingers
from window import ROWS, TABS, Window


class Actor(Window):
    def __init__(self, process, port):
        super().__init__(process)
        self.fingers = Fingers(port)

    def rest_pointer(self):
        """In a corner where nothing is that it would tint."""
        self._xdotool("mousemove", str(self.width - 1), "0")

    def tap(self, name, roles=None):
        x, y = self._still_middle(name, roles)
        self.fingers.tap((self.width, self.height), (x, y))
        time.sleep(0.6)

    def fill(self, field, text):
        self.tap(field, FIELDS)
        self._xdotool("type", "--delay", "30", text)
        self._xdotool("key", "Return")
        time.sleep(0.2)

    def swipe(self, way):
        middle = (self.width // 2, self.height // 2)
        self.fingers.draw((self.width, self.height), middle, (middle[0], middle[1] + way), steps=18)
        time.sleep(0.2)


class Walk:
    def __init__(self, actor, recorder):
        self.actor = actor
        self.recorder = recorder

    def steps(self):
        return (self.begin, self.sign_in, self.pledge, self.look, self.end)

    def begin(self):
        self.actor.expect("Sign in")
        self.actor.rest_pointer()
        self.recording = subprocess.Popen(self.recorder)
        time.sleep(0.7)

    def sign_in(self):
        self.actor.fill("E-mail", "robin@example.org")
        self.actor.fill("Password", "green")
        self.actor.tap("Sign in")

    def pledge(self):
        actor = self.actor
        actor.swipe(-300)
        actor.swipe(300)
        actor.tap("Vegetarian for PETA", ROWS)
        actor.fill("Amount in dollars", "20")
        actor.tap("Fund this campaign")
        actor.tap("Yes")
        time.sleep(0.8)

    def look(self):
        self.actor.tap("Home")
        self.actor.tap("Funded", TABS)

    def end(self):
        self.recording.wait()


if __name__ == "__main__":
    given = arguments(__doc__, process=int, port=int, recorder=list)
    sys.exit(go(lambda actor: Walk(actor, given.recorder), lambda: Actor(given.process, given.port)))
