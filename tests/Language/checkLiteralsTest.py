# SPDX-License-Identifier: MIT
"""checkLiterals.py, tried on small trees in a temporary folder."""

import pathlib
import shutil
import subprocess
import sys
import tempfile
import unittest

CHECK = pathlib.Path(__file__).resolve().parent / "checkLiterals.py"


class CheckLiterals(unittest.TestCase):
    def setUp(self):
        self.root = pathlib.Path(tempfile.mkdtemp(prefix="tessera literals "))
        self.addCleanup(shutil.rmtree, self.root)

    def wrong(self, code, name="Some/Window.cpp"):
        path = self.root / "src" / name
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_text(code)
        done = subprocess.run([sys.executable, "-B", CHECK, self.root], capture_output=True, text=True)
        self.assertEqual(done.stderr, "")
        self.assertEqual(done.returncode, 1 if done.stdout.strip() else 0)
        return done.stdout.split("\n")[:-1] if done.stdout.strip() else []

    def test_a_text_outside_of_tr_is_wrong(self):
        self.assertEqual(
            self.wrong('\nlabel->setText(QStringLiteral("Free for you"));\n'),
            ["src/Some/Window.cpp:2: “Free for you” is seen, and not translated"])

    def test_a_single_word_with_a_capital_is_wrong(self):
        self.assertEqual(len(self.wrong('QString text = "Trash";')), 1)

    def test_what_is_translated_is_right(self):
        self.assertEqual(self.wrong("""
            a = tr("Free for you");
            b = QCoreApplication::translate("Some", "Free for you");
            c = QT_TRANSLATE_NOOP("Some", "Free for you");
            d = QT_TRANSLATE_N_NOOP("Some", "%1 files");
            e = tr("one (%1) of " "several").arg(f(1), g(")"));"""), [])

    def test_what_stands_beside_a_translated_text_is_wrong(self):
        self.assertEqual(len(self.wrong('a = tr("Free") + " for you";')), 1)

    def test_comments_includes_names_and_figures_are_right(self):
        self.assertEqual(self.wrong("""
            // "Free for you"
            /* "Free for you" */
            #include "Free For You.h"
            setObjectName("basketTotal"); f('"'); g(1'000); h("%1"); i("application/zip");"""), [])

    def test_logs_are_right(self):
        self.assertEqual(self.wrong('logLine("Task failed: %s", text.c_str());'), [])

    def test_an_excused_text_is_right_and_another_one_there_is_not(self):
        self.assertEqual(self.wrong('a = "Tessera";', "MainWindow/WindowTitle.cpp"), [])
        self.assertEqual(
            self.wrong('a = "Tessera";\nb = "Disk usage";', "MainWindow/WindowTitle.cpp"),
            ["src/MainWindow/WindowTitle.cpp:2: “Disk usage” is seen, and not translated"])

    def test_an_excuse_that_nothing_needs_is_wrong(self):
        self.assertEqual(
            self.wrong("", "MainWindow/WindowTitle.cpp"),
            ["checkLiterals.py: nothing in MainWindow/WindowTitle.cpp begins with “Tessera” any more"])


if __name__ == "__main__":
    unittest.main()
