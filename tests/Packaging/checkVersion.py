# SPDX-License-Identifier: MIT
"""Fails when the program, its change logs and its metainfo are not of the same version.

    checkVersion.py ROOT PROGRAM

The version has one source, project() in CMakeLists.txt, which the program prints. The last release
of CHANGELOG.md, the last entry of debian/changelog and the first release of the metainfo, where
there is one, name it again, for they have more to say about it.
"""

import pathlib
import re
import subprocess
import sys

RELEASE = re.compile(r"^## \[(\d[^\]]*)\] - \d{4}-\d\d-\d\d$", re.MULTILINE)
DEBIAN_ENTRY = re.compile(r"^tessera \(([^)]+)\) \S+; urgency=", re.MULTILINE)
METAINFO_RELEASE = re.compile(r'<release\b[^>]*\bversion="([^"]+)"')


def first(pattern, path):
    """What the pattern finds first; None without a match or a file."""
    found = pattern.search(path.read_text()) if path.is_file() else None
    return found[1] if found else None


def versions(root):
    """The versions that the files of the project name, by file."""
    named = {
        "CHANGELOG.md": first(RELEASE, root / "CHANGELOG.md"),
        "debian/changelog": first(DEBIAN_ENTRY, root / "debian" / "changelog"),
    }
    for path in sorted((root / "packaging").rglob("*.metainfo.xml*")):
        named[str(path.relative_to(root))] = first(METAINFO_RELEASE, path)
    return named


def faults(root, printed):
    """What is wrong, one sentence each; `printed` is what the program says to --version."""
    version = printed.removeprefix("tessera ").strip()
    return [
        f"{path} is of version {named}, the program of {version}"
        for path, named in versions(root).items()
        if named != version
    ]


def main(root, program):
    printed = subprocess.run([program, "--version"], capture_output=True, text=True, check=True)
    found = faults(pathlib.Path(root), printed.stdout)
    print("\n".join(found))
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
