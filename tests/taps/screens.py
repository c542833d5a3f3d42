"""What a phone's screen shows, read from the trees of views that it prints, and what must be true of it."""

import dataclasses
import pathlib
import re

PAGES = ("ChooseSnoozeTimeView", "CurrentTimerView", "OnTimerEndsSettingsView")
PANEL_HEIGHT = 250  # points
BELOW = 33  # points, from the routing button to ours where they stand one above the other
ALMOST = 0.5  # points

NUMBER = r"(-?[\d.]+(?:e[-+]?\d+)?)"
LINE = re.compile(rf"( *)(\w+) \{{\{{{NUMBER}, {NUMBER}\}}, \{{{NUMBER}, {NUMBER}\}}\}}"
                  rf"(?: alpha {NUMBER})?( hidden)?(?: (nil|\".*\"))?")


@dataclasses.dataclass(eq=False)
class View:
    name: str  # its class
    x: float  # on the screen, in points; so is y
    y: float
    width: float
    height: float
    alpha: float
    hidden: bool
    text: str | None
    parent: "View | None" = None
    children: list = dataclasses.field(default_factory=list)

    def all(self):
        yield self
        for child in self.children:
            yield from child.all()

    def named(self, *names):
        return [view for view in self.all() if view.name in names]

    def above(self):
        return [self.parent, *self.parent.above()] if self.parent else []

    @property
    def shown(self):
        """Whether it lets itself be seen, whatever it lies in."""
        return not self.hidden and self.alpha > 0.01

    @property
    def seen(self):
        return self.shown and (self.parent is None or self.parent.seen)

    @property
    def center(self):
        return self.x + self.width / 2, self.y + self.height / 2

    def contains(self, other):
        return (self.x - ALMOST <= other.x and self.y - ALMOST <= other.y
                and other.x + other.width <= self.x + self.width + ALMOST
                and other.y + other.height <= self.y + self.height + ALMOST)

    def overlap(self, other):
        """Width and height of what both cover; negative where they are apart."""
        return (min(self.x + self.width, other.x + other.width) - max(self.x, other.x),
                min(self.y + self.height, other.y + other.height) - max(self.y, other.y))


def parse(lines):
    """The view that the lines of one tree say; frames there are their superviews'."""
    path = []
    for line in lines:
        found = LINE.fullmatch(line)
        if not found:
            raise ValueError(f"not a line of a tree: {line!r}")
        depth = len(found[1]) // 2
        del path[depth:]
        above = path[-1] if path else None
        x, y, width, height = map(float, found.group(3, 4, 5, 6))
        view = View(found[2], x + (above.x if above else 0), y + (above.y if above else 0), width,
                    height, float(found[7] or 1), bool(found[8]),
                    found[9][1:-1] if found[9] and found[9] != "nil" else None, above)
        if above:
            above.children.append(view)
        path.append(view)
    return path[0]


def units(top, language):
    """The texts of the units, by their keys."""
    file = pathlib.Path(top, "tweak/resources", f"{language}.lproj/Localizable.strings")
    texts = dict(re.findall(r'^"(\w+)" = "(.*)";$', file.read_text("utf-8"), re.MULTILINE))
    return {key: texts[key] for key in ("HOURS", "MINUTES", "SONG", "SONGS")}


def expected_unit(value, counts_songs, texts):
    if not counts_songs:
        return texts["HOURS" if value.count(":") > 1 else "MINUTES"]
    number = re.match(r"\d+", value)
    return texts["SONG" if number and int(number[0]) == 1 else "SONGS"]


@dataclasses.dataclass
class Screen:
    window: View  # the key window
    running: bool  # whether a timer is
    texts: dict  # of the units
    small: bool  # whether the small module is to have the button

    def findings(self):
        """What is wrong, each as its kind and in words."""
        if any("Alert" in view.name for view in self.window.all()):
            return  # Control Center lies below in another window.
        for module in self.window.named("MRUNowPlayingView"):
            yield from self.of_module(module)
        for page in self.window.named(*PAGES):
            if page.seen and not any(view.name == "MRUEmbeddingView" for view in page.above()):
                yield "panel outside", f"{page.name} is seen in another view than that of the routes"

    def of_module(self, module):
        embedding, *_ = module.named("MRUEmbeddingView")
        held = [view for view in embedding.children if any(page.name in PAGES for page in view.children)]
        if embedding.seen:
            yield from self.of_routing_layout(embedding, held)
        elif any(panel.shown for panel in held):
            yield "panel outside", "the panel is not hidden outside of the routing layout"
        yield from self.of_buttons(module, embedding.seen, bool(held))

    def of_routing_layout(self, embedding, held):
        shown = [view for view in embedding.children if view.seen]
        if len(shown) != 1:
            yield "empty area", f"{len(shown)} views are seen where the panel or the routes belong"
        for panel in held:
            if not panel.shown:
                continue
            pages = [view for view in panel.named(*PAGES) if view.seen]
            if len(pages) != 1:
                names = ", ".join(page.name for page in pages)
                yield f"{len(pages)} pages" if pages else "no page", f"pages seen: {names or 'none'}"
            if panel.alpha < 1:
                yield "faint", f"the panel rests at alpha {panel.alpha:g}"
            yield from self.of_places(embedding, panel, pages)
            for page in pages:
                yield from self.of_page(page)

    def of_places(self, embedding, panel, pages):
        for inner, outer in [(panel, embedding)] + [(page, panel) for page in pages]:
            if not (inner.contains(outer) and outer.contains(inner)):
                yield "place", f"{inner.name} does not fill {outer.name}"
        if abs(embedding.height - PANEL_HEIGHT) > ALMOST:
            yield "height", f"the embedding view is {embedding.height} points high"

    def of_page(self, page):
        if (page.name == "CurrentTimerView") != self.running:
            yield "wrong page", f"{page.name} is seen while {'a' if self.running else 'no'} timer runs"
        if page.name == "CurrentTimerView":
            value, unit = [view.text for view in page.named("UILabel")][1:3]
            # The wheel that was shown last decides, not the timer: a number stands above minutes where
            # the other wheel came up after the timer had started.
            if unit != expected_unit(value, self.shows_songs(page), self.texts):
                yield "unit", f"the page says {value} {unit}"

    @staticmethod
    def shows_songs(page):
        choosing = [view for view in page.parent.children if view.name == "ChooseSnoozeTimeView"]
        wheels = [view for its in choosing for view in its.children if view.name == "UIPickerView"]
        return any(not wheel.hidden for wheel in wheels)

    def of_buttons(self, module, routes, is_ours):
        header = module.named("MRUNowPlayingHeaderView")[0]
        others = [view for view in header.named("MRUNowPlayingRoutingButton") if view.seen]
        own = [view for view in header.named("DozewellButton") if view.seen]
        is_player = any(view.seen for view in module.named("MRUNowPlayingTimeControl"))
        wanted = is_ours if routes else is_player or self.small
        if len(own) != wanted:
            yield "moon", f"{len(own)} moons are seen instead of {int(wanted)}"
        if len(others) != (not (routes and is_ours)):
            yield "routing button", f"{len(others)} routing buttons are seen"
        for moon in own:
            yield from self.of_moon(moon, header, module, others)

    def of_moon(self, moon, header, module, others):
        x, y = moon.center
        if not module.contains(moon) or not header.contains(View("center", x, y, 0, 0, 1, False, None)):
            yield "moon outside", f"the moon stands at {x:g}, {y:g}, beyond its header"
        for other in others:
            wide, high = moon.overlap(other)
            # One above the other, 33 points apart though 36 high, as they always have been.
            stacked = abs(moon.y - other.y - BELOW) < ALMOST and abs(moon.x - other.x) < ALMOST
            if wide > ALMOST and high > ALMOST and not stacked:
                yield "moon over", f"the moon covers {wide:g} by {high:g} points of the routing button"
