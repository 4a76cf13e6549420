"""docs/vocabulary.md lists every script name that the tables register, and names of the code that
are there."""

import re

from tree import files, finish, lines

# Where names are registered, and how a row does it.
REGISTERED = {
    "Fields of the game state": ("tools/script/fields.cpp", r'(?:Field\{|name == )"(\w+)"'),
    "Controls": (
        "src/ui/*.cpp",
        r'\b(?:add\w*\([^"]*|name = |m\.\w+\s*= \{)"(\w+)"',
    ),
    "Procedures": ("tools/script/procedures.cpp", r'(?:Plain\{|name == )"(\w+)"'),
}


def text_of(pattern):
    folder, _, ending = pattern.partition("*.")
    paths = files([folder], ending) if ending else [pattern]
    return "\n".join(line for path in paths for line in lines(path))


def sections():
    """The rows of each section's table, in cells."""
    rows, title = {}, ""
    for line in lines("docs/vocabulary.md"):
        if line.startswith("## "):
            title = line[3:]
        elif line.startswith("| `"):
            rows.setdefault(title, []).append([cell.strip() for cell in line.split("|")[1:-1]])
    return rows


code = set(re.findall(r"\w+", text_of("src/*.h") + text_of("tools/script/*.h")))
complaints = []
for title, (pattern, row) in REGISTERED.items():
    registered = set(re.findall(row, text_of(pattern)))
    told = sections().get(title, [])
    listed = {name for cells in told for name in re.findall(r"`(\w+)(?:\(i\))?`", cells[0])}
    complaints += [f"{title}: {name} is not in the table" for name in sorted(registered - listed)]
    complaints += [f"{title}: nothing registers {name}" for name in sorted(listed - registered)]
    complaints += [
        f"{title}: there is no {word} in the code"
        for cells in told
        for name in re.findall(r"`([\w:]+)`", cells[1])
        for word in name.split("::")
        if word not in code
    ]
finish(complaints)
