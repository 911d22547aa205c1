# SPDX-License-Identifier: MIT
"""checkWords.py, tried on files in a temporary folder."""

import pathlib
import shutil
import subprocess
import sys
import tempfile
import unittest

CHECK = pathlib.Path(__file__).resolve().parent / "checkWords.py"


class CheckWords(unittest.TestCase):
    def setUp(self):
        self.root = pathlib.Path(tempfile.mkdtemp(prefix="tessera words "))
        self.addCleanup(shutil.rmtree, self.root)

    def write(self, name, text):
        path = self.root / name
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_text(text)

    def wrong(self):
        done = subprocess.run(
            [sys.executable, "-B", CHECK, self.root], capture_output=True, text=True)
        lines = [line for line in done.stdout.split("\n") if line]
        self.assertEqual(done.returncode, 1 if lines else 0, done.stderr)
        return lines

    def test_american_words_are_right(self):
        self.write("README.md", "The colors of a canceled scan; a clock's tick; cancellation.\n")
        self.assertEqual(self.wrong(), [])

    def test_british_words_are_found_by_their_lines(self):
        self.write("docs/a.md", "First\n\nColours and neighbours,\nunrecognised.\n")
        self.assertEqual(self.wrong(), [
            'docs/a.md:3: "Colours" is British',
            'docs/a.md:3: "neighbours" is British',
            'docs/a.md:4: "unrecognised" is British'])

    def test_a_word_that_stands_twice_is_found_over_the_end_of_a_line(self):
        self.write("README.md", "All of the\nthe disk. So that that stays.\n")
        self.assertEqual(self.wrong(), ['README.md:1: "the" stands there twice'])

    def test_code_and_links_are_left_alone(self):
        self.write("README.md", "`colour` the `x` the [a](colour.md)\n```\ngrey\n```\nGrey\n")
        self.assertEqual(self.wrong(), ['README.md:5: "Grey" is British'])

    def test_other_languages_are_left_alone(self):
        self.write("docs/help/de.html", '<html lang="de">Programme</html>')
        self.write("docs/help/en.html", '<html lang="en">programme</html>')
        self.write("packaging/a.metainfo.xml", '<p>a</p>\n<p xml:lang="de">alle\nProgramme</p>\n')
        self.write("packaging/a.desktop", "Name=a\nName[de]=Programme\n")
        self.assertEqual(self.wrong(), ['docs/help/en.html:1: "programme" is British'])

    def test_texts_of_sources_are_read_and_comments_are_not(self):
        self.write("src/A.cpp", '// colour\nf(tr("the "\n     "the colour"));\nlog("grey");\n')
        self.assertEqual(self.wrong(), [
            'src/A.cpp:2: "colour" is British',
            'src/A.cpp:2: "the" stands there twice',
            'src/A.cpp:4: "grey" is British'])

    def test_users_read_of_folders_and_are_not_shouted_at(self):
        self.write("src/A.cpp", 'tr("Open directory!"); log("directory!");\n')
        self.write("src/A.ui", '<string>An inode</string>\n')
        self.assertEqual(self.wrong(), [
            'src/A.cpp:1: users read "directory"',
            'src/A.cpp:1: users read "!"',
            'src/A.ui:1: users read "inode"'])

    def test_a_marked_text_of_a_table_is_one_for_users(self):
        self.write("src/A.cpp", 'QT_TRANSLATE_NOOP("Menu", "Open!")\n')
        self.assertEqual(self.wrong(), ['src/A.cpp:1: users read "!"'])


if __name__ == "__main__":
    unittest.main()
