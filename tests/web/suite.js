// Runs one test of a suite compiled for the page: ?suite=NAME&test=NAME; without a test it lists all. The
// answer stands in window.result. Takes the templates and styles of the application's own document.
import { load, memory } from "/page.js";

const asked = new URLSearchParams(location.search);
const encoder = new TextEncoder(), decoder = new TextDecoder();
let program, kept = null;

const bytes = (at, size) => new Uint8Array(memory.buffer, at, size);
const textAt = at => {
  const all = new Uint8Array(memory.buffer);
  return decoder.decode(all.slice(at, all.indexOf(0, at)));
};
const given = text => {
  const data = encoder.encode(text), at = program.room(data.length + 1);
  bytes(at, data.length + 1).set([...data, 0]);
  return at;
};

const log = console.log;
console.log = line => (kept === null ? log(line) : (kept += `${line}\n`));

// The program waits for these, and the page goes on meanwhile.
const waiting = work => new WebAssembly.Suspending(work);
const imports = {
  pass: waiting(() => new Promise(done => setTimeout(done, 2))),
  lay: waiting(async (path, size, body, bodySize, status) => {
    const address = decoder.decode(bytes(path, size).slice());
    await fetch(`${address}?status=${status}`, { method: "POST", body: bytes(body, bodySize).slice() });
  }),
  drive: waiting(async (verb, name, text) => given(String(await window.drive(textAt(verb), textAt(name), textAt(text))))),
  milliseconds: () => performance.now(),
  server: () => given(location.origin),
  captured(begin) {
    const text = kept ?? "";
    kept = begin ? "" : null;
    return given(begin ? "" : text);
  },
};

// What the framework asks of the C library besides: an environment, which is empty, and the time.
const words = () => new DataView(memory.buffer);
const system = {
  environ_sizes_get(count, size) {
    words().setUint32(count, 0, true);
    words().setUint32(size, 0, true);
    return 0;
  },
  environ_get: () => 0,
  clock_time_get(clock, precision, at) {
    words().setBigUint64(at, BigInt(Math.round((performance.timeOrigin + performance.now()) * 1e6)), true);
    return 0;
  },
};

const source = fetch(`/suites/${asked.get("suite")}_suite.wasm`);
program = await load(source, imports, system);
const test = asked.get("test") ?? "", size = encoder.encode(test).length;
// A trap is the end of the test.
window.result = await WebAssembly.promising(program.runTest)(given(test), size).catch(error => error.message);
