# SPDX-License-Identifier: MIT
"""scripts/bench up to its build, with stand-ins for what it calls: nothing is installed or built."""

import pathlib
import shutil
import subprocess
import tempfile
import unittest

ROOT = pathlib.Path(__file__).resolve().parents[2]
CONFIGURE = """#!/bin/sh
if [ "$1" = --is-ready ]; then exit "$NOT_READY"; fi
echo "$*" >"$HOME/configured"
"""


class Bench(unittest.TestCase):
    def setUp(self):
        self.folder = pathlib.Path(tempfile.mkdtemp(prefix="tessera-bench-test-"))
        self.addCleanup(shutil.rmtree, self.folder)
        shutil.copytree(ROOT / "benchmarks" / "compare", self.folder / "benchmarks" / "compare")
        self.add_program("scripts/bench", (ROOT / "scripts" / "bench").read_text())
        self.add_program("scripts/setup", "#!/bin/sh\n")
        self.add_program("scripts/configure", CONFIGURE)
        self.add_program("programs/cmake", "#!/bin/sh\nexit 1\n")

    def add_program(self, path, text):
        path = self.folder / path
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_text(text)
        path.chmod(0o755)

    def configured_where(self, not_ready):
        done = subprocess.run(
            [self.folder / "scripts" / "bench"], capture_output=True, text=True,
            env={"PATH": f"{self.folder}/programs:/usr/bin:/bin", "HOME": str(self.folder),
                 "NOT_READY": not_ready})
        self.assertIn("scripts/bench:", done.stderr)  # the build's failure, and not before
        return (self.folder / "configured").read_text().split()

    def test_a_new_folder_is_made_without_the_tests(self):
        self.assertEqual(
            self.configured_where(not_ready="1"),
            ["release", "-DTESSERA_BENCHMARKS=ON", "-DTESSERA_TESTS=OFF"])

    def test_a_folder_that_is_ready_keeps_its_tests(self):
        self.assertEqual(
            self.configured_where(not_ready="0"), ["release", "-DTESSERA_BENCHMARKS=ON"])


if __name__ == "__main__":
    unittest.main()
