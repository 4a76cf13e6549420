"""What the checks share: the files of the checkout, and how a rule reports."""

import sys
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]


def files(tops, endings=""):
    """Sorted paths of the files at or below the tops; all are relative to the checkout."""
    found = (path for top in tops for path in (ROOT / top, *(ROOT / top).rglob("*")))
    return sorted(
        path.relative_to(ROOT).as_posix()
        for path in found
        if path.is_file() and (not endings or path.suffix[1:] in endings.split())
    )


def lines(path):
    return (ROOT / path).read_text(encoding="utf-8").splitlines()


def finish(complaints):
    """Ends the check: a line for each complaint, and status 1 if there is any."""
    sys.exit("\n".join(complaints) if complaints else 0)
