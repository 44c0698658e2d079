// The two questions of foundation/Unicode.h, in the browser's words.
import { bytes } from "./program.js";

const strict = new TextDecoder("utf-8", { fatal: true, ignoreBOM: true });

export function equivalent(...texts) {
  try {
    const [a, b] = [texts.slice(0, 2), texts.slice(2)].map(text => strict.decode(bytes(...text)).normalize("NFD"));
    return a === b ? 1 : 0;
  } catch { return 0; }  // not UTF-8: the program has compared the bytes
}

// The patterns that this dialect reads as the other hosts' does: what escapes a mark, sets that are no
// reckoning with sets, groups without a name, counts that may give back, and what stands for itself.
const readAlike =
  /^(?:\\[.*+?^$|()[\]{}/-]|\[\^?(?:\\[.*+?^$|()[\]{}/-]|&(?!&)|-(?!-)|[^\\[\]&-])+\]|\((?!\?(?!:))|[*+?}](?!\+)|[^\\[.(*+?}])*$/u;

export function matches(pattern, patternSize, text, size) {
  let expression;
  try {
    const read = strict.decode(bytes(pattern, patternSize));
    if (!readAlike.test(read)) return -1;
    expression = new RegExp(`^(?:${read})$`, "u");
  } catch { return -1; }
  try { return expression.test(strict.decode(bytes(text, size))) ? 1 : 0; } catch { return 0; }
}
