// What is on the phone's screen because of what happens: it comes up locked, switches show the
// phone's state and change it, applications open and close, a song's picture is where it plays.
import {
  andCommand,
  andRestart,
  journalHas,
  onScreen,
  pass,
  phoneTest,
  press,
} from "./harness.mjs";

phoneTest("a phone comes up on its lock screen, with what is left", {}, async (served, page) => {
  const date = page.locator('#glass [data-kind="SBFLockScreenDateSubtitleDateView"]');
  await date.waitFor();
  await served.run(
    "send Dozewell2Manager.sharedInstance startTimerWithMode:andValue: 0 600",
    "unlock",
  );
  await date.waitFor({ state: "detached" });
  await andRestart(page, () => served.run("respring"));
  await pass(served, 1);
  // The countdown takes the place of the date.
  await page.locator("#glass").getByText("9:59").waitFor();
});

phoneTest("switches show what is so, whoever has done it, and do it", {}, async (served, page) => {
  await andCommand(page, "control-center open", () => page.click("#device-controls"));
  const airplane = onScreen(page, "button", "Airplane Mode");
  const isNow = (attributes) => airplane.and(page.locator(attributes)).waitFor();
  await press(page, airplane);
  await journalHas(page, "-[RadiosPreferences setAirplaneMode:YES]");
  await isNow("[aria-pressed]");
  await served.run("send RadiosPreferences.new setAirplaneMode: NO");
  await isNow(":not([aria-pressed])");
});

phoneTest("applications open from the home screen and close by Home", {}, async (served, page) => {
  await served.run("unlock");
  await press(page, onScreen(page, "button", "Clock"));
  await press(page, onScreen(page, "button", "5 min"));
  await journalHas(page, "Clock timer starts 300");
  await page.click("#device-home");
  await onScreen(page, "button", "Music").waitFor();
  await press(page, onScreen(page, "button", "Music"));
  await page.locator('#glass [data-kind="_MusicPlayerView"]').waitFor();
});
