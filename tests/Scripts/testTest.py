# SPDX-License-Identifier: MIT
"""scripts/test, with stand-ins for what it calls: nothing is installed or built, and the tests that
it runs are only told of."""

import pathlib
import shutil
import subprocess
import tempfile
import unittest

ROOT = pathlib.Path(__file__).resolve().parents[2]
NOTHING = "#!/bin/sh\n"
DBUS_RUN_SESSION = """#!/bin/sh
shift
exec "$@"
"""
XVFB_RUN = """#!/bin/sh
while [ "$1" != ctest ]; do shift; done
exec "$@"
"""
CTEST = """#!/bin/sh
while [ "$1" != --output-junit ]; do shift; done
cp "$REPORT" "$2"
exit $STATUS
"""
REPORT = """<?xml version="1.0" encoding="UTF-8"?>
<testsuite name="tests"
	tests="{tests}"
	failures="0"
	disabled="0"
	skipped="{skipped}"
	hostname=""
	>
{cases}</testsuite>
"""
RUN = """	<testcase name="Works.Well" classname="Works.Well" time="0" status="run">
		<system-out>a.cpp:1: Skipped
what another test of the program said</system-out>
	</testcase>
"""
SKIPPED = """	<testcase name="Suite.Name" classname="Suite.Name" time="0" status="notrun">
		<skipped message="SKIP_REGULAR_EXPRESSION_MATCHED"/>
		<system-out>[ RUN      ] Suite.Name
../../tests/Base/NameTest.cpp:24: Skipped
{reason}
[  SKIPPED ] Suite.Name (0 ms)
</system-out>
	</testcase>
"""
DISABLED = """	<testcase name="Suite.Name" classname="Suite.Name" time="0" status="disabled">
		<skipped message="Disabled"/>
	</testcase>
"""
OF_SANITIZERS = "the sanitizers&apos; tables take more"


class Test(unittest.TestCase):
    def setUp(self):
        self.folder = pathlib.Path(tempfile.mkdtemp(prefix="tessera-test-"))
        self.addCleanup(shutil.rmtree, self.folder)
        for name in ("scripts/test", "tests/checkSkips.py"):
            (self.folder / name).parent.mkdir()
            shutil.copy(ROOT / name, self.folder / name)
        for name in ("scripts/setup", "scripts/configure", "programs/cmake", "programs/localedef"):
            self.add_program(name, NOTHING)
        self.add_program("programs/dbus-run-session", DBUS_RUN_SESSION)
        self.add_program("programs/xvfb-run", XVFB_RUN)
        self.add_program("programs/ctest", CTEST)

    def add_program(self, path, text):
        path = self.folder / path
        path.parent.mkdir(exist_ok=True)
        path.write_text(text)
        path.chmod(0o755)

    def run_script(self, *cases, preset="release", status=0):
        report = self.folder / "told.xml"
        report.write_text(REPORT.format(
            tests=len(cases), skipped=sum(case != RUN for case in cases), cases="".join(cases)))
        return subprocess.run(
            [self.folder / "scripts" / "test", "--preset", preset], capture_output=True, text=True,
            env={"PATH": f"{self.folder}/programs:/usr/bin:/bin", "TMPDIR": str(self.folder),
                 "REPORT": str(report), "STATUS": str(status)})

    def test_says_last_how_many_passed(self):
        done = self.run_script(RUN, RUN)
        self.assertEqual(done.returncode, 0, done.stderr)
        self.assertEqual(done.stdout.splitlines()[-1], "2 passed, 0 failed, 0 skipped")

    def test_fails_as_the_tests_do(self):
        self.assertEqual(self.run_script(RUN, status=8).returncode, 8)

    def test_lets_a_test_be_skipped_for_a_reason_that_holds(self):
        done = self.run_script(RUN, SKIPPED.format(reason=OF_SANITIZERS), preset="asan")
        self.assertEqual(done.returncode, 0, done.stderr)
        self.assertEqual(done.stdout.splitlines()[-1], "1 passed, 0 failed, 1 skipped")

    def test_fails_when_a_test_was_skipped_for_a_reason_that_does_not_hold(self):
        done = self.run_script(RUN, SKIPPED.format(reason=OF_SANITIZERS))
        self.assertEqual(done.returncode, 1)
        self.assertIn("Suite.Name: the sanitizers' tables take more", done.stderr)
        self.assertEqual(done.stdout.splitlines()[-1], "1 passed, 0 failed, 1 skipped")

    def test_fails_when_a_test_was_skipped_for_a_reason_that_nobody_listed(self):
        done = self.run_script(SKIPPED.format(reason="it is Monday"), preset="asan")
        self.assertEqual(done.returncode, 1)
        self.assertIn("Suite.Name: it is Monday", done.stderr)

    def test_fails_when_a_test_is_switched_off(self):
        done = self.run_script(DISABLED)
        self.assertEqual(done.returncode, 1)
        self.assertIn("Suite.Name: no reason given", done.stderr)


if __name__ == "__main__":
    unittest.main()
