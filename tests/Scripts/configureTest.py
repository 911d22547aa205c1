# SPDX-License-Identifier: MIT
"""scripts/configure, tried on a toy project in a temporary folder."""

import pathlib
import shutil
import subprocess
import tempfile
import unittest

SCRIPTS = pathlib.Path(__file__).resolve().parents[2] / "scripts"
PRESETS = """{"version": 6, "configurePresets": [
    {"name": "toy", "generator": "Ninja", "binaryDir": "${sourceDir}/build/${presetName}"}]}"""
PROJECT = """cmake_minimum_required(VERSION 3.25)
project(Toy LANGUAGES NONE)
option(NEEDS_PACKAGE "Ask for the package" OFF)
if(NEEDS_PACKAGE)
    find_package(Gone REQUIRED CONFIG PATHS "${CMAKE_SOURCE_DIR}/package" NO_DEFAULT_PATH)
endif()
add_custom_target(name ALL COMMAND ${CMAKE_COMMAND} -E touch "${CMAKE_SOURCE_DIR}/built")
"""


class Configure(unittest.TestCase):
    def setUp(self):
        self.folder = pathlib.Path(tempfile.mkdtemp(prefix="tessera configure "))
        self.addCleanup(shutil.rmtree, self.folder)
        self.clone = self.folder / "clone"
        (self.clone / "scripts").mkdir(parents=True)
        shutil.copy(SCRIPTS / "configure", self.clone / "scripts")
        (self.clone / "CMakeLists.txt").write_text(PROJECT)
        (self.clone / "CMakePresets.json").write_text(PRESETS)

    def configure(self, clone, *arguments):
        return subprocess.run(
            [clone / "scripts" / "configure", *arguments], capture_output=True, text=True
        )

    def build(self, clone):
        subprocess.run(["cmake", "--build", clone / "build" / "toy"], check=True,
                       stdout=subprocess.DEVNULL)

    def test_a_copied_clone_builds_its_own_sources(self):
        self.assertEqual(self.configure(self.clone, "toy").returncode, 0)
        copy = self.folder / "copy"
        shutil.copytree(self.clone, copy)
        self.assertEqual(self.configure(copy, "toy").returncode, 0)
        self.build(copy)
        self.assertTrue((copy / "built").exists())
        self.assertFalse((self.clone / "built").exists())

    def test_a_moved_clone_builds(self):
        self.assertEqual(self.configure(self.clone, "toy").returncode, 0)
        moved = self.folder / "moved"
        self.clone.rename(moved)
        self.assertEqual(self.configure(moved, "toy").returncode, 0)
        self.build(moved)
        self.assertTrue((moved / "built").exists())

    def test_a_build_folder_of_the_same_sources_is_kept(self):
        self.configure(self.clone, "toy")
        kept = self.clone / "build" / "toy" / "kept"
        kept.touch()
        self.configure(self.clone, "toy")
        self.assertTrue(kept.exists())

    def test_no_folder_is_ready_before_it_was_configured(self):
        self.assertNotEqual(self.configure(self.clone, "--is-ready", "toy").returncode, 0)

    def test_a_configured_folder_is_ready(self):
        self.configure(self.clone, "toy")
        self.assertEqual(self.configure(self.clone, "--is-ready", "toy").returncode, 0)

    def test_a_copied_folder_is_not_ready(self):
        self.configure(self.clone, "toy")
        copy = self.folder / "copy"
        shutil.copytree(self.clone, copy)
        self.assertNotEqual(self.configure(copy, "--is-ready", "toy").returncode, 0)

    def test_a_folder_whose_packages_have_gone_is_not_ready(self):
        package = self.clone / "package"
        package.mkdir()
        (package / "GoneConfig.cmake").touch()
        self.configure(self.clone, "toy", "-DNEEDS_PACKAGE=ON")
        self.assertEqual(self.configure(self.clone, "--is-ready", "toy").returncode, 0)
        shutil.rmtree(package)
        self.assertNotEqual(self.configure(self.clone, "--is-ready", "toy").returncode, 0)

    def test_switching_off_what_needs_the_packages_makes_it_ready_again(self):
        package = self.clone / "package"
        package.mkdir()
        (package / "GoneConfig.cmake").touch()
        self.configure(self.clone, "toy", "-DNEEDS_PACKAGE=ON")
        shutil.rmtree(package)
        self.configure(self.clone, "toy", "-DNEEDS_PACKAGE=OFF")
        self.assertEqual(self.configure(self.clone, "--is-ready", "toy").returncode, 0)


if __name__ == "__main__":
    unittest.main()
