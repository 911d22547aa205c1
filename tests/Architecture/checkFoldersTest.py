# SPDX-License-Identifier: MIT
"""checkFolders.py, tried on small trees in a temporary folder."""

import pathlib
import shutil
import subprocess
import sys
import tempfile
import unittest

CHECK = pathlib.Path(__file__).resolve().parent / "checkFolders.py"


class CheckFolders(unittest.TestCase):
    def setUp(self):
        self.root = pathlib.Path(tempfile.mkdtemp(prefix="tessera folders "))
        self.addCleanup(shutil.rmtree, self.root)
        self.write("src/folders.txt", "Low   # knows nobody\n\nHigh\nHigh/Part\n.\n")
        self.write("src/Low/Stone.h", "#pragma once\n#include <vector>\n")
        self.write("src/High/Part/Nail.h", '#include "High/Roof.h"\n')
        self.write("src/High/Roof.h", "")
        self.write("src/High/Roof.cpp", '#include "High/Roof.h"\n#include "Low/Stone.h"\n')
        self.write("src/main.cpp", '#include "High/Roof.h"\n')

    def write(self, name, text):
        path = self.root / name
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_text(text)

    def wrong(self):
        done = subprocess.run([sys.executable, "-B", CHECK, self.root], capture_output=True, text=True)
        self.assertEqual(done.stderr, "")
        self.assertEqual(done.returncode, 1 if done.stdout.strip() else 0)
        return done.stdout.split("\n")[:-1] if done.stdout.strip() else []

    def test_arrows_that_run_one_way_are_right(self):
        self.assertEqual(self.wrong(), [])

    def test_an_arrow_that_runs_back_is_wrong(self):
        self.write("src/Low/Sand.cpp", '  #  include "High/Roof.h"\n')
        self.assertEqual(
            self.wrong(),
            ["Low/Sand.cpp: includes High/Roof.h, of a folder that stands below its own"])

    def test_a_folder_of_a_folder_has_a_place_of_its_own(self):
        self.write("src/High/Wall.h", '#include "High/Part/Nail.h"\n')
        self.assertEqual(
            self.wrong(),
            ["High/Wall.h: includes High/Part/Nail.h, of a folder that stands below its own"])

    def test_a_folder_that_is_not_listed_is_wrong(self):
        self.write("src/New/Thing.h", "")
        self.assertEqual(self.wrong(), ["New: not in folders.txt"])

    def test_a_listed_folder_without_sources_is_wrong(self):
        (self.root / "src/High/Part/Nail.h").unlink()
        self.write("src/High/Part/notes.md", "")
        self.assertEqual(self.wrong(), ["High/Part: in folders.txt, and has no sources"])

    def test_forty_files_are_not_too_many(self):
        for number in range(39):
            self.write(f"src/Low/Stone{number}.h", "")
        self.assertEqual(self.wrong(), [])

    def test_forty_one_files_are_too_many(self):
        for number in range(40):
            self.write(f"src/Low/stone{number}.ui", "")
        self.assertEqual(self.wrong(), ["src/Low: 41 files, more than 40"])

    def test_folders_of_tests_are_counted_too(self):
        for number in range(41):
            self.write(f"tests/Low/Stone{number}Test.cpp", "")
        self.assertEqual(self.wrong(), ["tests/Low: 41 files, more than 40"])

    def test_files_that_include_each_other_by_way_of_a_source_are_wrong(self):
        self.write("src/Low/Stone.cpp", '#include "Low/Stone.h"\n#include "Low/Dust.h"\n')
        self.write("src/Low/Dust.h", '#include "Low/Stone.h"\n')
        self.assertEqual(self.wrong(), [
            "Low/Dust: includes itself by way of Low/Stone",
            "Low/Stone: includes itself by way of Low/Dust"])

    def test_a_source_and_its_own_header_are_no_circle(self):
        self.write("src/Low/Stone.cpp", '#include "Low/Stone.h"\n')
        self.assertEqual(self.wrong(), [])


if __name__ == "__main__":
    unittest.main()
