"""Every meant oddity has one id: at its code line, in docs/quirks.md and in a test."""

import re

from tree import files, finish, lines


def ids(folders, endings=""):
    text = "\n".join(line for path in files(folders, endings) for line in lines(path))
    return set(re.findall(r"QUIRK-\d\d", text))


places = {
    "src/": ids(["src"], "h cpp"),
    "docs/quirks.md": ids(["docs/quirks.md"]),
    # The page of the computer's rules runs as a test.
    "tests/": ids(["tests"], "h cpp script expected") | ids(["docs/computer-player.md"]),
}
every = set().union(*places.values())
finish([
    f"{place}: {name} is missing"
    for place, there in places.items()
    for name in sorted(every - there)
])
