// The random user of the page: what it does, what that must come to, and whether the page shows it.
import { eyes, look } from "./eyes.mjs";
import { pressBack, rest } from "./verbs.mjs";

const address = "http://127.0.0.1:9/none.jpg";  // nobody answers there, so the picture stays empty
const texts = ["wren@example.org", "secret", "25", "1.50", "0", "nan", "x", "Rain Barrels", "Ärger 🌱 für מחר", "<b>&amp;</b>"];
const amounts = texts.filter(text => Number(text) >= 0);
const leadsOn = /^(signIn|Fund|yes|create)Button$/;
const sizes = [[390, 844], [320, 568], [844, 390], [768, 1024], [1280, 800]];
const patience = 5_000;  // milliseconds
const pause = ms => new Promise(done => setTimeout(done, ms));
const takeClicks = page => page.evaluate(() => window.clicks.splice(0));

// Real ones, by a finger or a mouse.
export const outsideHand = page => ({
  real: true,
  async click({ x, y, what }, lot, twice) {
    // A finger just beside a control presses it.
    if (!what || lot.percent(40)) return page.mouse.click(x, y, { count: twice ? 2 : 1 });
    await page.touchscreen.tap(x, y);
    if (twice) await page.touchscreen.tap(x, y);
  },
  async fill(text) {
    await page.keyboard.down("Control");
    await page.keyboard.press("a");
    await page.keyboard.up("Control");
    await page.keyboard.press("Delete");
    await page.keyboard.type(text);
  },
  async scroll({ x, y }, lot) {
    await page.mouse.move(x, y);
    await page.mouse.wheel({ deltaY: lot.percent(50) ? lot.between(-900, 900) : lot.between(-200, 200) });
    await page.evaluate(() => new Promise(done => {
      let timer = setTimeout(done, 150);
      addEventListener("scroll", () => { clearTimeout(timer); timer = setTimeout(done, 150); }, true);
    }));
  },
  back: () => pressBack(page),
  rest: () => rest(page),
});

// Those that a script makes in the page, without a pointer and without waiting for frames.
export const insideHand = page => ({
  real: false,
  click: ({ x, y }) => page.evaluate((x, y) => {
    const there = document.elementFromPoint(x, y), input = there?.closest("label")?.querySelector("input, textarea");
    if (input) input.focus();
    else there?.closest("button, li, main, header, nav")?.click();
  }, x, y),
  fill: text => page.evaluate(text => {
    const input = document.activeElement;
    input.value = text;
    input.dispatchEvent(new InputEvent("input", { bubbles: true }));
  }, text),
  // To anywhere, or a little further.
  scroll: ({ x, y }, lot) => page.evaluate(async (x, y, share, by) => {
    const box = document.elementFromPoint(x, y)?.closest("main");
    if (box) box.scrollTop = by ? box.scrollTop + by : share * box.scrollHeight;
    await new Promise(done => requestAnimationFrame(() => requestAnimationFrame(done)));
  }, x, y, lot.draw(), lot.percent(50) && lot.between(-200, 200)),
  back: () => page.evaluate(() => new Promise(done => {
    addEventListener("popstate", done, { once: true });
    history.back();
  })),
  rest: () => page.evaluate(() => document.getAnimations().forEach(each => each.finish())),
});

export class User {
  constructor(surroundings) { Object.assign(this, surroundings); }

  // One action, in the page and in the reference; its words. Who is in a hurry does not wait until it stands still.
  async act() {
    const { lot, reference } = this;
    const wasInHurry = this.isInHurry;
    this.isInHurry = this.hand.real && lot.percent(30);
    // Three times as likely what fills a form, and what leads on.
    const often = (action, likely) => Array(likely ? 3 : 1).fill(action);
    const inputs = this.inSight("input").flatMap(({ name, text }) => often(() => this.type(name), !text));
    // A campaign without an address would stop the application, as it should.
    const incomplete = reference.views.some(({ name, text }) => name === "imageURL" && text !== address);
    const controls = this.inSight("button", "tab").filter(({ name }) => name !== "createButton" || !incomplete)
      .flatMap(({ name }) => often(() => this.tap(`[data-view="${name}"]`), leadsOn.test(name)));
    const row = () => this.tap("li:not([hidden])"), anywhere = () => this.tapAnywhere();
    if (wasInHurry && incomplete) await this.hand.rest();
    const choices = [...inputs, ...controls, ...Array(incomplete ? 0 : 2).fill(anywhere), () => this.resize(),
      ...(reference.rows.length ? [row, row, row, () => this.scroll(), () => this.scroll()] : []),
      ...(reference.back ? [() => this.tap(".back")] : []),
      ...(reference.screen === "LandingPageVC" ? [] : [() => this.goBack()]),
      ...(this.hand.real && !incomplete ? [() => this.useKeys(), () => this.useKeys()] : [])];
    if (wasInHurry && this.tapped && !incomplete) choices.push(...Array(choices.length).fill(() => this.tapAgain()));
    await lot.oneOf(choices)();
    if (wasInHurry) this.doing += ", in a hurry";
    await this.compare();
    return this.doing;
  }

  inSight(...kinds) { return this.reference.views.filter(({ kind, hidden }) => kinds.includes(kind) && !hidden); }

  async tap(place) { await this.tapAt(() => this.page.evaluate(eyes.pointIn, place, this.lot.draw(), this.lot.draw())); }

  async tapAnywhere() {
    const { width, height } = this.page.viewport();
    const point = { x: this.lot.below(width), y: this.lot.below(height) };
    await this.tapAt(async () => ({ ...point, what: await this.page.evaluate(eyes.whatIsAt, point.x, point.y) }));
  }

  // Where it tapped before: on a screen that comes meanwhile this may be the rest of a double tap.
  async tapAgain() {
    const { width, height } = this.page.viewport(), point = this.tapped;
    await this.tapAt(async () => (point?.x < width && point.y < height ? point : null));  // or the page is smaller now
  }

  // Once or twice in quick succession.
  async tapAt(find) {
    const { lot } = this, twice = this.hand.real && lot.percent(30), point = await find();
    if (!point) return void (this.doing = "nothing there to tap");
    this.tapped = point;
    this.doing = `tap ${twice ? "twice " : ""}at ${Math.round(point.x)}, ${Math.round(point.y)}: ${point.what?.join(" ")}`;
    await this.hand.click(point, lot, twice);
    if (!this.hand.real) return void (await this.expect(point.what));
    await this.expectClicks();
    if (!this.isInHurry) await pause(500);
  }

  // What was clicked, as the page had it under the finger by then: the rest of a multiple click that changed the
  // screen belongs to that.
  async expectClicks() {
    for (const { goesOn, what } of await takeClicks(this.page)) {
      if (!goesOn) this.pressedOn = this.reference.screen;
      if (this.pressedOn === this.reference.screen) await this.expect(what);
    }
  }

  async expect(what) { if (what) await this.reference.do(...what); }

  async type(name) {
    const { lot } = this;
    await this.hand.rest();
    if (this.hand.real) await pause(400);  // not the rest of a double tap
    const point = await this.page.evaluate(eyes.pointIn, `[data-view="${name}"]`, lot.draw(), lot.draw());
    const text = name === "imageURL" ? address : lot.percent(10) ? "" :
      lot.oneOf(/^d/.test(name) ? amounts : texts);  // dollarAmountField, desiredFunding
    this.doing = `type ${text} into ${name}`;
    if (!point) return;
    await this.expect(["enter", name]);
    await this.hand.click(point, lot);
    this.pressedOn = this.reference.screen;
    await takeClicks(this.page);
    await this.hand.fill(text);
    await this.expect(["type", name, text]);
    const hasLines = await this.page.evaluate(() => document.activeElement.matches("textarea"));
    if (!this.hand.real || hasLines || lot.percent(70)) return;
    this.doing += " and Return";
    await this.page.keyboard.press("Enter");
    await this.enterFocused();
  }

  async enterFocused() {
    const what = await this.page.evaluate(eyes.whatHasFocus);
    if (what?.[0] === "enter") await this.expect(what);
    return what;
  }

  // Along the controls, and presses the last; held, it presses nothing more on another screen.
  async useKeys() {
    const { lot, page, reference } = this, steps = lot.between(1, 6);
    let what;
    // Past the last control it is the browser that has the keys.
    for (let step = 0; step < steps && !(await page.evaluate(eyes.isAtLast)); ++step) {
      await page.keyboard.press("Tab");
      what = await this.enterFocused();
    }
    const key = lot.oneOf(["Enter", " "]), before = this.pressedOn = reference.screen;
    this.doing = `Tab to ${what?.join(" ")}`;
    if (!what || what[0] === "enter") return;
    this.doing += key === " " ? " and Space" : " and Return";
    await this.expect(what);
    await page.keyboard.down(key);
    await pause(50);  // Firefox takes no shorter press for one
    if (key === "Enter" && reference.screen !== before) await page.keyboard.down(key);
    await page.keyboard.up(key);
    await takeClicks(page);
  }

  async scroll() {
    this.doing = "scroll";
    const { width, height } = this.page.viewport();
    await this.hand.scroll({ x: width / 2, y: height / 2 }, this.lot);
  }

  async resize() {
    const [width, height] = this.lot.percent(80) ? sizes[0] : this.lot.oneOf(sizes);
    this.doing = `resize to ${width} × ${height}`;
    await this.page.setViewport({ ...this.page.viewport(), width, height });
  }

  async goBack() {
    this.doing = "Back";
    await this.hand.back();
    await this.expect(["back"]);
  }

  async compare() {
    const end = Date.now() + patience;
    for (;;) {
      const differences = this.differences(await look(this.page));
      if (differences.length === 0) break;
      if (Date.now() > end) throw new Error(differences.join("\n     "));
      await pause(10);
    }
    if (!this.isInHurry) await this.hand.rest();
  }

  differences({ views, rows, faults }) {
    const { reference } = this, found = [...faults];
    for (const { kind, name, hidden, selected, masked, text } of reference.views) {
      const view = views[name];
      if (!view) found.push(`${name} is nowhere`);
      else if (view.seen === hidden && (text || kind !== "label")) found.push(`${name} is ${hidden ? "" : "not "}to be seen`);
      else if (!hidden && view.text !== text) found.push(`${name} says ${view.text} and not ${text}`);
      else if (!hidden && (view.selected !== selected || view.masked !== masked)) found.push(`${name} is selected or masked`);
    }
    for (const { row, title } of rows)
      if (reference.rows[row] !== title) found.push(`row ${row} is ${title} and not ${reference.rows[row]}`);
    if (reference.rows.length > 0 && rows.length === 0) found.push("no rows are to be seen");
    if (this.said.join("\n") !== reference.printed.join("\n"))
      found.push(`printed is ${this.said.slice(-2)} and not ${reference.printed.slice(-2)}`);
    // A picture that did not come is told by the browser.
    return [...found, ...this.errors.filter(line => !line.startsWith("Failed to load resource"))];
  }
}
