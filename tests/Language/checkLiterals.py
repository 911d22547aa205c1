# SPDX-License-Identifier: MIT
"""Finds texts in the code that look as if users saw them and that no translator will; ends with 1
when there are any.

    checkLiterals.py ROOT

A text for users has words: letters and a space, or a capital and a small letter at its beginning.
It goes through tr(), translate() or QT_TRANSLATE_NOOP. What is in the list of the excused is for
programs, for logs and the command line, which are English everywhere, or a name. An excuse that
nothing needs any more is wrong, too.
"""

import pathlib
import re
import sys

TOKEN = re.compile(
    r"""//[^\n]*|/\*.*?\*/|^[ \t]*\#[^\n]*|R"\((?P<raw>.*?)\)"|"(?P<text>(?:[^"\\\n]|\\.)*)\""""
    r"""|'(?:[^'\\\n]|\\.)+'|\d[\d']*\d|[A-Za-z_]\w*|\S""",
    re.DOTALL | re.MULTILINE)
WORDS = re.compile(r"^[A-Z&][a-z]|[^\W\d_].* |\w [^\W\d_]")
TRANSLATED = re.compile(r"tr|translate|QT_TRANSLATE_N?_?NOOP")
# What is written there is read by programs or by developers.
UNSEEN = {"logLine", "static_assert", "assert", "createMethodCall", "createSignal"}

# (file or folder, what its texts begin with; all of them when that is empty, why)
EXCUSED = [
    ("HelperPrograms", "", "for the command line and for what was written by other systems"),
    ("Start/CommandLine.cpp", "", "for the command line"),
    ("Start/Launch.cpp", "", "for the command line"),
    ("Start/PictureWriter.cpp", "", "for the command line"),
    ("Desktop/UserAccount.cpp", "Assertion failed", "for the log"),
    ("Platform/Linux/Desktop/DBus", "", "names and messages of the bus"),
    ("Platform/Linux/Desktop/PortalSetting.cpp", "", "names of the bus"),
    ("Platform/Linux/Desktop/DesktopHiddenFilesPreference.cpp", "KFileDialog", "a setting's name"),
    ("Platform/Linux/Desktop/XbelRecentDocuments.cpp", "tessera %u", "a command"),
    ("Platform/Linux/Desktop/XbelContent.cpp", "<?xml", "the content of a file"),
    ("Platform/Linux/Desktop/LinuxWords.cpp", "", "the system's own words, in English"),
    ("Platform/Linux/Files/RenameWithoutReplacing.cpp", "Something is", "the content of a file"),
    ("Platform/Linux/Process/AvailableMemory.cpp", "MemAvailable", "a line of the system"),
    ("Platform/Linux/Programs", "", "names of the bus and of desktops"),
    ("Platform/Linux/Trash/TrashInfo.cpp", "[Trash Info]", "the content of a file"),
    ("Commands/CommandTable.cpp", "MainMenu", "a context of texts"),
    ("Commands/CommandTable.cpp", "Alt+", "keys, which Qt names in the user's language"),
    ("Commands/CommandTable.cpp", "Ctrl+", "keys"),
    ("Commands/CommandTable.cpp", "Shift+", "keys"),
    ("Freeing/FreedSpaceText.cpp", "FreedSpaceText", "a context of texts"),
    ("TreeScreen/Trash/MoveAllQuestion.cpp", "MoveAllTexts", "a context of texts"),
    ("Platform/Linux/Trash/TrashSentences.h", "TrashSentences", "a context of texts"),
    ("HistoryWindow/HistoryWindowController.cpp", "Ctrl+", "keys"),
    ("HistoryWindow/HistoryWindowController.cpp", "HistoryWindow", "settings' names"),
    ("MainWindow/SidePanels.cpp", "MainWindowPanels", "a setting's name"),
    ("MainWindow/WindowFrame.cpp", "MainWindowFrame", "a setting's name"),
    ("Model/UserDefaults.h", "", "settings' names"),
    ("Model/File.cpp", "", "the nodes' names, which NodeName.h translates"),
    ("MainWindow/BackupFolder.cpp", "Backups.backupdb", "a name that another system gives"),
    ("Scanning/ScannerRun.cpp", "Backups.backupdb", "a name that another system gives"),
    ("MainWindow/WindowTitle.cpp", "Tessera", "the program's name"),
    ("Start/WindowedProgram.cpp", "Tessera", "the program's name"),
    ("Widgets/MessageBoxAlert.cpp", "Tessera", "the program's name"),
    ("About/AboutWindow.cpp", "Tessera", "the program's name"),
    ("About/AboutWindow.cpp", "Qt", "libraries' names, in a report for developers"),
    ("Base/DisplayText.cpp", "<p style", "markup"),
    ("QuickLook/Reading/ContentMark.cpp", "", "the beginnings of files"),
    ("TreeScreen/Picture/LabelCache.cpp", "a ", "letters that are measured"),
]


def literals(code):
    """(line, text) of each literal outside of comments and of what is translated or unseen."""
    calls, before = [], ""
    for match in TOKEN.finditer(code):
        token = match[0]
        if token.startswith(("//", "/*")) or token.lstrip().startswith("#"):
            continue
        text = match["text"] if match["text"] is not None else match["raw"]
        if text is not None:
            if not any(TRANSLATED.fullmatch(call) or call in UNSEEN for call in calls):
                yield code.count("\n", 0, match.start()) + 1, text
        elif token == "(":
            calls.append(before)
        elif token == ")" and calls:
            calls.pop()
        before = token


def excuse(name, text):
    for number, (place, beginning, _) in enumerate(EXCUSED):
        if name.startswith(place) and text.startswith(beginning):
            return number
    return None


def wrong(root):
    used = set()
    src = root / "src"
    for path in sorted(src.rglob("*")):
        if path.suffix not in (".cpp", ".h"):
            continue
        name = path.relative_to(src).as_posix()
        for line, text in literals(path.read_text()):
            if WORDS.search(text):
                number = excuse(name, text)
                used.add(number)
                if number is None:
                    yield f"src/{name}:{line}: “{text}” is seen, and not translated"
    for number, (place, beginning, _) in enumerate(EXCUSED):
        if number not in used and (src / place).exists():
            yield f"checkLiterals.py: nothing in {place} begins with “{beginning}” any more"


def main(root):
    found = list(wrong(pathlib.Path(root)))
    print("\n".join(found))
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1]))
