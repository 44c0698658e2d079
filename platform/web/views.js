// The views: a binding for each kind of element. It wires the events and answers how to draw.
import { bindEntry, bindReason } from "./entries.js";
import { forgetPicture, setPicture } from "./pictures.js";
import { bytes, jsonAt, tell } from "./program.js";
import { bindTable } from "./table.js";

export const views = new Map();  // number -> its element and how that is drawn

function writeText(element, look) {
  if (look.text === undefined) return;
  element.textContent = look.text;
  element.classList.toggle("long", look.text.length > 48);
  if (!look.label) return;
  const label = document.createElement("span");
  label.className = "unseen";
  label.textContent = `${look.label} `;
  element.prepend(label);
}

const bindings = {
  LABEL: bindEntry,
  BUTTON(element, id) {
    const words = element.querySelector("span") ?? element;
    element.addEventListener("click", () => tell("tap", id));
    return look => {
      words.textContent = look.text;
      if (element.role !== "tab") return;
      element.ariaSelected = String(!!look.selected);
      element.style.color = look.selected ? look.color : "";
    };
  },
  P(element) {
    const describe = element.role === "alert" ? bindReason(element) : () => {};
    return look => {
      writeText(element, look);
      if (element.matches(".sum")) element.style.setProperty("--letters", look.text.length || 1);
      describe(look);
    };
  },
  NAV(element) {
    element.addEventListener("keydown", event => {
      const mirrored = getComputedStyle(element).direction === "rtl" ? -1 : 1;
      const step = { ArrowDown: 1, ArrowUp: -1, ArrowRight: mirrored, ArrowLeft: -mirrored }[event.key];
      if (!step || event.altKey) return;
      event.preventDefault();
      const tabs = [...element.querySelectorAll("[role=tab]")];
      tabs[tabs.indexOf(document.activeElement) + step]?.focus();
    });
    return look => {
      element.ariaLabel = look.label;
      element.style.setProperty("--tint", look.tint);
    };
  },
  PROGRESS: element => look => {
    if (look.from !== look.value) {
      element.value = look.from;
      element.getBoundingClientRect();  // so that the change to come is a change
    }
    element.value = look.value;
    element.ariaLabel = look.label;
  },
  IMG(element) {
    element.onerror = () => element.removeAttribute("src");
    return look => {
      element.alt = look.label ?? "";
      element.style.objectFit = look.fill ? "cover" : "fill";
      if (look.radius) element.style.borderRadius = `${look.radius}px`;
      if (look.border) element.style.border = `${look.border}px solid ${look.borderColor}`;
    };
  },
  UL: bindTable,
  LI(element, id) {
    fitting.observe(element.querySelector(".title"));
    element.firstElementChild.addEventListener("click", () => tell("tap", id));
    return () => {};
  },
};

// A row's pitch has what its title leaves, in whole lines.
const wordsHeight = 125;  // px
const fitting = new ResizeObserver(changes => {
  for (const { target: { offsetHeight, nextElementSibling: detail } } of changes)
    detail.style.webkitLineClamp = Math.floor((wordsHeight - offsetHeight) / parseFloat(getComputedStyle(detail).lineHeight));
});

export function bind(id, element) {
  const draw = (bindings[element.tagName] ?? (() => look => writeText(element, look)))(element, id);
  views.set(id, { element, draw });
}

// A row's card, as logic lays it.
function drawCards(element, look) {
  element.replaceChildren(...(look.cards ?? []).map(card => {
    const box = document.createElement("i");
    box.style.cssText = `inset-inline:${card.x}px 0;top:${card.y}px;height:${card.height}px;` +
      `border-radius:${card.radius}px;` +
      `box-shadow:${card.shadowX}px ${card.shadowY}px 3px rgb(0 0 0/${card.shadow})`;
    return box;
  }));
}

export function addCell(table, id, at, size) {
  const item = document.getElementById("row").content.firstElementChild.cloneNode(true);
  for (const [name, part] of Object.entries(jsonAt(at, size))) bind(part, item.querySelector(`.${name}`));
  bind(id, item);
  views.get(table).element.append(item);
}

export function drawView(id, at, size) {
  const view = views.get(id), look = jsonAt(at, size);
  if (!view) return;
  view.element.hidden = !!look.hidden;
  if (look.cards) drawCards(view.element, look);
  else view.draw(look);
}

export function drawPicture(id, at, size, format) {
  const type = ["image/jpeg", "image/png", "image/gif", "image/webp"][format];
  const blob = size ? new Blob([bytes(at, size).slice()], { type }) : null;
  if (views.has(id)) setPicture(views.get(id).element, blob);
}

export function endView(id) {
  const element = views.get(id)?.element;
  if (element?.tagName === "IMG") forgetPicture(element);
  views.delete(id);
}
