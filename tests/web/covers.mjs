// The pictures of the user's songs, wherever the phone and the page have a place for one.
import assert from "node:assert/strict";
import { onScreen, openPage, pass, phoneTest, press, Served, soWithin } from "./harness.mjs";
import { toneWithCover } from "./tones.mjs";

// One pixel each, of the colour in its palette.
const pictureOf = (...rgb) => {
  const gif = Buffer.from("R0lGODlhAQABAIAAAP8AAP///ywAAAAAAQABAAACAkQBADs=", "base64");
  gif.set(rgb, 13);
  return gif;
};
const pictures = [pictureOf(200, 40, 40), pictureOf(40, 40, 200)];

const artwork = (page) =>
  page.locator('#glass [data-kind="MRUArtworkView"] > .face').filter({ visible: true });

// The bytes of the picture that fills the face of the phone's artwork view, the first of those in
// sight; and whether the note that stands for one is gone.
async function seen(page) {
  await artwork(page).first().waitFor();
  return artwork(page)
    .first()
    .evaluate(async (face) => {
      const source = /^url\("(.*)"\)$/.exec(getComputedStyle(face).backgroundImage)?.[1];
      const note = face.querySelector(".children");
      return {
        bytes: source && [...new Uint8Array(await (await fetch(source)).arrayBuffer())],
        note: note !== null && getComputedStyle(note).visibility !== "hidden",
      };
    });
}

// What the phone has said may reach the page a little later.
async function shows(page, picture) {
  const until = Date.now() + soWithin;
  for (;;) {
    const { bytes, note } = await seen(page);
    const isShown = Buffer.from(bytes ?? []).equals(picture);
    if (isShown && !note) return;
    assert.ok(Date.now() < until, isShown ? "the note is in sight, too" : "another is shown");
  }
}

async function withTwoSongs(body) {
  const served = new Served([]);
  pictures.forEach((picture, at) => served.write(`${at + 1}.wav`, toneWithCover(60, picture)));
  served.options = ["--paused", served.folder];
  await served.start();
  try {
    const page = await openPage(served);
    await body(served, page);
    assert.deepEqual(page.problems, []);
    await page.context().close();
  } finally {
    await served.close();
  }
}

phoneTest.withoutPhone("each song's own picture is on the lock screen and in the player", () =>
  withTwoSongs(async (served, page) => {
    await served.run("play");
    await pass(served, 2);
    await shows(page, pictures[0]);
    await page.locator('.cover img[src$="/1"]').waitFor();
    await served.run("next-track");
    await page.locator('.cover img[src$="/2"]').waitFor();
    await shows(page, pictures[1]);
  }),
);

phoneTest.withoutPhone("it is in Control Center's large player and in Music", () =>
  withTwoSongs(async (served, page) => {
    await served.run("play", "unlock", "control-center open", "module expand");
    await pass(served, 2);
    await shows(page, pictures[0]);
    await served.run("module collapse", "control-center close");
    await pass(served, 2);
    await press(page, onScreen(page, "button", "Music"));
    await pass(served, 2);
    await shows(page, pictures[0]);
  }),
);
