// What a user sees of the page, asked within it.

export const eyes = {
  // The control at a point, as words for the reference.
  whatIsAt(x, y) { return window.whatIsIn(document.elementFromPoint(x, y)); },
  whatHasFocus() { return window.whatIsIn(document.activeElement); },
  // The focus is on the last that Tab leads to.
  isAtLast() {
    const all = [...document.querySelectorAll("button, input, textarea, [tabindex='0']")].filter(each => each.checkVisibility());
    return document.activeElement === all.at(-1);
  },
  // A point of what fits a selector, scrolled into sight where it is not, and what is there.
  pointIn(place, shareX, shareY) {
    const found = [...document.querySelectorAll(`.screen:not([hidden]) ${place}`)].filter(each => each.checkVisibility());
    const element = found[Math.floor(shareX * found.length)];
    if (!element) return null;
    const seen = () => {
      const box = element.getBoundingClientRect(), list = element.closest("main")?.getBoundingClientRect() ?? box;
      const left = Math.max(box.left, list.left, 0), right = Math.min(box.right, list.right, innerWidth);
      const top = Math.max(box.top, list.top, 0), bottom = Math.min(box.bottom, list.bottom, innerHeight);
      return { left, top, width: right - left - 2, height: bottom - top - 2 };
    };
    if (seen().height < 10) element.scrollIntoView({ block: "nearest", behavior: "instant" });
    const { left, top, width, height } = seen();
    if (width < 1 || height < 1) return null;  // it is still sliding in, or another lies over it
    const x = left + 1 + shareX * width, y = top + 1 + shareY * height;
    return { x, y, what: window.whatIsIn(document.elementFromPoint(x, y)) };
  },
};

// To stand in every page before its own scripts.
export function openEyes() {
  window.whatIsIn = element => {
    const control = element?.closest("button, label, li");
    if (!control) return null;
    if (control.matches(".back")) return ["back"];
    const row = control.closest("li");
    if (row) return ["row", row.ariaPosInSet - 1];
    return control.dataset.view ? [control.matches("label") ? "enter" : "tap", control.dataset.view] : null;
  };
  // A second tap of a finger within 400 ms, and near by, goes on with the first, however the browser counts it.
  // A label's click makes one more, on its input.
  window.clicks = [];
  let last = null;
  addEventListener("click", ({ detail, target, timeStamp, clientX, clientY }) => {
    const isNear = last && timeStamp - last.timeStamp < 400 && Math.hypot(clientX - last.clientX, clientY - last.clientY) < 24;
    if (detail > 0) last = { timeStamp, clientX, clientY };
    window.clicks.push({ goesOn: detail > 1 || (detail > 0 && isNear), what: window.whatIsIn(target) });
  }, true);
}

// The views of the screens shown, by their names, the rows, and what must hold at any time and does not.
export const look = page => page.evaluate(() => {
  const faults = [], views = {};
  const screens = [...document.querySelectorAll(".screen")].filter(each => each.checkVisibility());
  for (const element of document.querySelectorAll(".screen [data-view]")) {
    if (!screens.includes(element.closest(".screen")) || element.querySelector(".screen")) continue;
    const input = element.querySelector("input, textarea"), words = element.cloneNode(true);
    words.querySelectorAll(".unseen").forEach(each => each.remove());
    views[element.dataset.view] = { seen: element.checkVisibility(), text: input ? input.value : words.textContent,
      selected: element.ariaSelected === "true", masked: input?.type === "password" };
  }
  const rows = screens.flatMap(each => [...each.querySelectorAll(":scope > .table li")]).filter(each => each.checkVisibility())
    .map(each => ({ row: each.ariaPosInSet - 1, title: each.querySelector(".title").textContent }));
  for (const list of screens.flatMap(each => [...each.querySelectorAll(":scope > .table")]).filter(each => each.checkVisibility())) {
    for (const each of list.querySelectorAll("li:not([hidden])")) {
      const { top, height } = each.getBoundingClientRect();
      const stands = top - list.getBoundingClientRect().top, place = (each.ariaPosInSet - 1) * height - list.scrollTop;
      if (Math.abs(stands - place) > 1) faults.push(`row ${each.ariaPosInSet - 1} stands at ${stands} and not ${place}`);
    }
  }
  const inFocus = document.activeElement.closest(".screen");
  if (inFocus && !screens.includes(inFocus)) faults.push("what has the focus is not shown");
  if (screens.filter(each => each.parentElement.id === "screens").length !== 1) faults.push("not one screen is shown");
  rows.forEach(({ row }, at) => at > 0 && row !== rows[at - 1].row + 1 && faults.push(`row ${row} does not follow`));
  return { views, rows, faults };
});
