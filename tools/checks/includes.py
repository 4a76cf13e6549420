"""Who may include whom."""

import re
from pathlib import PurePosixPath

from tree import ROOT, files, finish, lines

# Pure files know the game and the standard library, no window and no desktop.
PURE = {
    "game/deal",
    "game/grid",
    "game/leading_number",
    "game/rules",
    "game/scoring",
    "game/state",
    "ai/evaluation",
    "ai/tactics",
    "guide/tip_text",
    "store/digit_code",
    "store/settings",
    "store/statistics",
}
DESKTOPS = ("platform/qt/", "platform/headless/")
TOOLKIT_ALLOWED = (
    "src/platform/qt/",
    "tools/stage/",
    "tests/desktop/",
    "tests/files/",
    "bench/desktop/",
)
INCLUDE = re.compile(r'\s*#\s*include\s*([<"])([^>"]+)')


def unit(path):
    """A header and its source count as one: "src/game/grid.cpp" is "game/grid"."""
    return str(PurePosixPath(path.removeprefix("src/")).with_suffix(""))


def complaints_about(path, bracket, name):
    if bracket == "<":
        if re.match(r"Q[A-Zt]", name) and not path.startswith(TOOLKIT_ALLOWED):
            yield "a toolkit header has no place here"
        if unit(path) in PURE and not re.fullmatch(r"[a-z_]+", name):
            yield "a pure file includes the standard library and pure files alone"
        return
    if ".." in name:
        yield "include paths start at src/"
    if not path.startswith("src/"):
        return
    if not (ROOT / "src" / name).exists():
        yield "there is no such file below src/"
    if unit(path) in PURE and unit(name) not in PURE:
        yield "a pure file includes the standard library and pure files alone"
    home = path.removeprefix("src/")
    for desktop in DESKTOPS:
        if name.startswith(desktop) and not home.startswith((desktop, "app/main.cpp")):
            yield "only a desktop itself and its main know that desktop"


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


complaints, graph = [], {}
for path in files(["src", "tests", "tools", "bench"], "h cpp"):
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
