// What a user types on the page.
import { expect } from "./testing.mjs";
import { rest, shown, verbsFor } from "./verbs.mjs";

export const tests = {
  async textSelectedBeyondItsBoxIsNoTapBesideIt({ page, app }) {
    await app.signIn();
    await app.tap("mineTab");
    await app.tap("newButton");
    await shown(page, "NewCampaignVC");
    await app.type("nameOfCreator", "wren@example.org");
    const { x, y } = await page.$eval("[data-view=nameOfCreator] input", each => each.getBoundingClientRect().toJSON());
    await page.mouse.move(x + 60, y + 10);
    await page.mouse.down();
    await page.mouse.move(5, y - 20, { steps: 4 });
    await page.mouse.up();
    const input = await page.$eval("[data-view=nameOfCreator] input", each => [document.activeElement === each, each.selectionEnd - each.selectionStart]);
    expect(input[0] && input[1] > 2, `the user goes on in the input: ${input}`);
  },
  async returnLeadsFromInputToInputAndEndsInTheLast({ page, app }) {
    const inFocus = () => page.evaluate(() => document.activeElement.closest("[data-view]")?.dataset.view ?? "none");
    await app.type("userEmail", "wren@example.org");
    await page.keyboard.press("Enter");
    expect(await inFocus() === "password", `the next input, not ${await inFocus()}`);
    await page.keyboard.press("Enter");
    expect(await inFocus() === "none", `no input, not ${await inFocus()}`);
    await shown(page, "LandingPageVC");
  },
  // As Firefox gives it for one key.
  async aLetterThatComesByHalvesIsOne({ page, app }) {
    const shownThen = await page.$eval("[data-view=userEmail] input", async input => {
      input.focus();
      for (const half of "🌱".split("")) {
        input.value += half;
        input.dispatchEvent(new InputEvent("input", { bubbles: true }));
      }
      await new Promise(done => setTimeout(done, 50));
      return input.value;
    });
    expect(shownThen === "🌱", `the letter stands there, not ${shownThen}`);
    await app.tap("signInButton");
    expect(await app.text("userEmail") === "🌱", "and stays");
  },
  async theCommaOfAPhonesKeyboardForNumbersIsAPoint({ page, newPage }) {
    const address = page.url();
    const typed = async (language, viewport) => {
      const { page, close } = await newPage(viewport), app = verbsFor(page);
      await page.evaluateOnNewDocument(language => Object.defineProperty(navigator, "language", { get: () => language }), language);
      await page.goto(address);
      await shown(page, "LandingPageVC");
      await app.signIn();
      await app.tapRow(0);
      await shown(page, "OneCampaignViewController");
      await app.type("dollarAmountField", "12,50");
      const text = await app.text("dollarAmountField");
      await close();
      return text;
    };
    const inGerman = await typed("de-DE"), inEnglish = await typed("en-US"), onADesk = await typed("de-DE", { width: 800, height: 844 });
    expect(inGerman === "12.50", `a point, not ${inGerman}`);
    expect(inEnglish === "12,50", `where it divides thousands it is left, to be refused: ${inEnglish}`);
    expect(onADesk === "12,50", `on a desk it is what was pressed, not ${onADesk}`);
  },
  async aLetterTypedSetsNothingOfItsInputAnew({ page, app }) {
    await app.signIn();
    await app.tapRow(0);
    await shown(page, "OneCampaignViewController");
    await app.tap("dollarAmountField");
    await page.$eval("[data-view=dollarAmountField]", each => {
      window.changes = [];
      new MutationObserver(all => window.changes.push(...all.map(({ type, attributeName }) => attributeName ?? type)))
        .observe(each, { attributes: true, childList: true, characterData: true, subtree: true });
      // What it holds is neither of them.
      const input = each.querySelector("input"), value = Object.getOwnPropertyDescriptor(HTMLInputElement.prototype, "value");
      Object.defineProperty(input, "value", {
        get: () => value.get.call(input),
        set: text => { window.changes.push("value"); value.set.call(input, text); },
      });
    });
    await page.keyboard.type("12.5");
    await rest(page);
    const changes = await page.evaluate(() => window.changes.join());
    expect(changes === "", `nothing, and not ${changes}`);
  },
};
