#!/usr/bin/python3 -B
"""pledge_walk.py PROCESS FOLDER: walks through the app that runs as PROCESS on $DISPLAY.

Every control is found by the words a user reads, so a change of layout breaks nothing here, and a
change of words does.
"""

import sys

from bus import FIELDS, check, go
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
        window.expect("Small pledges, green changes.")
        self.save("landing")
        window.click("Create an account")
        window.expect("Sign up")
        self.save("sign-up")
        self.go_back_to("Sign in")
        window.type_into("E-mail", "robin@example.org")
        window.type_into("Password", "green changes")
        self.save("landing-filled")
        window.click("Sign in")

    def pledge(self):
        window = self.window
        window.expect_picture("Biking to Work!")
        self.save("browse")
        window.click(PLEDGED)
        window.expect("Fund this campaign")
        self.save("campaign")
        window.type_into("Amount in dollars", "81")
        window.click("Fund this campaign")
        window.expect("Error: Donation Exceeds Maximum")
        self.save("pledge-refused")
        window.type_into("Amount in dollars", "80")
        window.click("Fund this campaign")
        window.expect("Do you want to fund this campaign?")
        self.save("confirm")
        window.click("Yes")
        window.expect("Thank you for your pledge!")
        self.save("thank-you")
        window.click("Home")

    def find_pledge_under_funded(self):
        window = self.window
        window.expect("Biking to Work!")
        window.expect_gone(PLEDGED)
        self.save("browse-after-pledge")
        window.click("Funded", TABS)
        window.expect(PLEDGED)
        check(PLEDGED in window.rows()[0], "the new pledge is the first row")
        window.expect_picture(FUNDED_BEFORE)
        self.save("funded")

    def read_update(self):
        window = self.window
        window.click(FUNDED_BEFORE)
        window.expect("Funded!")
        self.save("funded-campaign")
        window.click("Read the update")
        window.expect("December 1")
        self.save("update")
        self.go_back_to("Read the update")
        self.go_back_to(FUNDED_BEFORE)

    def look_around(self):
        window = self.window
        window.click("Mine", TABS)
        window.expect_picture("Eco-Friendly Stove!")
        self.save("mine")
        window.click("New")
        window.expect("Create campaign")
        window.expect("Your name", FIELDS)
        self.save("new-campaign")
        self.go_back_to("Eco-Friendly Stove!")
        window.click("News", TABS)
        window.expect("Five miles, twice a day")
        self.save("news")

    def go_back_to(self, name):
        self.window.click("Back")
        self.window.expect(name)


if __name__ == "__main__":
    folder = sys.argv[2]
    sys.exit(go(lambda window: Walk(window, folder), lambda: Window(int(sys.argv[1]))))
