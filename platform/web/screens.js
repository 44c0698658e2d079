// The screens: their elements, which of them is shown, and how it comes.
import { jsonAt, tell } from "./program.js";
import { hasSlid, keepLevel } from "./back.js";
import { downOn } from "./presses.js";
import { bind } from "./views.js";

const by = id => document.getElementById(id);
const scenes = new Map();  // number -> element
const isSeen = element => element.getClientRects().length > 0;
export let shown = null;   // its element, and how deep it lies
let leaving = [];          // what can still be seen below what slides in

export function addScene(id, place, at, size) {
  const { name, views: numbers } = jsonAt(at, size), template = by(name);
  const element = document.createElement("div");
  element.className = "screen";
  element.dataset.scene = name;
  element.append(...[by("meadow"), by(template.dataset.like ?? name)].map(each => each.content.cloneNode(true)));
  if (!place) {
    element.prepend(by("bar").content.cloneNode(true));
    element.querySelector(".back").addEventListener("click", () => tell("goBack"));
    element.querySelector("header").append(...element.querySelectorAll("[data-bar]"));
  }
  for (const [view, number] of Object.entries(numbers)) {
    const found = element.querySelectorAll(`[data-view="${view}"]`);
    if (found.length === 1) bind(number, found[0]);
    else if (view !== "root") console.error(`${name} has ${found.length} elements for ${view}`);
  }
  for (const pane of element.querySelectorAll("main:not([tabindex])")) pane.tabIndex = -1;
  // What no control takes for itself goes to the screen.
  element.addEventListener("click", event => {
    if (![event.target, downOn ?? event.target].some(each => each.closest("button, label, li"))) tell("tap", numbers.root);
    event.stopPropagation();
  });
  // Where the focus returns to. Some browsers give it to no button that a finger presses.
  element.addEventListener("click", ({ target }) => { element.left = target.closest("button"); }, true);
  scenes.set(id, element);
  (scenes.get(place)?.querySelector("[data-view=tabs]") ?? by("screens")).append(element);
}

export function endScene(id) {
  scenes.get(id).remove();
  scenes.delete(id);
}

export function show(at, size) {
  const look = jsonAt(at, size), element = scenes.get(look.scene);
  const before = shown?.element, forward = look.depth >= shown?.depth;
  if (before !== element) leaving = forward ? [before, ...before.querySelectorAll(".screen:not([hidden])")] : [];
  for (const [id, scene] of scenes) {
    scene.inert = id !== look.scene && id !== look.child;
    scene.hidden = scene.inert && !leaving.includes(scene);
  }
  const header = element.querySelector("header"), back = header.querySelector(".back");
  header.hidden = !look.bar;
  header.querySelector("h1").textContent = look.title;
  back.hidden = !look.back;
  back.ariaLabel = look.backLabel;
  document.title = look.title ? `${look.title} – Leafund` : "Leafund";
  shown = { element, depth: look.depth };
  if (before !== element) by("said").textContent = "";
  if (before && before !== element) enter(element, forward);
  keepLevel();
}

// The new screen slides in, forward over what is left; the keyboard and the reader begin at what it is about, or
// where they left it.
function enter(element, forward) {
  const calm = matchMedia("(prefers-reduced-motion: reduce)").matches;
  const mirrored = getComputedStyle(element).direction === "rtl";
  const from = hasSlid ? {} : calm ? { opacity: 0 } : { translate: `${(forward ? 100 : -33) * (mirrored ? -1 : 1)}% 0` };
  const slide = element.animate([from, {}], { duration: calm ? 100 : 200, easing: "ease-out" });
  const left = leaving, rest = () => {
    if (leaving === left) leaving = [];
    left.filter(each => !leaving.includes(each)).forEach(each => { each.hidden = each.inert; });
  };
  slide.finished.then(rest, rest);
  const begin = forward ? null : element.left;
  [begin, ...element.querySelectorAll("h1")].find(each => each && isSeen(each))?.focus({ preventScroll: true });
}

// The keys that scroll do so wherever on a screen the focus is.
addEventListener("keydown", ({ key, target }) => {
  if (!/^(Page|Home|End|Arrow(Up|Down)| )/.test(key) || target.closest(key.startsWith("Arrow") ? "main, nav" : "main") || (key === " " && target.closest("button"))) return;
  [...shown?.element.querySelectorAll("main") ?? []].find(isSeen)?.focus({ preventScroll: true });
}, true);
