"""check_signatures.py [--record] SIGNATURES PROGRAM

Has PROGRAM play what each line of SIGNATURES asks for and compares the signature. A changed number
means that a side plays or ends a game differently than before. If that is wanted, --record writes
the new numbers to SIGNATURES, and the commit names the old and the new ones.
"""

import re
import subprocess
import sys

WORDS = ("level", "player", "seed", "games")


def signature(program, values):
    request = "watch 1\n" + "".join(f"{word} {value}\n" for word, value in zip(WORDS, values))
    run = subprocess.run([program], input=request, capture_output=True, text=True)
    if run.returncode:
        sys.exit(f"exit {run.returncode}: {run.stderr.strip()}\nfor this request:\n{request}")
    return re.search(r"^signature (0x[0-9a-f]{16})$", run.stdout, re.MULTILINE)[1]


def main():
    arguments = sys.argv[1:]
    record = arguments[:1] == ["--record"]
    path, program = arguments[record:]
    with open(path, encoding="utf-8") as file:
        lines = file.read().splitlines()
    checked, complaints = 0, []
    for number, line in enumerate(lines):
        if not line or line.startswith("#"):
            continue
        *values, wanted = line.split()
        checked += 1
        found = signature(program, values)
        lines[number] = " ".join([*values, found])
        if found != wanted:
            complaints.append(f"{' '.join(values)}: {wanted} was recorded, now it is {found}")
    if record:
        with open(path, "w", encoding="utf-8") as file:
            file.writelines(line + "\n" for line in lines)
        return
    if not checked:
        complaints.append("no signature is recorded")
    sys.exit("\n".join(complaints) if complaints else 0)


main()
