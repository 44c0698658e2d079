// Begins, and says so where that fails.
const stopped = document.getElementById("stopped");
stopped.querySelector("button").addEventListener("click", () => stopped.close());
stopped.addEventListener("close", async () => {
  const reload = () => location.reload(), worker = navigator.serviceWorker;
  // A version that waits for its turn may do better.
  const waiting = (await worker?.getRegistration())?.waiting;
  if (!waiting) return reload();
  worker.addEventListener("controllerchange", reload);
  waiting.postMessage("");
});

if (/^(ar|fa|he|ur|yi)\b/.test(navigator.language)) document.documentElement.dir = "rtl";

try {
  const { start } = await import("./page.js");
  await start(fetch("leafund.wasm"));
} catch (error) {
  if (!stopped.open) {
    stopped.querySelector("h2").textContent = "Leafund could not start";
    stopped.querySelector("p").textContent = "It did not come whole. Is there a network?";
    stopped.showModal();
  }
  throw error;
}
navigator.serviceWorker?.register("worker.js");
