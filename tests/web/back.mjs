// The browser's own Back, by its key: no script can do what it does. A look into the page from here must not
// count as a touch: the browser skips entries of the history that come without one.
import { expect } from "./testing.mjs";
import { shown } from "./verbs.mjs";

export const onScreen = true;

// The screen shown, or the address of another page.
async function lookFrom(session) {
  const { currentIndex, entries } = await session.send("Page.getNavigationHistory");
  const { result } = await session.send("Runtime.evaluate", { userGesture: false, expression:
    `[...document.querySelectorAll(".screen")].filter(each => each.checkVisibility()).at(-1)?.dataset.scene` });
  return result.value ?? entries[currentIndex].url;
}

// Presses Back again and again, with no touch between: after each of them the next of these is shown.
async function expectBack(page, screen, ...screens) {
  const session = await page.createCDPSession();
  for (const wanted of screens) {
    screen.press("alt+Left");
    let seen;
    for (let turn = 0; turn < 15 && seen !== wanted; ++turn) {
      await new Promise(done => setTimeout(done, 200));
      seen = await lookFrom(session);
    }
    expect(seen === wanted, `Back leads to ${wanted}; it led to ${seen}`);
  }
}

export const tests = {
  async leadsDownScreenByScreenWithoutATouchBetween({ page, app, screen }) {
    await app.signIn();
    await app.tap("fundedTab");
    await app.tapRow(0);
    await app.tap("campaignUpdates");
    await shown(page, "UpdatePageVC");
    await expectBack(page, screen, "OneCampaignViewController", "FundCampaignVC");
  },
  async doesNothingWhereTheWayBackIsHidden({ page, app, screen }) {
    await app.signIn();
    await app.tapRow(0);
    await app.type("dollarAmountField", "5");
    await app.tap("FundButton");
    await shown(page, "ConfirmPageVC");
    await expectBack(page, screen, "ConfirmPageVC");
    await app.tap("noButton");
    await shown(page, "OneCampaignViewController");
  },
  async doesNothingThereAgainAfterATouch({ page, app, screen }) {
    await app.signIn();
    await expectBack(page, screen, "OtherCampaignsTableViewController");
    await app.tap("newsTab");
    await expectBack(page, screen, "NewsFeedVC");
  },
  async leavesAtTheFirstScreen({ page, app, screen }) {
    await app.tap("signUpButton");
    await shown(page, "SignUpVC");
    await expectBack(page, screen, "LandingPageVC", "about:blank");
  },
  // Typed text keeps whoever presses Back by mistake.
  async asksWhileTextIsTyped({ page, app, screen }) {
    const asked = new Promise(done => page.once("dialog", dialog => { dialog.dismiss(); done(dialog.type()); }));
    await app.type("userEmail", "wren@example.org");
    screen.press("alt+Left");
    expect(await asked === "beforeunload", "the browser asks");
    expect(await app.text("userEmail") === "wren@example.org", "the text is still there");
  },
};
