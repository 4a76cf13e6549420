#!/usr/bin/python3
"""play_by_ear.py PROGRAM: goes into the menu and out, and plays a whole game, by keys and by what comes
over a bus of its own alone; the first card that fits is laid by its press action. The keyboard is at one
part, which has words, and nothing is said twice in a row. Who keeps what was told, names and what a list
holds, knows the same as who asks. What has gone is not seen, and each card on the table has been told."""

import os
import re
import subprocess
import sys

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402

EVENTS = "object:state-changed:focused", "object:property-change", "object:children-changed"
LISTS = "Your cards", "Computer's cards", "Table", "Score"
OPENING = [  # a key, and how what is then heard begins
    (None, "OK"), ("Delete", "Enter closes the message. "), ("Return", "New game. "),
    ("F10", "File"), ("Down", "Player Level"), ("Right", "Level 1"), ("Escape", "Player Level"),
    ("Escape", "File"), ("Escape", "Your Turn. ")]


def has(part, *states):
    return all(part.get_state_set().contains(getattr(Atspi.StateType, state)) for state in states)


def parts(root):
    for i in range(root.get_child_count()):
        if child := root.get_child_at_index(i):
            child.clear_cache()
            yield child
            yield from parts(child)


class Player:
    def __init__(self, program):
        self.news, self.heard, self.seen = [], [""], set()
        self.kept = {}  # of each list its items, as the events tell
        self.listener = Atspi.EventListener.new(self.hear)
        for kind in EVENTS:
            self.listener.register(kind)
        self.game = subprocess.Popen([program], env={**os.environ, "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1"})
        GLib.timeout_add_seconds(200, self.fail, "no more is said")

    def hear(self, event):
        source = event.source
        if source is None or source.get_process_id() != self.game.pid:
            return
        if "children" in event.type and source in self.kept:
            items = self.kept[source]
            if event.type.endswith("add"):
                items.insert(event.detail1, event.any_data)
            elif items.pop(event.detail1) != event.any_data:
                self.fail(f"{event.detail1} is no index of what goes")
        elif "focused" in event.type and event.detail1:
            kept, last = source.get_name(), [*self.heard, *self.news][-1]
            source.clear_cache()
            if kept != source.get_name() or not kept:
                self.fail(f"{kept!r} is known where {source.get_name()!r} is to be heard")
            if not kept == last == "OK":  # still at the button
                self.news.append(kept)

    def press(self, key, beginning=""):
        if key:
            subprocess.run(["xdotool", "key", key], check=True)
        while not self.news or not self.news[0].startswith(beginning):
            self.news.clear()
            GLib.MainContext.default().iteration(True)
        words = self.news.pop(0)
        if words == "OK":  # what its window has to say follows
            nothing = GLib.timeout_add(1000, self.news.append, "OK")
            while not self.news:
                GLib.MainContext.default().iteration(True)
            if (words := self.news.pop(0)) != "OK":
                GLib.source_remove(nothing)
        if words == self.heard[-1]:
            self.fail(f"{words!r} is said twice")
        self.heard.append(words)
        while True:
            try:
                return words, self.look()
            except GLib.GError:  # what goes meanwhile is not looked for again
                GLib.MainContext.default().iteration(False)

    def play(self):
        words, items = [self.press(*way) for way in OPENING][-1]
        fitting = [item for item in items["Your cards"] if ", fits " in item.get_name()]
        key = None if fitting and Atspi.Action.do_action(fitting[0], 0) else "p"
        while not re.search(r"You (win|lose)\.", words):
            words, items = self.press(key)
            key = self.answer_to(words)
        told = re.findall(r"\d-\d", " ".join(re.findall(r" lays? [^.]*", "".join(self.heard))))
        if sorted(told) != sorted(item.get_name()[:3] for item in items["Table"]):
            self.fail(f"of what lies on the table is told: {told}")

    @staticmethod
    def answer_to(words):
        if choice := re.search(r"Mevra (\d) or Mevra", words):
            return choice[1]
        if words == "OK" or "Enter presses OK" in words or re.search(r", fits .*\. $", words):
            return "Return"
        return "p" if re.search(r"does not fit\. $|is selected|Your Turn", words) else None

    def look(self):
        desktop = Atspi.get_desktop(0)
        programs = map(desktop.get_child_at_index, range(desktop.get_child_count()))
        found = list(parts(next(p for p in programs if p and p.get_process_id() == self.game.pid)))
        focused = [p.get_name() for p in found if has(p, "FOCUSED")]
        nameless = [p for p in found if has(p, "FOCUSABLE", "SHOWING") and not p.get_name()]
        if len(focused) > 1 or nameless:
            self.fail(f"the keyboard is at {focused}, and may come to {nameless}")
        lists = {p.get_name(): p for p in found if p.get_role() == Atspi.Role.LIST}
        items = {name: list(parts(lists[name])) for name in LISTS}
        for name in [] if self.news else LISTS:
            if self.kept.setdefault(lists[name], list(items[name])) != items[name]:
                self.fail(f"{name} holds {[item.get_name() for item in items[name]]}")
        now = set().union(*items.values())
        self.seen |= now
        for item in self.seen:
            if has(item, "SHOWING") != (item in now):
                self.fail(f"{item.get_name()!r} is wrongly seen, or not seen")
        return items

    def fail(self, why):
        self.game.kill()
        sys.stderr.write("\n".join([*self.heard[-20:], f"play_by_ear: {why}\n"]))
        os._exit(1)


player = Player(sys.argv[1])
player.play()
player.game.kill()
print(*player.heard, sep="\n")
