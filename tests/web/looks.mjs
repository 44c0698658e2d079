// How every screen looks, held to approved pictures (tests/web/approved).
import { execFileSync, spawnSync } from "node:child_process";
import fs from "node:fs";
import os from "node:os";
import path from "node:path";
import { fileURLToPath } from "node:url";
import { walk } from "./road.mjs";
import { expect } from "./testing.mjs";
import { rest, shown } from "./verbs.mjs";

const approved = path.join(path.dirname(fileURLToPath(import.meta.url)), "approved");
const seen = fs.mkdtempSync(path.join(os.tmpdir(), "leafund-looks-"));
process.on("exit", () => fs.rmSync(seen, { recursive: true, force: true }));

// How many pixels differ by more than another version of the browser blends the edge of a letter; and, as a card
// differs from the ground by less, how many of the same at a quarter of the size, where letters are blended anyway.
const most = 0.0005;  // of all
function difference(one, other, fuzz) {
  const { stderr, status } = spawnSync("compare", ["-metric", "AE", "-fuzz", fuzz, one, other, "null:"], { encoding: "utf8" });
  return status === 0 || status === 1 ? Number(stderr) : Infinity;
}
function differences(one, other) {
  const [smallOne, smallOther] = [one, other].map((file, number) => {
    const small = path.join(seen, `small-${number}.png`);
    execFileSync("convert", [file, "-scale", "25%", small]);
    return small;
  });
  return [difference(one, other, "12%"), 16 * difference(smallOne, smallOther, "3%")];
}

// It blinks.
export const stillCaret = page => page.evaluate(() => {
  const still = new CSSStyleSheet();
  still.replaceSync("* { caret-color: transparent !important; }");
  document.adoptedStyleSheets = [still];
});

// What is shown now, held to that approved picture: says how many pixels differ, or nothing.
export async function judge(page, file) {
  const now = path.join(seen, file), wanted = path.join(approved, file);
  await page.screenshot({ path: now });
  execFileSync("convert", [now, "-strip", "-define", "png:exclude-chunks=date,time", now]);
  if (process.env.LEAFUND_APPROVE) fs.copyFileSync(now, wanted);
  const pixels = fs.existsSync(wanted) ? differences(wanted, now) : [Infinity];
  const { width, height } = page.viewport();
  return pixels.every(each => each <= most * width * height) ? "" : `${file}: ${pixels.join(" and ")} pixels`;
}

const looksAsApproved = (name, width, height, scheme, slower = 1) => async ({ page, app }) => {
  await page.setViewport({ ...page.viewport(), width, height });
  await page.emulateMediaFeatures([{ name: "prefers-color-scheme", value: scheme }]);
  await page.emulateCPUThrottling(slower);
  await stillCaret(page);
  const changed = [];
  let number = 0;
  await walk(app, async (scene, state) => {
    await shown(page, scene);
    await page.waitForNetworkIdle({ idleTime: 100 });
    await page.waitForFunction(() => [...document.images].every(each => each.complete));
    await rest(page);
    const different = await judge(page, `${name}-${[String(++number).padStart(2, "0"), scene, state].filter(Boolean).join("-")}.png`);
    if (different) changed.push(different);
  });
  expect(changed.length === 0, `it looks as approved, but\n     ${changed.join("\n     ")}`);
};

export const tests = {
  asApprovedByDay: looksAsApproved("390x844", 390, 844, "light"),
  asApprovedSixTimesSlower: looksAsApproved("390x844", 390, 844, "light", 6),
  asApprovedByNight: looksAsApproved("390x844-night", 390, 844, "dark"),
  asApprovedInLandscape: looksAsApproved("844x390", 844, 390, "light"),
  asApprovedOnADesktop: looksAsApproved("1280x800", 1280, 800, "light"),
};
