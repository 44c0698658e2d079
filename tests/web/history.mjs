// The entries of the history, and leaving.
import { expect } from "./testing.mjs";
import { shown } from "./verbs.mjs";

// The history as the browser has it, which is not what a script may ask.
async function history(page) {
  const session = await page.createCDPSession();
  const { currentIndex, entries } = await session.send("Page.getNavigationHistory");
  await session.detach();
  return { at: currentIndex, count: entries.length, address: entries[currentIndex].url };
}

export const tests = {
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
  async forwardLeadsNowhere({ page, app }) {
    await app.tap("signUpButton");
    await app.back();
    await shown(page, "LandingPageVC");
    await page.evaluate(() => history.forward());
    await new Promise(done => setTimeout(done, 500));
    await shown(page, "LandingPageVC");
    expect(await page.evaluate(() => history.state) === null, "nothing is left to go back from");
  },
  async aScreenFurtherUpInTheHistoryIsLeftOneByOne({ page, app }) {
    await app.signIn();
    await app.tap("fundedTab");
    await app.tapRow(0);
    await app.tap("campaignUpdates");
    await shown(page, "UpdatePageVC");
    await page.evaluate(() => history.go(-2));
    await shown(page, "OneCampaignViewController");
    expect(await page.evaluate(() => history.state) === 2, "two entries stand below it");
  },
  async pullingDownDoesNotReload({ page }) {
    const behaviour = await page.evaluate(() => getComputedStyle(document.documentElement).overscrollBehaviorY);
    expect(behaviour === "none", `what is pulled over the edge does nothing, not ${behaviour}`);
  },
};
