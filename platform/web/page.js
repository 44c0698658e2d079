// The page's side of platform/web/Bridge.h, and what the browser tells of the page as a whole.
import { begin, tell } from "./program.js";
import { addScene, endScene, show } from "./screens.js";
import { startTransfer } from "./transfers.js";
import { equivalent, matches } from "./unicode.js";
import { addCell, drawPicture, drawView, endView } from "./views.js";

const wakeUp = new MessageChannel();
wakeUp.port1.onmessage = () => tell("drain");

const imports = {
  scene: addScene,
  endScene,
  show,
  cell: addCell,
  look: drawView,
  picture: drawPicture,
  endView,
  fetch: startTransfer,
  wake: () => wakeUp.port2.postMessage(0),
  screenScale: () => devicePixelRatio,
  equivalent,
  matches,
};

// Tests import more than the application does.
export const load = (source, more = {}, system = {}) => begin(source, { ...imports, ...more }, system);
export { memory } from "./program.js";

export async function start(source) {
  await load(source);
  const area = document.getElementById("screens");
  const room = () => [area.clientWidth, area.clientHeight, parseFloat(getComputedStyle(document.documentElement).getPropertyValue("--tabs"))];
  tell("start", ...room());
  new ResizeObserver(() => tell("resize", ...room())).observe(area);
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
