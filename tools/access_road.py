#!/usr/bin/python3 -B
"""access_road.py PROCESS: goes the pledge road through the app that runs as PROCESS as a user of
assistive technology does: by names, roles, actions, texts and keys over the accessibility bus, and
without a single coordinate. Fails where a control lacks one of them.
"""

import sys

from bus import Atspi, check, go
from reader import ESCAPE, PAGE_DOWN, Reader

PLEDGED = "Vegetarian for PETA"
FUNDED_BEFORE = "Compost for Christ!"
LAST_ROW = "FlyLess!"
# Nobody answers there, so the new campaign has no picture, which is allowed.
NO_PICTURE = "http://127.0.0.1:9/none.jpg"


class Road:
    def __init__(self, reader):
        self.reader = reader
        self.told = []  # texts that came or went
        self.listener = Atspi.EventListener.new(lambda event: self.told.append(str(event.any_data)))
        self.listener.register("object:text-changed")

    def steps(self):
        return (
            self.hear_messages,
            self.sign_in,
            self.browse,
            self.read_campaign,
            self.have_a_pledge_refused,
            self.pledge,
            self.find_it_under_funded,
            self.read_update,
            self.create_a_campaign,
        )

    def hear_messages(self):
        reader = self.reader
        reader.expect("Leafund", "heading")
        reader.audit("landing")
        reader.press("Sign in")
        reader.expect_heard("Error: Please Enter a Name")
        reader.expect_heard("Error: Please Enter a Password")
        reader.press("Create an account")
        reader.expect("Password again", "password text")
        reader.audit("sign-up")
        reader.press("Sign up")
        reader.expect_heard("Error: Please Enter a Name")
        reader.type_into("Password", "greenest", shown="•" * 8)
        reader.type_into("Password again", "greener", shown="•" * 7)
        reader.press("Sign up")
        reader.expect_heard("Error: Passwords Do Not Match")
        reader.expect_nowhere("greene")
        reader.wait("the message told as a text", lambda: any("Do Not" in t for t in self.told))
        check(not any("greene" in t for t in self.told), "a change of text hides the password")
        reader.key(ESCAPE)
        reader.expect("Sign in", "push button")

    def sign_in(self):
        reader = self.reader
        reader.type_into("E-mail", "robin@example.org")
        reader.type_into("Password", "greenest", shown="•" * 8)
        reader.expect_nowhere("greenest")
        reader.press("Sign in")
        reader.expect("Browse", "heading")
        reader.expect_nowhere("greenest")

    def browse(self):
        reader = self.reader
        reader.expect_focus(PLEDGED)
        reader.audit("browse")
        check(LAST_ROW not in reader.rows(), "the last row is out of sight")
        reader.act("Browse", "list", "Next Page")
        reader.expect(LAST_ROW, "list item")
        reader.act("Browse", "list", "Previous Page")
        reader.expect(PLEDGED, "list item")
        reader.key(PAGE_DOWN)
        reader.press(LAST_ROW, "list item")
        reader.expect(LAST_ROW, "heading")
        reader.press("Back")
        reader.expect_focus(LAST_ROW)
        reader.act("Browse", "list", "Previous Page")

    def read_campaign(self):
        reader = self.reader
        reader.press(PLEDGED, "list item")
        reader.expect(PLEDGED, "heading")
        reader.audit("campaign")
        for words in ("Arlo", "Raised so far", "$120.00", "$200.00"):
            reader.expect(words, "label")
        progress = reader.expect("Share of the goal raised", "progress bar")
        check(reader.range(progress) == (60, 0, 100), "60 between 0 and 100")

    def have_a_pledge_refused(self):
        reader = self.reader
        reader.type_into("Amount in dollars", "81")
        reader.press("Fund this campaign")
        reader.expect_heard("Error: Donation Exceeds Maximum")
        reader.expect("Error: Donation Exceeds Maximum", "notification")
        reader.press("Fund this campaign")
        reader.expect_heard("Error: Donation Exceeds Maximum")

    def pledge(self):
        reader = self.reader
        reader.write("Amount in dollars", "80")
        reader.press("Fund this campaign")
        reader.expect("Do you want to fund this campaign?", "heading")
        reader.audit("confirmation")
        reader.press("Yes")
        reader.expect("Thank you for your pledge!", "heading")
        reader.audit("thank-you")
        reader.press("Home")
        reader.expect("Biking to Work!", "list item")
        reader.expect_gone(PLEDGED)

    def find_it_under_funded(self):
        reader = self.reader
        reader.press("Funded", "page tab")
        reader.expect(PLEDGED, "list item")
        check(reader.rows()[0] == PLEDGED, "the new pledge is the first row")
        reader.audit("funded")

    def read_update(self):
        reader = self.reader
        reader.press(FUNDED_BEFORE, "list item")
        reader.expect("Funded!", "label")
        reader.expect_gone("Share of the goal raised")
        reader.press("Read the update")
        reader.expect("December 1", "label")
        reader.audit("update")
        self.go_back_to("Read the update")
        self.go_back_to(FUNDED_BEFORE)

    def go_back_to(self, name):
        """A screen that slides out still shows its own way back, which leads nowhere any more."""
        reader = self.reader
        reader.wait("one way back", lambda: [*map(reader.name, reader.visible())].count("Back") == 1)
        reader.press("Back")
        reader.expect_focus(name)

    def create_a_campaign(self):
        reader = self.reader
        reader.press("News", "page tab")
        reader.expect("Five miles, twice a day", "heading")
        reader.audit("news")
        reader.press("Mine", "page tab")
        reader.press("New")
        reader.expect("Create campaign", "push button")
        reader.audit("new campaign")
        reader.press("Create campaign")
        reader.expect_heard("Error: Please Enter an Amount, for Example 250")
        reader.write("Your name", "Wren")
        reader.write("Campaign name", "Rain Barrels")
        reader.write("Your pitch in one sentence", "I'll catch the rain!")
        reader.write("What you pledge, and for whom", "A barrel under every gutter.")
        reader.write("Goal in dollars", "250")
        reader.write("Web address of a picture", NO_PICTURE)
        reader.press("Create campaign")
        reader.expect("Thank you for creating a campaign!", "heading")
        reader.press("Home")
        reader.expect("Rain Barrels", "list item")
        check(reader.rows()[0] == "Rain Barrels", "the new campaign is the first row")


if __name__ == "__main__":
    sys.exit(go(Road, lambda: Reader(int(sys.argv[1])), "by assistive technology, "))
