#!/usr/bin/python3 -B
"""access_walk.py PROCESS: goes the pledge walk through the app that runs as PROCESS as a user of
assistive technology does: by names, roles, actions, texts and keys over the accessibility bus, and
without a single coordinate. Fails where a control lacks one of them.
"""

import sys

from bus import Atspi, Role, check, go
from reader import ESCAPE, PAGE_DOWN, Reader

PLEDGED = "Vegetarian for PETA"
FUNDED_BEFORE = "Compost for Christ!"
LAST_ROW = "FlyLess!"
# Nobody answers there, so the new campaign has no picture, which is allowed.
NO_PICTURE = "http://127.0.0.1:9/none.jpg"


class Walk:
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
        reader.expect_screen("Leafund")
        reader.audit("landing")
        reader.press("Sign in")
        reader.expect_heard("Error: Please Enter a Name")
        reader.expect_heard("Error: Please Enter a Password")
        reader.press("Create an account")
        reader.expect_screen("Create an account")
        reader.expect("Password again", Role.PASSWORD_TEXT)
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
        reader.expect_focus("Create an account", Role.PUSH_BUTTON)

    def sign_in(self):
        reader = self.reader
        reader.type_into("E-mail", "robin@example.org")
        reader.type_into("Password", "greenest", shown="•" * 8)
        reader.expect_nowhere("greenest")
        reader.press("Sign in")
        reader.expect_screen("Browse")
        reader.expect_nowhere("greenest")

    def browse(self):
        reader = self.reader
        reader.audit("browse")
        check(LAST_ROW not in reader.rows(), "the last row is out of sight")
        reader.act("Campaigns", Role.LIST, "Next Page")
        reader.expect(LAST_ROW, Role.LIST_ITEM)
        reader.act("Campaigns", Role.LIST, "Previous Page")
        reader.expect(PLEDGED, Role.LIST_ITEM)
        reader.key(PAGE_DOWN)
        reader.press(LAST_ROW, Role.LIST_ITEM)
        reader.expect_screen("Campaign")
        reader.expect(LAST_ROW, Role.HEADING)
        reader.press("Back")
        reader.expect_focus(LAST_ROW, Role.LIST_ITEM)
        reader.act("Campaigns", Role.LIST, "Previous Page")

    def read_campaign(self):
        reader = self.reader
        reader.press(PLEDGED, Role.LIST_ITEM)
        reader.expect(PLEDGED, Role.HEADING)
        reader.audit("campaign")
        for words in ("Arlo", "Raised so far", "Raised: $120.00", "Goal: $200.00"):
            reader.expect(words, Role.LABEL)
        progress = reader.expect("Share of the goal raised", Role.PROGRESS_BAR)
        check(reader.range(progress) == (60, 0, 100), "60 between 0 and 100")

    def have_a_pledge_refused(self):
        reader = self.reader
        reader.type_into("Amount in dollars", "81")
        reader.press("Fund this campaign")
        reader.expect_heard("Error: Donation Exceeds Maximum")
        reader.expect("Error: Donation Exceeds Maximum", Role.NOTIFICATION)
        check(reader.description("Amount in dollars") == "Error: Donation Exceeds Maximum",
              "the field of the amount described by why it was refused")
        reader.press("Fund this campaign")
        reader.expect_heard("Error: Donation Exceeds Maximum")

    def pledge(self):
        reader = self.reader
        reader.write("Amount in dollars", "80")
        reader.press("Fund this campaign")
        reader.expect_screen("Confirm your pledge")
        reader.expect("Do you want to fund this campaign?", Role.HEADING)
        reader.audit("confirmation")
        reader.press("Yes")
        reader.expect_screen("Thank you for your pledge!")
        reader.audit("thank-you")
        reader.press("Home")
        reader.expect("Biking to Work!", Role.LIST_ITEM)
        reader.expect_gone(PLEDGED)

    def find_it_under_funded(self):
        reader = self.reader
        reader.press("Funded", Role.PAGE_TAB)
        reader.expect(PLEDGED, Role.LIST_ITEM)
        check(reader.rows()[0] == PLEDGED, "the new pledge is the first row")
        reader.audit("funded")

    def read_update(self):
        reader = self.reader
        reader.press(FUNDED_BEFORE, Role.LIST_ITEM)
        reader.expect("Funded!", Role.LABEL)
        reader.expect_gone("Share of the goal raised")
        reader.press("Read the update")
        reader.expect_screen("Update")
        reader.expect("December 1", Role.LABEL)
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
        reader.press("News", Role.PAGE_TAB)
        reader.expect("Five miles, twice a day", Role.HEADING)
        reader.audit("news")
        reader.press("Mine", Role.PAGE_TAB)
        reader.press("New")
        reader.expect_screen("New campaign")
        reader.audit("new campaign")
        reader.key(PAGE_DOWN)
        reader.press("Create campaign")
        reader.expect_heard("Error: Please Enter an Amount, for Example 250")
        reader.write("Your name", "Wren")
        reader.write("Campaign name", "Rain Barrels")
        reader.write("Your pitch in one sentence", "I'll catch the rain!")
        reader.write("What you pledge, and for whom", "A barrel under every gutter.")
        reader.write("Goal in dollars", "250")
        reader.write("Web address of a picture", NO_PICTURE)
        reader.key(PAGE_DOWN)
        reader.press("Create campaign")
        reader.expect_screen("Thank you for creating a campaign!")
        reader.press("Home")
        reader.expect("Rain Barrels", Role.LIST_ITEM)
        check(reader.rows()[0] == "Rain Barrels", "the new campaign is the first row")


if __name__ == "__main__":
    sys.exit(go(Walk, lambda: Reader(int(sys.argv[1])), "by assistive technology, "))
