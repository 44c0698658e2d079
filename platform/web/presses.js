// Presses, before any control hears of them.
import { shown } from "./screens.js";

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

// Safari draws what is held only where somebody listens to fingers.
addEventListener("touchstart", () => {}, { passive: true });

// Where the pointer went down: who selects text may let go of it elsewhere.
export let downOn = null;
addEventListener("pointerdown", event => { downOn = event.target; }, true);
