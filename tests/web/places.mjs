// One look, two hosts: every view stands where the window has it (tests/look/Places-*.txt), within what two ways of
// setting type differ by, and says the same.
import fs from "node:fs";
import path from "node:path";
import { fileURLToPath } from "node:url";
import { walk } from "./road.mjs";
import { expect } from "./testing.mjs";
import { shown } from "./verbs.mjs";

const folder = path.join(path.dirname(fileURLToPath(import.meta.url)), "../look");

// Of each screen the views in the window's order.
function placesIn(file) {
  const screens = new Map();
  for (const block of fs.readFileSync(path.join(folder, file), "utf8").trim().split("\n\n")) {
    const [title, ...lines] = block.split("\n");
    screens.set(title.slice(2), lines.map(line => {
      const [name, x, y, width, height, ...words] = line.split(" ");
      return { name, x: Number(x), y: Number(y), width: Number(width), height: Number(height), words: words.join(" ") };
    }));
  }
  return screens;
}

// The same of the page. Text begins within what frames it.
const placesOn = page => page.evaluate(() => {
  const screen = document.querySelector("#screens > .screen:not([hidden])");
  return [...screen.querySelectorAll("[data-view]")].filter(each => each.checkVisibility()).map(each => {
    // With its icon, and without the word that a reader hears with it.
    const whole = each.closest(".error") ?? each, range = document.createRange();
    range.selectNodeContents(each);
    if (each.querySelector(".unseen")) range.setStartAfter(each.querySelector(".unseen"));
    const box = (range.startOffset > 0 ? range : whole).getBoundingClientRect(), style = getComputedStyle(each), text = each.matches("p");
    const inset = side => (text ? parseFloat(style[`padding${side}`]) + parseFloat(style[`border${side}Width`]) : 0);
    const words = each.cloneNode(true), input = each.querySelector("input, textarea");
    words.querySelectorAll(".unseen, svg").forEach(unseen => unseen.remove());
    return { name: each.dataset.view, x: box.x + inset("Left"), y: box.y + inset("Top"),
      width: box.width - inset("Left") - inset("Right"), height: box.height - inset("Top") - inset("Bottom"),
      words: (input ? input.value : words.textContent).replace(/\s+/g, " ").trim() };
  }).filter(each => each.height > 0 && each.width > 0);
});

const aside = 4, apart = 8, line = 30;  // px

// What stands over it, nearest.
function above(view, views) {
  const over = views.filter(each => each !== view && each.y + each.height <= view.y + 1 &&
    each.x < view.x + view.width && view.x < each.x + each.width);
  return over.sort((one, other) => other.y + other.height - one.y - one.height)[0];
}

function differences(window, page) {
  const found = [], differ = (what, name, one, other) => found.push(`${name}: ${what} ${Math.round(other)} and not ${Math.round(one)}`);
  const names = views => views.map(({ name }) => name).filter(name => name !== "tabs").join(", ");
  if (names(window) !== names(page)) found.push(`${names(page)}\n     and not\n     ${names(window)}`);
  const onPage = new Map(page.map(view => [view.name, view]));
  for (const one of window.filter(({ name }) => name !== "tabs" && onPage.has(name))) {
    const other = onPage.get(one.name), over = above(one, window), wraps = one.words && one.height > 1.6 * line;
    if (Math.abs(one.x - other.x) > aside) differ("begins at", one.name, one.x, other.x);
    if (Math.abs(one.width - other.width) > aside) differ("is wide", one.name, one.width, other.width);
    if (Math.abs(one.height - other.height) > (wraps ? line : apart)) differ("is high", one.name, one.height, other.height);
    if (one.words && one.words !== other.words) found.push(`${one.name}: says ${other.words} and not ${one.words}`);
    const same = over && onPage.get(over.name);
    if (one.name.startsWith("tab") || one.name.endsWith("Tab")) {  // over what scrolls
      if (Math.abs(one.y - other.y) > apart) differ("stands at", one.name, one.y, other.y);
      continue;
    }
    if (!same) continue;
    const [gap, here] = [one.y - over.y - over.height, other.y - same.y - same.height];
    if (Math.abs(gap - here) > apart) differ(`below ${over.name} by`, one.name, gap, here);
  }
  return found;
}

const standsAsInTheWindow = (width, height) => async ({ page, app }) => {
  const screens = placesIn(`Places-${width}x${height}.txt`), found = [];
  await page.setViewport({ ...page.viewport(), width, height });
  await walk(app, async (scene, state) => {
    await shown(page, scene);
    const screen = [scene, state].filter(Boolean).join(" ");
    found.push(...differences(screens.get(screen), await placesOn(page)).map(each => `${screen}: ${each}`));
  });
  expect(found.length === 0, `every view stands as in the window, but\n     ${found.join("\n     ")}`);
};

export const tests = {
  onAPhone: standsAsInTheWindow(390, 844),
  onADesktop: standsAsInTheWindow(1280, 800),
};
