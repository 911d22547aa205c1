# SPDX-License-Identifier: MIT
"""scripts/setup, with stand-ins for the programs that it calls: nothing is installed."""

import os
import pathlib
import shutil
import subprocess
import tempfile
import unittest

SETUP = pathlib.Path(__file__).resolve().parents[2] / "scripts" / "setup"
NOBODY = 65534

APT_GET = """#!/bin/sh
echo "$@" >> "$CALLS"
case "$*" in
*--print-uris*)
    echo "'http://mirror/a.deb' a.deb 1500000 SHA256:1"
    echo "'http://mirror/b.deb' b.deb 500000 SHA256:2" ;;
*" install "*)
    echo "Unpacking the package ..."
    [ -z "$FAILS" ] || { echo "E: the mirror is gone"; exit 100; } ;;
esac
"""
SUDO = """#!/bin/sh
[ -z "$REFUSES" ] || exit 1
exec "$@"
"""


class Setup(unittest.TestCase):
    def setUp(self):
        self.folder = pathlib.Path(tempfile.mkdtemp(prefix="tessera-setup-"))
        self.addCleanup(shutil.rmtree, self.folder)
        self.folder.chmod(0o777)
        self.programs = self.folder / "programs"
        self.programs.mkdir()
        self.calls = self.folder / "calls"
        self.add_program("apt-get", APT_GET)
        self.add_program("dpkg-query", "#!/bin/sh\nprintf not-installed\n")
        for name in ("bash", "sh", "env", "sort", "awk", "mktemp", "tail", "rm", "sed"):
            (self.programs / name).symlink_to(shutil.which(name))

    def add_program(self, name, text):
        path = self.programs / name
        path.write_text(text)
        path.chmod(0o755)

    def setup(self, *purposes, user=None, **variables):
        # The script is read from a folder that another user can look into.
        script = shutil.copy(SETUP, self.folder / "setup")
        return subprocess.run(
            [self.programs / "bash", script, *purposes],
            capture_output=True, text=True,
            user=user if os.geteuid() == 0 else None,
            env={"PATH": str(self.programs), "TMPDIR": str(self.folder),
                 "CALLS": str(self.calls), **variables},
        )

    def test_names_each_package_once(self):
        self.add_program("sudo", SUDO)
        self.assertEqual(self.setup("run").stderr.count("qt6-base-dev"), 1)
        self.assertEqual(self.setup("run", user=NOBODY).stderr.count("qt6-base-dev"), 1)

    def test_says_how_much_is_downloaded(self):
        self.add_program("sudo", SUDO)
        self.assertIn("2 packages, 2 MB", self.setup("run").stderr)

    def test_keeps_what_the_package_manager_says_from_the_screen(self):
        self.add_program("sudo", SUDO)
        self.assertNotIn("Unpacking", self.setup("run").stderr)

    def test_keeps_no_log_of_what_went_well(self):
        self.add_program("sudo", SUDO)
        self.setup("run")
        self.assertEqual(list(self.folder.glob("*.log")), [])

    def test_after_a_failure_shows_its_reason_and_names_the_log(self):
        self.add_program("sudo", SUDO)
        done = self.setup("run", FAILS="yes")
        self.assertEqual(done.returncode, 1)
        self.assertIn("E: the mirror is gone", done.stderr)
        log, = self.folder.glob("*.log")
        self.assertIn(str(log), done.stderr)
        self.assertIn("Unpacking", log.read_text())

    def test_the_command_by_hand_brings_the_lists_up_to_date_first(self):
        done = self.setup("run", user=NOBODY)
        self.assertEqual(done.returncode, 1)
        self.assertRegex(done.stderr, "apt-get update && apt-get install .*qt6-base-dev")

    def test_where_sudo_is_refused_says_what_to_run(self):
        self.add_program("sudo", SUDO)
        done = self.setup("run", user=NOBODY, REFUSES="yes")
        self.assertEqual(done.returncode, 1)
        self.assertIn("apt-get update && apt-get install", done.stderr)
        self.assertFalse(self.calls.exists())

    def test_who_only_runs_the_program_needs_no_compiler_cache(self):
        self.add_program("sudo", SUDO)
        self.assertNotIn("ccache", self.setup("run").stderr)
        self.assertIn("ccache", self.setup("test").stderr)

    def test_asks_for_nothing_when_nothing_is_missing(self):
        self.add_program("dpkg-query", "#!/bin/sh\nprintf installed\n")
        done = self.setup("run", "test", "lint", "bench", "package")
        self.assertEqual((done.returncode, done.stderr), (0, ""))
        self.assertFalse(self.calls.exists())


if __name__ == "__main__":
    unittest.main()
