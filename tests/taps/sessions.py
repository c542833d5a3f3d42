"""Random sessions of somebody who only has fingers, and where on the screen these may go."""

import dataclasses
import random

from screens import PAGES

PORTRAIT, LANDSCAPE = "portrait", "landscape-left"
SIZES = {PORTRAIT: (390, 844), LANDSCAPE: (844, 390)}
LANGUAGES = {"en": "en_US", "ar": "ar_SA"}
ENGINE = "Dozewell2Manager.sharedInstance"
PANEL = f"{ENGINE}.dozewell2VC"
REST = "advance 3s"
WEIGHTS = {"DozewellButton": 6, "MRUNowPlayingRoutingButton": 1, "UIButton": 4,
           "ButtonWithIncreasedTouchArea": 2, "CheckboxButton": 1, "MRUTransportButton": 0.3, "UISlider": 0.5,
           "MRUNowPlayingHeaderView": 0.7, "UIPickerColumnView": 1.5}

# What the survey sees, one after the other, and by which command it gets there.
CHOOSE, ACTIONS = f"{PANEL}.chooseSnoozeTimeView", f"{PANEL}.onTimerEndsSettingsView"
TOUR = [("small", "control-center open"), ("player", "tap $header"), ("routes", "tap $header.routingButton"),
        ("player", "tap $header.routingButton"), ("duration", "tap $header.dozewellButton"),
        ("songs", f"tap {CHOOSE}.topRightCornerButton"), ("actions", f"tap {CHOOSE}.topLeftCornerButton"),
        ("actions", f"tap {ACTIONS}.toggleStartEndButton"), ("alert", f"tap {ACTIONS}.runShortcutButton"),
        ("actions", 'press-alert "Later"'), ("songs", f"tap {ACTIONS}.backButton"),
        ("player", f"tap {CHOOSE}.rightButton"), ("timer", "tap $header.dozewellButton")]

# Where a tap leads, as far as that is needed to stay among what can be tapped: from what is believed to
# be on the screen, by the control and its place among those of its class. "panel" is the timer or not.
LEADS = {("small", "DozewellButton", 0): "panel", ("small", "MRUNowPlayingHeaderView", 0): "player",
         ("small", "MRUNowPlayingRoutingButton", 0): "routes", ("player", "DozewellButton", 0): "panel",
         ("player", "MRUNowPlayingRoutingButton", 0): "routes",
         ("routes", "MRUNowPlayingRoutingButton", 0): "player",
         ("duration", "ButtonWithIncreasedTouchArea", 0): "songs",
         ("songs", "ButtonWithIncreasedTouchArea", 0): "duration",
         ("actions", "UIButton", 0): "duration", ("actions", "CheckboxButton", 2): "alert",
         ("alert", "UIButton", 0): "actions", ("alert", "UIButton", 1): "actions",
         ("timer", "UIButton", 0): "player", ("timer", "UIButton", 1): "duration"}
for page in ("duration", "songs"):
    LEADS |= {(page, "UIButton", 0): "player", (page, "UIButton", 1): "started",
              (page, "ButtonWithIncreasedTouchArea", 1): "actions"}
LEADS |= {(page, "DozewellButton", 0): "player" for page in ("duration", "songs", "actions", "timer")}


def look(mark):
    """Lines that print what Screen is made of, after that mark."""
    return [f'send $mark setText: "{mark}"', "tree $mark", f"get {ENGINE}.isRunning",
            "tree UIApplication.sharedApplication.keyWindow"]


@dataclasses.dataclass
class Session:
    language: str
    settings: dict
    actions: list  # each a list of lines

    @property
    def small(self):
        return self.settings["showDozewellButtonInCCMinimizedMediaPlayer"] == "YES"

    def script(self, name=0):
        """What a phone plays; marks tell the session by its name, and the action by its number."""
        lines = [f"locale {LANGUAGES[self.language]}",
                 *(f"set {key} {value}" for key, value in self.settings.items()),
                 'shortcuts "Dozewell Start"', "boot", "let mark UILabel.new", "repeat-all YES",
                 'playlist "A" 47 by "Band" "A song with a title longer than its place" 61 by "Band" "C" 83']
        for number, action in enumerate([*self.actions, [REST]]):
            lines += action
            if action == [REST]:
                lines += look(f"{name} {number}")
        return "\n".join(lines) + "\n"


SURVEYED = {"showDozewellButtonInCCMinimizedMediaPlayer": "YES"}


def survey(language, orientation):
    """Opens the module, the routes, the panel and each page, and looks at each."""
    return Session(language, SURVEYED, [[f"rotate {orientation}"],
                                        *(lines for _, command in TOUR for lines in ([command], [REST]))])


def points_of(screens):
    """Where something is that takes touches, by what is shown: its class, place among those, and middle."""
    found = {}
    for (stage, _), screen in zip(TOUR, screens):
        counts = {}
        for view in screen.window.all():
            if view.seen and view.width and view.name in WEIGHTS:
                counts[view.name] = counts.get(view.name, -1) + 1
                found.setdefault(stage, {})[view.name, counts[view.name], *view.center] = None
    return {stage: list(points) for stage, points in found.items()}


def pages_of(screens):
    return {view.name for screen in screens for view in screen.window.named(*PAGES) if view.seen}


class Player:
    """Makes sessions; the points are those of a language and an orientation."""

    def __init__(self, points):
        self.points = points

    def session(self, seed):
        self.dice = dice = random.Random(seed)
        self.orientation, self.believed, self.started = PORTRAIT, "small", False
        self.language = dice.choice(list(LANGUAGES))
        settings = {"showDozewellButtonInCCMinimizedMediaPlayer": dice.choice(["YES", "YES", "NO"]),
                    "enabledModes": dice.choice([0, 0, 0, 1, 2]),
                    "timerDefaultValue": dice.choice([1, 2, 59, 60, 61, 125]),
                    "timerMinutesSteps": dice.choice([1, 5]),
                    "nbSongsDefaultValue": dice.choice([1, 2, 3, 12]),
                    "confirmViewAutoDismissTime": dice.choice([0, 1, 1, 2]),
                    "volumeFadeOutEnabled": dice.choice(["YES", "NO"])}
        actions = [["control-center open"]]
        for _ in range(dice.randint(5, 20)):
            actions += self.action()
        return Session(self.language, settings, actions)

    def opening(self):
        """A session that opens the panel."""
        name, place, *where = next(point for point in self.points["en", PORTRAIT]["small"]
                                   if point[0] == "DozewellButton")
        return Session("en", SURVEYED, [["control-center open"],
                                        [f"touch began {where[0]} {where[1]}", f"touch ended {where[0]} {where[1]}"]])

    def action(self):
        made = self.dice.choices([self.touches, self.waits, self.happens, self.starts], [12, 5, 3, 2])[0]()
        if self.dice.random() < 0.35:
            made.append([REST])
        return made

    def touches(self):
        if self.dice.random() < 0.04:
            width, height = SIZES[self.orientation]
            return [self.tap(self.dice.uniform(0, width), self.dice.uniform(0, height))]
        stages = self.points[self.language, self.orientation]
        stage = self.believed if self.dice.random() < 0.85 else self.dice.choice(list(stages))
        name, place, x, y = self.dice.choices(stages[stage], [WEIGHTS[point[0]] for point in stages[stage]])[0]
        if name in ("UIPickerColumnView", "UISlider") and self.dice.random() < 0.8:
            return [self.drag(x, y, self.dice.uniform(-120, 120))]
        self.believe(LEADS.get((stage, name, place)))
        x, y = x + self.dice.uniform(-4, 4), y + self.dice.uniform(-4, 4)
        again = self.dice.choice([1, 1, 1, 1, 1, 1, 2, 2, 3])
        opened = [["control-center open"]] if self.dice.random() < 0.25 else []
        return opened + [self.tap(x, y) for _ in range(again)] + self.dice.choice([[], [], [["advance 400ms"]]])

    def starts(self):
        """What somebody does who knows the way: a timer, and another look at it."""
        stages = self.points[self.language, self.orientation]

        def control(stage, name, place):
            return self.tap(*next(point[2:] for point in stages[stage] if point[:2] == (name, place)))

        self.started, self.believed = True, "timer"
        moon = [[control("small", "DozewellButton", 0)],
                [control("small", "MRUNowPlayingHeaderView", 0), ["advance 1s"],
                 control("player", "DozewellButton", 0)]]
        return [["control-center close"], ["control-center open"], *self.dice.choice(moon), ["advance 500ms"],
                control("duration", "UIButton", 1), *self.waits(), *self.waits(), ["control-center close"],
                ["control-center open"], *self.dice.choice(moon)]

    def believe(self, stage):
        if stage == "started":
            self.started, stage = True, "player"
        elif stage == "panel":
            stage = "timer" if self.started else "duration"
        elif (self.believed, stage) == ("timer", "duration"):
            self.started = False
        self.believed = stage or self.believed

    def tap(self, x, y):
        lines = [f"touch began {x:.1f} {y:.1f}"]
        if (held := self.dice.choice([0, 0.05, 0.1, 0.6])) > 0:
            lines.append(f"advance {held * 1000:.0f}ms")
        return [*lines, f"touch ended {x:.1f} {y:.1f}", *self.dice.choice([[], ["advance 60ms"]])]

    def drag(self, x, y, distance):
        lines, steps = [f"touch began {x:.1f} {y:.1f}"], self.dice.randint(2, 6)
        for step in range(1, steps + 1):
            lines += ["advance 16ms", f"touch moved {x:.1f} {y + distance * step / steps:.1f}"]
        return [*lines, f"touch ended {x:.1f} {y + distance:.1f}"]

    def waits(self):
        long = self.dice.choice(["2m", "7m", "59m", "1h"])
        return [[f"advance {self.dice.choice(['100ms', '280ms', '300ms', '320ms', '1s', '5s', '40s', long])}"]]

    def happens(self):
        what = self.dice.choice(["again", "close", "turn", "lock", "shake", "next-track", "pause", "play",
                                 "outside", "other-players \"Kitchen\"", "bluetooth \"Headset\"",
                                 "bluetooth none"])
        if what in ("again", "lock", "close"):
            self.believed = "small"
        if what == "again":
            return [["control-center close"], ["control-center open"]]
        if what == "turn":
            self.orientation = PORTRAIT if self.orientation == LANDSCAPE else LANDSCAPE
            return [[f"rotate {self.orientation}"]]
        if what == "lock":
            return [["lock"], [f"advance {self.dice.choice(['100ms', '3s', '7m'])}"],
                    ["unlock"], ["control-center open"]]
        if what == "close":
            return [["control-center close"], [self.dice.choice([REST, "advance 200ms", "advance 7m"])],
                    ["control-center open"]]
        if what == "outside":  # The module becomes small, or Control Center closes.
            self.believed = "small"
            return [self.tap(5, 200), ["advance 400ms"], ["control-center open"]]
        return [[what]]
