// What only the page does.
import fs from "node:fs";
import { expect } from "./testing.mjs";
import { walk } from "./road.mjs";
import { pressBack, rest, shown } from "./verbs.mjs";

export const tests = {
  async everyViewHasItsOneElement({ page, app, errors }) {
    await walk(app, async scene => { await shown(page, scene); });
    expect(errors.length === 0, `no errors but ${errors.join("; ")}`);
    const unbound = await page.evaluate(() => [...document.querySelectorAll(".screen [data-view] > span:first-child")]
      .filter(each => each.closest("label") && !each.textContent).length);
    expect(unbound === 0, "every input has its caption");
  },
  async aRowsBodyThatIsNoPictureStopsTheApplication({ page, app, errors, pictures }) {
    pictures.lay("/vegetarian-for-peta.jpg", "<!doctype html>", "text/html");
    await app.signIn();
    await page.waitForFunction(() => document.getElementById("stopped").open, { timeout: 5_000 });
    pictures.lay("/vegetarian-for-peta.jpg", fs.readFileSync(`${pictures.folder}/vegetarian-for-peta.jpg`), "image/jpeg");
    const line = await page.$eval("#stopped p", each => each.textContent);
    expect(line.startsWith("Leafund stopped: "), `it says why, not: ${line}`);
    expect(errors.includes(line), "the line is on the console");
    await page.keyboard.press("Escape");  // as Back does, on a phone
    await shown(page, "LandingPageVC");
    await page.waitForFunction(() => !document.getElementById("stopped").open);
  },
  async theSecondTapOfADoubleTapBelongsToTheFirst({ page, app }) {
    await app.signIn();
    await page.evaluate(() => { window.taps = 0; addEventListener("click", () => ++window.taps, true); });
    const row = await page.$(".screen:not([hidden]) li:not([hidden])");
    const { x, y } = await row.boundingBox();
    await page.mouse.click(x + 60, y + 150, { count: 2 });
    await shown(page, "OneCampaignViewController");
    expect(await page.evaluate(() => window.taps) === 1, "one click alone gets through");
  },
  // Which browsers of phones count as two taps.
  async norDoesAFingersSecondTapConfirmWhatItDidNotSee({ page, app }) {
    await app.signIn();
    await app.tapRow(0);
    await shown(page, "OneCampaignViewController");
    await app.type("dollarAmountField", "80");
    const clicks = await page.evaluate(async () => {
      const button = document.querySelector("[data-view=FundButton]"), { x, y } = button.getBoundingClientRect();
      const click = () => document.elementFromPoint(x + 9, y + 9).dispatchEvent(
        new MouseEvent("click", { bubbles: true, cancelable: true, detail: 1, clientX: x + 9, clientY: y + 9 }));
      let heard = 0;
      document.getElementById("screens").addEventListener("click", () => ++heard, true);
      click();
      await new Promise(done => setTimeout(done, 250));
      click();
      return heard;
    });
    await shown(page, "ConfirmPageVC");
    expect(clicks === 1, `one tap, and not ${clicks}`);
  },
  async picturesOfScreensThatWereLeftAreLetGo({ page, app }) {
    await page.evaluate(() => {
      window.held = new Set();
      const { createObjectURL, revokeObjectURL } = URL;
      URL.createObjectURL = blob => { const name = createObjectURL.call(URL, blob); window.held.add(name); return name; };
      URL.revokeObjectURL = name => { window.held.delete(name); revokeObjectURL.call(URL, name); };
    });
    await app.signIn();
    await shown(page, "OtherCampaignsTableViewController");
    await page.waitForNetworkIdle({ idleTime: 200 });
    const before = await page.evaluate(() => window.held.size);
    for (let time = 0; time < 3; ++time) {
      await app.tapRow(time);
      await shown(page, "OneCampaignViewController");
      await page.waitForNetworkIdle({ idleTime: 200 });
      expect(await page.evaluate(() => window.held.size) > before, "its picture is shown");
      await pressBack(page);
      await shown(page, "OtherCampaignsTableViewController");
    }
    const after = await page.evaluate(() => window.held.size);
    expect(after === before, `no more than the ${before} of the rows, and not ${after}`);
  },
  async aRowEndsInAWholeLine({ page, app, pictures }) {
    await app.signIn();
    await app.tap("mineTab");
    await app.tap("newButton");
    await shown(page, "NewCampaignVC");
    const texts = { nameOfCreator: "Wren", nameOfCampaign: "A rain barrel under each and every gutter of our long street",
      shortDescription: "water for the beds ".repeat(9), fullDescription: "All of it.", desiredFunding: "100",
      imageURL: `${pictures.address}/biking-to-work.jpg`, emailInvite: "robin@example.org" };
    for (const [name, text] of Object.entries(texts)) await app.type(name, text);
    await app.tap("createButton");
    await shown(page, "ThankYouVC");
    await app.tap("homeButton");
    await app.tap("mineTab");
    await shown(page, "MyProfileVC");
    for (const size of [16, 20, 32]) {
      await page.evaluate(size => { document.documentElement.style.fontSize = `${size}px`; }, size);
      await rest(page);
      const { title, detail, line } = await page.$$eval(".screen:not([hidden]) .detail", all => {
        const detail = all.find(each => each.textContent.startsWith("water"));
        return { title: detail.previousElementSibling.offsetHeight, detail: detail.offsetHeight, line: parseFloat(getComputedStyle(detail).lineHeight) };
      });
      expect(title + detail <= 126 && Math.abs(detail / line - Math.round(detail / line)) < 0.1 && detail >= line - 1,
        `at ${size} px whole lines in 129: ${title} and ${detail} of ${line}`);
    }
  },
  async aSlideMakesThePageNoWider({ page }) {
    const widths = await page.evaluate(async () => {
      const seen = [];
      document.querySelector("[data-view=signUpButton]").click();
      do {
        await new Promise(requestAnimationFrame);
        seen.push(innerWidth);
      } while (document.getAnimations().length > 0);
      return seen;
    });
    expect(widths.length > 3 && widths.every(each => each === 390), `390 in each frame: ${widths}`);
  },
  async whatIsLeftIsSeenBelowWhatSlidesIn({ page, app }) {
    await app.signIn();
    await shown(page, "OtherCampaignsTableViewController");
    const seen = await page.evaluate(async () => {
      const isSeen = place => !!document.querySelector(place)?.checkVisibility();
      const row = ".screen[data-scene=OtherCampaignsTableViewController] li:not([hidden])";
      document.querySelector(`${row} button`).click();
      await new Promise(requestAnimationFrame);
      await new Promise(requestAnimationFrame);
      const slides = [isSeen("[data-scene=OneCampaignViewController]"), isSeen(row), document.querySelector(row).closest("[inert]") !== null];
      await Promise.all(document.getAnimations().map(each => each.finished));
      return [...slides, isSeen(row)].join();
    });
    expect(seen === "true,true,true,false", `both while it slides, what is left takes no input, and then is gone: ${seen}`);
  },
  async aWideWindowHasTheTabsAtItsSideAndTwoColumns({ page, app }) {
    await app.signIn();
    const boxOf = place => page.$eval(`.screen:not([hidden]) ${place}`, each => each.getBoundingClientRect().toJSON());
    for (const [width, height, rail] of [[559, 800, 0], [560, 800, 80], [840, 479, 80], [840, 480, 96]]) {
      await app.resize(width, height);
      const nav = await boxOf("nav");
      const expected = rail ? [0, rail, height] : [height - 64, width, 64];
      expect([nav.top, nav.width, nav.height].join() === expected.join(), `${width} × ${height}: ${expected}, not ${[nav.top, nav.width, nav.height]}`);
    }
    for (const height of [360, 300, 280]) {
      await app.resize(640, height);
      const last = await boxOf("[data-view=newsTab]");
      expect(last.bottom <= height + 1 && last.height > 60, `all tabs within ${height}, and the last not from ${last.top} to ${last.bottom}`);
    }
    await app.resize(1280, 800);
    await app.tapRow(0);
    await shown(page, "OneCampaignViewController");
    const [button, text] = [await boxOf("[data-view=FundButton]"), await boxOf("[data-view=campaignText]")];
    expect(button.right < text.left && text.top < button.top, "what is done stands beside what is read");
  },
  async theTopmostOfSeveralMessagesComesIntoSight({ page, app }) {
    await app.resize(844, 390);
    await app.signIn();
    await app.tap("mineTab");
    await app.tap("newButton");
    await app.tap("createButton");
    const { top, bottom } = await page.$eval("[data-view=nameOfCreator]", each => each.getBoundingClientRect().toJSON());
    expect(top >= 56 && bottom <= 390, `below the bar, not from ${top} to ${bottom}`);
  },
  async aListIsAColumnInTheMiddleOfWhatTheTabsLeave({ page, app }) {
    await app.signIn();
    await shown(page, "OtherCampaignsTableViewController");
    for (const [width, left, right] of [[390, 16, 374], [700, 96, 684], [1280, 328, 1048]]) {
      await app.resize(width, 800);
      const row = await page.$eval(".screen:not([hidden]) li:not([hidden])", each => each.getBoundingClientRect().toJSON());
      expect(row.left === left && row.right === right, `at ${width} from ${left} to ${right}, not ${row.left} to ${row.right}`);
    }
    expect(await page.$eval(".empty", each => each.hidden), "it is not empty");
  },
  async scriptsFromElsewhereAreRefused({ page }) {
    const refused = await page.evaluate(() => new Promise(done => {
      addEventListener("securitypolicyviolation", event => done(event.effectiveDirective), { once: true });
      const script = document.createElement("script");
      script.textContent = "window.strange = true";
      document.head.append(script);
      setTimeout(done, 1_000);
    }));
    expect(refused?.startsWith("script-src"), "the policy holds");
    expect(!(await page.evaluate(() => window.strange)), "it has not run");
  },
};
