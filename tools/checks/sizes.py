"""Small pieces, and tests in proportion."""

from tree import files, finish, lines

LIMITS = {"h": 150, "cpp": 500, "py": 500, "script": 200}
FUNCTION_LIMIT = 60
PLATFORM_LIMIT, DESKTOP_LIMIT = 400, 25
TEST_SHARE = range(22, 37)  # per cent of the code, once there is more than a little of it
CODE = ["src", "tools", "bench"]
TESTS = ["tests", "fuzz"]


def long_functions(path):
    """Functions at the margin, from the line with their name to the "}" that stands alone."""
    start = 0
    for number, line in enumerate(lines(path), 1):
        if line == "}":
            if start and number - start >= FUNCTION_LIMIT:
                yield f"{path}:{start}: a function of {number - start + 1} lines"
            start = 0
        elif line[:1].isalpha() or line[:1] == "[":
            start = number if "(" in line and not line.endswith(";") else 0


def filled_lines(folders):
    paths = files(folders, "cpp h txt sh py script expected")
    return sum(
        bool(line.strip()) for p in paths if not p.endswith("CMakeLists.txt") for line in lines(p)
    )


complaints = []


def demand(what, size, limit):
    if size > limit:
        complaints.append(f"{what}: {size}, at most {limit} are wanted")


for path in files(CODE + TESTS, " ".join(LIMITS)):
    ending = path.rsplit(".")[-1]
    demand(f"{path}: lines", len(lines(path)), LIMITS[ending])
    if ending in ("h", "cpp"):
        complaints += long_functions(path)

platform = [path for path in files(["src/platform"], "h") if path.count("/") == 2]
demand("src/platform/*.h: lines", sum(len(lines(path)) for path in platform), PLATFORM_LIMIT)
virtual = [line for line in lines("src/platform/desktop.h") if "virtual" in line and "~" not in line]
demand("Desktop: virtual functions", len(virtual), DESKTOP_LIMIT)

code, tests = filled_lines(CODE), filled_lines(TESTS)
share = 100 * tests // max(code, 1)
print(f"tests are {share} % of the code ({tests} lines for {code})")
if code > 500 and share not in TEST_SHARE:
    complaints.append(f"tests: {TEST_SHARE[0]} to {TEST_SHARE[-1]} % of the code are wanted")
finish(complaints)
