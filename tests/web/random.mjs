// random.mjs BUILD REFERENCE ACTIONS SEED inside|outside: lets a random user do that many actions in the page that
// is shipped, a hundred in a page of its own, and holds what it shows to the program REFERENCE after each. Inside,
// they are events that a script makes, and many; outside, fingers, a mouse and keys. What the pictures' host
// answers comes late, and sometimes breaks off. Prints a line a page; at a difference the actions so far, which
// come again with that seed. Of many actions some must meet every screen, or they would show little.
import path from "node:path";
import { fileURLToPath } from "node:url";
import { openBrowser } from "./browser.mjs";
import { openEyes } from "./eyes.mjs";
import { Lot } from "./lot.mjs";
import { Reference } from "./reference.mjs";
import { serve } from "./server.mjs";
import { User, insideHand, outsideHand } from "./user.mjs";
import { shown } from "./verbs.mjs";

const [build, program, actions, firstSeed, way] = process.argv.slice(2);
const aPage = 100, many = 1_000;
const met = new Map(["ConfirmPageVC", "ThankYouVC", "UpdatePageVC", "NewCampaignVC", "SignUpVC"].map(screen => [screen, 0]));
const lot = new Lot(Number(firstSeed));
const folder = path.join(path.dirname(fileURLToPath(import.meta.url)), "../../pictures");
const whim = () => (lot.percent(10) ? "break" : lot.below(3) * lot.below(200));
const pictures = await serve({ "/": folder }, Number(process.env.LEAFUND_PICTURE_PORT ?? 0), whim);
const server = await serve({ "/": path.join(build, "site") });
const browser = await openBrowser();

async function play(seed, count) {
  const { page, said, errors, close } = await browser.newPage();
  const reference = new Reference(program);
  const hand = (way === "inside" ? insideHand : outsideHand)(page);
  const user = new User({ page, said, errors, reference, hand, lot: new Lot(seed) });
  const done = [];
  try {
    await page.evaluateOnNewDocument(openEyes);
    await page.goto(`${server.address}/`);
    await shown(page, "LandingPageVC");
    await reference.begin();
    for (let number = 0; number < count; ++number) {
      done.push(await user.act());
      met.set(reference.screen, (met.get(reference.screen) ?? 0) + 1);
    }
    return true;
  } catch (error) {
    console.log(`seed ${seed} diverges: ${error.message}\n     ${[...done, user.doing].join("\n     ")}`);
    return false;
  } finally {
    reference.end();
    await close();
  }
}

for (let seed = Number(firstSeed), left = Number(actions); left > 0; ++seed, left -= aPage) {
  const count = Math.min(aPage, left);
  if (await play(seed, count)) console.log(`OK   seed ${seed}: ${count} actions`);
  else { process.exitCode = 1; break; }
}
console.log(`met: ${[...met].map(([screen, times]) => `${screen} ${times}`).join(", ")}`);
if (Number(actions) >= many && [...met.values()].includes(0)) {
  console.log(`seed ${firstSeed} diverges: a screen was never met`);
  process.exitCode = 1;
}
await browser.close();
server.close();
pictures.close();
