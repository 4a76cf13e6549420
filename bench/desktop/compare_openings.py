"""compare_openings.py OPENING [ROUNDS]: the game's openings beside an empty window's, in turn.

OPENING is the program built of opening.cpp. It opens the game as at any start and as at the very
first, which makes the data files. Prints the medians of the time until all is painted and of the
memory, and of what each of the game's takes of the empty window's beside it, which holds while the
machine's speed drifts. Needs a display:

    tools/testing/with_display.sh 1920x1080 python3 bench/desktop/compare_openings.py \\
        build/release/bench/opening
"""

import statistics
import subprocess
import sys
import time


def opening(what):
    spawned = str(time.monotonic_ns() // 1000)
    printed = subprocess.run(
        [sys.argv[1], what, spawned], capture_output=True, text=True, check=True, timeout=60
    ).stdout
    return [int(number) for number in printed.split()]


rounds = int(sys.argv[2]) if len(sys.argv) > 2 else 20
kinds = ("empty", "game", "first")
figures = {kind: [] for kind in kinds}
for number in range(rounds + 1):
    for kind in kinds:
        figure = opening(kind)
        if number > 0:  # the first round warms the caches
            figures[kind].append(figure)
for column, (name, unit) in enumerate((("painted after", 1000), ("memory", 1024))):
    of = {kind: [row[column] / unit for row in figures[kind]] for kind in kinds}
    print(f"{name:14} empty {statistics.median(of['empty']):7.1f}", end="")
    for kind in kinds[1:]:
        ratio = statistics.median(a / b for a, b in zip(of[kind], of["empty"]))
        print(f"  {kind} {statistics.median(of[kind]):7.1f} {ratio:.3f}", end="")
    print()
