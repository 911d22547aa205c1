# SPDX-License-Identifier: MIT
"""checkVersion.py, on toy projects."""

import pathlib
import shutil
import tempfile
import unittest

import checkVersion

CHANGES = "# Changelog\n\n## [Unreleased]\n\n## [2.1.0] - 2030-01-02\n\n## [2.0.0] - 2029-01-02\n"
DEBIAN_CHANGES = """tessera (2.1.0) unstable; urgency=medium

  * Later.

 -- A <a@example.org>  Wed, 02 Jan 2030 00:00:00 +0000

tessera (2.0.0) unstable; urgency=medium
"""
METAINFO = '<releases>\n<release date="2030-01-02" version="2.1.0"/><release version="2.0.0"/>'


class CheckVersion(unittest.TestCase):
    def setUp(self):
        self.root = pathlib.Path(tempfile.mkdtemp(prefix="tessera-version-"))
        self.addCleanup(shutil.rmtree, self.root)
        self.write("CHANGELOG.md", CHANGES)
        self.write("debian/changelog", DEBIAN_CHANGES)
        self.write("packaging/tessera.metainfo.xml", METAINFO)

    def write(self, name, text):
        path = self.root / name
        path.parent.mkdir(exist_ok=True)
        path.write_text(text)

    def faults(self):
        return checkVersion.faults(self.root, "tessera 2.1.0\n")

    def test_has_nothing_to_say_where_all_are_of_one_version(self):
        self.assertEqual(self.faults(), [])

    def test_needs_no_metainfo(self):
        (self.root / "packaging" / "tessera.metainfo.xml").unlink()
        self.assertEqual(self.faults(), [])

    def test_names_every_file_of_another_version(self):
        found = checkVersion.faults(self.root, "tessera 2.1.1\n")
        self.assertEqual(
            [fault.split()[0] for fault in found],
            ["CHANGELOG.md", "debian/changelog", "packaging/tessera.metainfo.xml"])

    def test_an_older_entry_does_not_count(self):
        self.write("debian/changelog", DEBIAN_CHANGES.replace("2.1.0", "2.0.9"))
        self.assertEqual(
            self.faults(), ["debian/changelog is of version 2.0.9, the program of 2.1.0"])

    def test_what_is_not_released_yet_does_not_count(self):
        self.write("CHANGELOG.md", "## [Unreleased]\n")
        self.assertEqual(self.faults(), ["CHANGELOG.md is of version None, the program of 2.1.0"])

    def test_a_file_that_is_gone_is_a_fault(self):
        (self.root / "CHANGELOG.md").unlink()
        self.assertEqual(len(self.faults()), 1)


if __name__ == "__main__":
    unittest.main()
