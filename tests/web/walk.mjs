// walk.mjs ADDRESS FOLDER: walks the pledge road on the page at ADDRESS with real taps and keys, and saves a
// picture of every screen in FOLDER.
import fs from "node:fs";
import path from "node:path";
import { openBrowser } from "./browser.mjs";
import { verbsFor } from "./verbs.mjs";

const [address, folder] = process.argv.slice(2);
fs.mkdirSync(folder, { recursive: true });
const browser = await openBrowser();
const { page, errors } = await browser.newPage();
const app = verbsFor(page, "");
let number = 0;

async function see(screen) {
  await page.waitForFunction(name => [...document.querySelectorAll(`[data-scene="${name}"]`)].some(each => each.checkVisibility()),
    { timeout: 10_000 }, screen);
  await page.waitForNetworkIdle({ idleTime: 300 });
  await page.screenshot({ path: path.join(folder, `${String(++number).padStart(2, "0")}-${screen}.png`) });
}

try {
  await page.goto(address);
  await see("LandingPageVC");
  await app.tap("signUpButton");
  await see("SignUpVC");
  await app.back();
  await app.type("userEmail", "wren@example.org");
  await app.type("password", "secret");
  await app.tap("signInButton");
  await see("OtherCampaignsTableViewController");
  await app.tapRow(0);
  await see("OneCampaignViewController");
  await app.type("dollarAmountField", "80");
  await app.tap("FundButton");
  await see("ConfirmPageVC");
  await app.tap("yesButton");
  await see("ThankYouVC");
  await app.tap("homeButton");
  await app.tap("fundedTab");
  await see("FundCampaignVC");
  await app.tapRow(1);
  await app.tap("campaignUpdates");
  await see("UpdatePageVC");
  await app.back();
  await app.back();
  await app.tap("newsTab");
  await see("NewsFeedVC");
  await app.tap("mineTab");
  await see("MyProfileVC");
  await app.tap("newButton");
  await see("NewCampaignVC");
  if (errors.length) throw new Error(errors.join("\n"));
  console.log(`Pictures of every screen: ${folder}`);
} catch (error) {
  console.error(`The walk ended early: ${error.message}`);
  process.exitCode = 1;
} finally {
  await browser.close();
}
