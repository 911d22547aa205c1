#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Checks the entries in the menus of file managers, each by the rules of its own program.

    tests/Packaging/checkFileManagers.py MENUS TESSERA DESKTOP_FILE_VALIDATE

MENUS is the folder in which the build made them. A command is put together as its file manager does
it, for folders with the worst of names, and must hand over each as one argument that names it.
"""

import configparser
import importlib.util
import os
import pathlib
import py_compile
import shlex
import subprocess
import sys
import tempfile
import types
import unittest
import urllib.parse

MENUS, TESSERA, VALIDATE = (pathlib.Path(argument) for argument in sys.argv[1:4])
LABEL = "Show Disk Usage with Tessera"
NAMES = (
    b"plain", b"two words", b"it's", b'"said"', b"a 'b' \"c\"", b"--help", b"-", b" ", b"\\", b"a\\'b",
    b"new\nline", b"\xff\xfe", b"$HOME", b"$(id)", b"`id`", b"a;b&c|d>e", b"100% %U %f %u", b"%41",
    b"#hash?query", b"~", b"file:x", b"[a]{b}*", "ä 日本".encode())
# Between nothing and this all file managers lie in what they leave as it is in an address.
UNQUOTED = "/!$&'()*+,;=:@-._~"


def folders():
    return [b"/home/" + name for name in NAMES]


def address(path):
    return "file://" + urllib.parse.quote(path, safe=UNQUOTED)


def named(argument):
    """The bytes of the path that an argument of the program names."""
    if argument.startswith("file://"):
        return urllib.parse.unquote_to_bytes(argument[len("file://"):])
    return os.fsencode(argument)


def key_file(name):
    parser = configparser.RawConfigParser(delimiters=("=",), comment_prefixes=("#",))
    parser.optionxform = str
    parser.read(MENUS / name, encoding="utf-8")
    return parser


def launched_by_gio(entry, address_of_folder):
    """What the program gets when GIO starts the entry; the program is one that tells."""
    with tempfile.TemporaryDirectory() as folder:
        told = pathlib.Path(folder, "told")
        program = pathlib.Path(folder, "tessera")
        program.write_text(f"#!/bin/sh\nprintf '%s\\0' \"$@\" >{told}\n")
        program.chmod(0o755)
        environment = dict(os.environ, PATH=f"{folder}:{os.environ['PATH']}")
        # The program has the pipe as well, which is read until nobody has it.
        with subprocess.Popen(["gio", "launch", entry, address_of_folder], env=environment,
                              stdout=subprocess.PIPE) as process:
            process.stdout.read()
        return [os.fsdecode(part) for part in told.read_bytes().split(b"\0")[:-1]]


class FakeItem:
    def __init__(self, **properties):
        self.properties = properties

    def connect(self, signal, handler, *data):
        assert signal == "activate"
        self.activate = lambda: handler(self, *data)


class FakeFolder:
    def __init__(self, uri, is_directory=True):
        self.uri = uri
        self.is_folder = is_directory

    def get_uri(self):
        return self.uri

    def get_uri_scheme(self):
        return self.uri.split(":")[0]

    def is_directory(self):
        return self.is_folder


class FakeProgram:
    def __init__(self):
        self.launched = []

    def launch_uris(self, uris, _context):
        self.launched.append(uris)


def load_extension(name, file_manager, program):
    """The extension as the file manager loads it; without a program none is installed."""
    def find(entry):
        assert entry == "tessera.desktop"
        if program is None:
            raise TypeError("constructor returned NULL")
        return program

    def require(_name, _version):
        raise ValueError("no display here")

    repository = types.ModuleType("gi.repository")
    repository.Gio = types.SimpleNamespace(DesktopAppInfo=types.SimpleNamespace(new=find))
    repository.GObject = types.SimpleNamespace(GObject=type("GObject", (), {}))
    setattr(repository, file_manager, types.SimpleNamespace(
        MenuProvider=type("MenuProvider", (), {}), MenuItem=FakeItem))
    gi = types.ModuleType("gi")
    gi.require_version = require
    sys.modules.update({"gi": gi, "gi.repository": repository})
    specification = importlib.util.spec_from_file_location("extension", MENUS / name)
    module = importlib.util.module_from_spec(specification)
    specification.loader.exec_module(module)
    return module.TesseraFolderMenu()


class Extensions(unittest.TestCase):
    EXTENSIONS = (("tessera-nautilus.py", "Nautilus"), ("tessera-caja.py", "Caja"))

    def each(self, program):
        for name, file_manager in self.EXTENSIONS:
            with self.subTest(name):
                yield load_extension(name, file_manager, program)

    def test_compile(self):
        for name, _ in self.EXTENSIONS:
            with tempfile.TemporaryDirectory() as folder:
                py_compile.compile(MENUS / name, cfile=f"{folder}/compiled", doraise=True)

    def test_hand_over_the_folder_as_it_is_named(self):
        program = FakeProgram()
        for menu in self.each(program):
            for folder in folders():
                menu.get_file_items([FakeFolder(address(folder))])[0].activate()
                self.assertEqual(named(program.launched.pop()[0]), folder)

    def test_take_the_files_behind_a_window(self):
        for menu in self.each(FakeProgram()):
            self.assertEqual(len(menu.get_file_items("window", [FakeFolder("file:///a")])), 1)

    def test_have_an_entry_for_the_folder_in_view(self):
        program = FakeProgram()
        for menu in self.each(program):
            menu.get_background_items("window", FakeFolder("file:///a"))[0].activate()
            self.assertEqual(program.launched.pop(), ["file:///a"])

    def test_call_their_entries_differently(self):
        for menu in self.each(FakeProgram()):
            folder = FakeFolder("file:///a")
            names = {items[0].properties["name"] for items in (
                menu.get_file_items([folder]), menu.get_background_items(folder))}
            self.assertEqual(len(names), 2)

    def test_have_none_for_files(self):
        for menu in self.each(FakeProgram()):
            self.assertEqual(menu.get_file_items([FakeFolder("file:///a", False)]), [])

    def test_have_none_for_several_folders(self):
        for menu in self.each(FakeProgram()):
            self.assertEqual(menu.get_file_items([FakeFolder("file:///a")] * 2), [])

    def test_have_none_where_nothing_is_selected(self):
        for menu in self.each(FakeProgram()):
            self.assertEqual(menu.get_file_items([]), [])

    def test_have_none_for_what_is_on_no_disk(self):
        for menu in self.each(FakeProgram()):
            self.assertEqual(menu.get_file_items([FakeFolder("trash:///a")]), [])

    def test_have_none_without_the_program(self):
        for menu in self.each(None):
            self.assertEqual(menu.get_file_items([FakeFolder("file:///a")]), [])


class Thunar(unittest.TestCase):
    FILE = "tessera-sendto.desktop"

    def test_entry_is_valid(self):
        said = subprocess.run([VALIDATE, MENUS / self.FILE], capture_output=True, check=False)
        self.assertEqual((said.returncode, said.stdout), (0, b""))

    def test_entry_is_for_folders(self):
        self.assertEqual(key_file(self.FILE)["Desktop Entry"]["MimeType"], "inode/directory;")

    def test_folder_is_one_argument(self):
        for folder in folders():
            with self.subTest(folder):
                arguments = launched_by_gio(MENUS / self.FILE, address(folder))
                self.assertEqual([named(argument) for argument in arguments], [folder])


class Dolphin(unittest.TestCase):
    FILE = "tessera-servicemenu.desktop"

    def test_entry_is_for_one_folder(self):
        entry = key_file(self.FILE)["Desktop Entry"]
        self.assertEqual(
            [entry[key] for key in ("Type", "MimeType", "X-KDE-RequiredNumberOfUrls")],
            ["Service", "inode/directory;", "1"])

    def test_entry_names_its_action(self):
        entry = key_file(self.FILE)
        self.assertEqual(
            entry.sections(),
            ["Desktop Entry", f"Desktop Action {entry['Desktop Entry']['Actions'].rstrip(';')}"])

    def test_folder_is_one_argument(self):
        command = key_file(self.FILE)["Desktop Action showDiskUsage"]["Exec"]
        for folder in folders():
            # KIO puts in the path of a local folder and quotes it for the shell.
            line = command.replace("%u", shlex.quote(os.fsdecode(folder)))
            self.assertEqual([named(part) for part in shlex.split(line)], [b"tessera", folder])


class Nemo(unittest.TestCase):
    FILE = "tessera.nemo_action"

    def test_entry_has_what_nemo_requires(self):
        action = key_file(self.FILE)["Nemo Action"]
        self.assertEqual(
            [action[key] for key in ("Name", "Selection", "Extensions", "UriScheme")],
            [LABEL, "s", "dir;", "file"])

    def test_folder_is_one_argument(self):
        action = key_file(self.FILE)["Nemo Action"]
        quote = {"single": "'", "double": '"'}[action["Quote"]]
        for folder in folders():
            # Nemo puts the address between quotes and looks for the next one behind it.
            line = action["Exec"].replace("%U", quote + address(folder) + quote)
            self.assertEqual([named(part) for part in shlex.split(line)], [b"tessera", folder])


class PCManFM(unittest.TestCase):
    FILE = "tessera-action.desktop"

    def profile(self):
        entry = key_file(self.FILE)
        return entry[f"X-Action-Profile {entry['Desktop Entry']['Profiles'].rstrip(';')}"]

    def test_entry_is_an_action(self):
        self.assertEqual(key_file(self.FILE)["Desktop Entry"]["Type"], "Action")

    def test_entry_is_for_one_folder_of_a_disk(self):
        profile = self.profile()
        self.assertEqual(
            [profile[key] for key in ("MimeTypes", "SelectionCount", "Schemes")],
            ["inode/directory;", "=1", "file;"])

    def test_folder_is_one_argument(self):
        for folder in folders():
            # GLib quotes for the shell as shlex does it, but for names that need no quotes.
            line = self.profile()["Exec"].replace("%f", shlex.quote(os.fsdecode(folder)))
            self.assertEqual([named(part) for part in shlex.split(line)], [b"tessera", folder])


class Everywhere(unittest.TestCase):
    def test_entries_have_one_name(self):
        for name, group in (
                (Thunar.FILE, "Desktop Entry"), (Dolphin.FILE, "Desktop Action showDiskUsage"),
                (Nemo.FILE, "Nemo Action"), (PCManFM.FILE, "Desktop Entry")):
            self.assertEqual(key_file(name)[group]["Name"], LABEL)

    def test_program_opens_what_it_is_handed(self):
        for to_argument in (os.fsdecode, address):
            with tempfile.TemporaryDirectory() as parent:
                folder = os.path.join(os.fsencode(parent), b"-a 'b' \"c\"\n%41 $(d) \xff")
                os.mkdir(folder)
                pathlib.Path(os.fsdecode(folder), "file").write_bytes(bytes(5000))
                picture = f"{parent}/picture.png"
                subprocess.run(
                    [TESSERA, "--picture", picture, "--size", "100x100", to_argument(folder)],
                    check=True, timeout=50)
                self.assertTrue(os.path.exists(picture))


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
