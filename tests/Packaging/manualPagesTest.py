# SPDX-License-Identifier: MIT
"""The manual pages say all that --help says, and readers of manual pages find no fault with them.

    manualPagesTest.py FOLDER_OF_PAGES FOLDER_OF_PROGRAMS CHANGELOG
"""

import datetime
import pathlib
import re
import subprocess
import sys
import unittest

PAGES = pathlib.Path(sys.argv[1])
PROGRAMS = pathlib.Path(sys.argv[2])
CHANGELOG = pathlib.Path(sys.argv[3])
SECTIONS = ("NAME", "SYNOPSIS", "DESCRIPTION", "OPTIONS", "EXAMPLES", "SEE ALSO")


def printed(*command):
    return subprocess.run(command, capture_output=True, text=True, check=True).stdout


def help_of(program):
    return printed(PROGRAMS / program, "--help")


def words(text):
    """The text as one line; a page is broken into lines elsewhere than the help."""
    return " ".join(text.split())


class ManualPages(unittest.TestCase):
    def setUp(self):
        self.programs = sorted(page.stem for page in PAGES.glob("*.1"))

    def shown(self, program):
        """What a reader sees, without words broken at the end of a line."""
        return printed(
            "groff", "-man", "-Tascii", "-P-cbou", "-rHY=0", "-rLL=200n",
            PAGES / f"{program}.1")

    def test_there_is_one_for_each_program_that_people_start(self):
        self.assertEqual(self.programs, ["tessera", "tessera-ditto"])

    def test_each_line_of_the_options_in_the_help_is_in_the_page(self):
        for program in self.programs:
            page = words(self.shown(program))
            lines = re.findall(r"^  (-.*?)  +(.*)$", help_of(program), re.MULTILINE)
            self.assertGreater(len(lines), 2)
            for option, text in lines:
                self.assertIn(f"{option} {text}", page)

    def test_each_form_of_the_command_line_is_in_the_synopsis(self):
        for program in self.programs:
            page = words(self.shown(program))
            form = re.compile(rf"^(?:Usage|  or): +({program} .*)$", re.MULTILINE)
            forms = form.findall(help_of(program))
            self.assertGreater(len(forms), 0)
            for form in forms:
                self.assertIn(form, page)

    def test_the_sections_stand_in_the_usual_order(self):
        for program in self.programs:
            headings = re.findall(r"^[A-Z ]+$", self.shown(program), re.MULTILINE)
            self.assertEqual([name for name in headings if name in SECTIONS], list(SECTIONS))

    def test_groff_finds_no_fault(self):
        for program in self.programs:
            done = subprocess.run(
                ["groff", "-man", "-Tutf8", "-ww", "-z", PAGES / f"{program}.1"],
                capture_output=True, text=True)
            self.assertEqual((done.returncode, done.stderr), (0, ""))

    def test_a_page_is_of_the_month_of_the_release(self):
        date = re.search(r"^## \[\d[^\]]*\] - (.*)$", CHANGELOG.read_text(), re.MULTILINE)[1]
        month = datetime.date.fromisoformat(date).strftime("%B %Y")
        for program in self.programs:
            self.assertIn(f'"{month}"', (PAGES / f"{program}.1").read_text())


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
