// page.mjs BUILD [WORD]: the tests of the page that is shipped, or those with that word in their name. Prints a
// line a test.
import path from "node:path";
import { fileURLToPath } from "node:url";
import { openBrowser, openScreen } from "./browser.mjs";
import { serve } from "./server.mjs";
import { shown, verbsFor } from "./verbs.mjs";

const [build, word = ""] = process.argv.slice(2);
const rooms = ["behaviour", "typing", "kept", "messages", "focus", "history", "back", "list", "access", "looks", "network", "places"];
const site = path.join(build, "site");
const folder = path.join(path.dirname(fileURLToPath(import.meta.url)), "../../pictures");
const pictures = { folder, ...await serve({ "/": folder }, Number(process.env.LEAFUND_PICTURE_PORT ?? 0)) };
const server = await serve({ "/": site });

// In a page of its own.
async function run(browser, test, screen) {
  const opened = await browser.newPage();
  try {
    await opened.page.goto(`${server.address}/`);
    await shown(opened.page, "LandingPageVC");
    await test({ ...opened, newPage: browser.newPage, build, site, pictures, screen, app: verbsFor(opened.page, pictures.address) });
  } finally {
    await opened.close();
  }
}

for (const room of rooms) {
  const { tests, onScreen } = await import(`./${room}.mjs`);
  const asked = Object.entries(tests).filter(([name]) => `${room}.${name}`.includes(word));
  if (asked.length === 0) continue;
  const screen = onScreen && await openScreen();
  const browser = await openBrowser(screen);
  for (const [name, test] of asked) {
    try {
      await run(browser, test, screen);
      console.log(`OK   ${room}.${name}`);
    } catch (error) {
      process.exitCode = 1;
      console.log(`FAIL ${room}.${name}\n     ${error.message}`);
    }
  }
  await browser.close();
  if (screen) screen.close();
}
server.close();
pictures.close();
