// Puts the page together.
import "./ui/language.js"; // first: all others speak by it
import { takeParameter } from "./server/address.js";
import { Away } from "./server/away.js";
import { Connection } from "./server/connection.js";
import { pageId } from "./server/page.js";
import { PhoneState } from "./server/state.js";
import { Alerts } from "./phone/alerts.js";
import { Boot } from "./phone/boot.js";
import { Device } from "./phone/device.js";
import { Handset } from "./phone/handset.js";
import { Hint } from "./phone/hint.js";
import { Keyboard } from "./phone/keyboard.js";
import { Life } from "./phone/life.js";
import { Screen } from "./phone/screen.js";
import { PhoneTools } from "./phone/tools.js";
import { Touch } from "./phone/touch.js";
import { JournalPanel } from "./journal/panel.js";
import { MusicPanel } from "./player/panel.js";
import { ScriptPanel } from "./script/panel.js";
import { SoundFollower } from "./sound/follow.js";
import { SoundOutput } from "./sound/output.js";
import { SoundStart } from "./sound/start.js";
import { TimePanel } from "./time/panel.js";
import { byId } from "./ui/dom.js";
import { Tabs } from "./ui/tabs.js";
import { Veil } from "./ui/veil.js";

// The secret in the address that was printed has done its work: the browser keeps it as a cookie.
takeParameter("token");

export const state = new PhoneState();
const page = await pageId();

const screen = new Screen(state);
const device = new Device(state, screen, byId("device"));
const handset = new Handset(state, byId("phone-stand"), screen, device);
new Touch(state, handset, device);
new Keyboard(handset, screen, device);
new Hint(state, screen);
new Life(state, byId("life-place"));
new Alerts(screen);
byId("top-state").append(new PhoneTools(handset, state).element);

new TimePanel(state);
new MusicPanel(state);
new JournalPanel(state);
new ScriptPanel(state);
new Tabs({
  settings: async () => {
    const { SettingsPanel } = await import("./settings/panel.js");
    new SettingsPanel(state);
  },
  setup: async () => {
    const { SetupPanel } = await import("./setup/panel.js");
    new SetupPanel(state);
  },
  inside: async () => {
    const { InsidePanel } = await import("./inspect/panel.js");
    new InsidePanel(screen, handset);
  },
});

export const output = new SoundOutput();
const follower = new SoundFollower(state, page, output);
new SoundStart(state, page, output, follower, handset.glass, byId("top-state"));

const connection = new Connection(state, page);
new Away(connection);
new Veil(state, connection, handset.glass);
new Boot(state, handset.glass);
