// What the tests of the page say what must be so with.
import fs from "node:fs";
import path from "node:path";

export function expect(holds, what) {
  if (!holds) throw new Error(`not so: ${what}`);
}

// Holds a text to the one in a file, or takes it for approved where that is asked for.
export function expectApproved(file, text) {
  if (process.env.LEAFUND_APPROVE) return fs.writeFileSync(file, text);
  const approved = fs.existsSync(file) ? fs.readFileSync(file, "utf8") : "";
  if (approved === text) return;
  const lines = approved.split("\n"), now = text.split("\n");
  const at = now.findIndex((line, number) => line !== lines[number]);
  throw new Error(`${path.basename(file)} says otherwise from line ${at + 1} on:\n       ${lines[at]}\n     and not\n       ${now[at]}`);
}
