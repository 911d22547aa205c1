# SPDX-License-Identifier: MIT
"""Says what is wrong with the sources one by one, a line each; ends with 1 when anything is.

    checkSources.py ROOT

A reader wants short files and short functions. A test wants checks that can fail: Qt Test's own do
nothing in a test of GoogleTest.
"""

import pathlib
import re
import sys

TREES = ("src", "tests", "benchmarks")
MOST_LINES = {".cpp": 499, ".h": 249}
MOST_LINES_OF_A_FUNCTION = 39

# Opening and closing braces of function bodies stand alone at the beginning of a line, those of
# classes and namespaces end a line.
# The head counts as far as it has no braces of its own.
FUNCTION = re.compile(
    r"^(?:[^\s#/}][^;{}]*?\n)?\{\n(?:.*?\n)??\}$", re.MULTILINE | re.DOTALL)
CHECK_OF_QT_TEST = re.compile(r"\b(QTRY_\w+|QVERIFY\w*|QCOMPARE\w*|QFAIL|QSKIP|QEXPECT_FAIL)\b")


def sources(root):
    for tree in TREES:
        for path in sorted((root / tree).rglob("*")):
            if path.suffix in MOST_LINES:
                yield path.relative_to(root), path.read_text(errors="replace")


def long_functions(text):
    """(line of its beginning, lines) of each function that is too long."""
    for found in FUNCTION.finditer(text):
        lines = found[0].count("\n") + 1
        if lines > MOST_LINES_OF_A_FUNCTION:
            yield text.count("\n", 0, found.start()) + 1, lines


def wrong(path, text):
    lines = text.count("\n")
    if lines > MOST_LINES[path.suffix]:
        yield f"{path}: {lines} lines, more than {MOST_LINES[path.suffix]}"
    for line, length in long_functions(text):
        yield f"{path}:{line}: a function of {length} lines, more than {MOST_LINES_OF_A_FUNCTION}"
    for found in CHECK_OF_QT_TEST.finditer(text):
        line = text.count("\n", 0, found.start()) + 1
        yield f"{path}:{line}: {found[0]} checks nothing in a test of GoogleTest"


def main(root):
    lines = [line for path, text in sources(root) for line in wrong(path, text)]
    print("\n".join(lines))
    return 1 if lines else 0


if __name__ == "__main__":
    sys.exit(main(pathlib.Path(sys.argv[1])))
