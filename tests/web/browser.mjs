// A browser that nobody sees, with an empty profile. Packages of npm are looked for in the folder that
// LEAFUND_WEB_DRIVER names.
import { execFileSync, spawn } from "node:child_process";
import { createRequire } from "node:module";
import fs from "node:fs";
import os from "node:os";
import path from "node:path";
import { pathToFileURL } from "node:url";

export const driverFile = name => createRequire(path.resolve(process.env.LEAFUND_WEB_DRIVER, "package.json")).resolve(name);
const { default: puppeteer } = await import(pathToFileURL(driverFile("puppeteer-core")));

// Which of the two is driven, LEAFUND_BROWSER says.
export const inFirefox = process.env.LEAFUND_BROWSER === "firefox";
// Firefox has a touch screen without being told, and no phone's way of fitting pages to one.
export const phone = { width: 390, height: 844, ...(inFirefox ? {} : { hasTouch: true, isMobile: true }) };

const chromium = {
  executablePath: "/usr/bin/chromium",
  args: ["--no-sandbox", "--disable-gpu", "--disable-quic", "--no-first-run", "--disable-background-networking",
    "--disable-component-update", "--disable-sync"],
};
const firefox = {
  browser: "firefox", executablePath: "/usr/bin/firefox-esr",
  extraPrefsFirefox: { "javascript.options.wasm_js_promise_integration": true },  // only the tests wait in the program
};

// A screen of X that nobody sees, for what only a browser with a window does: its keys and buttons.
export async function openScreen() {
  const server = spawn("Xvfb", ["-displayfd", "3", "-screen", "0", "1400x1000x24", "-nolisten", "tcp"],
    { stdio: ["ignore", "ignore", "ignore", "pipe"] });
  const number = await new Promise((done, fail) => { server.stdio[3].once("data", done); server.once("error", fail); });
  const env = { ...process.env, DISPLAY: `:${String(number).trim()}` };
  return { env, press: keys => execFileSync("xdotool", ["key", keys], { env }), close: () => server.kill() };
}

// On that screen, or with no window at all.
export async function openBrowser(screen) {
  const profile = fs.mkdtempSync(path.join(os.tmpdir(), "leafund-browser-"));
  const browser = await puppeteer.launch({
    ...(inFirefox ? firefox : chromium),
    headless: !screen, userDataDir: profile, protocolTimeout: 60_000, env: screen?.env ?? process.env,
  });
  const close = async () => {
    await browser.close();
    fs.rmSync(profile, { recursive: true, force: true, maxRetries: 20 });
  };
  // A page of a fresh context, and what it says: lines on the console, and errors.
  const newPage = async (viewport = phone) => {
    const context = await browser.createBrowserContext();
    const page = await context.newPage();
    await page.setViewport(viewport);
    const said = [], errors = [];
    const heard = { log: said, error: errors };  // and not what the browser has to remark
    page.on("console", line => heard[line.type()]?.push(line.text()));
    page.on("pageerror", error => errors.push(error.stack));
    return { page, said, errors, close: () => context.close() };
  };
  return { browser, newPage, close };
}
