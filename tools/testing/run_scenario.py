"""run_scenario.py [--record] PROGRAM SCRIPT EXPECTED
run_scenario.py PROGRAM PAGE

Feeds SCRIPT to PROGRAM and compares what it prints with EXPECTED, line by line. A run that ends with
a status other than 0, or writes to standard error, has that as its last lines: "exit 2: line 3: WHY".
--record writes what was printed to EXPECTED instead.

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
    expected = expected[0]
    actual = transcript(program, script.read_bytes())
    if recording:
        return record(expected, actual)
    if not expected.exists():
        return f"{expected} does not exist; --record writes it"
    report = difference(expected.read_text(encoding="utf-8").splitlines(), actual)
    return report and f"{expected}: {report}"


sys.exit(main())
