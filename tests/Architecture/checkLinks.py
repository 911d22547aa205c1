# SPDX-License-Identifier: MIT
"""Says which links of the pages for readers lead nowhere, a line each; ends with 1 when any does.

    checkLinks.py ROOT

Whatever the README promises it proves by a link. Looked at are links and pictures in Markdown that
lead to files of the project; addresses elsewhere are not.
"""

import pathlib
import re
import subprocess
import sys

LINK = re.compile(r"\[[^\]]*\]\(([^)\s]+)\)")
ELSEWHERE = re.compile(r"[a-z]+:")


def pages(root):
    """The Markdown of the project; without git, all that there is beside the build."""
    listed = subprocess.run(
        ["git", "-C", root, "ls-files", "-co", "--exclude-standard", "*.md"],
        capture_output=True, text=True)
    if listed.returncode == 0:
        return [root / name for name in listed.stdout.splitlines()]
    return [path for path in root.rglob("*.md") if root / "build" not in path.parents]


def lost(page):
    """(line, target) of each link that leads nowhere."""
    text = page.read_text()
    for found in LINK.finditer(text):
        target = found[1].split("#")[0]
        if target and not ELSEWHERE.match(target) and not (page.parent / target).exists():
            yield text.count("\n", 0, found.start()) + 1, target


def main(root):
    lines = [
        f"{page.relative_to(root)}:{line}: leads to {target}, which is not there"
        for page in sorted(pages(root)) for line, target in lost(page)]
    print("\n".join(lines))
    return 1 if lines else 0


if __name__ == "__main__":
    sys.exit(main(pathlib.Path(sys.argv[1])))
