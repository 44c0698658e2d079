// page.mjs BUILD [WORD]: the tests of the page that is shipped, or those with that word in their name. Prints a
// line a test.
import path from "node:path";
import { fileURLToPath } from "node:url";
import { openBrowser } from "./browser.mjs";
import { serve } from "./server.mjs";
import { shown, verbsFor } from "./verbs.mjs";

const [build, word = ""] = process.argv.slice(2);
const rooms = ["behaviour", "history", "access"];
const site = path.join(build, "site");
const folder = path.join(path.dirname(fileURLToPath(import.meta.url)), "../../pictures");
const pictures = { folder, ...await serve({ "/": folder }, Number(process.env.LEAFUND_PICTURE_PORT ?? 0)) };
const server = await serve({ "/": site });
const browser = await openBrowser();

// In a page of its own.
async function run(test) {
  const opened = await browser.newPage();
  try {
    await opened.page.goto(`${server.address}/`);
    await shown(opened.page, "LandingPageVC");
    await test({ ...opened, site, pictures, app: verbsFor(opened.page, pictures.address) });
  } finally {
    await opened.close();
  }
}

for (const room of rooms) {
  const { tests } = await import(`./${room}.mjs`);
  for (const [name, test] of Object.entries(tests)) {
    const whole = `${room}.${name}`;
    if (!whole.includes(word)) continue;
    try {
      await run(test);
      console.log(`OK   ${whole}`);
    } catch (error) {
      process.exitCode = 1;
      console.log(`FAIL ${whole}\n     ${error.message}`);
    }
  }
}
await browser.close();
server.close();
pictures.close();
