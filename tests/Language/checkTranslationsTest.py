# SPDX-License-Identifier: MIT
"""checkTranslations.py, tried on small trees in a temporary folder.

    checkTranslationsTest.py LUPDATE
"""

import pathlib
import shutil
import subprocess
import sys
import tempfile
import unittest

HERE = pathlib.Path(__file__).resolve().parent
LUPDATE = sys.argv.pop(1)
sys.path.insert(0, str(HERE))
sys.dont_write_bytecode = True
import checkTranslations  # noqa: E402: it lies there

TEXTS = {"&Open %1…": "%1 ö&ffnen…", "Size:": "Größe:", "Trash": "Papierkorb"}
FORMS = {"%n file(s) in %1": ["eine Datei in %1", "%n Dateien in %1"]}


class CheckTranslations(unittest.TestCase):
    def setUp(self):
        self.root = pathlib.Path(tempfile.mkdtemp(prefix="tessera texts "))
        self.addCleanup(shutil.rmtree, self.root)
        (self.root / "src").mkdir()
        (self.root / "translations").mkdir()
        calls = [f'QCoreApplication::translate("Some", "{text}");' for text in TEXTS]
        calls += [f'QCoreApplication::translate("Some", "{text}", nullptr, n);' for text in FORMS]
        (self.root / "src/Some.cpp").write_text("\n".join(calls))
        self.list("de complete")
        self.translate(TEXTS, FORMS)
        menus, checkTranslations.MENUS = checkTranslations.MENUS, {}
        self.addCleanup(setattr, checkTranslations, "MENUS", menus)

    def list(self, line):
        (self.root / "translations/languages.txt").write_text(f"# languages\n{line}\n")

    def translate(self, texts, forms):
        """Has lupdate make the file, and fills it as a translator does."""
        file = self.root / "translations/tessera_de.ts"
        file.unlink(missing_ok=True)
        subprocess.run([LUPDATE, self.root / "src", "-I", self.root / "src", "-locations", "none",
                        "-source-language", "en", "-target-language", "de", "-silent", "-ts", file],
                       check=True, capture_output=True)
        text = file.read_text()
        for source, translation in texts.items():
            escaped = source.replace("&", "&amp;")
            text = text.replace(
                f'<source>{escaped}</source>\n        <translation type="unfinished"></translation>',
                f'<source>{escaped}</source>\n        <translation>'
                + translation.replace("&", "&amp;") + "</translation>")
        for source, translations in forms.items():
            empty = "            <numerusform></numerusform>\n"
            text = text.replace(
                '<translation type="unfinished">\n' + empty * 2,
                "<translation>\n" + "".join(empty.replace("><", f">{form}<")
                                            for form in translations))
        file.write_text(text)

    def wrong(self):
        return list(checkTranslations.wrong(self.root, LUPDATE))

    def wrong_with(self, source, translation):
        """What is said of the text, translated like that."""
        self.translate({**TEXTS, source: translation}, FORMS)
        beginning = f"tessera_de.ts: Some: “{source}” "
        return [what.removeprefix(beginning) for what in self.wrong()]

    def test_whole_translations_are_right(self):
        self.assertEqual(self.wrong(), [])

    def test_a_text_that_is_new_in_the_code_is_wrong(self):
        with open(self.root / "src/Some.cpp", "a") as code:
            code.write('\nQCoreApplication::translate("Some", "Undo");')
        self.assertEqual(
            self.wrong(), ["tessera_de.ts: is not what scripts/translations makes of it"])

    def test_a_text_that_has_gone_from_the_code_is_wrong(self):
        (self.root / "src/Some.cpp").write_text('QCoreApplication::translate("Some", "Size:");')
        self.assertEqual(
            self.wrong(), ["tessera_de.ts: is not what scripts/translations makes of it"])

    def test_a_missing_text_is_wrong_in_a_complete_language_alone(self):
        self.translate({key: TEXTS[key] for key in ("&Open %1…", "Size:")}, FORMS)
        self.assertEqual(self.wrong(), ["tessera_de.ts: Some: “Trash” is not translated"])
        self.list("de partial")
        self.assertEqual(self.wrong(), [])

    def test_a_lost_place_is_wrong(self):
        self.assertEqual(
            self.wrong_with("&Open %1…", "ö&ffnen…"), ["has the places [], and not ['%1']"])

    def test_a_lost_mnemonic_is_wrong(self):
        self.assertEqual(
            self.wrong_with("&Open %1…", "%1 öffnen…"), ["has another number of mnemonics"])

    def test_lost_dots_and_colons_are_wrong(self):
        self.assertEqual(
            self.wrong_with("&Open %1…", "%1 ö&ffnen"), ["ends otherwise than in “…”, or alone does"])
        self.assertEqual(
            self.wrong_with("Size:", "Größe"), ["ends otherwise than in “:”, or alone does"])

    def test_a_space_at_the_end_is_wrong(self):
        self.assertEqual(self.wrong_with("Trash", "Papierkorb "), ["begins or ends in a space"])

    def test_the_form_of_one_alone_may_go_without_the_number(self):
        self.translate(TEXTS, {"%n file(s) in %1": ["eine Datei in %1", "Dateien in %1"]})
        self.assertEqual(
            self.wrong(), ["tessera_de.ts: Some: “%n file(s) in %1” has the places ['%1'], "
                           "and not ['%1', '%n']"])

    def test_two_entries_of_a_menu_with_one_mnemonic_are_wrong(self):
        with open(self.root / "src/Some.cpp", "a") as code:
            code.write('\nQCoreApplication::translate("Some", "&Find");')
        self.translate({**TEXTS, "&Find": "&Finden"}, FORMS)
        checkTranslations.MENUS = {
            "File": [("Some", ["&Open %1…"]), ("Some", ["&Find"])]}
        self.assertEqual(
            self.wrong(), ["tessera_de.ts: File: “&Find” has the mnemonic of “&Open %1…”"])

    def test_a_menu_entry_that_is_no_text_is_wrong(self):
        checkTranslations.MENUS = {"File": [("Some", ["&Print"])]}
        self.assertEqual(self.wrong(), ["tessera_de.ts: File: “&Print” is no text of Some"])

    def test_a_file_without_a_line_and_a_line_without_a_file_are_wrong(self):
        self.list("fr complete")
        self.assertEqual(
            self.wrong(),
            ["tessera_de.ts: its language is not in languages.txt", "tessera_fr.ts: there is none"])


if __name__ == "__main__":
    unittest.main()
