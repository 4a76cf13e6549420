"""run_scenario.py [--record] PROGRAM SCRIPT EXPECTED [STATES]
run_scenario.py PROGRAM PAGE

Feeds SCRIPT to PROGRAM and compares what it prints with EXPECTED, line by line. A run that ends with
a status other than 0, or writes to standard error, has that as its last lines: "exit 2: line 3: WHY".
What nobody asked about is in STATES, a line a script: four digits for all that `show all` prints, after
each command and behind each message. --record writes what was printed to EXPECTED and STATES instead.

The scripts of a PAGE (Markdown) hold what they print in their own comments. One that does not begin
with `deal` goes on from the last one that did.
"""

import re
import subprocess
import sys
from itertools import zip_longest
from pathlib import Path

CONTEXT = 4  # lines shown before the first difference


def transcript(program, commands):
    run = subprocess.run([program], input=commands, capture_output=True)
    text = run.stdout.decode(errors="replace")
    if run.returncode or run.stderr:
        text += f"exit {run.returncode}: {run.stderr.decode(errors='replace')}"
    return text.splitlines()


def difference(expected, actual):
    """A report on the first differing line, or None."""
    pairs = zip_longest(expected, actual, fillvalue="(the transcript ends)")
    for number, (wanted, printed) in enumerate(pairs):
        if wanted != printed:
            before = actual[max(0, number - CONTEXT) : number]
            return "\n".join(
                [f"line {number + 1} differs:"]
                + [f"            {line}" for line in before]
                + [f"  expected: {wanted}", f"  printed:  {printed}"]
            )
    return None


def states(program, commands):
    """Of each state its digest and what led to it."""
    lines = transcript(program, b"watch on\n" + commands)
    return [line.split(" ", 2)[1:] for line in lines if line.startswith("state ")]


def read_states(path):
    lines = path.read_text(encoding="utf-8").splitlines() if path.exists() else []
    return {name: digests.split() for name, digests in (line.split(" ", 1) for line in lines)}


def record_states(path, name, found):
    recorded = {**read_states(path), name: [digest for digest, why in found]}
    lines = [f"{name} {' '.join(digests)}\n" for name, digests in sorted(recorded.items())]
    path.write_text("".join(lines), encoding="utf-8")


def unlike_state(recorded, found):
    for number, ((digest, why), wanted) in enumerate(zip_longest(found, recorded, fillvalue=("", "")), 1):
        if digest != wanted:
            return f"state {number} is another one, at: {why}\n  `show all` there, then and now, tells what differs"
    return None


def check_page(program, page):
    text = page.read_text(encoding="utf-8")
    position, ran = "", 0
    for block in re.finditer(r"^```script\n(.*?)^```$", text, re.MULTILINE | re.DOTALL):
        script = block[1]
        if script.startswith("deal"):
            position = script
            continue
        before = len(transcript(program, position.encode()))
        actual = transcript(program, (position + script).encode())[before:]
        report = difference(re.findall(r"^# (.*)$", script, re.MULTILINE), actual)
        ran += 1
        if report:
            line = text.count("\n", 0, block.start()) + 1
            return f"{page}: the script at line {line}: {report}"
    return None if ran else f"{page}: no script to run"


def record(expected, actual):
    expected.write_text("".join(line + "\n" for line in actual), encoding="utf-8")
    for number, line in enumerate(actual, 1):
        if line.startswith("ignored: "):
            print(f"{expected}: line {number} records a command that did nothing: {line}")


def main():
    arguments = sys.argv[1:]
    recording = arguments[:1] == ["--record"]
    program, *paths = arguments[recording:]
    script, *expected = map(Path, paths)
    if not expected:
        return check_page(program, script)
    expected, *recorded = expected
    commands = script.read_bytes()
    actual = transcript(program, commands)
    found = states(program, commands) if recorded else []
    if recording:
        record(expected, actual)
        return recorded and record_states(recorded[0], script.stem, found)
    if not expected.exists():
        return f"{expected} does not exist; --record writes it"
    report = difference(expected.read_text(encoding="utf-8").splitlines(), actual)
    if not report and recorded:
        report = unlike_state(read_states(recorded[0]).get(script.stem, []), found)
    return report and f"{expected}: {report}"


sys.exit(main())
