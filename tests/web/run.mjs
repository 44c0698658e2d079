// run.mjs BUILD SUITE [WORD]: runs each test of a suite, or those with that word in their name, in a page of its
// own, and prints a line a test.
import fs from "node:fs";
import path from "node:path";
import { fileURLToPath } from "node:url";
import { openBrowser } from "./browser.mjs";
import { serve } from "./server.mjs";
import { verbsFor } from "./verbs.mjs";

const [build, suite, word = ""] = process.argv.slice(2);
const here = path.dirname(fileURLToPath(import.meta.url)), top = path.join(here, "../..");
// The address of the pictures is compiled in.
const pictures = await serve({ "/": path.join(top, "pictures") }, Number(process.env.LEAFUND_PICTURE_PORT ?? 0));
const server = await serve({ "/": path.join(build, "site"), "/suite/": here, "/suites/": path.join(build, "tests/web") });
// The application's own document, with a test in place of its start.
const document = fs.readFileSync(path.join(build, "site/index.html"), "utf8");
server.lay("/suite.html", document.replace("open.js", "suite/suite.js"), "text/html; charset=utf-8");
const browser = await openBrowser();

async function run(test) {
  const { page, said, errors, close } = await browser.newPage();
  try {
    const verbs = verbsFor(page, pictures.address);
    await page.exposeFunction("drive", async (verb, ...rest) => (await verbs[verb](...rest)) ?? "");
    await page.goto(`${server.address}/suite.html?suite=${suite}${test ? `&test=${test}` : ""}`);
    const result = await page.waitForFunction(() => window.result !== undefined, { timeout: 120_000 });
    await result.dispose();
    return { good: (await page.evaluate(() => window.result)) === 0, said, errors };
  } catch (error) {
    return { good: false, said, errors: [...errors, error.message] };
  } finally {
    await close();
  }
}

const names = [];
let group = "";
const listed = await run("");
if (!listed.good) console.log(`FAIL ${suite}: it lists no tests; ${listed.errors.join("; ")}`);
for (const line of listed.said) {
  if (/^\S+\.$/.test(line)) group = line;
  else if (/^ {2}\S/.test(line)) names.push(group + line.trim());
}
let failed = names.length === 0;
for (const name of names.filter(each => each.includes(word))) {
  const { good, said, errors } = await run(name);
  console.log(`${good ? "OK  " : "FAIL"} ${suite}.${name}`);
  if (good) continue;
  failed = true;
  for (const line of [...said.filter(each => /Failure|Which|Expected|Actual|Value/.test(each)), ...errors]) console.log(`     ${line}`);
}
await browser.close();
server.close();
pictures.close();
process.exitCode = failed ? 1 : 0;
