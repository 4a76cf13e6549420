#!/usr/bin/python3
"""play_by_ear.py PROGRAM: plays a whole game with the computer's cards face down, by keys and by
what comes over a bus of its own alone; the first card that fits is laid by its press action. What is
said is held against the cards that the player may know of. The bus must tell the same to who asks and
to who keeps what was told before: names, and what a list holds; it says nothing twice in a row."""

import os
import re
import subprocess
import sys
from pathlib import Path

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402

PATIENCE = 120  # seconds without a word until the game counts as dumb
LAST_WORDS = re.compile(r"You (win|lose)\.")
CONTROLS = Atspi.Role.PUSH_BUTTON, Atspi.Role.SCROLL_BAR, Atspi.Role.MENU_ITEM


def cards(texts):
    return set(re.findall(r"\b[0-6]-[0-6]\b", " ".join(texts)))


def parts(root):
    """Everything below, however deep."""
    for i in range(root.get_child_count()):
        if child := root.get_child_at_index(i):
            child.clear_cache()
            yield child
            yield from parts(child)


class Player:
    def __init__(self):
        self.game, self.news, self.heard, self.hand = None, [], [], None
        self.pressed = False
        self.kept, self.control_names = {}, {}  # of each list its items, as the events tell
        self.listener = Atspi.EventListener.new(self.hear)
        for kind in "object:state-changed:focused", "object:property-change", "object:children-changed":
            self.listener.register(kind)

    def start(self, program):
        data = Path(os.environ["XDG_DATA_HOME"], "mevracard")
        data.mkdir(parents=True)
        (data / "wdx.sys").write_bytes(b"2/1/99\r\n")  # the computer's cards face down
        (data / "sys32rtn.dat").write_bytes(b"547153507498\r\n")  # no games yet
        always = {**os.environ, "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1"}
        self.game = subprocess.Popen([program], env=always)

    def hear(self, event):
        source = event.source
        if source is None or source.get_process_id() != self.game.pid:
            return
        if "children" in event.type and source in self.kept:
            self.keep(self.kept[source], event)
        elif "focused" in event.type and event.detail1:
            kept = source.get_name()
            source.clear_cache()
            if kept != source.get_name() or not kept:
                self.fail(f"{kept!r} is known where {source.get_name()!r} is to be heard")
            self.news.append((source, kept))

    def keep(self, items, event):
        if event.type.endswith("add"):
            items.insert(event.detail1, event.any_data)
        elif items[event.detail1] != event.any_data:
            self.fail(f"{event.detail1} is no index of what goes")
        else:
            del items[event.detail1]

    def next_news(self):
        beats = []
        heart = GLib.timeout_add_seconds(1, lambda: beats.append(1) or True)
        while not self.news:
            GLib.MainContext.default().iteration(True)
            if self.game.poll() is not None or len(beats) > PATIENCE:
                self.fail("the game has ended" if self.game.poll() else "nothing is said any more")
        GLib.source_remove(heart)
        return self.news.pop(0)

    def play(self):
        while not self.heard or not LAST_WORDS.search(self.heard[-1]):
            source, words = self.next_news()
            if words in self.heard[-1:] and source.get_role() not in CONTROLS:
                self.fail(f"{words!r} is said twice")
            self.heard.append(words)
            items = self.look_around(words)
            if "Your Turn" in words and not self.pressed and self.press_one(items["Your cards"]):
                self.pressed = True
            elif key := self.answer_to(words, source.get_role()):
                subprocess.run(["xdotool", "key", key], check=True)

    @staticmethod
    def press_one(cards_in_hand):
        fitting = (item for item in cards_in_hand if ", fits " in item.get_name())
        return any(Atspi.Action.do_action(item, 0) for item in fitting)

    @staticmethod
    def answer_to(words, role):
        if role == Atspi.Role.PUSH_BUTTON:  # the OK of a message, or of the tips after a pass
            return "Return"
        if choice := re.search(r"Mevra (\d) or Mevra", words):
            return choice[1]
        if re.search(r", fits .*\. $", words):
            return "Return"
        said_no = words.endswith(("does not fit. ", "is selected. "))
        return "p" if said_no or "Your Turn" in words else None

    def look_around(self, words):
        """Gives the items of each list. What goes meanwhile is not looked for again."""
        while True:
            try:
                return self.look(words)
            except GLib.GError:
                GLib.MainContext.default().iteration(False)

    def look(self, words):
        desktop = Atspi.get_desktop(0)
        programs = map(desktop.get_child_at_index, range(desktop.get_child_count()))
        game = next(p for p in programs if p and p.get_process_id() == self.game.pid)
        all_parts = list(parts(game))
        self.look_at_controls(all_parts)
        lists = {p.get_name(): p for p in all_parts if p.get_role() == Atspi.Role.LIST}
        items = {name: list(parts(p)) for name, p in lists.items()}
        if not self.news:
            self.look_at_kept(lists, items)
        self.look_for_covered_cards(words, items, all_parts)
        return items

    def look_at_controls(self, all_parts):
        focused = [p for p in all_parts if p.get_state_set().contains(Atspi.StateType.FOCUSED)]
        if len(focused) > 1:
            self.fail(f"the keyboard is at {[p.get_name() for p in focused]}")
        for part in all_parts:
            name = re.sub(r"^Mevra \d$", "Mevra", part.get_name())
            if part.get_role() in CONTROLS and self.control_names.setdefault(part, name) != name:
                self.fail(f"{self.control_names[part]} is called {name} now")

    def look_at_kept(self, lists, items):
        for name, known in lists.items():
            if self.kept.setdefault(known, items[name]) != items[name]:
                self.fail(f"{name} holds {[item.get_name() for item in items[name]]}")

    def look_for_covered_cards(self, words, items, all_parts):
        names = {name: [item.get_name() for item in found] for name, found in items.items()}
        if self.hand is None and names["Your cards"]:
            self.hand = cards(names["Your cards"])
        if LAST_WORDS.search(words):  # now the computer's cards lie open
            return
        if set(names["Computer's cards"]) - {"face down"}:
            self.fail(f"the computer's hand is told: {names}")
        told = [words, *(p.get_name() + p.get_description() for p in all_parts)]
        if secret := cards(told) - (self.hand or set()) - cards(names["Table"]) - {"0-0"}:
            self.fail(f"told, and neither the player's nor on the table: {secret}")

    def fail(self, why):
        sys.stderr.write(f"play_by_ear: {why}; heard before:\n" + "\n".join(self.heard[-20:]) + "\n")
        self.game.kill()
        os._exit(1)


player = Player()
player.start(sys.argv[1])
try:
    player.play()
finally:
    player.game.kill()
    player.game.wait()
print(*player.heard, sep="\n")
