// What the page says when it refuses something.
import { expect } from "./testing.mjs";
import { rest, shown } from "./verbs.mjs";

const selected = (page, name) => page.$eval(`[data-view=${name}] input`, each => each.selectionEnd - each.selectionStart);

async function refuseAmount({ page, app }) {
  await app.resize(390, 420);
  await app.signIn();
  await app.tapRow(0);
  await shown(page, "OneCampaignViewController");
  await app.type("dollarAmountField", "a lot");
  await app.tap("FundButton");
}

const errorTop = page => page.$eval(".screen:not([hidden]) [data-view=errorLabel]", each => each.getBoundingClientRect().top);
// Between the bar and what may be pinned to the lower edge.
const errorInSight = page => page.$eval(".screen:not([hidden]) [data-view=errorLabel]", each => {
  const { top, bottom } = each.getBoundingClientRect(), button = document.querySelector(".screen:not([hidden]) [data-view=FundButton]");
  return top > 56 && bottom <= button.getBoundingClientRect().top;
});

export const tests = {
  async aMessageIsSelectedForWhoeverWritesOverItAndTheirOwnTextIsNot({ page, app }) {
    await app.tap("signUpButton");
    await shown(page, "SignUpVC");
    await app.tap("signUpButton");
    const message = await app.text("nameField");
    expect(message.startsWith("Error"), `a message, not ${message}`);
    await app.tap("nameField");
    expect(await selected(page, "nameField") === message.length, "all of the message");
    await page.keyboard.type("Wren");
    expect(await app.text("nameField") === "Wren", `in its place, not ${await app.text("nameField")}`);
    await page.$eval("[data-view=nameField] input", each => each.blur());
    await page.$eval("[data-view=nameField] input", each => each.focus());
    expect(await selected(page, "nameField") === 0, "nothing of what the user wrote");
    expect(await page.$eval("[data-view=nameField] input", each => each.ariaInvalid) === "false", "and it is not called wrong");
  },
  async whoClicksOnAMessageWritesInItsPlaceToo({ page, app }) {
    await app.tap("signUpButton");
    await shown(page, "SignUpVC");
    await app.tap("signUpButton");
    const { x, y, width, height } = await (await page.$("[data-view=nameField]")).boundingBox();
    await page.mouse.click(x + width / 3, y + height / 2);
    await page.keyboard.type("Wren");
    expect(await app.text("nameField") === "Wren", `in its place, not ${await app.text("nameField")}`);
    await page.mouse.click(x + 24, y + height / 2);
    expect(await selected(page, "nameField") === 0, "and their own text as they click");
  },
  // The toolkit leaves the colour of a refusal in the input that was refused.
  async whatWasWrittenInPlaceOfAMessageIsAskedForBeforeItIsLost({ page, app }) {
    await app.tap("signUpButton");
    await shown(page, "SignUpVC");
    await app.tap("signUpButton");
    let asked = 0;
    page.on("dialog", dialog => { ++asked; dialog.accept(); });
    await page.reload();
    expect(asked === 0, "messages alone are no loss");
    await shown(page, "LandingPageVC");
    await app.tap("signUpButton");
    await app.tap("signUpButton");
    await app.type("nameField", "Wren");
    await page.reload();
    expect(asked === 1, `once, and not ${asked} times`);
  },
  async aMessageThatComesOnceMoreComesIntoSightOnceMore({ page, app }) {
    await refuseAmount({ page, app });
    expect(await errorInSight(page), `it is in sight, and not at ${await errorTop(page)}`);
    await page.$eval(".screen:not([hidden]) main", each => { each.scrollTop = each.scrollHeight; });
    expect(await errorTop(page) < 56, "it is scrolled away");
    await app.tap("FundButton");
    await rest(page);
    expect(await errorInSight(page), `it is in sight again, and not at ${await errorTop(page)}`);
  },
  async aRefusedAmountIsMarkedAtItsInput({ page, app }) {
    const look = () => page.$eval("[data-view=dollarAmountField]", each =>
      [getComputedStyle(each).borderTopColor, each.querySelector("input").ariaInvalid, getComputedStyle(each.querySelector("input")).color].join());
    await refuseAmount({ page, app });
    expect(await look() === "rgb(140, 29, 24),true,rgb(31, 42, 25)", `its border, and not what is typed: ${await look()}`);
  },
  async whatHasBeenReadOutGoesAgain({ page, app }) {
    await app.tap("signInButton");
    expect((await page.$eval("#said", each => each.textContent)).includes("Error"), "it is read out");
    await page.waitForFunction(() => !document.getElementById("said").textContent, { timeout: 4_000 });
  },
};
