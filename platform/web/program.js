// The program: its memory, the way into it, and the little that its C library asks for.
const encoder = new TextEncoder(), decoder = new TextDecoder();
export let memory, isRunning = false;
let program, lastComplaint = "";

export const bytes = (at, size) => new Uint8Array(memory.buffer, at, size);
export const textAt = (at, size) => decoder.decode(bytes(at, size));
export const jsonAt = (at, size) => JSON.parse(textAt(at, size));

// Bytes handed over to the program, which lets go of them.
export function given(data) {
  const at = program.room(data.length);
  bytes(at, data.length).set(data);
  return [at, data.length];
}
export const givenText = text => given(encoder.encode(text));

// An event. A trap is the program's fatal error, and stops it for good.
export function tell(event, ...values) {
  if (!isRunning) return;
  try {
    program[event](...values);
  } catch (error) {
    isRunning = false;
    const notice = document.getElementById("stopped");
    notice.querySelector("p").textContent = lastComplaint || String(error);
    notice.showModal();
    throw error;
  }
}

// Two streams, each line of them on the console.
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

export async function begin(source, imports, system) {
  const refused = new Proxy({ fd_write: write, ...system }, { get: (known, name) => known[name] ?? (() => 8) });
  const { instance } = await WebAssembly.instantiateStreaming(source,
    { leafund: imports, wasi_snapshot_preview1: refused });
  program = instance.exports;
  memory = program.memory;
  isRunning = true;
  program._initialize();
  return program;
}
