#!/usr/bin/python3 -B
"""size_walk.py PROCESS WIDTHxHEIGHT: checks that the app that runs as PROCESS has a window of that
size, and goes through its screens there: with clicks and the wheel on $DISPLAY, and where there is
none, on a Wayland screen, by actions alone, since nobody may send it clicks from outside.
"""

import os
import sys

from bus import Atspi, Role, arguments, go
from captions import caption
from reader import Reader
from window import TABS, Window, run

CAMPAIGN = "Vegetarian for PETA"


class Clicks(Window):
    def __init__(self, process):
        super().__init__(process)
        window = ("search", "--sync", "--onlyvisible", "--name", "^Leafund$")
        self._xdotool(*window, "windowsize", *SIZE.split("x"))

    def has_icon(self):
        return b"Icon (64 x 64)" in run("xprop", "-name", "Leafund", "_NET_WM_ICON")

    def sign_in(self):
        self.type_into(caption("LandingPageVC.userEmail"), "robin@example.org")
        self.type_into(caption("LandingPageVC.password"), "green changes")
        self.click(caption("LandingPageVC.signInButton"))

    def tab(self, name):
        self.click(name, TABS)

    def row(self, name):
        self.click(name)


class Actions(Reader):
    def click(self, name):
        """Once there is one of that name: a screen that slides out still has its own."""
        self.wait(f"one “{name}”", lambda: [*map(self.name, self.visible())].count(name) == 1)
        self.press(name)

    def visible(self):
        """What is below the fold counts, unlike for a reader; what is hidden has no place at all."""
        return (node for node in self.everything() if node.get_extents(Atspi.CoordType.SCREEN).height > 0)

    def expect(self, name, role=None, state=Atspi.StateType.ENABLED):
        return super().expect(name, role, state)

    def sign_in(self):
        self.press(caption("LandingPageVC.signInButton"))
        self.expect_heard("Error: Please Enter a Password")
        self.press(caption("LandingPageVC.signInButton"))  # which takes the messages for what was typed

    def tab(self, name):
        self.press(name, Role.PAGE_TAB)

    def row(self, name):
        self.press(name, Role.LIST_ITEM)


class Walk:
    def __init__(self, app):
        self.app = app

    def steps(self):
        # On Wayland a desktop takes the icon from the desktop entry.
        icon = (self.bear_the_icon,) if isinstance(self.app, Clicks) else ()
        return (self.fill_the_screen, *icon, self.go_through_the_screens)

    def fill_the_screen(self):
        self.app.wait(f"a window of {SIZE}", lambda: self._size() == SIZE)

    def go_through_the_screens(self):
        app = self.app
        app.click(caption("LandingPageVC.signUpButton"))
        app.expect(caption("SignUpVC.signUpButton"))
        app.click("Back")
        app.sign_in()
        app.row(CAMPAIGN)
        app.expect(caption("OneCampaignViewController.FundButton"))
        app.click(caption("OneCampaignViewController.FundButton"))
        app.expect(caption("OneCampaignViewController.errorLabel"))
        app.click("Back")
        app.tab(caption("TabBarVC.fundedTab"))
        app.row("Compost for Christ!")
        app.click(caption("OneCampaignViewController.campaignUpdates"))
        app.expect("December 1")
        app.click("Back")
        app.expect(caption("OneCampaignViewController.campaignUpdates"))
        app.click("Back")
        app.tab(caption("TabBarVC.mineTab"))
        app.click(caption("TabBarVC.newButton"))
        app.click(caption("NewCampaignVC.createButton"))
        app.expect(caption("NewCampaignVC.moneyErrorField"))
        self.fill_the_screen()

    def bear_the_icon(self):
        self.app.wait("an icon of the window", self.app.has_icon)

    def _size(self):
        extents = self.app.application.get_child_at_index(0).get_extents(Atspi.CoordType.SCREEN)
        return f"{extents.width}x{extents.height}"


if __name__ == "__main__":
    given = arguments(__doc__, process=int, size=str)
    SIZE = given.size
    kind, host = (Clicks, "X11") if os.environ.get("DISPLAY") else (Actions, "Wayland")
    sys.exit(go(Walk, lambda: kind(given.process), f"{host} {SIZE}: "))
