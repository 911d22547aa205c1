# SPDX-License-Identifier: MIT
"""Says what is wrong with the folders of the sources, a line each; ends with 1 when anything is.

    checkFolders.py ROOT

ROOT/src/folders.txt lists the folders of the sources, from those that know nobody to those that
know all. A source may include headers of its own folder and of folders that stand above its own in
the list. Beside the order, no folder of sources or tests may be so large that nobody reads its
list of names, and no files may include each other in a circle, a header and its source counting as
one.
"""

import pathlib
import re
import sys

MOST_FILES = 40
TREES = ("src", "tests", "benchmarks")
INCLUDE = re.compile(r'^\s*#\s*include\s*"([^"]+)"', re.MULTILINE)


def listed_folders(src):
    lines = (src / "folders.txt").read_text().splitlines()
    return [line.split("#")[0].strip() for line in lines if line.split("#")[0].strip()]


def includes(src):
    """(source, header) for each header of the project that a source includes, below src."""
    for path in sorted(src.rglob("*")):
        if path.suffix in (".cpp", ".h"):
            source = path.relative_to(src)
            for name in INCLUDE.findall(path.read_text()):
                if (src / name).is_file():
                    yield source, pathlib.PurePath(name)


def wrong_arrows(src, folders):
    place = {folder: number for number, folder in enumerate(folders)}
    used = {path.parent.relative_to(src).as_posix()
            for path in src.rglob("*") if path.suffix in (".cpp", ".h")}
    for folder in sorted(used - place.keys()):
        yield f"{folder}: not in folders.txt"
    for folder in sorted(place.keys() - used):
        yield f"{folder}: in folders.txt, and has no sources"
    for source, header in includes(src):
        own, other = source.parent.as_posix(), header.parent.as_posix()
        if own in place and other in place and place[own] < place[other]:
            yield f"{source}: includes {header}, of a folder that stands below its own"


def large_folders(root):
    for tree in TREES:
        for folder in sorted(path for path in (root / tree).rglob("*") if path.is_dir()):
            count = sum(1 for path in folder.iterdir() if path.is_file())
            if count > MOST_FILES:
                yield f"{folder.relative_to(root)}: {count} files, more than {MOST_FILES}"


def circles(src):
    """The units that include each other, by what each can reach."""
    arrows = {}
    for source, header in includes(src):
        arrows.setdefault(source.with_suffix(""), set()).add(header.with_suffix(""))
    reached = {}
    for unit in arrows:
        seen, waiting = set(), list(arrows[unit] - {unit})
        while waiting:
            other = waiting.pop()
            if other not in seen:
                seen.add(other)
                waiting += arrows.get(other, ())
        reached[unit] = seen
    for unit in sorted(unit for unit in reached if unit in reached[unit]):
        others = [str(other) for other in sorted(reached[unit] - {unit})
                  if unit in reached.get(other, ())]
        yield f"{unit}: includes itself by way of {', '.join(others)}"


def main(root):
    src = root / "src"
    wrong = [*wrong_arrows(src, listed_folders(src)), *large_folders(root), *circles(src)]
    print("\n".join(wrong))
    return 1 if wrong else 0


if __name__ == "__main__":
    sys.exit(main(pathlib.Path(sys.argv[1])))
