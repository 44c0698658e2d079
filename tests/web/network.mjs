// What the user sees where the network is slow, poor or gone, held to approved pictures.
import { judge, stillCaret } from "./looks.mjs";
import { serve } from "./server.mjs";
import { expect } from "./testing.mjs";
import { rest, shown, verbsFor } from "./verbs.mjs";

const looksAs = async (page, file) => {
  const different = await judge(page, file);
  expect(!different, `it looks as approved, not ${different}`);
};

// Answers no request for which that is so.
async function refuse(page, isRefused) {
  await page.setRequestInterception(true);
  page.on("request", request => (isRefused(new URL(request.url())) ? request.abort() : request.continue()));
}

// A page that was never here before.
const onAFirstVisit = test => async ({ newPage, site, pictures }) => {
  const server = await serve({ "/": site }), opened = await newPage();
  try {
    await test({ ...opened, server, pictures, app: verbsFor(opened.page, pictures.address) });
  } finally {
    await opened.close();
    server.close();
  }
};

export const tests = {
  // 400 kilobits a second, 400 ms there and back, as browsers call it.
  asApprovedWhileASlowNetworkBringsIt: onAFirstVisit(async ({ page, server }) => {
    await page.emulateNetworkConditions({ download: 50_000, upload: 50_000, latency: 400 });
    await page.goto(`${server.address}/`, { waitUntil: "domcontentloaded" });
    await page.waitForFunction(() => getComputedStyle(document.querySelector(".waiting")).opacity === "1");
    await looksAs(page, "network-slow.png");
    await shown(page, "LandingPageVC");
    expect(await page.$eval(".waiting", each => !each.checkVisibility()), "the leaf is gone");
  }),
  asApprovedWhereItDidNotComeWhole: onAFirstVisit(async ({ page, server }) => {
    let gone;
    await refuse(page, address => address.pathname === gone);
    for (gone of ["/page.js", "/leafund.wasm"]) {
      await page.goto(`${server.address}/`);
      await page.waitForFunction(() => document.getElementById("stopped").open);
      await rest(page);
      await looksAs(page, "network-broken.png");
    }
    gone = "";
    await page.tap("#stopped button");
    await shown(page, "LandingPageVC");
    expect(await page.$eval("#stopped", each => !each.open), "and then it starts");
  }),
  asApprovedWithoutANetwork: onAFirstVisit(async ({ page, server, pictures, app }) => {
    await page.goto(`${server.address}/`);
    await page.evaluate(() => navigator.serviceWorker.ready.then(worker => worker.active.state === "activated" ||
      new Promise(done => worker.active.addEventListener("statechange", done))));
    await page.setOfflineMode(true);
    server.close();
    await page.reload();
    await shown(page, "LandingPageVC");
    await stillCaret(page);
    await looksAs(page, "390x844-01-LandingPageVC.png");
    const before = pictures.requests.length;
    await app.signIn();
    await shown(page, "OtherCampaignsTableViewController");
    await looksAs(page, "network-none-rows.png");
    await app.tapRow(0);
    await shown(page, "OneCampaignViewController");
    await looksAs(page, "network-none-campaign.png");
    expect(pictures.requests.length === before, "no picture came");
  }),
};
