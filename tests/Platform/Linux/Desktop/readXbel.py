# SPDX-License-Identifier: MIT
"""Prints the entries of a bookmark file, one a line: URI, MIME type, then NAME|EXEC|COUNT for each
application. A reader of its own, so that a file that only its writer understands is found out."""
import sys
import xml.etree.ElementTree as tree

BOOKMARK = "{http://www.freedesktop.org/standards/desktop-bookmarks}"
MIME = "{http://www.freedesktop.org/standards/shared-mime-info}"

root = tree.parse(sys.argv[1]).getroot()
assert root.tag == "xbel", root.tag
for bookmark in root.iter("bookmark"):
    metadata = bookmark.find("info/metadata")
    applications = metadata.iter(BOOKMARK + "application")
    print(
        bookmark.get("href"),
        metadata.find(MIME + "mime-type").get("type"),
        *("|".join(a.get(key) for key in ("name", "exec", "count")) for a in applications),
    )
