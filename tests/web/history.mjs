// The browser's Back, and leaving.
import { expect } from "./testing.mjs";
import { pressBack, shown } from "./verbs.mjs";

// The history as the browser has it, which is not what a script may ask.
async function history(page) {
  const session = await page.createCDPSession();
  const { currentIndex, entries } = await session.send("Page.getNavigationHistory");
  await session.detach();
  return { at: currentIndex, count: entries.length, address: entries[currentIndex].url };
}

export const tests = {
  async backLeadsToTheScreenBelow({ page, app }) {
    await app.signIn();
    await app.tapRow(0);
    await shown(page, "OneCampaignViewController");
    await pressBack(page);
    await shown(page, "OtherCampaignsTableViewController");
  },
  async backStaysWhereTheWayBackIsHidden({ page, app }) {
    await app.signIn();
    await app.tapRow(0);
    await app.type("dollarAmountField", "5");
    await app.tap("FundButton");
    await shown(page, "ConfirmPageVC");
    await pressBack(page);
    await shown(page, "ConfirmPageVC");
    await app.tap("noButton");
    await shown(page, "OneCampaignViewController");
  },
  async backAtTheFirstScreenLeavesThePage({ page, app }) {
    await app.tap("signUpButton");
    await shown(page, "SignUpVC");
    await pressBack(page);
    await shown(page, "LandingPageVC");
    await pressBack(page);
    expect((await history(page)).address === "about:blank", "the page before is shown");
  },
  async theButtonBackLeavesNoEntryBehind({ page, app }) {
    const before = await history(page);
    await app.tap("signUpButton");
    await shown(page, "SignUpVC");
    expect((await history(page)).at === before.at + 1, "an entry stands guard");
    await page.tap(".screen:not([hidden]) .back");
    await shown(page, "LandingPageVC");
    await new Promise(done => setTimeout(done, 300));
    expect((await history(page)).at === before.at, "the guard is gone");
  },
  async leavingAsksWhileTextIsTyped({ page, app }) {
    const asked = new Promise(done => page.once("dialog", dialog => { done(dialog.type()); dialog.accept(); }));
    await app.type("userEmail", "wren@example.org");
    await page.reload();
    expect(await asked === "beforeunload", "it asks");
    expect(await app.text("userEmail") === "", "every start begins anew");
  },
};
