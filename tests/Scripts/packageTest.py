# SPDX-License-Identifier: MIT
"""scripts/package, on a toy project with stand-ins for the programs that make packages."""

import os
import pathlib
import shutil
import subprocess
import tempfile
import unittest

PACKAGE = pathlib.Path(__file__).resolve().parents[2] / "scripts" / "package"

# The package is the list of what it was built from, and of the content.
DPKG_BUILDPACKAGE = """#!/bin/sh
echo "$@" >> "$CALLS"
pwd -P >> "$CALLS"
[ -z "$FAILS" ] || exit 2
cat content > ../tessera_1_all.deb
echo symbols > ../tessera-dbgsym_1_all.deb
echo changes > ../tessera_1_all.changes
"""


class Package(unittest.TestCase):
    def setUp(self):
        self.folder = pathlib.Path(tempfile.mkdtemp(prefix="tessera-package-test-")).resolve()
        self.addCleanup(shutil.rmtree, self.folder)
        for name in ("project/scripts", "programs", "tmp"):
            (self.folder / name).mkdir(parents=True)
        self.project = self.folder / "project"
        self.calls = self.folder / "calls"
        self.package = self.project / "build" / "package" / "tessera_1_all.deb"
        shutil.copy(PACKAGE, self.project / "scripts")
        self.add_program(self.project / "scripts" / "setup", "#!/bin/sh\n")
        self.add_program(self.folder / "programs" / "dpkg-buildpackage", DPKG_BUILDPACKAGE)
        (self.project / ".gitignore").write_text("/build/\n")
        (self.project / "content").write_text("committed\n")
        self.git("init", "--quiet")
        self.git("add", "--all")
        self.git("-c", "user.name=A", "-c", "user.email=a@example.org", "commit", "--quiet", "-mA")

    def add_program(self, path, text):
        path.write_text(text)
        path.chmod(0o755)

    def git(self, *arguments):
        subprocess.run(["git", *arguments], cwd=self.project, check=True)

    def run_script(self, *arguments, **variables):
        return subprocess.run(
            [self.project / "scripts" / "package", *arguments],
            cwd=self.folder, capture_output=True, text=True,
            env={
                **os.environ, **variables, "CALLS": str(self.calls),
                "TMPDIR": str(self.folder / "tmp"),
                "PATH": f"{self.folder / 'programs'}:{os.environ['PATH']}"})

    def test_says_where_the_package_is(self):
        done = self.run_script()
        self.assertEqual(done.returncode, 0, done.stderr)
        self.assertEqual(done.stdout, f"The package is {self.package}\n")
        self.assertEqual(self.package.read_text(), "committed\n")

    def test_builds_unsigned_programs_alone(self):
        self.run_script()
        self.assertEqual(self.calls.read_text().splitlines()[0], "-us -uc -b")

    def test_builds_in_no_folder_of_the_clone(self):
        self.run_script()
        place = self.calls.read_text().splitlines()[1]
        self.assertTrue(place.startswith(str(self.folder / "tmp")), place)

    def test_what_is_not_committed_has_no_part_in_it_and_is_named(self):
        (self.project / "content").write_text("changed\n")
        (self.project / "new").write_text("")
        done = self.run_script()
        self.assertEqual(self.package.read_text(), "committed\n")
        self.assertIn(" M content\n?? new\n", done.stderr)

    def test_a_clean_clone_is_not_spoken_of(self):
        self.assertNotIn("not committed", self.run_script().stderr)

    def test_outside_a_clone_says_why_there_is_no_package(self):
        shutil.rmtree(self.project / ".git")
        done = self.run_script()
        self.assertEqual(done.returncode, 1)
        self.assertIn("made from a clone", done.stderr)
        self.assertFalse(self.calls.exists())

    def test_a_build_that_fails_leaves_the_last_package(self):
        self.run_script()
        self.assertNotEqual(self.run_script(FAILS="yes").returncode, 0)
        self.assertTrue(self.package.exists())

    def test_leaves_nothing_else(self):
        self.run_script()
        self.run_script(FAILS="yes")
        self.assertEqual(list((self.folder / "tmp").iterdir()), [])

    def test_an_unknown_argument_builds_nothing(self):
        done = self.run_script("--chekc")
        self.assertEqual(done.returncode, 1)
        self.assertIn("--chekc", done.stderr)
        self.assertFalse(self.calls.exists())


if __name__ == "__main__":
    unittest.main()
