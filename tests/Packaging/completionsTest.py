# SPDX-License-Identifier: MIT
"""Real shells complete the programs' command lines: every option of --help, and what it takes.

    completionsTest.py COMPLETIONS FOLDER_OF_PROGRAMS
"""

import os
import pathlib
import pty
import re
import shutil
import subprocess
import sys
import tempfile
import unittest

COMPLETIONS = pathlib.Path(sys.argv[1]).resolve()
PROGRAMS = pathlib.Path(sys.argv[2]).resolve()

# What stands at the beginning of a line of --help, up to the two spaces before its text.
OPTIONS = re.compile(r"^  (-.*?)(?:  |$)", re.MULTILINE)
OPTION = re.compile(r"(?<!\S)--?[A-Za-z]*(?![^\s,])")

# The function that completes gets the command, the word at the cursor and the one before that.
BASH = r"""
source "$1"
shift
[[ "$(complete -p "$1")" =~ -F\ ([^ ]+) ]]
COMP_WORDS=("$@")
COMP_CWORD=$(($# - 1))
"${BASH_REMATCH[1]}" "$1" "${COMP_WORDS[COMP_CWORD]}" "${COMP_WORDS[COMP_CWORD - 1]}"
printf '%s\n' "${COMPREPLY[@]}"
"""

# The line is completed as soon as it can be edited. What the completion adds goes to a file, and the
# shell ends.
ZSH = r"""
fpath=("$COMPLETIONS" $fpath)
autoload -Uz compinit
compinit -D -u
compadd() {
    if [[ ${@[1,(i)(-|--)]} == *-(O|A|D)\ * ]]; then
        builtin compadd "$@"
        return
    fi
    local -a found
    builtin compadd -A found "$@"
    print -rl -- $found >> "$FOUND"
    builtin compadd "$@"
}
complete_and_end() {
    BUFFER="$LINE"
    CURSOR=$#BUFFER
    zle list-choices
    exit
}
zle -N zle-line-init complete_and_end
"""


def options_of(program):
    """The options that --help tells of; what only ends them needs no completion."""
    text = subprocess.run(
        [PROGRAMS / program, "--help"], capture_output=True, text=True, check=True).stdout
    found = {option for line in OPTIONS.findall(text) for option in OPTION.findall(line)}
    return found - {"--"}


class Completions(unittest.TestCase):
    """What all shells must offer; each is a class below."""

    def setUp(self):
        self.folder = pathlib.Path(tempfile.mkdtemp(prefix="tessera-completions-"))
        self.addCleanup(shutil.rmtree, self.folder)
        work = self.folder / "work"
        (work / "some folder").mkdir(parents=True)
        (work / "some.png").touch()
        (work / "some.txt").touch()
        self.environment = {
            "PATH": os.environ["PATH"], "HOME": str(self.folder), "LC_ALL": "C.UTF-8",
            "TERM": "dumb", "XDG_CONFIG_HOME": str(self.folder), "XDG_DATA_HOME": str(self.folder)}

    def run_shell(self, *command, **variables):
        done = subprocess.run(
            command, capture_output=True, text=True, cwd=self.folder / "work",
            stdin=subprocess.DEVNULL, env={**self.environment, **variables})
        self.assertEqual((done.returncode, done.stderr), (0, ""))
        return {line.rstrip("/") for line in done.stdout.splitlines()}

    def options(self, program):
        """What is offered behind one hyphen, and behind two."""
        words = self.offered(program, "-") | self.offered(program, "--")
        return {word.rstrip("=") for word in words} - {"--"}


class Shells:
    """Keeps the common tests from running without a shell."""

    class Tests(Completions):
        def test_every_option_of_the_program_and_no_other(self):
            self.assertEqual(self.options("tessera"), options_of("tessera"))

        def test_every_option_of_the_archiver_and_no_other(self):
            self.assertEqual(self.options("tessera-ditto"), options_of("tessera-ditto"))

        def test_folders_alone_to_be_shown(self):
            self.assertEqual(self.offered("tessera", ""), {"some folder"})

        def test_pictures_to_be_written_and_the_folders_on_the_way(self):
            self.assertLessEqual(
                {"some.png", "some folder"}, self.offered("tessera", "--picture", ""))

        def test_sizes_of_the_form_that_the_program_takes(self):
            sizes = self.offered("tessera", "--size", "")
            self.assertNotEqual(sizes, set())
            for size in sizes:
                self.assertRegex(size, r"^\d+x\d+$")

        def test_scales(self):
            self.assertIn("1.5", self.offered("tessera", "--scale", ""))

        def test_any_file_to_be_archived(self):
            words = self.offered("tessera-ditto", "-c", "-k", "--sequesterRsrc", "")
            self.assertLessEqual({"some.png", "some.txt", "some folder"}, words)


class Bash(Shells.Tests):
    def offered(self, *words):
        completions = COMPLETIONS / f"{words[0]}.bash"
        return self.run_shell("bash", "--norc", "-c", BASH, "bash", completions, *words) - {""}

    def test_the_value_behind_an_equals_sign(self):
        self.assertIn("1600x1000", self.offered("tessera", "--size", "="))
        self.assertEqual(self.offered("tessera", "--size", "=", "38"), {"3840x2160"})

    def test_no_option_behind_two_hyphens(self):
        self.assertEqual(self.offered("tessera", "--", "-"), set())
        self.assertEqual(self.offered("tessera", "--", ""), {"some folder"})


class Fish(Shells.Tests):
    def offered(self, *words):
        line = " ".join(words)
        lines = self.run_shell(
            "fish", "--no-config", "--command",
            f"source {COMPLETIONS}/{words[0]}.fish; complete --do-complete '{line}'")
        return {line.split("\t")[0].rstrip("/") for line in lines}


class Zsh(Shells.Tests):
    def offered(self, *words):
        found = self.folder / "found"
        found.unlink(missing_ok=True)
        found.touch()
        (self.folder / ".zshrc").write_text(ZSH)
        environment = {
            **self.environment, "ZDOTDIR": str(self.folder), "COMPLETIONS": str(COMPLETIONS),
            "FOUND": str(found), "LINE": " ".join(words)}
        # It edits lines on a terminal alone.
        child, terminal = pty.fork()
        if child == 0:
            os.chdir(self.folder / "work")
            os.execvpe("zsh", ["zsh", "--interactive"], environment)
        said = b""
        while True:
            try:
                said += os.read(terminal, 4096)
            except OSError:
                break
        os.close(terminal)
        os.waitpid(child, 0)
        self.assertNotIn(b"error", said)
        # What it adds is as it would stand in the line.
        words = found.read_text().replace("\\ ", " ").splitlines()
        return {word.rstrip("/") for word in words} - {""}


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
