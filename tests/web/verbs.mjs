// What a user does and sees, by real fingers and keys from outside the page.

// Until the next frame is there and nothing slides any more.
export const rest = page => page.evaluate(async () => {
  await new Promise(done => requestAnimationFrame(() => setTimeout(done, 20)));
  await Promise.all(document.getAnimations().map(each => each.finished.catch(() => {})));
});

// Until a screen is to be seen and rests.
export async function shown(page, scene) {
  await page.waitForFunction(name => [...document.querySelectorAll(`[data-scene="${name}"]`)].some(each => each.checkVisibility()),
    { timeout: 10_000 }, scene);
  await rest(page);
}

// As far as the browser lets it go: without waiting for a page to load.
export async function pressBack(page) {
  await Promise.race([page.goBack({ waitUntil: "domcontentloaded", timeout: 1_500 }).catch(() => {}), new Promise(done => setTimeout(done, 800))]);
}

export function verbsFor(page, picturesAt) {
  const screen = "#screens > .screen:not([hidden])";
  const seenAt = name => page.$$eval(`${screen} [data-view="${name}"]`, found => found.some(each => each.checkVisibility()));
  const row = number => `${screen} li[aria-posinset="${Number(number) + 1}"]:not([hidden])`;
  const fieldOf = name => `${screen} [data-view="${name}"]`;
  const shownIn = async place => {
    const drawn = () => page.$$eval(place, found => found.some(each => each.checkVisibility() && each.complete && each.naturalWidth > 0));
    for (let turn = 0; turn < 100 && !(await drawn()); ++turn) await new Promise(done => setTimeout(done, 30));
    return drawn();
  };
  let last = { x: -1000, y: -1000, when: 0 };
  const tap = async place => {
    const centre = await page.$$eval(place, found => {
      const seen = found.find(each => each.checkVisibility());
      seen?.scrollIntoView({ block: "nearest" });
      const box = seen?.getBoundingClientRect();
      return box && { x: box.x + box.width / 2, y: box.y + box.height / 2 };
    });
    if (!centre) return;
    // Two taps in one place in quick succession would be a double tap.
    const near = Math.hypot(centre.x - last.x, centre.y - last.y) < 100;
    if (near) await new Promise(done => setTimeout(done, last.when + 500 - Date.now()));
    last = { ...centre, when: Date.now() };
    await page.touchscreen.tap(centre.x, centre.y);
    await rest(page);
  };
  const verbs = {
    tap: name => tap(fieldOf(name)),
    tapRow: number => tap(row(number)),
    type: async (name, text) => {
      await tap(fieldOf(name));
      await page.keyboard.down("Control");
      await page.keyboard.press("a");
      await page.keyboard.up("Control");
      await page.keyboard.press("Delete");
      await page.keyboard.type(text);
    },
    scroll: async offset => {
      await page.$$eval(`${screen} .table`, (found, to) => { found.find(each => each.checkVisibility()).scrollTop = to; }, Number(offset));
      await rest(page);
      await rest(page);
    },
    resize: async (width, height) => {
      await page.setViewport({ ...page.viewport(), width: Math.round(width), height: Math.round(height) });
      await rest(page);
    },
    // The browser's own; without the guard it would leave the application.
    back: async () => {
      if (await page.evaluate(() => history.state > 0)) {
        await page.evaluate(() => new Promise(done => { addEventListener("popstate", done, { once: true }); history.back(); }));
      }
      await rest(page);
    },
    screen: () => page.$$eval(screen + ", " + screen + " .screen", found => found.filter(each => each.checkVisibility()).at(-1).dataset.scene),
    text: name => page.$$eval(fieldOf(name), found => {
      const input = found[0].querySelector("input, textarea");
      if (input) return input.value;
      const words = found[0].cloneNode(true);
      words.querySelectorAll(".unseen").forEach(each => each.remove());
      return words.textContent;
    }),
    seen: name => seenAt(name),
    rows: () => page.$$eval(`${screen} li`, found => found.filter(each => each.checkVisibility())
      .map(each => `${each.querySelector(".title").textContent}\n`).join("")),
    picture: name => shownIn(fieldOf(name)),
    rowPicture: number => shownIn(`${row(number)} img`),
    pictureAddress: name => `${picturesAt}/${name}`,
    signIn: async () => {
      await verbs.type("userEmail", "wren@example.org");
      await verbs.type("password", "secret");
      await verbs.tap("signInButton");
    },
  };
  return verbs;
}
