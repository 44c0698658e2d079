// What assistive technology meets on every screen.
import fs from "node:fs";
import path from "node:path";
import { fileURLToPath } from "node:url";
import { driverFile } from "./browser.mjs";
import { walk } from "./road.mjs";
import { expect, expectApproved } from "./testing.mjs";
import { shown } from "./verbs.mjs";

const here = path.dirname(fileURLToPath(import.meta.url));
const axe = fs.readFileSync(driverFile("axe-core"), "utf8");

async function withFeatures(page, features) {
  const session = await page.createCDPSession();
  await session.send("Emulation.setEmulatedMedia", { features: Object.entries(features).map(([name, value]) => ({ name, value })) });
}

// No rule of axe's is broken on any screen.
const judged = features => async ({ page, app }) => {
  await withFeatures(page, features);
  await page.evaluate(axe);
  const findings = [];
  await walk(app, async (scene, state) => {
    await shown(page, scene);
    const { violations } = await page.evaluate(() => window.axe.run({ resultTypes: ["violations"] }));
    for (const { id, nodes } of violations)
      for (const { html, failureSummary } of nodes)
        findings.push(`${scene} ${state}: ${id}: ${html.slice(0, 120)}: ${failureSummary.split("\n").slice(1).join(";")}`);
  });
  expect(findings.length === 0, `nothing is found, but\n     ${findings.join("\n     ")}`);
};

// What a reader meets, a line each. What only groups or repeats is left out.
const silent = new Set(["generic", "none", "InlineTextBox", "LabelText", "SvgRoot"]);
function lines({ role, name, value, description, children = [], ...rest }, depth = 0) {
  const more = silent.has(role) ? depth : depth + 1;
  const repeats = child => child.role === "StaticText" && [name, value].some(said => said?.includes?.(child.name));
  const below = children.flatMap(child => (repeats(child) ? [] : lines(child, more)));
  if (silent.has(role)) return below;
  const states = ["level", "focused", "selected", "multiline", "invalid", "live", "valuemin", "valuemax"].filter(state => rest[state])
    .map(state => (rest[state] === true ? state : `${state} ${rest[state]}`));
  const line = [role, name && JSON.stringify(name), value !== undefined && `= ${JSON.stringify(value)}`,
    description && `described ${JSON.stringify(description)}`, states.length > 0 && `(${states.join(", ")})`];
  return ["  ".repeat(depth) + line.filter(Boolean).join(" "), ...below];
}

export const tests = {
  nothingIsFoundByDay: judged({ "prefers-color-scheme": "light" }),
  nothingIsFoundByNight: judged({ "prefers-color-scheme": "dark" }),
  nothingIsFoundInHighContrast: judged({ "prefers-color-scheme": "light", "prefers-contrast": "more" }),
  nothingIsFoundInHighContrastByNight: judged({ "prefers-color-scheme": "dark", "prefers-contrast": "more" }),
  async aReaderFindsWhatIsApproved({ page, app }) {
    let all = "";
    await walk(app, async (scene, state) => {
      await shown(page, scene);
      all += `# ${scene}${state && `, ${state}`}\n${lines(await page.accessibility.snapshot({ interestingOnly: false })).join("\n")}\n\n`;
    });
    expectApproved(path.join(here, "AccessibilityTree.txt"), all);
  },
};
