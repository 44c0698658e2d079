// Where keys lead, and where the focus stands.
import { expect } from "./testing.mjs";
import { pressBack, rest, shown } from "./verbs.mjs";

const inFocus = page => page.evaluate(() => {
  const element = document.activeElement, row = element.closest("li");
  return row ? `row ${row.ariaPosInSet}` : element.dataset.view ?? element.tagName;
});

// Signed in, in a window too low for all rows, with the focus on a row.
async function openRows({ page, app }, row) {
  await app.resize(390, 500);
  await app.signIn();
  await shown(page, "OtherCampaignsTableViewController");
  await page.focus(`.screen:not([hidden]) li[aria-posinset="${row}"] button`);
}

async function scrollBy(page, by) {
  await page.$$eval(".screen:not([hidden]) .table", (found, by) => { found.find(each => each.checkVisibility()).scrollTop += by; }, by);
  await rest(page);
  await rest(page);
}

export const tests = {
  async aRowKeepsTheFocusWhileItIsInSight({ page, app }) {
    await openRows({ page, app }, 3);
    await scrollBy(page, 200);
    expect(await inFocus(page) === "row 3", `still row 3, not ${await inFocus(page)}`);
    await scrollBy(page, 500);
    const now = await inFocus(page);
    expect(/^row [5-7]$/.test(now), `a row in sight, not ${now}`);
    await scrollBy(page, -10_000);
    expect(/^row [1-3]$/.test(await inFocus(page)), `a row in sight, not ${await inFocus(page)}`);
  },
  async tabLeadsToEveryRow({ page, app }) {
    await openRows({ page, app }, 1);
    const count = Number(await page.$eval(".screen:not([hidden]) li:not([hidden])", each => each.ariaSetSize));
    expect(count > 4, `more rows than are in sight, not ${count}`);
    for (let row = 2; row <= count; ++row) {
      await page.keyboard.press("Tab");
      await rest(page);
      expect(await inFocus(page) === `row ${row}`, `row ${row}, not ${await inFocus(page)}`);
    }
  },
  async keysScrollAScreenThatHasJustCome({ page, app }) {
    await openRows({ page, app }, 1);
    await page.keyboard.press("Enter");
    await shown(page, "OneCampaignViewController");
    await page.keyboard.press("PageDown");
    await new Promise(done => setTimeout(done, 400));
    const top = await page.$$eval(".screen:not([hidden]) main", all => all.find(each => each.checkVisibility()).scrollTop);
    expect(top > 100, `it has scrolled, and not to ${top}`);
  },
  async afterBackTheFocusStandsWhereItLeft({ page, app }) {
    await openRows({ page, app }, 2);
    await page.keyboard.press("Enter");
    await shown(page, "OneCampaignViewController");
    expect(await inFocus(page) === "H1", `the title, not ${await inFocus(page)}`);
    await pressBack(page);
    await shown(page, "OtherCampaignsTableViewController");
    expect(await inFocus(page) === "row 2", `the row, not ${await inFocus(page)}`);
  },
  async alsoInAListThatWasScrolled({ page, app }) {
    await openRows({ page, app }, 2);
    await scrollBy(page, 120);
    await scrollBy(page, 40);
    await page.keyboard.press("Enter");
    await shown(page, "OneCampaignViewController");
    await pressBack(page);
    await shown(page, "OtherCampaignsTableViewController");
    expect(await inFocus(page) === "row 2", `the row, not ${await inFocus(page)}`);
  },
  // Safari gives the focus to no button that is pressed by a finger.
  async alsoWhereAFingerGivesNoFocus({ page, app }) {
    await app.signIn();
    await shown(page, "OtherCampaignsTableViewController");
    await page.$eval(".screen:not([hidden]) li[aria-posinset='3'] button", each => { document.activeElement.blur(); each.click(); });
    await shown(page, "OneCampaignViewController");
    await pressBack(page);
    await shown(page, "OtherCampaignsTableViewController");
    expect(await inFocus(page) === "row 3", `the row, not ${await inFocus(page)}`);
  },
  async aRowInFocusHasItsRingOnAllSides({ page, app }) {
    await openRows({ page, app }, 2);
    await page.keyboard.press("Tab");
    await scrollBy(page, 0);  // until it stands
    const { x, y, width, height } = await (await page.$(".screen:not([hidden]) li[aria-posinset='3']")).boundingBox();
    const sides = {
      left: { x: x - 6, y: y + height / 2, width: 24, height: 1 },
      right: { x: x + width - 18, y: y + height / 2, width: 24, height: 1 },
      top: { x: x + width / 2, y: y - 6, width: 1, height: 24 },
      bottom: { x: x + width / 2, y: y + height - 18, width: 1, height: 24 },
    };
    for (const [side, clip] of Object.entries(sides)) {
      const strip = await page.screenshot({ clip, encoding: "base64" });
      const dark = await page.evaluate(async strip => {
        const bytes = Uint8Array.from(atob(strip), each => each.charCodeAt(0));
        const bitmap = await createImageBitmap(new Blob([bytes], { type: "image/png" }));
        const context = new OffscreenCanvas(bitmap.width, bitmap.height).getContext("2d");
        context.drawImage(bitmap, 0, 0);
        const { data } = context.getImageData(0, 0, bitmap.width, bitmap.height);
        return [...Array(data.length / 4).keys()].filter(at => data[4 * at] < 100 && data[4 * at + 1] < 130).length;
      }, strip);
      expect(dark >= 3, `3 px at its ${side} edge, and not ${dark}`);
    }
  },
  async pageDownScrollsTheListFromItsTab({ page, app }) {
    await openRows({ page, app }, 1);
    await page.focus("[data-view=browseTab]");
    await page.keyboard.press("PageDown");
    await new Promise(done => setTimeout(done, 400));
    const top = await page.$$eval(".screen:not([hidden]) .table", all => all.find(each => each.checkVisibility()).scrollTop);
    expect(top > 100, `it has scrolled, and not to ${top}`);
  },
  async arrowsLeadFromTabToTab({ page, app }) {
    await app.signIn();
    await page.focus("[data-view=browseTab]");
    for (const [key, tab] of [["ArrowRight", "fundedTab"], ["ArrowRight", "mineTab"], ["ArrowLeft", "fundedTab"], ["ArrowDown", "mineTab"]]) {
      await page.keyboard.press(key);
      expect(await inFocus(page) === tab, `${tab} and not ${await inFocus(page)}`);
    }
    await shown(page, "OtherCampaignsTableViewController");  // it is the press that chooses
  },
};
