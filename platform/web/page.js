// The page's side of platform/web/Bridge.h, and the browser's events.
const encoder = new TextEncoder(), decoder = new TextDecoder();
const strict = new TextDecoder("utf-8", { fatal: true, ignoreBOM: true });
const by = id => document.getElementById(id);
const views = new Map();   // number -> its element and how that is drawn
const scenes = new Map();  // number -> element
let program, shown = null;
export let memory;  // of the program

const bytes = (at, size) => new Uint8Array(memory.buffer, at, size);
const textAt = (at, size) => decoder.decode(bytes(at, size));
const jsonAt = (at, size) => JSON.parse(textAt(at, size));

// Bytes handed over to the program, which lets go of them.
function given(data) {
  const at = program.room(data.length);
  bytes(at, data.length).set(data);
  return [at, data.length];
}

// --- Into the program. A trap is its fatal error, and stops it for good.

let lastComplaint = "";

function tell(event, ...values) {
  if (!program) return;
  try {
    program[event](...values);
  } catch (error) {
    program = null;
    by("stopped").querySelector("p").textContent = lastComplaint || String(error);
    by("stopped").showModal();
    throw error;
  }
}

// --- Views: a binding for each kind of element. It wires the events and answers how to draw.

function writeText(element, look) {
  if (look.text === undefined) return;
  element.textContent = look.text;
  element.classList.toggle("long", look.text.length > 48);
  if (!look.label) return;
  const label = document.createElement("span");
  label.className = "unseen";
  label.textContent = `${look.label}: `;
  element.prepend(label);
}

// Read out at once, and then in nobody's way.
function say(message) {
  const text = document.createTextNode(`${message}. `);
  by("said").append(text);
  setTimeout(() => text.remove(), 2_000);
}

const markWrong = input => { input.ariaInvalid = String(!!(input.message || input.refused)); };

// What a message has just come for; of several the topmost.
let told = null;
function bringIntoSight(element) {
  if (!told) requestAnimationFrame(() => { told.scrollIntoView({ block: "nearest" }); told = null; });
  if (!told || element.compareDocumentPosition(told) & Node.DOCUMENT_POSITION_FOLLOWING) told = element;
}

function inputAfter(input) {
  const all = [...input.closest(".screen").querySelectorAll("input")];
  return all[all.indexOf(input) + 1];
}

const bindings = {
  LABEL(element, id) {
    const input = element.querySelector("input, textarea"), caption = element.querySelector("span");
    input.addEventListener("focus", () => {
      tell("beginEditing", id);
      if (input.message) input.select();
    });
    // Another window's turn ends no editing.
    input.addEventListener("blur", () => document.hasFocus() && tell("endEditing", id));
    // Some browsers give a letter beyond the first plane by halves.
    const edit = () => tell("edit", id, ...given(encoder.encode(input.value)));
    input.addEventListener("input", () => (/\p{Surrogate}/u.test(input.value) ? setTimeout(edit) : edit()));
    // Where people write sums with a comma, a phone's keyboard for numbers has no point.
    input.addEventListener("beforeinput", event => {
      if (event.data !== "," || input.inputMode !== "decimal" || !matchMedia("(pointer: coarse)").matches) return;
      event.preventDefault();
      input.setRangeText(".", input.selectionStart, input.selectionEnd, "end");
      edit();
    });
    if (input.tagName === "INPUT")
      input.addEventListener("keydown", event => {
        if (event.key !== "Enter" || event.isComposing) return;
        tell("pressReturn", id);
        if (input.enterKeyHint === "next") inputAfter(input).focus();
        if (input.enterKeyHint === "done") input.blur();
      });
    let announced = "", editing = false;
    return look => {
      caption.textContent = look.placeholder;
      input.inputMode = ["text", "email", "decimal", "url"][look.keyboard];
      if (input.tagName === "INPUT") input.type = look.masked ? "password" : "text";
      if (input.value !== look.text) input.value = look.text;
      input.classList.toggle("wrong", !!look.wrong);
      input.message = !!look.message;
      markWrong(input);
      // It may come once more; that the user enters or leaves is no news of it.
      const message = look.message ? look.text : "", entered = editing !== !!look.editing;
      if (message && (message !== announced || !entered)) {
        say(`${look.placeholder}: ${message}`);
        bringIntoSight(element);
      }
      announced = message;
      editing = !!look.editing;
      if (!look.editing && document.activeElement === input) input.blur();
    };
  },
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
    // The reason that stands below an input describes it.
    const input = element.role === "alert" && element.parentElement.previousElementSibling.querySelector("input");
    return look => {
      writeText(element, look);
      if (!input) return;
      input.ariaDescription = look.hidden ? "" : look.text;
      input.refused = !look.hidden;
      markWrong(input);
      if (!look.hidden) bringIntoSight(element.parentElement);
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
  IMG: element => look => {
    element.alt = look.label ?? "";
    element.style.objectFit = look.fill ? "cover" : "fill";
    if (look.radius) element.style.borderRadius = `${look.radius}px`;
    if (look.border) element.style.border = `${look.border}px solid ${look.borderColor}`;
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

function bind(id, element) {
  const draw = (bindings[element.tagName] ?? (() => look => writeText(element, look)))(element, id);
  views.set(id, { element, draw });
}

// The rows lie in a pane that stays with the window: the browser may scroll ahead of the program, and
// would show what is not there yet.
const tallest = 16_000_000;  // px; browsers lay out no more than 33 million

function bindTable(element, id) {
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
    tell("scroll", id, Math.max(0, Math.min(reach(), top + shift)), look.placements);
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
    // The row in focus has gone out of sight: its nearest neighbour takes it, once all are drawn.
    if (!held || rowOf.get(held) === had.get(held)) return;
    const rows = [...rowOf.keys()], neighbour = rows.at(had.get(held) < rowOf.get(rows[0]) ? 1 : -2) ?? rows[0];
    queueMicrotask(() => neighbour?.firstElementChild.focus({ preventScroll: true }));
  };
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

// --- Pictures: the program's bytes, the browser's pixels. What moves shows its first frame.

async function still(blob) {
  const bitmap = await createImageBitmap(blob);
  const canvas = new OffscreenCanvas(bitmap.width, bitmap.height);
  canvas.getContext("2d").drawImage(bitmap, 0, 0);
  return canvas.convertToBlob();
}

// What was drawn before stays until the new picture is ready; the browser keeps its pixels, and no more.
async function setPicture(image, blob) {
  const turn = image.turn = {};
  if (blob && blob.type !== "image/jpeg") blob = await still(blob).catch(() => null);
  if (image.turn !== turn) return;
  URL.revokeObjectURL(image.src);
  image.onerror = () => image.removeAttribute("src");
  if (blob) image.src = URL.createObjectURL(blob);
  else image.removeAttribute("src");
}

function forgetPicture(image) {
  image.turn = null;
  URL.revokeObjectURL(image.src);
}

// --- Fetching, within the session's limits. The browser itself follows at most 20 redirects.

async function download(id, address, idleSeconds, mostBytes) {
  await null;  // never inside the program's call
  const stop = new AbortController();
  let timer, body, status;
  const wait = () => { clearTimeout(timer); timer = setTimeout(() => stop.abort(), idleSeconds * 1000); };
  try {
    wait();
    const url = new URL(address);  // no base: what is relative is no address here
    if (!/^https?:$/.test(url.protocol)) throw new TypeError("no address of the web");
    url.username = url.password = "";
    const answer = await fetch(url, { credentials: "omit", referrerPolicy: "no-referrer", signal: stop.signal });
    const parts = [];
    let size = 0;
    const reader = answer.body?.getReader();
    for (let part; reader && !(part = await reader.read()).done; parts.push(part.value)) {
      wait();
      if ((size += part.value.length) > mostBytes) throw new RangeError("more than a body may have");
    }
    status = answer.status;
    body = new Uint8Array(await new Blob(parts).arrayBuffer());
  } catch {
    stop.abort();
  } finally {
    clearTimeout(timer);
  }
  if (body) tell("body", id, ...given(body), status);
  else tell("failed", id);
}

// --- The ways back. For each screen above the first an entry more stands in the history, made when the
// user went there: browsers skip entries that come without a touch or a key, and would leave the page at
// the second Back in a row. At the first screen Back leaves the page.

let level = history.state ?? 0, returning = false;

function keepLevel() {
  const wanted = shown.depth - 1;
  if (returning) return;
  while (level < wanted) history.pushState(++level, "");
  if (level > wanted) { returning = true; history.go(wanted - level); }
}

addEventListener("popstate", () => {
  const goesBack = !returning && (history.state ?? 0) < level;
  level = history.state ?? 0;
  returning = false;
  if (goesBack) tell("goBack");
  if (program) keepLevel();
});

// What was typed into the screen shown would be lost.
addEventListener("beforeunload", event => {
  const typed = [...shown?.element.querySelectorAll("input, textarea") ?? []]
    .some(input => input.value && !input.message);
  if (typed && program) event.preventDefault();
});

// The rest of a double click, and the repeats of a held key, belong to the press that began them: where
// that changed the screen they press nothing on the new one.
let pressedOn = null;
function startPress(goesOn, event) {
  if (!goesOn) pressedOn = shown?.element;
  else if (pressedOn !== shown?.element) { event.preventDefault(); event.stopImmediatePropagation(); }
}
addEventListener("keydown", event => startPress(event.repeat, event), true);

// Of fingers many browsers count single taps alone.
let lastClick = null;
addEventListener("click", event => {
  const { detail, timeStamp, clientX, clientY } = event, before = lastClick;
  if (detail > 0) lastClick = { timeStamp, clientX, clientY };  // and no key's
  startPress(detail > 1 || (detail > 0 && before && timeStamp - before.timeStamp < 400 &&
    Math.hypot(clientX - before.clientX, clientY - before.clientY) < 24), event);
}, true);

// Where the pointer went down: who selects text may let go of it elsewhere.
let downOn = null;
addEventListener("pointerdown", event => { downOn = event.target; }, true);

// The keys that scroll do so wherever on a screen the focus is.
addEventListener("keydown", ({ key, target }) => {
  if (!/^(Page|Home|End|Arrow(Up|Down)| )/.test(key) || target.closest("main, nav") || (key === " " && target.closest("button"))) return;
  [...shown?.element.querySelectorAll("main") ?? []].find(isSeen)?.focus({ preventScroll: true });
}, true);

// --- What the program imports.

const wakeUp = new MessageChannel();
wakeUp.port1.onmessage = () => tell("drain");

// The patterns that this dialect reads as the other hosts' does: what escapes a mark, sets that are no
// reckoning with sets, groups without a name, counts that may give back, and what stands for itself.
const readAlike =
  /^(?:\\[.*+?^$|()[\]{}/-]|\[\^?(?:\\[.*+?^$|()[\]{}/-]|&(?!&)|-(?!-)|[^\\[\]&-])+\]|\((?!\?(?!:))|[*+?}](?!\+)|[^\\[.(*+?}])*$/u;

const imports = {
  scene(id, place, at, size) {
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
    scenes.set(id, element);
    (scenes.get(place)?.querySelector("[data-view=tabs]") ?? by("screens")).append(element);
  },
  endScene(id) { scenes.get(id).remove(); scenes.delete(id); },
  show(at, size) {
    const look = jsonAt(at, size), element = scenes.get(look.scene), focus = document.activeElement;
    if (shown?.element !== element && shown?.element.contains(focus)) shown.element.left = focus.closest("button");
    for (const [id, scene] of scenes) scene.hidden = scene.inert = id !== look.scene && id !== look.child;
    const header = element.querySelector("header"), back = header.querySelector(".back");
    header.hidden = !look.bar;
    header.querySelector("h1").textContent = look.title;
    back.hidden = !look.back;
    back.ariaLabel = look.backLabel;
    document.title = look.title ? `${look.title} – Leafund` : "Leafund";
    const before = shown;
    shown = { element, depth: look.depth };
    if (before?.element !== element) by("said").textContent = "";
    if (before && before.element !== element) enter(element, look.depth >= before.depth);
    keepLevel();
  },
  cell(table, id, at, size) {
    const item = by("row").content.firstElementChild.cloneNode(true);
    for (const [name, part] of Object.entries(jsonAt(at, size))) bind(part, item.querySelector(`.${name}`));
    bind(id, item);
    views.get(table).element.append(item);
  },
  look(id, at, size) {
    const view = views.get(id), look = jsonAt(at, size);
    if (!view) return;
    view.element.hidden = !!look.hidden;
    if (look.cards) drawCards(view.element, look);
    else view.draw(look);
  },
  picture(id, at, size, format) {
    const type = ["image/jpeg", "image/png", "image/gif", "image/webp"][format];
    const blob = size ? new Blob([bytes(at, size).slice()], { type }) : null;
    if (views.has(id)) setPicture(views.get(id).element, blob);
  },
  endView(id) {
    const element = views.get(id)?.element;
    if (element?.tagName === "IMG") forgetPicture(element);
    views.delete(id);
  },
  fetch(id, at, size, idleSeconds, mostBytes) { download(id, textAt(at, size), idleSeconds, mostBytes); },
  wake() { wakeUp.port2.postMessage(0); },
  screenScale: () => devicePixelRatio,
  equivalent(...texts) {
    try {
      const [a, b] = [texts.slice(0, 2), texts.slice(2)].map(text => strict.decode(bytes(...text)).normalize("NFD"));
      return a === b ? 1 : 0;
    } catch { return 0; }  // not UTF-8: the program has compared the bytes
  },
  matches(pattern, patternSize, text, size) {
    let expression;
    try {
      const read = strict.decode(bytes(pattern, patternSize));
      if (!readAlike.test(read)) return -1;
      expression = new RegExp(`^(?:${read})$`, "u");
    } catch { return -1; }
    try { return expression.test(strict.decode(bytes(text, size))) ? 1 : 0; } catch { return 0; }
  },
};

const isSeen = element => element.getClientRects().length > 0;

// The new screen slides in; the keyboard and the reader begin at what it is about, or where they left it.
function enter(element, forward) {
  const calm = matchMedia("(prefers-reduced-motion: reduce)").matches;
  const mirrored = getComputedStyle(element).direction === "rtl";
  const from = calm ? { opacity: 0 } : { translate: `${(forward ? 100 : -33) * (mirrored ? -1 : 1)}% 0` };
  element.animate([from, {}], { duration: calm ? 100 : 200, easing: "ease-out" });
  const left = forward ? [] : [element.left];
  [...left, ...element.querySelectorAll("h1")].find(each => each && isSeen(each))?.focus({ preventScroll: true });
}

// --- The little that the C library asks for: two streams, each line of them on the console.

const lines = ["", "", ""];
function write(stream, list, count, written) {
  const words = new DataView(memory.buffer);
  let size = 0;
  for (let at = list; at < list + 8 * count; at += 8) {
    const length = words.getUint32(at + 4, true);
    lines[stream] += textAt(words.getUint32(at, true), length);
    size += length;
  }
  for (let end; (end = lines[stream].indexOf("\n")) >= 0; lines[stream] = lines[stream].slice(end + 1)) {
    const line = lines[stream].slice(0, end);
    if (stream === 2) console.error(lastComplaint = line);
    else console.log(line);
  }
  words.setUint32(written, size, true);
  return 0;
}

// Tests import more than the application does.
export async function load(source, more = {}, system = {}) {
  const refused = new Proxy({ fd_write: write, ...system }, { get: (known, name) => known[name] ?? (() => 8) });
  const { instance } = await WebAssembly.instantiateStreaming(source,
    { leafund: { ...imports, ...more }, wasi_snapshot_preview1: refused });
  program = instance.exports;
  memory = program.memory;
  program._initialize();
  return program;
}

export async function start(source) {
  await load(source);
  const room = () => [innerWidth, innerHeight, parseFloat(getComputedStyle(document.documentElement).getPropertyValue("--tabs"))];
  tell("start", ...room());
  addEventListener("resize", () => tell("resize", ...room()));
  let inFront = true;
  const bringToFront = front => {
    if (front === inFront) return;
    inFront = front;
    for (const step of front ? ["enterForeground", "becomeActive"] : ["resignActive", "enterBackground"]) tell(step);
  };
  document.addEventListener("visibilitychange", () => bringToFront(!document.hidden));
  addEventListener("pageshow", () => bringToFront(true));
  addEventListener("pagehide", event => { bringToFront(false); if (!event.persisted) tell("terminate"); });
}
