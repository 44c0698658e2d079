import { start } from "./page.js";

document.querySelector("#stopped button").addEventListener("click", () => location.reload());
await start(fetch("leafund.wasm"));
navigator.serviceWorker?.register("worker.js");
