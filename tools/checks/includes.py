"""Who may include whom: each room's one rule, taken from the folder that a file stands in."""

import re
from pathlib import PurePosixPath

from tree import ROOT, files, finish, lines

# The rooms of src/, lower ones first, and what each knows besides itself and the standard library.
KNOWS = {
    "platform": "",
    "platform/headless": "platform",
    "platform/files": "platform",
    "platform/qt": "platform platform/files",
    "game": "",
    "texts": "",
    "store": "game",
    "ai": "game",
    "ui": "platform game texts",
    "play": "platform game texts store ai ui",
    "app": "platform game texts store ai ui play",
}
MAIN, MAIN_KNOWS = "src/app/main.cpp", "platform/qt"  # chooses the desktop
TOOLKIT_ALLOWED = (
    "src/platform/qt/",
    "tools/stage/",
    "tests/desktop/",
    "tests/monkey/",
    "tests/motion/",
    "tests/painting/",
    "tests/screens/",
    "bench/desktop/",
)
SYSTEM_ALLOWED = ("platform/files", "platform/qt")  # the operating system's own calls
INCLUDE = re.compile(r'\s*#\s*include\s*([<"])([^>"]+)')


def unit(path):
    """A header and its source count as one: "src/game/grid.cpp" is "game/grid"."""
    return str(PurePosixPath(path.removeprefix("src/")).with_suffix(""))


def room(path):
    return str(PurePosixPath(path.removeprefix("src/")).parent)


def rooms_known_to(path):
    home = room(path)
    return {home, *KNOWS[home].split(), *([MAIN_KNOWS] if path == MAIN else [])}


def complaints_about(path, bracket, name):
    if bracket == "<":
        if re.match(r"Q[A-Zt]", name):
            if not path.startswith(TOOLKIT_ALLOWED):
                yield "a toolkit header has no place here"
        elif path.startswith("src/") and room(path) not in SYSTEM_ALLOWED:
            if not re.fullmatch("[a-z_]+", name):
                yield "only the standard library is known here"
        return
    if ".." in name:
        yield "include paths start at src/"
    if not path.startswith("src/"):
        return
    if not (ROOT / "src" / name).exists():
        yield "there is no such file below src/"
    if room(name) not in rooms_known_to(path):
        yield f"{room(path)}/ does not know {room(name)}/"


def is_upwards(home, known):
    order = list(KNOWS)
    return order.index(known) > order.index(home)


def cycle_in(graph):
    """The units of one include cycle in order, or None."""
    done, trail = set(), []

    def visit(node):
        if node in trail:
            return trail[trail.index(node) :] + [node]
        if node in done:
            return None
        trail.append(node)
        found = next(filter(None, map(visit, sorted(graph.get(node, ())))), None)
        trail.pop()
        done.add(node)
        return found

    return next(filter(None, map(visit, sorted(graph))), None)


complaints = [
    f"the rule of {home}/ points up, to {known}/"
    for home, rooms in KNOWS.items()
    for known in rooms.split()
    if is_upwards(home, known)
]
graph = {}
for path in files(["src", "tests", "tools", "bench"], "h cpp"):
    if path.startswith("src/") and room(path) not in KNOWS:
        complaints.append(f"{path}: {room(path)}/ is no room")
        continue
    for number, line in enumerate(lines(path), 1):
        if found := INCLUDE.match(line):
            bracket, name = found.groups()
            complaints += [
                f"{path}:{number}: {name}: {why}" for why in complaints_about(path, bracket, name)
            ]
            if bracket == '"' and path.startswith("src/") and unit(name) != unit(path):
                graph.setdefault(unit(path), set()).add(unit(name))
if cycle := cycle_in(graph):
    complaints.append("include cycle: " + " -> ".join(cycle))
finish(complaints)
