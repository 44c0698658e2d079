// page.mjs BUILD [WORD]: what only the page does, on the page that is shipped; or the tests with that word in
// their name. Prints a line a test.
import fs from "node:fs";
import path from "node:path";
import { fileURLToPath } from "node:url";
import { openBrowser } from "./browser.mjs";
import { serve } from "./server.mjs";
import { rest, verbsFor } from "./verbs.mjs";

const build = process.argv[2];
const top = path.join(path.dirname(fileURLToPath(import.meta.url)), "../..");
const pictures = await serve({ "/": path.join(top, "pictures") }, Number(process.env.LEAFUND_PICTURE_PORT ?? 0));
const server = await serve({ "/": path.join(build, "site") });
const browser = await openBrowser();

function expect(holds, what) {
  if (!holds) throw new Error(`not so: ${what}`);
}
async function shown(page, name) {
  await page.waitForFunction(scene => [...document.querySelectorAll(`[data-scene="${scene}"]`)].some(each => each.checkVisibility()),
    { timeout: 5_000 }, name);
  await rest(page);
}
// The history as the browser has it, which is not what a script may ask.
async function history(page) {
  const session = await page.createCDPSession();
  const { currentIndex, entries } = await session.send("Page.getNavigationHistory");
  await session.detach();
  return { at: currentIndex, count: entries.length, address: entries[currentIndex].url };
}
async function signIn(app) {
  await app.type("userEmail", "wren@example.org");
  await app.type("password", "secret");
  await app.tap("signInButton");
}
// As far as the browser lets it go: without waiting for a page to load.
async function pressBack(page) {
  await Promise.race([page.goBack({ waitUntil: "domcontentloaded", timeout: 1_500 }).catch(() => {}), new Promise(done => setTimeout(done, 800))]);
}

const tests = {
  async everyViewHasItsOneElement({ page, app, errors }) {
    await app.tap("signUpButton");
    await pressBack(page);
    await signIn(app);
    for (const tab of ["fundedTab", "mineTab", "newsTab"]) await app.tap(tab);
    await app.tap("mineTab");
    await app.tap("newButton");
    await shown(page, "NewCampaignVC");
    expect(errors.length === 0, `no errors but ${errors.join("; ")}`);
    const unbound = await page.evaluate(() => [...document.querySelectorAll("section [data-view] > span:first-child")]
      .filter(each => each.closest("label") && !each.textContent).length);
    expect(unbound === 0, "every input has its caption");
  },
  async backLeadsToTheScreenBelow({ page, app }) {
    await signIn(app);
    await app.tapRow(0);
    await shown(page, "OneCampaignViewController");
    await pressBack(page);
    await shown(page, "OtherCampaignsTableViewController");
  },
  async backStaysWhereTheWayBackIsHidden({ page, app }) {
    await signIn(app);
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
    await page.tap("section:not([hidden]) .back");
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
  async aRowsBodyThatIsNoPictureStopsTheApplication({ page, app, errors }) {
    pictures.lay("/vegetarian-for-peta.jpg", "<!doctype html>", "text/html");
    await signIn(app);
    await page.waitForFunction(() => document.getElementById("stopped").open, { timeout: 5_000 });
    pictures.lay("/vegetarian-for-peta.jpg", fs.readFileSync(path.join(top, "pictures/vegetarian-for-peta.jpg")), "image/jpeg");
    const line = await page.$eval("#stopped p", each => each.textContent);
    expect(line.startsWith("Leafund stopped: "), `it says why, not: ${line}`);
    expect(errors.includes(line), "the line is on the console");
    await page.tap("#stopped button");
    await shown(page, "LandingPageVC");
    await page.waitForFunction(() => !document.getElementById("stopped").open);
  },
  async theSecondTapOfADoubleTapBelongsToTheFirst({ page, app }) {
    await signIn(app);
    await page.evaluate(() => { window.taps = 0; addEventListener("click", () => ++window.taps, true); });
    const row = await page.$("section:not([hidden]) li:not([hidden])");
    const { x, y } = await row.boundingBox();
    await page.mouse.click(x + 60, y + 150, { count: 2 });
    await shown(page, "OneCampaignViewController");
    expect(await page.evaluate(() => window.taps) === 1, "one click alone gets through");
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
  async aListIsAColumnInTheMiddle({ page, app }) {
    await signIn(app);
    await shown(page, "OtherCampaignsTableViewController");
    for (const [width, left, right] of [[390, 16, 374], [1280, 280, 1000]]) {
      await app.resize(width, 800);
      const row = await page.$eval("section:not([hidden]) li:not([hidden])", each => each.getBoundingClientRect().toJSON());
      expect(row.left === left && row.right === right, `at ${width} from ${left} to ${right}, not ${row.left} to ${row.right}`);
    }
    expect(await page.$eval(".empty", each => each.hidden), "it is not empty");
  },
  async nothingIsStored({ page, app }) {
    await signIn(app);
    const kept = await page.evaluate(async () => [document.cookie, localStorage.length, sessionStorage.length,
      (await indexedDB.databases()).length].join());
    expect(kept === ",0,0,0", `cookie, local, session, databases: ${kept}`);
  },
  async afterOneVisitItStartsWithoutANetwork({ page, app, errors }) {
    const passing = await serve({ "/": path.join(build, "site") });
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
    await signIn(app);
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

let failed = false;
for (const [name, test] of Object.entries(tests).filter(([name]) => name.includes(process.argv[3] ?? ""))) {
  const opened = await browser.newPage();
  try {
    await opened.page.goto(`${server.address}/`);
    await shown(opened.page, "LandingPageVC");
    await test({ ...opened, app: verbsFor(opened.page, pictures.address) });
    console.log(`OK   page.${name}`);
  } catch (error) {
    failed = true;
    console.log(`FAIL page.${name}\n     ${error.message}`);
  } finally {
    await opened.close();
  }
}
await browser.close();
server.close();
pictures.close();
process.exitCode = failed ? 1 : 0;
