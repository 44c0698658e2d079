#!/usr/bin/python3 -B
"""access_walk.py PROCESS: goes the pledge walk through the app that runs as PROCESS as a user of
assistive technology does: by names, roles, actions, texts and keys over the accessibility bus, and
without a single coordinate. Fails where a control lacks one of them.
"""

import sys

from bus import Atspi, Role, arguments, check, go
from captions import caption
from reader import ESCAPE, PAGE_DOWN, Reader

PLEDGED = "Vegetarian for PETA"
FUNDED_BEFORE = "Compost for Christ!"
LAST_ROW = "FlyLess!"
CAMPAIGNS = caption("OtherCampaignsTableViewController.tableView")
AMOUNT = caption("OneCampaignViewController.dollarAmountField")
FUND = caption("OneCampaignViewController.FundButton")
TOO_MUCH = "Error: Donation Exceeds Maximum"
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
        reader.expect_screen(caption("LandingPageVC.brand"))
        reader.audit("landing")
        reader.press(caption("LandingPageVC.signInButton"))
        reader.expect_heard("Error: Please Enter a Name")
        reader.expect_heard("Error: Please Enter a Password")
        reader.press(caption("LandingPageVC.signUpButton"))
        reader.expect_screen(caption("SignUpVC.title"))
        reader.expect(caption("SignUpVC.passwordConfirmField"), Role.PASSWORD_TEXT)
        reader.audit("sign-up")
        reader.press(caption("SignUpVC.signUpButton"))
        reader.expect_heard("Error: Please Enter a Name")
        reader.type_into(caption("SignUpVC.passwordField"), "greenest", shown="•" * 8)
        reader.type_into(caption("SignUpVC.passwordConfirmField"), "greener", shown="•" * 7)
        reader.press(caption("SignUpVC.signUpButton"))
        reader.expect_heard("Error: Passwords Do Not Match")
        reader.expect_nowhere("greene")
        reader.wait("the message told as a text", lambda: any("Do Not" in t for t in self.told))
        check(not any("greene" in t for t in self.told), "a change of text hides the password")
        reader.key(ESCAPE)
        reader.expect_focus(caption("LandingPageVC.signUpButton"), Role.PUSH_BUTTON)

    def sign_in(self):
        reader = self.reader
        reader.type_into(caption("LandingPageVC.userEmail"), "robin@example.org")
        reader.type_into(caption("LandingPageVC.password"), "greenest", shown="•" * 8)
        reader.expect_nowhere("greenest")
        reader.press(caption("LandingPageVC.signInButton"))
        reader.expect_screen(caption("OtherCampaignsTableViewController.title"))
        reader.expect_nowhere("greenest")

    def browse(self):
        reader = self.reader
        reader.audit("browse")
        check(LAST_ROW not in reader.rows(), "the last row is out of sight")
        reader.act(CAMPAIGNS, Role.LIST, "Next Page")
        reader.expect(LAST_ROW, Role.LIST_ITEM)
        reader.act(CAMPAIGNS, Role.LIST, "Previous Page")
        reader.expect(PLEDGED, Role.LIST_ITEM)
        reader.key(PAGE_DOWN)
        reader.press(LAST_ROW, Role.LIST_ITEM)
        reader.expect_screen(caption("OneCampaignViewController.title"))
        reader.expect(LAST_ROW, Role.HEADING)
        reader.press("Back")
        reader.expect_focus(LAST_ROW, Role.LIST_ITEM)
        reader.act(CAMPAIGNS, Role.LIST, "Previous Page")

    def read_campaign(self):
        reader = self.reader
        reader.press(PLEDGED, Role.LIST_ITEM)
        reader.expect(PLEDGED, Role.HEADING)
        reader.audit("campaign")
        page = "OneCampaignViewController"
        raised = caption(f"{page}.currentFund") + ": $120.00"
        goal = caption(f"{page}.desiredFund") + ": $200.00"
        for words in ("Arlo", caption(f"{page}.labelAboveSlider"), raised, goal):
            reader.expect(words, Role.LABEL)
        progress = reader.expect(caption("OneCampaignViewController.slider"), Role.PROGRESS_BAR)
        check(reader.range(progress) == (60, 0, 100), "60 between 0 and 100")

    def have_a_pledge_refused(self):
        reader = self.reader
        reader.type_into(AMOUNT, "81")
        reader.press(FUND)
        reader.expect_heard(TOO_MUCH)
        reader.expect(TOO_MUCH, Role.NOTIFICATION)
        check(reader.description(AMOUNT) == TOO_MUCH,
              "the field of the amount described by why it was refused")
        reader.press(FUND)
        reader.expect_heard(TOO_MUCH)

    def pledge(self):
        reader = self.reader
        reader.write(AMOUNT, "80")
        reader.press(FUND)
        reader.expect_screen(caption("ConfirmPageVC.title"))
        reader.expect(caption("ConfirmPageVC.question"), Role.HEADING)
        reader.audit("confirmation")
        reader.press(caption("ConfirmPageVC.yesButton"))
        reader.expect_screen(caption("ThankYouVC.thankYouLabel"))
        reader.audit("thank-you")
        reader.press(caption("ThankYouVC.homeButton"))
        reader.expect("Biking to Work!", Role.LIST_ITEM)
        reader.expect_gone(PLEDGED)

    def find_it_under_funded(self):
        reader = self.reader
        reader.press(caption("TabBarVC.fundedTab"), Role.PAGE_TAB)
        reader.expect(PLEDGED, Role.LIST_ITEM)
        check(reader.rows()[0] == PLEDGED, "the new pledge is the first row")
        reader.audit("funded")

    def read_update(self):
        reader = self.reader
        reader.press(FUNDED_BEFORE, Role.LIST_ITEM)
        reader.expect("Funded!", Role.LABEL)
        reader.expect_gone(caption("OneCampaignViewController.slider"))
        reader.press(caption("OneCampaignViewController.campaignUpdates"))
        reader.expect_screen(caption("UpdatePageVC.title"))
        reader.expect("December 1", Role.LABEL)
        reader.audit("update")
        self.go_back_to(caption("OneCampaignViewController.campaignUpdates"))
        self.go_back_to(FUNDED_BEFORE)

    def go_back_to(self, name):
        """A screen that slides out still shows its own way back, which leads nowhere any more."""
        reader = self.reader
        reader.wait("one way back", lambda: [*map(reader.name, reader.visible())].count("Back") == 1)
        reader.press("Back")
        reader.expect_focus(name)

    def create_a_campaign(self):
        reader = self.reader
        reader.press(caption("TabBarVC.newsTab"), Role.PAGE_TAB)
        reader.expect(caption("NewsFeedVC.rideStoryTitle"), Role.HEADING)
        reader.audit("news")
        reader.press(caption("TabBarVC.mineTab"), Role.PAGE_TAB)
        reader.press(caption("TabBarVC.newButton"))
        reader.expect_screen(caption("NewCampaignVC.title"))
        reader.audit("new campaign")
        reader.key(PAGE_DOWN)
        reader.press(caption("NewCampaignVC.createButton"))
        reader.expect_heard(caption("NewCampaignVC.moneyErrorField"))
        reader.write(caption("NewCampaignVC.nameOfCreator"), "Wren")
        reader.write(caption("NewCampaignVC.nameOfCampaign"), "Rain Barrels")
        reader.write(caption("NewCampaignVC.shortDescription"), "I'll catch the rain!")
        reader.write(caption("NewCampaignVC.fullDescription"), "A barrel under every gutter.")
        reader.write(caption("NewCampaignVC.desiredFunding"), "250")
        reader.write(caption("NewCampaignVC.imageURL"), NO_PICTURE)
        reader.key(PAGE_DOWN)
        reader.press(caption("NewCampaignVC.createButton"))
        reader.expect_screen("Thank you for creating a campaign!")
        reader.press(caption("ThankYouVC.homeButton"))
        reader.expect("Rain Barrels", Role.LIST_ITEM)
        check(reader.rows()[0] == "Rain Barrels", "the new campaign is the first row")


if __name__ == "__main__":
    given = arguments(__doc__, process=int)
    sys.exit(go(Walk, lambda: Reader(given.process), "by assistive technology, "))
