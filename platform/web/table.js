// A table: which of its rows are drawn where, and how it is scrolled.
import { tell } from "./program.js";
import { views } from "./views.js";

// The rows lie in a pane that stays with the window: the browser may scroll ahead of the program, and
// would show what is not there yet.
const tallest = 16_000_000;  // px; browsers lay out no more than 33 million

export function bindTable(element, id) {
  const space = element.parentElement, box = space.parentElement, empty = box.nextElementSibling;
  let look = { height: 0, placements: -1 }, shift = 0, last = 0, rowOf = new Map();
  const reach = () => Math.max(0, look.height - box.clientHeight);
  const travel = () => Math.max(0, Math.min(look.height, tallest) - box.clientHeight);
  // What is taller than an element can be is scrolled point by point, at a shift; the shift is set anew
  // after a jump and whenever the scrolling rests, so that both ends are reached.
  const place = offset => {
    const top = look.height > tallest ? Math.round(offset / reach() * travel()) : offset;
    if (Math.abs(top - box.scrollTop) >= 1) box.scrollTop = top;
    last = box.scrollTop;
    shift = look.height > tallest ? offset - last : 0;
  };
  box.addEventListener("scroll", () => {
    const top = box.scrollTop;
    const jumped = Math.abs(top - last) > 4 * box.clientHeight || top <= 0 || top >= travel();
    if (look.height > tallest && jumped) shift = top / travel() * reach() - top;
    last = top;
    const offset = Math.max(0, Math.min(reach(), top + shift)), drawn = look;
    tell("scroll", id, offset, look.placements);
    // The program draws anew when other rows come; in between all move together.
    if (look === drawn) element.style.translate = `0 ${look.offset - offset}px`;
  });
  box.addEventListener("scrollend", () => look.height > tallest && place(last + shift));
  return next => {
    const placed = next.placements !== look.placements;
    look = next;
    element.ariaLabel = look.label;
    space.style.height = `${Math.min(look.height, tallest)}px`;
    element.style.width = `${look.width}px`;
    element.closest(".screen").classList.toggle("short", look.height + 160 < box.clientHeight);
    empty.hidden = look.height > 0;
    empty.firstElementChild.textContent = look.emptyHeading ?? "";
    empty.lastElementChild.textContent = look.emptySentence ?? "";
    if (placed) place(look.offset);
    element.style.translate = "";
    const held = element.contains(document.activeElement) && document.activeElement.closest("li"), had = rowOf;
    rowOf = new Map();
    let before = null;
    for (const [row, cell, top, height] of look.rows) {
      const item = views.get(cell).element;
      item.style.translate = `0 ${top - look.offset}px`;
      item.style.height = `${height}px`;
      item.ariaPosInSet = String(row + 1);
      item.ariaSetSize = String(Math.round(look.height / height));
      // In reading order; what stays is not moved, and so keeps the focus.
      rowOf.set(item, row);
      if (had.get(item) === row) before = item;
      else before = element.insertBefore(item, before ? before.nextElementSibling : element.firstElementChild);
    }
    // The row in focus is drawn elsewhere, or has gone out of sight: then its nearest neighbour takes the focus, once
    // all are drawn.
    const left = had.get(held);
    if (!held || rowOf.get(held) === left) return;
    const rows = [...rowOf.keys()];
    const heir = rows.find(each => rowOf.get(each) === left) ?? rows.at(left < rowOf.get(rows[0]) ? 1 : -2) ?? rows[0];
    queueMicrotask(() => heir?.firstElementChild.focus({ preventScroll: true }));
  };
}
