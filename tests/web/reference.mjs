// The model that the page is held to: a program that is told an action a line, and answers with what is shown then.
import { spawn } from "node:child_process";
import readline from "node:readline";

export class Reference {
  constructor(program) {
    this.program = spawn(program, { stdio: ["pipe", "pipe", "inherit"] });
    this.lines = readline.createInterface({ input: this.program.stdout })[Symbol.asyncIterator]();
    this.printed = [];
  }
  begin() { return this.do(); }
  end() { this.program.kill(); }

  async do(...action) {
    this.program.stdin.write(`${action.join("\t")}\n`);
    this.views = [];
    this.rows = [];
    for (;;) {
      const { value: line, done } = await this.lines.next();
      if (done) throw new Error("the reference has ended");
      if (line === ".") return;
      const [kind, ...fields] = line.split("\t");
      if (kind === "printed") this.printed.push(fields[0]);
      else if (kind === "screen") this.screen = fields[0];
      else if (kind === "back") this.back = fields[0] === "1";
      else if (kind === "row") this.rows[Number(fields[0])] = fields[1];
      else {
        const [name, hidden, selected, masked, , text] = fields;
        this.views.push({ kind, name, hidden: hidden === "1", selected: selected === "1", masked: masked === "1", text });
      }
    }
  }
}
