#!/usr/bin/python3 -B
"""visit_walk.py PROCESS TIMES: opens a campaign and leaves it so often in the app that runs as PROCESS
on $DISPLAY. Fails when the memory of the app has grown by more than a mebibyte and a kibibyte a visit
between a tenth of the visits and the last one.
"""

import sys

from bus import Role, arguments, check, go
from captions import caption
from window import Window

CAMPAIGN = "Vegetarian for PETA"


def resident(process):
    """Kibibytes."""
    with open(f"/proc/{process}/smaps_rollup", encoding="ascii") as lines:
        return next(int(line.split()[1]) for line in lines if line.startswith("Pss_Anon:"))


class Walk:
    def __init__(self, window, times):
        self.window = window
        self.times = times

    def steps(self):
        return (self.sign_in, self.visit)

    def sign_in(self):
        self.window.type_into(caption("LandingPageVC.userEmail"), "robin@example.org")
        self.window.type_into(caption("LandingPageVC.password"), "green changes")
        self.window.click(caption("LandingPageVC.signInButton"))
        self.window.expect(caption("OtherCampaignsTableViewController.title"), {Role.HEADING})

    def visit(self):
        x, y = self.window.place_of(CAMPAIGN)
        before = 0
        for number in range(1, self.times + 1):
            self.window.touch("mousemove", x, y, "sleep", 0.5, "click", 1)
            self.window.expect(CAMPAIGN, {Role.HEADING})
            self.window.touch("key", "Escape")
            self.window.expect(caption("OtherCampaignsTableViewController.title"), {Role.HEADING})
            if number == max(1, self.times // 10):
                before = resident(self.window.process)
        after = resident(self.window.process)
        print(f"{before} KiB after a tenth, {after} KiB after {self.times} visits", flush=True)
        check(after - before <= 1024 + self.times, "memory that stays as it is")


class VisitWindow(Window):
    def place_of(self, name):
        return self._still_middle(name, {Role.LIST_ITEM})

    def touch(self, *words):
        self._xdotool(*map(str, words))


if __name__ == "__main__":
    given = arguments(__doc__, process=int, times=int)
    sys.exit(go(lambda window: Walk(window, given.times), lambda: VisitWindow(given.process)))
