#!/usr/bin/python3 -B
"""rest_walk.py PROCESS SECONDS: goes from screen to screen in the app that runs as PROCESS on $DISPLAY,
and leaves each alone for so long, with no input in focus. Fails when a thread of the app wakes up there.
"""

import pathlib
import sys
import time

from bus import FIELDS, Role, arguments, check, go
from captions import caption
from window import TABS, Window

CAMPAIGN = "Vegetarian for PETA"
CALM = 3.0  # seconds, for slides, fetches and what the accessibility bus still asks


def switches(process):
    """How often each thread of a process has given up a processor, whichever way, by thread."""
    counts = {}
    for status in pathlib.Path(f"/proc/{process}/task").glob("*/status"):
        lines = dict(line.split(":\t", 1) for line in status.read_text().splitlines())
        counts[status.parent.name, lines["Name"]] = sum(
            int(lines[kind]) for kind in ("voluntary_ctxt_switches", "nonvoluntary_ctxt_switches")
        )
    return counts


class Walk:
    def __init__(self, window, seconds):
        self.window = window
        self.seconds = seconds
        self.woken = []

    def steps(self):
        screens = (self.landing, self.sign_up, self.lists, self.pledge, self.update, self.new_campaign)
        return (*screens, self.sum_up)

    def rest(self, screen):
        time.sleep(CALM)
        before = switches(self.window.process)
        time.sleep(self.seconds)
        after = switches(self.window.process)
        woken = {
            name: count - before.get((thread, name), 0)
            for (thread, name), count in after.items()
            if count != before.get((thread, name), 0)
        }
        print(f"{screen}: {woken or 'no'} wake-ups in {self.seconds:g} s", flush=True)
        self.woken += [screen] if woken else []

    def sum_up(self):
        check(not self.woken, f"no wake-up on {', '.join(self.woken)}")

    def landing(self):
        self.window.expect(caption("LandingPageVC.tagline"))
        self.rest("the landing page")

    def sign_up(self):
        self.window.click(caption("LandingPageVC.signUpButton"))
        self.window.expect(caption("SignUpVC.signUpButton"))
        self.rest("sign-up")
        self.window.click("Back")

    def lists(self):
        self.window.type_into(caption("LandingPageVC.userEmail"), "robin@example.org")
        self.window.type_into(caption("LandingPageVC.password"), "green changes")
        self.window.click(caption("LandingPageVC.signInButton"))
        self.window.expect(caption("OtherCampaignsTableViewController.title"), {Role.HEADING})
        self.rest("browse")
        for tab in ("funded", "mine", "news"):
            self.window.click(caption(f"TabBarVC.{tab}Tab"), TABS)
            self.rest(tab)

    def pledge(self):
        self.window.click(caption("TabBarVC.browseTab"), TABS)
        self.window.click(CAMPAIGN)
        self.window.expect(caption("OneCampaignViewController.FundButton"))
        self.rest("the campaign")
        self.window.type_into(caption("OneCampaignViewController.dollarAmountField"), "80")
        self.window.click(caption("OneCampaignViewController.FundButton"))
        self.window.expect(caption("ConfirmPageVC.question"))
        self.rest("the question")
        self.window.click(caption("ConfirmPageVC.yesButton"))
        self.window.expect(caption("ThankYouVC.thankYouLabel"))
        self.rest("the thanks")
        self.window.click(caption("ThankYouVC.homeButton"))

    def update(self):
        self.window.click(caption("TabBarVC.fundedTab"), TABS)
        self.window.click("Compost for Christ!")
        self.window.click(caption("OneCampaignViewController.campaignUpdates"))
        self.window.expect("December 1")
        self.rest("the update")
        self.window.click("Back")
        self.window.expect(caption("OneCampaignViewController.campaignUpdates"))
        self.window.click("Back")

    def new_campaign(self):
        self.window.click(caption("TabBarVC.mineTab"), TABS)
        self.window.click(caption("TabBarVC.newButton"))
        self.window.expect(caption("NewCampaignVC.nameOfCreator"), FIELDS)
        self.rest("the new campaign")


if __name__ == "__main__":
    given = arguments(__doc__, process=int, seconds=float)
    sys.exit(go(lambda window: Walk(window, given.seconds), lambda: Window(given.process)))
