// A list of a million rows, 160 million px high: browsers lay out no element higher than 33 million.
import fs from "node:fs";
import path from "node:path";
import { serve } from "./server.mjs";
import { expect } from "./testing.mjs";
import { rest, shown } from "./verbs.mjs";

const count = 1_000_000, rowHeight = 160;

// Opens the list, runs the test, and ends what serves it.
const withLongList = test => async tools => {
  const { page, app, build, site } = tools;
  const server = await serve({ "/": site });
  server.lay("/leafund.wasm", fs.readFileSync(path.join(build, "tests/web/long_list.wasm")), "application/wasm");
  try {
    await page.goto(server.address);
    await app.signIn();
    await shown(page, "OtherCampaignsTableViewController");
    await test({ ...tools, server });
  } finally {
    server.close();
  }
};

// What stands in the list, from the top, once nothing moves any more: every row has the words of its place, and
// they lie under one another without a gap from edge to edge. Answers how many px lie above the list's top.
async function offsetOf(page) {
  await page.evaluate(() => new Promise(done => {
    const list = document.querySelector(".screen .table");
    let timer = setTimeout(done, 400);
    list.addEventListener("scroll", () => { clearTimeout(timer); timer = setTimeout(done, 400); });
  }));
  await rest(page);
  const { box, rows } = await page.evaluate(() => {
    const list = document.querySelector(".screen .table");
    const rows = [...list.querySelectorAll("li")].filter(each => each.checkVisibility()).map(each => ({
      number: Number(each.ariaPosInSet), size: Number(each.ariaSetSize), title: each.querySelector(".title").textContent,
      top: each.getBoundingClientRect().top, bottom: each.getBoundingClientRect().bottom }));
    return { box: list.getBoundingClientRect().toJSON(), rows };
  });
  for (const { number, size, title } of rows)
    expect(size === count && title === `Campaign ${number - 1}`, `row ${number} of ${count} is its campaign, not ${title} of ${size}`);
  rows.forEach((row, at) => expect(at === 0 || Math.abs(row.top - rows[at - 1].bottom) < 0.5,
    `row ${row.number} begins where the one before ends: ${row.top}, ${rows[at - 1]?.bottom}`));
  expect(rows[0].top <= box.top + 0.5 && rows.at(-1).bottom >= box.bottom - 0.5,
    `rows from edge to edge: ${rows[0].top} to ${rows.at(-1).bottom} of ${box.top} to ${box.bottom}`);
  return (rows[0].number - 1) * rowHeight - (rows[0].top - box.top);
}

const heightOf = page => page.$eval(".screen .table", each => each.clientHeight);

export const tests = {
  endAndHomeReachTheEndAndTheTop: withLongList(async ({ page }) => {
    expect(await offsetOf(page) === 0, "it begins at the top");
    await page.focus(".screen .table");
    await page.keyboard.press("End");
    const end = count * rowHeight - await heightOf(page), reached = await offsetOf(page);
    expect(Math.abs(reached - end) < 1, `the end is ${end}, not ${reached}`);
    await page.keyboard.press("Home");
    expect(await offsetOf(page) === 0, "the top is shown again");
  }),
  aWheelMovesAnywhereByWhatItTurns: withLongList(async ({ page }) => {
    await page.mouse.move(190, 400);
    for (const [from, by] of [[0.0001, 700], [0.3, 900], [0.5, -900], [0.9999, 700]]) {
      await page.$eval(".screen .table", (each, to) => { each.scrollTop = to * each.scrollHeight; }, from);
      const before = await offsetOf(page);
      await page.mouse.wheel({ deltaY: by });
      const after = await offsetOf(page);
      expect(Math.abs(after - before - by) <= 1.5, `from ${before} by ${by}, and not by ${after - before}`);
    }
  }),
  rowsFollowTheFingerPointByPoint: async ({ page, app }) => {
    await app.signIn();
    await shown(page, "OtherCampaignsTableViewController");
    await page.mouse.move(190, 400);
    for (const place of [30, 60, 90, 120, 150, 180, 140]) {
      const moved = await page.$eval(".screen .table", each => each.scrollTop);
      await page.mouse.wheel({ deltaY: place - moved });
      await page.waitForFunction(place => document.querySelector(".screen .table").scrollTop === place, {}, place);
      await rest(page);
      const tops = await page.$$eval(".screen li:not([hidden])", (found, height) => found.map(each =>
        each.getBoundingClientRect().top - each.closest(".table").getBoundingClientRect().top - (each.ariaPosInSet - 1) * height), rowHeight);
      expect(tops.length > 3 && tops.every(top => Math.abs(top + place) < 0.5), `${place} px further up: ${tops}`);
    }
  },
  pageDownFromTheMiddleMissesNoRow: withLongList(async ({ page }) => {
    await page.focus(".screen .table");
    await page.$eval(".screen .table", each => { each.scrollTop = each.scrollHeight / 3; });
    const before = await offsetOf(page), height = await heightOf(page);
    for (let time = 1; time <= 5; ++time) {
      await page.keyboard.press("PageDown");
      const moved = await offsetOf(page) - before;
      expect(moved > time * (height - 150) && moved <= time * height, `page ${time} moves by less than a window, not ${moved}`);
    }
  }),
  // As the browser draws it, which scrolls ahead of the page: no frame has more ground under one another
  // than lies between two cards.
  aFlingShowsNoGap: withLongList(async ({ page, newPage }) => {
    const session = await page.createCDPSession(), frames = [];
    session.on("Page.screencastFrame", ({ data, sessionId }) => {
      frames.push(data);
      session.send("Page.screencastFrameAck", { sessionId });
    });
    await page.emulateCPUThrottling(6);
    await session.send("Page.startScreencast", { format: "png" });
    await session.send("Input.synthesizeScrollGesture", 
      { x: 190, y: 400, yDistance: -20_000, speed: 8_000, gestureSourceType: "mouse" });
    await session.send("Page.stopScreencast");
    await page.emulateCPUThrottling(null);
    const reached = await offsetOf(page);
    expect(reached > 5_000, `it was flung, and not by ${reached} px`);
    const reader = await newPage();
    const ground = await page.evaluate(() => getComputedStyle(document.querySelector(".screen")).backgroundColor.match(/\d+/g).map(Number));
    const gaps = await reader.page.evaluate(async (all, ground) => {
      const gaps = [];
      for (const data of all) {
        const image = new Image();
        image.src = `data:image/png;base64,${data}`;
        await image.decode();
        const canvas = new OffscreenCanvas(image.width, image.height), context = canvas.getContext("2d");
        context.drawImage(image, 0, 0);
        const scale = image.width / 390, column = context.getImageData(Math.round(25 * scale), 0, 1, image.height).data;
        let longest = 0, run = 0;
        for (let y = Math.round(57 * scale); y < (844 - 65) * scale; ++y) {
          const isGround = ground.every((value, part) => Math.abs(column[4 * y + part] - value) < 3);
          run = isGround ? run + 1 : 0;
          longest = Math.max(longest, run);
        }
        gaps.push(longest / scale);
      }
      return gaps;
    }, frames, ground);
    await reader.close();
    expect(gaps.length >= 20, `there are frames to look at: ${gaps.length}`);
    expect(Math.max(...gaps) > 10, `the ground is seen between cards: ${ground}`);
    expect(Math.max(...gaps) < 20, `the widest gap is that between cards, not ${Math.max(...gaps)} px`);
  }),
};
