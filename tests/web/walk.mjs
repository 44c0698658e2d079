// walk.mjs ADDRESS FOLDER: walks past every screen of the page at ADDRESS with real taps and keys, and saves
// pictures of them in FOLDER.
import fs from "node:fs";
import path from "node:path";
import { openBrowser } from "./browser.mjs";
import { walk } from "./road.mjs";
import { shown, verbsFor } from "./verbs.mjs";

const [address, folder] = process.argv.slice(2);
fs.mkdirSync(folder, { recursive: true });
const browser = await openBrowser();
const { page, errors } = await browser.newPage();
let number = 0;

try {
  await page.goto(address);
  await walk(verbsFor(page, ""), async (scene, state) => {
    await shown(page, scene);
    await page.waitForNetworkIdle({ idleTime: 300 });
    const name = [String(++number).padStart(2, "0"), scene, state].filter(Boolean).join("-");
    await page.screenshot({ path: path.join(folder, `${name}.png`) });
  });
  if (errors.length) throw new Error(errors.join("\n"));
  console.log(`Pictures of every screen: ${folder}`);
} catch (error) {
  console.error(`The walk ended early: ${error.message}`);
  process.exitCode = 1;
} finally {
  await browser.close();
}
