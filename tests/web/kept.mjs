// What the page keeps from one start to the next, and what would be lost.
import fs from "node:fs";
import { serve } from "./server.mjs";
import { expect } from "./testing.mjs";
import { shown } from "./verbs.mjs";

export const tests = {
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
  // A visitor who comes while a new version is laid out, file by file, would keep some of each.
  async whatDoesNotBelongTogetherIsNotKept({ page, site }) {
    const mixed = await serve({ "/": site });
    mixed.lay("/page.js", Buffer.from("throw new Error('of another version');"), "text/javascript");
    await page.goto(`${mixed.address}/`);
    const kept = await page.evaluate(async () => {
      const worker = await navigator.serviceWorker.register("worker.js").catch(() => null);
      const installing = worker?.installing;
      if (installing) await new Promise(done => installing.addEventListener("statechange", done));
      const names = await caches.keys();
      return (await Promise.all(names.map(async name => (await (await caches.open(name)).keys()).length))).join();
    });
    mixed.close();
    expect(kept === "0" || kept === "", `nothing, and not ${kept} files`);
  },
  async startingAgainTakesTheVersionThatWaits({ page, site }) {
    const moving = await serve({ "/": site });
    const versionOf = () => page.evaluate(async () => (await caches.keys()).join());
    await page.goto(`${moving.address}/`);
    await page.evaluate(() => navigator.serviceWorker.ready);
    await page.reload();
    await shown(page, "LandingPageVC");
    const before = await versionOf();
    const worker = fs.readFileSync(`${site}/worker.js`, "utf8").replaceAll(/leafund-[0-9a-f]{16}/g, "leafund-0123456789abcdef");
    moving.lay("/worker.js", Buffer.from(worker), "text/javascript");
    await page.evaluate(async () => {
      const registration = await navigator.serviceWorker.getRegistration();
      await registration.update();
      while (!registration.waiting) await new Promise(done => setTimeout(done, 50));
      document.getElementById("stopped").showModal();
    });
    const isAgain = page.waitForNavigation();
    await page.click("#stopped button");
    await isAgain;
    await shown(page, "LandingPageVC");
    await page.evaluate(() => new Promise(done => setTimeout(done, 300)));
    moving.close();
    expect(await versionOf() === "leafund-0123456789abcdef", `the new version, and not ${await versionOf()} after ${before}`);
  },
  async theNewsHaveNoBrokenPicturesWithoutANetwork({ page, app }) {
    await app.signIn();
    await page.setOfflineMode(true);
    await page.$$eval(".story", all => all.forEach(each => { each.src = each.src.replace(".jpg", ".none.jpg"); }));
    await app.tap("newsTab");
    await page.waitForFunction(() => [...document.querySelectorAll(".story")].every(each => !each.hasAttribute("src")), { timeout: 3_000 });
  },
  async whoPledgedIsAskedBeforeItIsLost({ page, app }) {
    let asked = 0;
    page.on("dialog", dialog => { ++asked; dialog.accept(); });
    await app.signIn();
    await app.tapRow(0);
    await shown(page, "OneCampaignViewController");
    await app.type("dollarAmountField", "80");
    await app.tap("FundButton");
    await shown(page, "ConfirmPageVC");
    await app.tap("yesButton");
    await shown(page, "ThankYouVC");
    await app.tap("homeButton");
    await shown(page, "OtherCampaignsTableViewController");
    await page.reload();
    expect(asked === 1, `once, and not ${asked} times`);
    await shown(page, "LandingPageVC");
    await app.signIn();
    await page.reload();
    expect(asked === 1, "there is nothing to lose any more");
  },
};
