# SPDX-License-Identifier: MIT
"""What desktops and software centres are told of the program holds together, and with the program.

    desktopFilesTest.py ROOT PROGRAM
"""

import configparser
import datetime
import pathlib
import re
import subprocess
import sys
import unittest
import xml.etree.ElementTree

ROOT = pathlib.Path(sys.argv[1])
PROGRAM = pathlib.Path(sys.argv[2])
PACKAGING = ROOT / "packaging"
METAINFO = PACKAGING / "org.example.tessera.metainfo.xml"
SOURCES = "https://tessera.example.org/source/"


def desktop_entry():
    entry = configparser.ConfigParser(interpolation=None, delimiters="=")
    entry.optionxform = str
    entry.read(PACKAGING / "tessera.desktop")
    return entry


class Metainfo(unittest.TestCase):
    def setUp(self):
        self.component = xml.etree.ElementTree.parse(METAINFO).getroot()
        self.entry = desktop_entry()["Desktop Entry"]

    def texts(self, path):
        return [element.text for element in self.component.findall(path)]

    def test_the_validator_has_nothing_to_say(self):
        done = subprocess.run(
            ["appstreamcli", "validate", "--pedantic", "--no-net", "--no-color", METAINFO],
            capture_output=True, text=True)
        self.assertEqual(done.returncode, 0, done.stdout)
        self.assertEqual(re.findall(r"^[EWIP]: .*$", done.stdout, re.MULTILINE), [])

    def test_the_file_is_named_after_the_component(self):
        self.assertEqual(f"{self.component.find('id').text}.metainfo.xml", METAINFO.name)

    def test_it_says_the_same_as_the_desktop_entry(self):
        self.assertEqual(self.texts("launchable"), ["tessera.desktop"])
        self.assertEqual(self.component.find("name").text, self.entry["Name"])
        self.assertEqual(self.component.find("summary").text, self.entry["Comment"])
        self.assertEqual(
            self.texts("keywords/keyword"), self.entry["Keywords"].rstrip(";").split(";"))
        self.assertLessEqual(
            set(self.texts("categories/category")), set(self.entry["Categories"].split(";")))

    def test_each_screenshot_is_kept_with_the_sources(self):
        images = self.texts("screenshots/screenshot/image")
        self.assertGreater(len(images), 0)
        for image in images:
            self.assertTrue(image.startswith(SOURCES), image)
            self.assertTrue((ROOT / image.removeprefix(SOURCES)).is_file(), image)

    def test_the_releases_are_those_of_the_change_log(self):
        told = [
            (release.get("version"), release.get("date"))
            for release in self.component.findall("releases/release")]
        log = (ROOT / "CHANGELOG.md").read_text()
        self.assertEqual(
            told, re.findall(r"^## \[(\d[^\]]*)\] - (\S+)$", log, re.MULTILINE))
        for _, date in told:
            datetime.date.fromisoformat(date)


class DesktopEntry(unittest.TestCase):
    def test_each_action_that_it_lists_is_there_and_no_other(self):
        entry = desktop_entry()
        listed = entry["Desktop Entry"]["Actions"].rstrip(";").split(";")
        sections = [name for name in entry.sections() if name.startswith("Desktop Action ")]
        self.assertEqual(sections, [f"Desktop Action {action}" for action in listed])

    def test_each_action_asks_the_program_for_something_that_it_knows(self):
        text = subprocess.run([PROGRAM, "--help"], capture_output=True, text=True, check=True)
        entry = desktop_entry()
        for section in entry.sections()[1:]:
            program, option = entry[section]["Exec"].split(" ")
            self.assertEqual(program, "tessera")
            self.assertRegex(text.stdout, rf"(?m)^  {option} ")


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
