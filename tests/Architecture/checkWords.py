# SPDX-License-Identifier: MIT
"""Says which words for readers and users are not as they should be, a line each; ends with 1 when any
are.

    checkWords.py ROOT

English is spelled as in America, in the pages and in all texts of the sources, and no word stands
twice. What users read says "folder", knows no inodes, and does not shout.
"""

import pathlib
import re
import subprocess
import sys

BRITISH = re.compile(
    r"\b(?:(?:un|dis|mis|re)?(?:colour|favour|honour|labour|behaviour|neighbour)\w*|licence\w*"
    r"|centre[ds]?|grey(?:ed|s|ish)?|catalogues?|programmes?|(?:kilo|milli|centi)?metres?|litres?"
    r"|(?:un)?(?:organ|recogn|initial|optim|serial|normal|minim|maxim|synchron|summar|categor|custom"
    r"|priorit|util|visual|special|capital|final|emphas)is(?:e[drs]?|ing|ations?)"
    r"|analys(?:e[drs]?|ing)|(?:cancel|label|model|travel|signal)l(?:ed|ing)|whilst|judgement"
    r"|artefacts?|[do]ff?ence|practis(?:e[ds]?|ing)|learnt|spelt|(?:un)?tick(?:ed|ing)?)\b",
    re.IGNORECASE)
TICK = re.compile(r"tick\w*", re.IGNORECASE)  # of a clock
TWICE = re.compile(r"\b([A-Za-z]+)\s+\1\b")
MARKUP = re.compile(r"^```.*?^```|^\.[A-Z]+ [^\n]*|`[^`]*`|<[^>]*>|\]\([^)]*\)", re.MULTILINE | re.DOTALL)
LITERALS = re.compile(r'"(?:[^"\\\n]|\\.)*"(?:\s*"(?:[^"\\\n]|\\.)*")*')
SHOWN = re.compile(r'(?:\btr|translate|QT_TRANSLATE_NOOP|QT_TR_NOOP)\(\s*(?:"[^"]*",\s*)?(%s)' % LITERALS.pattern)
UNFIT = re.compile(r"\binodes?\b|\bdirector(?:y|ies)\b|!", re.IGNORECASE)
OTHER_LANGUAGE = re.compile(
    r"<(\w+)[^>]*xml:lang=[^>]*>.*?</\1>|^\w+\[\w+\]=[^\n]*", re.MULTILINE | re.DOTALL)


def files(root):
    """All of the project; without git, all that there is beside the build."""
    listed = subprocess.run(
        ["git", "-C", root, "ls-files", "-co", "--exclude-standard"], capture_output=True, text=True)
    if listed.returncode == 0:
        return [path for name in listed.stdout.splitlines() if (path := root / name).is_file()]
    return [
        path for path in root.rglob("*") if path.is_file() and root / "build" not in path.parents]


def is_page(path, text):
    if path.suffix == ".html":
        return 'lang="en"' in text
    return path.suffix in (".md", ".h2m") or path.name.endswith((".metainfo.xml", ".desktop"))


def spoken(literals):
    """What adjacent literals say together."""
    return "".join(part[1:-1] for part in re.findall(r'"(?:[^"\\\n]|\\.)*"', literals))


def line_of(text, place):
    return text.count("\n", 0, place) + 1


def misspelled(text):
    """(place, what is wrong) in a text for readers."""
    for found in BRITISH.finditer(text):
        if not TICK.fullmatch(found[0]):
            yield found.start(), f'"{found[0]}" is British'
    for found in TWICE.finditer(text):
        if found[1] not in ("that", "had"):
            yield found.start(), f'"{found[1]}" stands there twice'


def blank(found):
    """Of the same lines, so that what comes later stays in its own."""
    return re.sub(r"[^\n]", ".", found[0])


def wrong_in_page(text):
    plain = MARKUP.sub(blank, OTHER_LANGUAGE.sub(blank, text))
    yield from ((line_of(plain, place), what) for place, what in misspelled(plain))


def wrong_in_source(text):
    for found in LITERALS.finditer(text):
        for _, what in misspelled(spoken(found[0])):
            yield line_of(text, found.start()), what
    for found in SHOWN.finditer(text):
        for unfit in UNFIT.findall(spoken(found[1])):
            yield line_of(text, found.start()), f'users read "{unfit}"'


def wrong_in_form(text):
    for found in re.finditer(r"<string[^>]*>([^<]*)</string>", text):
        for _, what in misspelled(found[1]):
            yield line_of(text, found.start()), what
        for unfit in UNFIT.findall(found[1]):
            yield line_of(text, found.start()), f'users read "{unfit}"'


def wrong(path, root):
    kinds = {".cpp": wrong_in_source, ".h": wrong_in_source, ".ui": wrong_in_form}
    if path.suffix in kinds and root / "src" in path.parents:
        return kinds[path.suffix](path.read_text())
    if path.suffix in (".md", ".h2m", ".html", ".xml", ".desktop"):
        text = path.read_text()
        return wrong_in_page(text) if is_page(path, text) else ()
    return ()


def main(root):
    lines = [
        f"{path.relative_to(root)}:{line}: {what}"
        for path in sorted(files(root)) for line, what in wrong(path, root)]
    print("\n".join(lines))
    return 1 if lines else 0


if __name__ == "__main__":
    sys.exit(main(pathlib.Path(sys.argv[1]).resolve()))
