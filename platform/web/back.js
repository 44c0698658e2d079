// The ways back. For each screen above the first an entry more stands in the history, made when the
// user went there: browsers skip entries that come without a touch or a key, and would leave the page at
// the second Back in a row. At the first screen Back leaves the page.
import { isRunning, tell } from "./program.js";
import { shown } from "./screens.js";

let level = history.state ?? 0, returning = false, made = false;
export let hasSlid = false;  // the browser itself has shown how the screen comes back

export function keepLevel() {
  const wanted = shown.depth - 1;
  made ||= shown.element.dataset.scene === "ThankYouVC";
  if (returning) return;
  while (level < wanted) history.pushState(++level, "");
  if (level > wanted) { returning = true; history.go(wanted - level); }
}

addEventListener("popstate", event => {
  const goesBack = !returning && (history.state ?? 0) < level;
  level = history.state ?? 0;
  returning = false;
  hasSlid = event.hasUAVisualTransition;
  if (goesBack) tell("goBack");
  hasSlid = false;
  if (isRunning) keepLevel();
});

// What was typed into the screen shown would be lost, and what was pledged or created.
addEventListener("beforeunload", event => {
  const typed = [...shown?.element.querySelectorAll("input, textarea") ?? []]
    .some(input => input.value && !input.message);
  if ((typed || made) && isRunning) event.preventDefault();
});
