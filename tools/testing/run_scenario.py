"""run_scenario.py [--record] PROGRAM SCRIPT EXPECTED

Feeds SCRIPT to PROGRAM and compares what it prints with EXPECTED, line by line. A run that ends with
a status other than 0, or writes to standard error, has that as its last lines: "exit 2: line 3: WHY".
--record writes what was printed to EXPECTED instead.
"""

import subprocess
import sys
from itertools import zip_longest

CONTEXT = 4  # lines shown before the first difference


def transcript(program, script):
    with open(script, "rb") as commands:
        run = subprocess.run([program], stdin=commands, capture_output=True)
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


def main():
    arguments = sys.argv[1:]
    record = arguments[:1] == ["--record"]
    program, script, expected = arguments[record:]
    actual = transcript(program, script)
    if record:
        with open(expected, "w", encoding="utf-8") as file:
            file.writelines(line + "\n" for line in actual)
        return 0
    with open(expected, encoding="utf-8") as file:
        report = difference(file.read().splitlines(), actual)
    if report:
        print(f"{expected}: {report}")
    return 1 if report else 0


sys.exit(main())
