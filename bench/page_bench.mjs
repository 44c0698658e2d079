// page_bench.mjs BUILD FOLDER ROUNDS: measures the page built in BUILD beside its peers in FOLDER/site. Started by
// bench/page.
import fs from "node:fs";
import os from "node:os";
import path from "node:path";
import { openBrowser } from "../tests/web/browser.mjs";
import { serve } from "../tests/web/server.mjs";
import { shown, verbsFor } from "../tests/web/verbs.mjs";

const [build, folder, rounds] = process.argv.slice(2);
const distance = 36_000, speed = 3_600;  // px, and px a second
const pause = ms => new Promise(done => setTimeout(done, ms));
const median = values => values.toSorted((one, other) => one - other)[values.length >> 1];

// As a host of static files answers, whose answers a browser keeps and asks about again.
const site = await serve({ "/": path.join(build, "site"), "/peers/": path.join(folder, "site") }, 0, () => 0, true);
site.lay("/blank.html", Buffer.from("<!doctype html><title>Blank</title>"), "text/html");
const long = await serve({ "/": path.join(build, "site") });
long.lay("/leafund.wasm", fs.readFileSync(path.join(build, "tests/web/long_list.wasm")), "application/wasm");
const { browser, newPage, close } = await openBrowser();
const system = await browser.target().createCDPSession();

// Of the page's main thread, in milliseconds of the processor.
async function threadOf(page) {
  const session = await page.createCDPSession();
  await session.send("Performance.enable", { timeDomain: "threadTicks" });
  return async () => {
    const { metrics } = await session.send("Performance.getMetrics");
    return 1000 * metrics.find(({ name }) => name === "TaskDuration").value;
  };
}

const proportional = pid => Number(/^Pss:\s+(\d+)/m.exec(fs.readFileSync(`/proc/${pid}/smaps_rollup`, "utf8"))[1]) / 1024;
// The largest: beside the page's own the browser keeps one for the next.
async function renderer() {
  const { processInfo } = await system.send("SystemInfo.getProcessInfo");
  return Math.max(...processInfo.filter(({ type }) => type === "renderer").map(({ id }) => proportional(id)));
}

const pages = { "the page": "/", plain: "/peers/plain.html", Preact: "/peers/preact.html", React: "/peers/react.html" };
const taken = new Map();
const take = (figure, value) => taken.set(figure, [...(taken.get(figure) ?? []), value]);

async function visit(page, thread, address, figure) {
  await page.goto(`${site.address}/blank.html`);
  const before = await thread();
  await page.goto(site.address + address);
  await page.waitForFunction(() => ["button", "h1"].every(kind => [...document.querySelectorAll(kind)].some(each => each.checkVisibility())) &&
    performance.getEntriesByName("first-contentful-paint").length > 0);
  take(figure, await thread() - before);
}

for (let round = 0; round < Number(rounds); ++round) {
  for (const [name, address] of Object.entries(pages)) {
    const { page, close } = await newPage();
    const thread = await threadOf(page);
    await visit(page, thread, address, `first ${name}`);
    await pause(1_000);  // a service worker keeps what came
    await visit(page, thread, address, `again ${name}`);
    await pause(500);
    take(`memory ${name}`, await renderer());
    await close();
  }
}

// From the top, and up to the end.
async function fling(share) {
  const { page, close } = await newPage();
  await page.goto(long.address);
  await verbsFor(page).signIn();
  await shown(page, "OtherCampaignsTableViewController");
  const thread = await threadOf(page);
  await page.$eval(".table", (box, share) => { box.scrollTop = share * box.scrollHeight; }, share);
  await pause(1_000);
  const placeOf = () => page.evaluate(() => {
    const row = document.querySelector("li:not([hidden])"), { top, height } = row.getBoundingClientRect();
    return (row.ariaPosInSet - 1) * height - top;
  });
  const begin = await placeOf(), session = await page.createCDPSession(), before = await thread();
  await page.evaluate(() => {
    window.frames = 0;
    const count = () => { ++window.frames; requestAnimationFrame(count); };
    count();
  });
  await session.send("Input.synthesizeScrollGesture", { x: 190, y: 400, yDistance: -distance, speed, gestureSourceType: "mouse" });
  const cost = (await thread() - before) / await page.evaluate(() => window.frames), moved = await placeOf() - begin;
  if (Math.abs(moved - distance) > distance / 50) throw new Error(`the list was flung by ${moved} px and not ${distance}`);
  await close();
  return cost;
}

for (let round = 0; round < Number(rounds) / 3; ++round) {
  take("fling top", await fling(0));
  take("fling end", await fling(0.99));
}

const value = figure => median(taken.get(figure));
const row = (what, ours, unit, peer, name, most) => `| ${what} | ${ours.toPrecision(3)} ${unit} | ${peer.toPrecision(3)} ${unit}, ${name} | ` +
  `${(ours / peer).toFixed(2)} | ${most} | ${ours / peer <= most ? "OK" : "short"} |`;
const rows = [
  "| what | ours | beside | ratio | at most |  |", "| --- | --: | --- | --: | --: | --- |",
  row("first content, the first visit", value("first the page"), "ms", value("first React"), "React's hello", 1),
  row("first content, the second visit", value("again the page"), "ms", value("again plain"), "a plain page", 1.5),
  row("the same", value("again the page"), "ms", value("again React"), "React's hello", 1),
  row("memory", value("memory the page"), "MB", value("memory Preact"), "Preact's hello", 1.15),
  row("a frame of a flung list", value("fling top"), "ms", 4.6, "a budget", 1),
  row("the same, a million rows further down", value("fling end"), "ms", value("fling top"), "at the top", 1.1),
];
console.log(rows.join("\n"));
console.log(`\nLoad ${os.loadavg()[0].toFixed(1)}; ${rounds} rounds, medians.`);
fs.writeFileSync(path.join(folder, "table.md"), `${rows.join("\n")}\n`);
await close();
site.close();
long.close();
