// What users type into, and what they are told about it.
import { givenText, tell } from "./program.js";

// Read out at once, and then in nobody's way.
function say(message) {
  const text = document.createTextNode(`${message}. `);
  document.getElementById("said").append(text);
  setTimeout(() => text.remove(), 2_000);
}

// What is the same is not set anew: a phone would draw its keyboard again at every letter.
function set(element, property, value) { if (element[property] !== value) element[property] = value; }

const markWrong = input => set(input, "ariaInvalid", String(!!(input.message || input.refused)));
const writesComma = () => new Intl.NumberFormat(navigator.language).format(0.5).includes(",");

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

export function bindEntry(element, id) {
  const input = element.querySelector("input, textarea"), caption = element.querySelector("span");
  input.addEventListener("focus", () => {
    tell("beginEditing", id);
    if (input.message) input.select();
  });
  // Another window's turn ends no editing.
  input.addEventListener("blur", () => document.hasFocus() && tell("endEditing", id));
  // Some browsers give a letter beyond the first plane by halves.
  const edit = () => tell("edit", id, ...givenText(input.value));
  input.addEventListener("input", () => (/\p{Surrogate}/u.test(input.value) ? setTimeout(edit) : edit()));
  // Where people write sums with a comma, a phone's keyboard for numbers has no point. Elsewhere a comma divides
  // thousands, and what has one is refused.
  input.addEventListener("beforeinput", event => {
    if (event.data !== "," || input.inputMode !== "decimal" || !matchMedia("(pointer: coarse)").matches || !writesComma()) return;
    event.preventDefault();
    input.setRangeText(".", input.selectionStart, input.selectionEnd, "end");
    edit();
  });
  if (input.tagName === "INPUT")
    input.addEventListener("keydown", event => {
      // Safari tells of the key that ends a composition when that has ended, by this code.
      if (event.key !== "Enter" || event.isComposing || event.keyCode === 229) return;
      tell("pressReturn", id);
      if (input.enterKeyHint === "next") inputAfter(input).focus();
      if (input.enterKeyHint === "done") input.blur();
    });
  let announced = "", editing = false;
  return look => {
    set(caption, "textContent", look.placeholder);
    set(input, "inputMode", ["text", "email", "decimal", "url"][look.keyboard]);
    if (input.tagName === "INPUT") set(input, "type", look.masked ? "password" : "text");
    set(input, "value", look.text);
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
}

// The reason that stands below an input describes it.
export function bindReason(element) {
  const input = element.parentElement.previousElementSibling.querySelector("input");
  return look => {
    input.ariaDescription = look.hidden ? "" : look.text;
    input.refused = !look.hidden;
    markWrong(input);
    if (!look.hidden) bringIntoSight(element.parentElement);
  };
}
