# SPDX-License-Identifier: MIT
"""checkSources.py, tried on small trees in a temporary folder."""

import pathlib
import shutil
import subprocess
import sys
import tempfile
import unittest

CHECK = pathlib.Path(__file__).resolve().parent / "checkSources.py"


def function(lines):
    """A function that is so many lines long."""
    return "void build()\n{\n" + "    lay();\n" * (lines - 3) + "}\n"


class CheckSources(unittest.TestCase):
    def setUp(self):
        self.root = pathlib.Path(tempfile.mkdtemp(prefix="tessera sources "))
        self.addCleanup(shutil.rmtree, self.root)

    def wrong_with(self, name, text):
        path = self.root / name
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_text(text)
        done = subprocess.run([sys.executable, "-B", CHECK, self.root], capture_output=True, text=True)
        self.assertEqual(done.stderr, "")
        self.assertEqual(done.returncode, 1 if done.stdout.strip() else 0)
        return done.stdout.split("\n")[:-1] if done.stdout.strip() else []

    def test_a_source_has_less_than_five_hundred_lines(self):
        self.assertEqual(self.wrong_with("src/Roof.cpp", "//\n" * 499), [])
        self.assertEqual(
            self.wrong_with("src/Roof.cpp", "//\n" * 500),
            ["src/Roof.cpp: 500 lines, more than 499"])

    def test_a_header_has_less_than_two_hundred_and_fifty_lines(self):
        self.assertEqual(self.wrong_with("tests/Roof.h", "//\n" * 249), [])
        self.assertEqual(
            self.wrong_with("tests/Roof.h", "//\n" * 250),
            ["tests/Roof.h: 250 lines, more than 249"])

    def test_a_function_has_less_than_forty_lines(self):
        self.assertEqual(self.wrong_with("benchmarks/Roof.cpp", function(39) + function(39)), [])
        self.assertEqual(
            self.wrong_with("benchmarks/Roof.cpp", "\n" + function(12) + function(40)),
            ["benchmarks/Roof.cpp:14: a function of 40 lines, more than 39"])

    def test_the_head_of_a_function_counts(self):
        text = function(38).replace("void build()", "void\nbuild(\n    int beams)")
        self.assertEqual(
            self.wrong_with("src/Roof.cpp", text),
            ["src/Roof.cpp:1: a function of 40 lines, more than 39"])

    def test_a_function_whose_head_has_braces_counts(self):
        text = function(41).replace("void build()", "Roof::Roof()\n    : m_lay([] { return 1; })")
        self.assertEqual(
            self.wrong_with("src/Roof.cpp", text),
            ["src/Roof.cpp:3: a function of 40 lines, more than 39"])

    def test_a_function_without_a_body_ends_where_it_ends(self):
        self.assertEqual(
            self.wrong_with("src/Roof.cpp", "Roof::Roof()\n{\n}\n\n" + function(38)), [])

    def test_a_namespace_is_no_function(self):
        self.assertEqual(
            self.wrong_with("src/Roof.cpp", "namespace house {\n" + function(30) * 3 + "}\n"), [])

    def test_a_check_that_checks_nothing_is_wrong(self):
        for check in ("QTRY_COMPARE", "QTRY_VERIFY", "QVERIFY", "QVERIFY2", "QCOMPARE", "QFAIL"):
            self.assertEqual(
                self.wrong_with("tests/Roof.cpp", f"TEST(Roof, Holds)\n{{\n    {check}(1);\n}}\n"),
                [f"tests/Roof.cpp:3: {check} checks nothing in a test of GoogleTest"])


if __name__ == "__main__":
    unittest.main()
