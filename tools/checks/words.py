"""Words and paths that no file of the tree holds. (A pattern must not find itself.)"""

import re

from tree import ROOT, files, finish, lines

FORBIDDEN = {
    r"(?i)\bs[p]ec(ification)?s?\b|\bpart[s]? [1-7]\.\d": "say it in the game's own terms",
    r"(?<![\w.])/(hom[e]|roo[t]|wor[k]|tm[p])/": "a path of one machine",
    r"\b(TOD[O]|FIXM[E])\b": "finish it, or open an issue",
}
BINARY = (".png", ".pyc", ".bin")

folders = [path.name for path in ROOT.iterdir() if path.name not in (".git", "build")]
finish([
    f"{path}:{number}: {why}: {line.strip()}"
    for path in files(folders)
    if not path.endswith(BINARY)
    for number, line in enumerate(lines(path), 1)
    for pattern, why in FORBIDDEN.items()
    if re.search(pattern, line)
])
