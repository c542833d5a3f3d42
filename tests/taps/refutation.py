"""Shows that each check can fail: on screens that are wrong on purpose, and on phones that are made wrong."""

import copy
import dataclasses
import sys

from screens import PAGES
from sessions import PANEL, REST


def first(screen, *names):
    found = [view for name in names for view in screen.window.named(name) if view.seen]
    return found[0] if found else None


def hide(*names):
    def change(screen):
        if view := first(screen, *names):
            view.hidden = True
    return change


def show(name):
    def change(screen):
        for view in screen.window.named(name):
            view.hidden, view.alpha = False, 1
    return change


def show_panel(screen):
    for page in screen.window.named(*PAGES):
        page.parent.hidden = False


def empty_area(screen):
    if embedding := first(screen, "MRUEmbeddingView"):
        embedding.children[0].hidden = True


def take_panel_out(screen):
    if page := first(screen, *PAGES):
        page.parent.parent = screen.window


def fade(screen):
    if page := first(screen, *PAGES):
        page.parent.alpha = 0.3


def change_unit(screen):
    if page := first(screen, "CurrentTimerView"):
        page.named("UILabel")[2].text = "weeks"


def change_running(screen):
    screen.running = not screen.running


def widen_page(screen):
    if page := first(screen, *PAGES):
        page.width += 10


def lower_area(screen):
    if embedding := first(screen, "MRUEmbeddingView"):
        embedding.height -= 10


def move_moon(screen):
    if moon := first(screen, "DozewellButton"):
        moon.y += 400


def cover_routing_button(screen):
    moon, other = first(screen, "DozewellButton"), first(screen, "MRUNowPlayingRoutingButton")
    if moon and other:
        moon.x, moon.y = other.x + 5, other.y


WRONG = [("panel outside", show_panel), ("panel outside", take_panel_out), ("empty area", empty_area),
         ("no page", hide(*PAGES)), ("2 pages", show("CurrentTimerView")), ("unit", change_unit),
         ("wrong page", change_running), ("faint", fade), ("place", widen_page), ("height", lower_area),
         ("moon", hide("DozewellButton")), ("routing button", show("MRUNowPlayingRoutingButton")),
         ("moon outside", move_moon), ("moon over", cover_routing_button)]

# What a phone is made to do after it has opened the panel, and what is then found.
BROKEN = [("empty area", f"send {PANEL}.view setHidden: YES"), ("death", "send NSMutableArray.new addObject: nil")]


def unnoticed(screens):
    """Which wrong screens nobody finds wrong."""
    for kind, change in WRONG:
        found = set()
        for screen in screens:
            wrong = copy.deepcopy(screen)
            change(wrong)
            found |= {its for its, _ in wrong.findings()} - {its for its, _ in screen.findings()}
        if kind not in found:
            yield f"{change.__name__}: {kind} is not found, but {found}"


def unnoticed_on(phone, session, shortened):
    """The same of phones; what is found there is to remain when everything needless is gone."""
    opening = session.actions[:2]
    needless = [["shake"], [REST], ["next-track"]]
    for kind, line in BROKEN:
        broken = dataclasses.replace(session, actions=[*opening, *needless, [line], [REST], ["pause"]])
        (finding,) = phone.findings([broken])
        if not finding or finding.kind != kind:
            yield f"{line}: {kind} is not found, but {finding}"
            continue
        short, _ = shortened(phone, broken, finding)
        least = [*opening, [line]] if kind == "empty area" else [[line]]
        if short.actions != least:
            yield f"{line}: shortened to {short.actions}"


def run(phone, screens, opened, shortened):
    """opened is a session whose first two actions open the panel."""
    missed = [*unnoticed(screens), *unnoticed_on(phone, opened, shortened)]
    print(*missed, f"{len(WRONG) + len(BROKEN)} wrong things, {len(missed)} not found", sep="\n")
    return bool(missed)
