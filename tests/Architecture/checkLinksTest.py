# SPDX-License-Identifier: MIT
"""checkLinks.py, tried on pages in a temporary folder."""

import pathlib
import shutil
import subprocess
import sys
import tempfile
import unittest

CHECK = pathlib.Path(__file__).resolve().parent / "checkLinks.py"


class CheckLinks(unittest.TestCase):
    def setUp(self):
        self.root = pathlib.Path(tempfile.mkdtemp(prefix="tessera links "))
        self.addCleanup(shutil.rmtree, self.root)
        self.write("docs/page.md", "text\n")
        self.write("docs/picture.png", "")

    def write(self, name, text):
        path = self.root / name
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_text(text)

    def wrong(self):
        done = subprocess.run(
            [sys.executable, "-B", CHECK, self.root], capture_output=True, text=True)
        lines = done.stdout.split("\n")[:-1]
        self.assertEqual(done.returncode, 1 if lines != [""] else 0, done.stderr)
        return [line for line in lines if line]

    def test_links_to_what_is_there_are_right(self):
        self.write("README.md", "[a](docs/page.md) [b](docs/page.md#part) ![c](docs/picture.png)")
        self.write("docs/other.md", "[up](../README.md) [beside](page.md) [here](#part)")
        self.assertEqual(self.wrong(), [])

    def test_addresses_elsewhere_are_not_followed(self):
        self.write("README.md", "[a](https://tessera.example.org/x) [b](mailto:a@tessera.example.org)")
        self.assertEqual(self.wrong(), [])

    def test_what_is_not_there_is_said_with_its_line(self):
        self.write("docs/other.md", "one\n[two](docs/page.md)\n![three](none.png)\n")
        self.assertEqual(self.wrong(), [
            "docs/other.md:2: leads to docs/page.md, which is not there",
            "docs/other.md:3: leads to none.png, which is not there"])

    def test_a_link_may_have_other_links_in_its_line(self):
        self.write("README.md", "([a](docs/page.md), [b](none.md)).")
        self.assertEqual(self.wrong(), ["README.md:1: leads to none.md, which is not there"])


if __name__ == "__main__":
    unittest.main()
