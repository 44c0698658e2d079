#!/usr/bin/python3 -B
"""comeback_walk.py PROCESS PORT: scrolls, opens rows and comes back in the app that runs as PROCESS on
$DISPLAY and takes fingers on PORT, in every way there is, and presses twice as fast as a user may. After each
trip the list must stand where it stood, to the pixel, and no second press may press what the first brought.
"""

import itertools
import sys
import time

from bus import Role, arguments, check, go
from captions import caption
from finger import Fingers
from window import ROWS, TABS, Window, run

STEPS = 6  # of the wheel or of a key, from the top to the end of the list and once beyond
SIZES = ("390 844", "600 800", "1280 800", "844 390")
INTERVALS = (60, 100, 250, 350)  # milliseconds between the clicks of a double click
BROWSE = caption("OtherCampaignsTableViewController.title")
QUESTION = caption("ConfirmPageVC.question")


class Walk:
    def __init__(self, window, port):
        self.window = window
        self.ways_back = itertools.cycle((self.by_bar, self.by_escape, self.by_alt_left, self.by_drag, self.by_finger))
        self.fingers = Fingers(port)
        self.id = window.search()
        window.resize(self.id, SIZES[0])

    def steps(self):
        return (
            self.sign_in,
            self.come_back_after_the_wheel,
            self.come_back_after_keys,
            self.come_back_after_fingers,
            self.click_twice,
            self.tap_twice,
        )

    def sign_in(self):
        self.window.type_into(caption("LandingPageVC.userEmail"), "robin@example.org")
        self.window.type_into(caption("LandingPageVC.password"), "green changes")
        self.window.click(caption("LandingPageVC.signInButton"))
        self.window.expect(BROWSE, {Role.HEADING})

    def come_back_after_the_wheel(self):
        middle = (self.window.width // 2, self.window.height // 2)
        self.sweep(lambda: self.window.touch("mousemove", *middle, "click", 5))

    def come_back_after_keys(self):
        self.window.click(caption("TabBarVC.fundedTab"), TABS)
        self.window.click(caption("TabBarVC.browseTab"), TABS)
        self.window.touch("key", "Tab", "Home")
        self.sweep(lambda: self.window.touch("key", "Down"))

    def come_back_after_fingers(self):
        self.window.click(caption("TabBarVC.fundedTab"), TABS)
        self.window.click(caption("TabBarVC.browseTab"), TABS)
        middle = self.window.width // 2
        self.sweep(lambda: self.draw((middle, 500), (middle, 340)), self.tap)

    def sweep(self, scroll, press=None):
        for _ in range(STEPS):
            rows = sorted(self.rows_at_rest(), key=lambda name: self.rows[name][1])
            for name in (rows[0], rows[-1]):  # those that may be half in sight
                self.trip(name, press or self.press)
            scroll()

    def press(self, place):
        self.window.touch("mousemove", *place, "click", 1)

    def tap(self, place):
        self.fingers.tap((self.window.width, self.window.height), place)

    def draw(self, start, end):
        self.fingers.draw((self.window.width, self.window.height), start, end)

    def trip(self, name, press):
        before = self.rows
        press((self.window.width // 2, self.seen_middle(before[name])))
        self.window.expect(name, {Role.HEADING})
        way_back = next(self.ways_back)
        way_back()
        self.window.wait(
            f"the list after “{name}”, {way_back.__name__}", lambda: self.window.sees(BROWSE, {Role.HEADING})
        )
        after = self.rows_at_rest()
        check(after == before, f"the list where it was before “{name}”, {way_back.__name__}: {before}, not {after}")

    def by_bar(self):
        self.window.click("Back")

    def by_escape(self):
        self.window.touch("key", "Escape")

    def by_alt_left(self):
        self.window.touch("key", "alt+Left")

    def by_drag(self):
        self.window.still_middle("Back")  # in the middle of a slide the page's edge is elsewhere
        # At a hand's pace: in less than a frame no drag is seen.
        ways = [("mousemove", x, 300, "sleep", 0.02) for x in range(6, 240, 18)]
        self.window.touch(*ways[0], "mousedown", 1, *itertools.chain(*ways[1:]), "mouseup", 1)

    def by_finger(self):
        self.window.still_middle("Back")
        self.draw((6, 300), (240, 310))

    def tap_twice(self):
        for size in SIZES:
            self.window.resize(self.id, size)
            self.ask()
            place = self.window.still_middle(caption("OneCampaignViewController.FundButton"))
            self.tap(place)
            time.sleep(0.08)
            self.tap(place)
            time.sleep(0.6)  # more than a slide
            check(self.window.sees(QUESTION), f"no pledge without “Yes” of a finger, at {size}")
            self.window.click(caption("ConfirmPageVC.noButton"))
            self.window.click("Back")

    def click_twice(self):
        for size in SIZES:
            self.window.resize(self.id, size)
            for interval in INTERVALS:
                self.fund(("--repeat", 2, "--delay", interval))
                time.sleep(0.6)  # more than a slide
                check(self.window.sees(QUESTION), f"no pledge without “Yes”, at {size} and {interval} ms")
                self.window.click(caption("ConfirmPageVC.noButton"))
                self.window.click("Back")
        for size in SIZES:
            self.window.resize(self.id, size)
            self.fund()
            self.window.click(caption("ConfirmPageVC.yesButton"))
            self.window.expect(caption("ThankYouVC.thankYouLabel"))
            self.window.click(caption("ThankYouVC.homeButton"))

    def ask(self):
        """Opens a campaign and types an amount."""
        rows = self.rows_at_rest()
        name = max(rows, key=lambda each: self.seen(rows[each])[1] - self.seen(rows[each])[0])
        self.window.touch("mousemove", self.window.width // 2, self.seen_middle(rows[name]), "click", 1)
        self.window.type_into(caption("OneCampaignViewController.dollarAmountField"), "1")

    def fund(self, options=()):
        self.ask()
        self.window.click(caption("OneCampaignViewController.FundButton"), options=options)
        self.window.expect(QUESTION)

    def rows_at_rest(self):
        """Where the rows in sight stand, by their names, once they stand still; kept in self.rows."""
        seen = []

        def still():
            seen.append(self.window.places(ROWS))
            return len(seen) > 1 and seen[-1] and seen[-1] == seen[-2]

        self.window.wait("rows that stand still", still)
        ends = {name: self.seen(place) for name, place in seen[-1].items()}
        self.rows = {name: seen[-1][name] for name, (top, bottom) in ends.items() if bottom - top >= 6}
        return self.rows

    def seen(self, place):
        """The upper and lower end of what is seen of a row."""
        top, bottom = self.window.list_edges()
        return max(top, place[1]), min(bottom, place[1] + place[3])

    def seen_middle(self, place):
        return sum(self.seen(place)) // 2


class SweptWindow(Window):
    def search(self):
        found = run("xdotool", "search", "--sync", "--onlyvisible", "--name", "^Leafund$")
        return found.decode().split()[0]

    def resize(self, window, size):
        width, height = (int(side) for side in size.split())
        self._xdotool("windowsize", window, str(width), str(height))
        self.width, self.height = width, height

    def touch(self, *words):
        self._xdotool(*map(str, words))

    def still_middle(self, name):
        self._bring_into_view(name, {Role.PUSH_BUTTON})
        return self._still_middle(name, {Role.PUSH_BUTTON})

    def places(self, roles):
        return {name: place for name, role, place in self._showing() if role in roles}


if __name__ == "__main__":
    given = arguments(__doc__, process=int, port=int)
    sys.exit(go(lambda window: Walk(window, given.port), lambda: SweptWindow(given.process)))
