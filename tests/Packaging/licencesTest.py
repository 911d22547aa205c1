# SPDX-License-Identifier: MIT
"""Whoever takes a file finds whose it is and under which licence, by the rules of REUSE.

    licencesTest.py ROOT
"""

import pathlib
import subprocess
import sys
import unittest

ROOT = pathlib.Path(sys.argv[1])
TREES = ("src", "tests", "benchmarks")
FIRST_LINE = "// SPDX-License-Identifier: MIT\n"


class Licences(unittest.TestCase):
    def test_every_file_has_a_holder_and_a_licence_whose_text_is_here(self):
        done = subprocess.run(
            ["reuse", "--root", ROOT, "lint"], capture_output=True, text=True, cwd=ROOT)
        self.assertEqual(done.returncode, 0, done.stdout + done.stderr)

    def test_each_source_names_its_licence_in_its_first_line(self):
        sources = [
            path for tree in TREES for path in (ROOT / tree).rglob("*")
            if path.suffix in (".cpp", ".h")]
        self.assertGreater(len(sources), 0)
        for path in sources:
            with path.open(errors="replace") as source:
                self.assertEqual(source.readline(), FIRST_LINE, path)

    def test_the_licence_is_the_one_that_people_look_for_at_the_top(self):
        self.assertEqual(
            (ROOT / "LICENSES" / "MIT.txt").read_text(), (ROOT / "LICENSE").read_text())


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
