#!/usr/bin/python3 -B
"""pledge_walk.py PROCESS FOLDER: walks through the app that runs as PROCESS on $DISPLAY.

Every control is found by the words a user reads, which are taken from the scenes: neither a change of
layout nor one of words breaks anything here.
"""

import sys

from bus import FIELDS, arguments, check, go
from captions import caption
from window import TABS, Window

PLEDGED = "Vegetarian for PETA"
FUNDED_BEFORE = "Compost for Christ!"


class Walk:
    def __init__(self, window, folder):
        self.window = window
        self.folder = folder
        self.pictures = 0

    def save(self, screen):
        self.pictures += 1
        self.window.capture(f"{self.folder}/{self.pictures:02}-{screen}.png")

    def steps(self):
        return (
            self.sign_in,
            self.pledge,
            self.find_pledge_under_funded,
            self.read_update,
            self.look_around,
        )

    def sign_in(self):
        window = self.window
        window.expect(caption("LandingPageVC.tagline"))
        self.save("landing")
        window.click(caption("LandingPageVC.signUpButton"))
        window.expect(caption("SignUpVC.signUpButton"))
        self.save("sign-up")
        self.go_back_to(caption("LandingPageVC.signInButton"))
        window.type_into(caption("LandingPageVC.userEmail"), "robin@example.org")
        window.type_into(caption("LandingPageVC.password"), "green changes")
        self.save("landing-filled")
        window.click(caption("LandingPageVC.signInButton"))

    def pledge(self):
        window = self.window
        window.expect_picture("Biking to Work!")
        self.save("browse")
        window.click(PLEDGED)
        window.expect(caption("OneCampaignViewController.FundButton"))
        self.save("campaign")
        window.type_into(caption("OneCampaignViewController.dollarAmountField"), "81")
        window.click(caption("OneCampaignViewController.FundButton"))
        window.expect("Error: Donation Exceeds Maximum")
        self.save("pledge-refused")
        window.type_into(caption("OneCampaignViewController.dollarAmountField"), "80")
        window.click(caption("OneCampaignViewController.FundButton"))
        window.expect(caption("ConfirmPageVC.question"))
        self.save("confirm")
        window.click(caption("ConfirmPageVC.yesButton"))
        window.expect(caption("ThankYouVC.thankYouLabel"))
        self.save("thank-you")
        window.click(caption("ThankYouVC.homeButton"))

    def find_pledge_under_funded(self):
        window = self.window
        window.expect("Biking to Work!")
        window.expect_gone(PLEDGED)
        self.save("browse-after-pledge")
        window.click(caption("TabBarVC.fundedTab"), TABS)
        window.expect(PLEDGED)
        check(PLEDGED in window.rows()[0], "the new pledge is the first row")
        window.expect_picture(FUNDED_BEFORE)
        self.save("funded")

    def read_update(self):
        window = self.window
        window.click(FUNDED_BEFORE)
        window.expect("Funded!")
        self.save("funded-campaign")
        window.click(caption("OneCampaignViewController.campaignUpdates"))
        window.expect("December 1")
        self.save("update")
        self.go_back_to(caption("OneCampaignViewController.campaignUpdates"))
        self.go_back_to(FUNDED_BEFORE)

    def look_around(self):
        window = self.window
        window.click(caption("TabBarVC.mineTab"), TABS)
        window.expect_picture("Eco-Friendly Stove!")
        self.save("mine")
        window.click(caption("TabBarVC.newButton"))
        window.expect(caption("NewCampaignVC.createButton"))
        window.expect(caption("NewCampaignVC.nameOfCreator"), FIELDS)
        self.save("new-campaign")
        self.go_back_to("Eco-Friendly Stove!")
        window.click(caption("TabBarVC.newsTab"), TABS)
        window.expect(caption("NewsFeedVC.rideStoryTitle"))
        self.save("news")

    def go_back_to(self, name):
        self.window.click("Back")
        self.window.expect(name)


if __name__ == "__main__":
    given = arguments(__doc__, process=int, folder=str)
    sys.exit(go(lambda window: Walk(window, given.folder), lambda: Window(given.process)))
