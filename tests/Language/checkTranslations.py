# SPDX-License-Identifier: MIT
"""Says what is wrong with the translations, a line each; ends with 1 when anything is.

    checkTranslations.py ROOT LUPDATE

Each language of ROOT/translations/languages.txt has a file whose texts are those of the code, no more
and no less. What is translated holds what the program puts into it or takes from it: the places, the
mnemonic, the colon or the dots at its end. A complete language has all texts in all of its plural
forms. No two entries of one menu have the same mnemonic.
"""

import collections
import pathlib
import re
import subprocess
import sys
import tempfile
import xml.etree.ElementTree

PLACE = re.compile(r"%L?(?:n|\d{1,2})")
MNEMONIC = re.compile(r"&(?!&)(\w)")
ENDS = ("…", ":")

# What is typed with Alt in one place, by what it is in English: contexts have more texts than that.
MENU_BAR = ("MainMenu", ["&File", "&Edit", "&Item", "&View", "&Help"])
MENUS = {
    "the home screen": [MENU_BAR, ("HomeView", ["&Open Folder…", "C&lear", "&Scan"])],
    "the tree's window": [MENU_BAR, ("tessera::LedgerPanel", ["Count &Again"])],
    "File": [("MainMenu", ["&Open Folder…", "Choose &Another Disk or Folder", "&Preferences…",
                           "&Quit"])],
    "Edit": [("MainMenu", ["&Undo", "&Redo"])],
    "Item": [("MainMenu", ["&Open", "Open &With…", "&Quick Look", "&Show in Finder", "Copy &Path",
                           "Open Ter&minal Here", "&Rescan", "&Ignore", "&Compress",
                           "Add to &Basket", "Move to &Trash", "Prop&erties"])],
    "View": [("MainMenu", ["Zoom &In", "Zoom &Out", "&Reload", "&Basket", "Where the &Space Is",
                           "&History", "&Full Screen", "Status &Line"])],
    "Help": [("MainMenu", ["What Tessera &Does", "Frequently Asked &Questions",
                           "&About Tessera"])],
    "Ignore": [("tessera::IgnoreMenu", ["&Free Space", "&Hidden Files", "&Restricted Files",
                                        "&Show Everything"])],
    "the preferences": [("PreferencesWindow", ["&Hidden items", "&System items",
                                               "Under the &pointer, show:",
                                               "Si&zes behind folder names", "&Close"])],
    "the about window": [("tessera::AboutWindow", ["&Versions", "&License", "&Copy Versions"])],
    "the history": [("tessera::HistoryWindowController", ["&Show", "&Put Back"])],
}

Message = collections.namedtuple("Message", "context source comment is_counted forms is_finished")


def languages(root):
    """(name, whether it is complete) of each language."""
    for line in (root / "translations/languages.txt").read_text().splitlines():
        if line and not line.startswith("#"):
            name, state = line.split()
            yield name, state == "complete"


def messages(file):
    for context in xml.etree.ElementTree.parse(file).getroot().iter("context"):
        for message in context.iter("message"):
            translation = message.find("translation")
            is_counted = message.get("numerus") == "yes"
            forms = ([form.text or "" for form in translation.iter("numerusform")] if is_counted
                     else [translation.text or ""])
            yield Message(context.findtext("name"), message.findtext("source"),
                          message.findtext("comment"), is_counted, forms,
                          translation.get("type") is None)


def is_up_to_date(root, file, lupdate):
    with tempfile.TemporaryDirectory() as folder:
        copy = pathlib.Path(folder) / file.name
        copy.write_bytes(file.read_bytes())
        subprocess.run([lupdate, root / "src", "-I", root / "src", "-locations", "none",
                        "-no-obsolete", "-silent", "-ts", copy],
                       check=True, capture_output=True)
        return copy.read_bytes() == file.read_bytes()


def plural_forms(name, lupdate):
    """How many forms a count has in the language, which Qt's tools know."""
    with tempfile.TemporaryDirectory() as folder:
        code, file = pathlib.Path(folder) / "count.cpp", pathlib.Path(folder) / "count.ts"
        code.write_text('auto t = QCoreApplication::translate("A", "%n", nullptr, 2);\n')
        subprocess.run([lupdate, code, "-target-language", name, "-silent", "-ts", file],
                       check=True, capture_output=True)
        return len(next(messages(file)).forms)


def places(text):
    return sorted(place.replace("L", "") for place in PLACE.findall(text))


def wrong_in_form(message, form):
    wanted, has = places(message.source), places(form)
    # The form of one may say "one" instead of the number.
    if message.is_counted and len(message.forms) > 1 and form is message.forms[0]:
        wanted, has = ([place for place in places if place != "%n"] for places in (wanted, has))
    if wanted != has:
        yield f"has the places {has}, and not {wanted}"
    if len(MNEMONIC.findall(message.source)) != len(MNEMONIC.findall(form)):
        yield "has another number of mnemonics"
    for end in ENDS:
        if message.source.endswith(end) != form.endswith(end):
            yield f"ends otherwise than in “{end}”, or alone does"
    if form != form.strip() and message.source == message.source.strip():
        yield "begins or ends in a space"


def wrong_in_message(message, form_count, is_complete):
    if not message.is_finished or not all(message.forms):
        if is_complete:
            yield "is not translated"
        return
    if message.is_counted and len(message.forms) != form_count:
        yield f"has {len(message.forms)} plural forms"
    for form in message.forms:
        yield from wrong_in_form(message, form)


def wrong_in_menus(found):
    texts = {(message.context, message.source): message.forms[0]
             for message in found if message.is_finished}
    for menu, parts in MENUS.items():
        used = {}
        for key in ((context, entry) for context, entries in parts for entry in entries):
            if not any(message[:2] == key for message in found):
                yield f"{menu}: “{key[1]}” is no text of {key[0]}"
            for letter in MNEMONIC.findall(texts.get(key, "").lower()):
                if letter in used:
                    yield f"{menu}: “{key[1]}” has the mnemonic of “{used[letter]}”"
                used[letter] = key[1]


def wrong(root, lupdate):
    known = dict(languages(root))
    for file in sorted((root / "translations").glob("tessera_*.ts")):
        name = file.stem.removeprefix("tessera_")
        if name not in known:
            yield f"{file.name}: its language is not in languages.txt"
    for name, is_complete in known.items():
        file = root / "translations" / f"tessera_{name}.ts"
        if not file.is_file():
            yield f"{file.name}: there is none"
            continue
        if not is_up_to_date(root, file, lupdate):
            yield f"{file.name}: is not what scripts/translations makes of it"
        found = list(messages(file))
        form_count = plural_forms(name, lupdate)
        for message in found:
            for what in wrong_in_message(message, form_count, is_complete):
                yield f"{file.name}: {message.context}: “{message.source}” {what}"
        for what in wrong_in_menus(found):
            yield f"{file.name}: {what}"


def main(root, lupdate):
    found = list(wrong(pathlib.Path(root), lupdate))
    print("\n".join(found))
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
