// Fetching, within the session's limits. The browser itself follows at most 20 redirects.
import { given, tell, textAt } from "./program.js";

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

export const startTransfer = (id, at, size, ...limits) => { download(id, textAt(at, size), ...limits); };
