// What only the page does.
import fs from "node:fs";
import { serve } from "./server.mjs";
import { expect } from "./testing.mjs";
import { pressBack, rest, shown, verbsFor } from "./verbs.mjs";

export const tests = {
  async everyViewHasItsOneElement({ page, app, errors }) {
    await app.tap("signUpButton");
    await pressBack(page);
    await app.signIn();
    for (const tab of ["fundedTab", "mineTab", "newsTab"]) await app.tap(tab);
    await app.tap("mineTab");
    await app.tap("newButton");
    await shown(page, "NewCampaignVC");
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
  async textSelectedBeyondItsBoxIsNoTapBesideIt({ page, app }) {
    await app.signIn();
    await app.tap("mineTab");
    await app.tap("newButton");
    await shown(page, "NewCampaignVC");
    await app.type("nameOfCreator", "wren@example.org");
    const { x, y } = await page.$eval("[data-view=nameOfCreator] input", each => each.getBoundingClientRect().toJSON());
    await page.mouse.move(x + 60, y + 10);
    await page.mouse.down();
    await page.mouse.move(5, y - 20, { steps: 4 });
    await page.mouse.up();
    const input = await page.$eval("[data-view=nameOfCreator] input", each => [document.activeElement === each, each.selectionEnd - each.selectionStart]);
    expect(input[0] && input[1] > 2, `the user goes on in the input: ${input}`);
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
  async returnLeadsFromInputToInputAndEndsInTheLast({ page, app }) {
    const inFocus = () => page.evaluate(() => document.activeElement.closest("[data-view]")?.dataset.view ?? "none");
    await app.type("userEmail", "wren@example.org");
    await page.keyboard.press("Enter");
    expect(await inFocus() === "password", `the next input, not ${await inFocus()}`);
    await page.keyboard.press("Enter");
    expect(await inFocus() === "none", `no input, not ${await inFocus()}`);
    await shown(page, "LandingPageVC");
  },
  // As Firefox gives it for one key.
  async aLetterThatComesByHalvesIsOne({ page, app }) {
    const shownThen = await page.$eval("[data-view=userEmail] input", async input => {
      input.focus();
      for (const half of "🌱".split("")) {
        input.value += half;
        input.dispatchEvent(new InputEvent("input", { bubbles: true }));
      }
      await new Promise(done => setTimeout(done, 50));
      return input.value;
    });
    expect(shownThen === "🌱", `the letter stands there, not ${shownThen}`);
    await app.tap("signInButton");
    expect(await app.text("userEmail") === "🌱", "and stays");
  },
  async theCommaOfAPhonesKeyboardForNumbersIsAPoint({ page, app, newPage }) {
    const typed = async ({ page, app }) => {
      await app.signIn();
      await app.tapRow(0);
      await shown(page, "OneCampaignViewController");
      await app.type("dollarAmountField", "12,50");
      return app.text("dollarAmountField");
    };
    expect(await typed({ page, app }) === "12.50", `a point, not ${await app.text("dollarAmountField")}`);
    const desk = await newPage({ width: 800, height: 844 });
    await desk.page.goto(page.url());
    await shown(desk.page, "LandingPageVC");
    expect(await typed({ page: desk.page, app: verbsFor(desk.page) }) === "12,50", "on a desk it is what was pressed");
    await desk.close();
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
  async aWideWindowHasTheTabsAtItsSideAndTwoColumns({ page, app }) {
    await app.signIn();
    const boxOf = place => page.$eval(`.screen:not([hidden]) ${place}`, each => each.getBoundingClientRect().toJSON());
    for (const [width, height, rail] of [[559, 800, 0], [560, 800, 80], [840, 479, 80], [840, 480, 96]]) {
      await app.resize(width, height);
      const nav = await boxOf("nav");
      const expected = rail ? [0, rail, height] : [height - 64, width, 64];
      expect([nav.top, nav.width, nav.height].join() === expected.join(), `${width} × ${height}: ${expected}, not ${[nav.top, nav.width, nav.height]}`);
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
  async nothingIsStored({ page, app }) {
    await app.signIn();
    const kept = await page.evaluate(async () => [document.cookie, localStorage.length, sessionStorage.length,
      (await indexedDB.databases()).length].join());
    expect(kept === ",0,0,0", `cookie, local, session, databases: ${kept}`);
  },
  async afterOneVisitItStartsWithoutANetwork({ page, app, errors, site }) {
    const passing = await serve({ "/": site });
    await page.goto(`${passing.address}/`);
    await page.evaluate(() => navigator.serviceWorker.ready.then(worker => worker.active.state === "activated" ||
      new Promise(done => worker.active.addEventListener("statechange", done))));
    const kept = await page.evaluate(async () => {
      const [name] = await caches.keys();
      return (await (await caches.open(name)).keys()).map(each => new URL(each.url).pathname);
    });
    expect(kept.includes("/leafund.wasm") && !kept.some(each => each.endsWith(".jpg")), `what is kept: ${kept}`);
    passing.close();
    await page.reload();
    await shown(page, "LandingPageVC");
    errors.length = 0;
    await app.signIn();
    await shown(page, "OtherCampaignsTableViewController");
    expect((await app.rows()).startsWith("Vegetarian for PETA"), "the list is there");
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
