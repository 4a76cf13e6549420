"""count_wakeups.py MEVRACARD: how often the game wakes up in ten seconds of the player's turn.

Needs a display of its own, with xdotool:

    tools/testing/with_display.sh 1366x768 python3 bench/desktop/count_wakeups.py \\
        build/release/mevracard
"""

import subprocess
import sys
import time
from pathlib import Path


def wakeups(process):
    """Of each thread, by name: how often it has gone to sleep."""
    counts = {}
    for task in Path(f"/proc/{process.pid}/task").iterdir():
        status = dict(line.split(":\t", 1) for line in (task / "status").read_text().splitlines() if ":\t" in line)
        counts[f"{status['Name']} {task.name}"] = int(status["voluntary_ctxt_switches"])
    return counts


game = subprocess.Popen(sys.argv[1:2])
try:
    time.sleep(2)
    subprocess.run(["xdotool", "key", "Return"], check=True)  # the opening's message
    time.sleep(6)  # the computer has answered, and every glide has ended
    before = wakeups(game)
    time.sleep(10)
    after = wakeups(game)
    for thread, count in sorted(after.items()):
        print(f"{thread:28} {count - before.get(thread, 0):4}")
finally:
    game.terminate()
    game.wait()
