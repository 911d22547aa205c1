# SPDX-License-Identifier: MIT
"""The icons are of the sizes that their names say, and were made of the drawings as they are.

    iconsTest.py FOLDER_OF_ICONS
"""

import hashlib
import pathlib
import re
import struct
import sys
import unittest
import xml.etree.ElementTree

ICONS = pathlib.Path(sys.argv[1])
SIZES = (16, 22, 24, 32, 48, 64, 128, 256, 512)
PNG_HEAD = ">8sI4sIIBB"
PNG = b"\x89PNG\r\n\x1a\n"
RGB_WITH_ALPHA = 6
SVG = "{http://www.w3.org/2000/svg}"


class Icons(unittest.TestCase):
    def test_each_is_a_square_of_its_size_and_can_be_seen_through(self):
        for size in SIZES:
            head = (ICONS / f"tessera-{size}.png").read_bytes()[: struct.calcsize(PNG_HEAD)]
            self.assertEqual(
                struct.unpack(PNG_HEAD, head), (PNG, 13, b"IHDR", size, size, 8, RGB_WITH_ALPHA))

    def test_there_are_no_others(self):
        expected = {f"tessera-{size}.png" for size in SIZES}
        self.assertEqual({path.name for path in ICONS.glob("*.png")}, expected)

    def test_they_were_made_of_the_drawings_as_they_are(self):
        for line in (ICONS / "drawings.sha256").read_text().splitlines():
            digest, drawing = line.split("  ")
            content = (ICONS / drawing).read_bytes()
            self.assertEqual(
                hashlib.sha256(content).hexdigest(), digest, f"{drawing}: run scripts/icons")

    def test_each_drawing_of_a_small_icon_is_of_its_size(self):
        for path in ICONS.glob("tessera-[0-9]*.svg"):
            size = re.search(r"\d+", path.name)[0]
            drawing = xml.etree.ElementTree.parse(path).getroot()
            self.assertEqual((drawing.get("width"), drawing.get("height")), (size, size))

    def test_the_symbolic_one_has_the_grid_and_takes_the_colour_of_the_text_alone(self):
        drawing = xml.etree.ElementTree.parse(ICONS / "tessera-symbolic.svg").getroot()
        self.assertEqual(drawing.get("viewBox"), "0 0 16 16")
        fills = {element.get("fill") for element in drawing.iter()} - {None}
        self.assertEqual(fills, {"currentColor"})
        classes = {element.get("class") for element in drawing.iter(f"{SVG}g")}
        self.assertEqual(classes, {"ColorScheme-Text"})


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
