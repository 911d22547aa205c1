"""Describes an archive, or a folder on the disk, one line an item and in the same words.

    readArchive.py list ARCHIVE    what Python's zipfile reads
    readArchive.py tree ITEM       what is on the disk
    readArchive.py depth ARCHIVE   the number of entries and the depth of the deepest

Lines are sorted by path; paths are shown as Python shows bytes. Extended attributes come from the
AppleDouble files under __MACOSX/, or from the disk's "user." namespace, and stand in lines of their
own. Whatever is wrong with the archive ends the program with an exception.
"""

import os
import stat
import struct
import sys
import zipfile
import zlib

CHUNK = 1 << 20


def shown(data):
    return repr(bytes(data))[2:-1]


def line(path, mode, modified, size, checksum, target):
    kind = {stat.S_IFDIR: "folder", stat.S_IFREG: "file", stat.S_IFLNK: "link"}[stat.S_IFMT(mode)]
    text = f"{kind} {shown(path)}"
    if kind == "link":
        return f"{text} -> {shown(target)}"
    text += f" mode={stat.S_IMODE(mode):o} modified={modified}"
    return text + f" size={size} crc={checksum:08x}" if kind == "file" else text


def attribute_lines(path, attributes):
    return [
        f"attribute {shown(path)} {shown(name)}={shown(value)}"
        for name, value in sorted(attributes.items())
    ]


def checksum_of(file):
    checksum = size = 0
    while chunk := file.read(CHUNK):
        checksum = zlib.crc32(chunk, checksum)
        size += len(chunk)
    return checksum, size


def name_of(info):
    """The name's bytes. What is not marked as UTF-8 was read by the format's older character set."""
    return info.filename.encode("utf-8" if info.flag_bits & 0x800 else "cp437")


def modified_of(info):
    """The time in the "UT" extra field, seconds since 1970."""
    extra = info.extra
    while extra:
        kind, size = struct.unpack_from("<HH", extra)
        if kind == 0x5455:
            return struct.unpack_from("<I", extra, 5)[0]
        extra = extra[4 + size :]
    raise ValueError(f"no time in {info.filename!r}")


def parse_apple_double(data):
    """{name: value} of an AppleDouble file, the entries with places of their own included."""
    magic, version = struct.unpack_from(">II", data)
    assert (magic, version) == (0x00051607, 0x00020000), (magic, version)
    (count,) = struct.unpack_from(">H", data, 24)
    entries = [struct.unpack_from(">III", data, 26 + 12 * i) for i in range(count)]
    assert [entry[0] for entry in entries] == [9, 2], entries
    (_, finder, finder_size), (_, fork, fork_size) = entries
    assert fork + fork_size == len(data) and finder + finder_size == fork, entries
    attributes = {}
    if any(data[finder : finder + 32]):
        attributes[b"com.apple.FinderInfo"] = data[finder : finder + 32]
    if fork_size:
        attributes[b"com.apple.ResourceFork"] = data[fork:]
    if finder_size == 32:
        return attributes

    header = finder + 34
    magic, _, total, start, length = struct.unpack_from(">5I", data, header)
    assert magic == 0x41545452 and total == fork and start + length == total
    _, count = struct.unpack_from(">HH", data, header + 32)
    at = header + 36
    for _ in range(count):
        offset, length, _, name_length = struct.unpack_from(">IIHB", data, at)
        name = data[at + 11 : at + 11 + name_length]
        assert name.endswith(b"\0") and start <= offset and offset + length <= total
        attributes[name[:-1]] = data[offset : offset + length]
        at += (11 + name_length + 3) // 4 * 4
    assert at == start, (at, start)
    return attributes


def describe_archive(path):
    found = {}
    with zipfile.ZipFile(path) as archive:
        for info in archive.infolist():
            name = name_of(info)
            assert name not in found, name
            mode = info.external_attr >> 16
            with archive.open(info) as file:
                if name.startswith(b"__MACOSX/"):
                    folder, own = os.path.split(name[len(b"__MACOSX/") :])
                    assert own.startswith(b"._"), name
                    attributes = parse_apple_double(file.read())
                    found[name] = attribute_lines(os.path.join(folder, own[2:]), attributes)
                    continue
                assert name.endswith(b"/") == stat.S_ISDIR(mode), name
                target = file.read() if stat.S_ISLNK(mode) else b""
                checksum, size = checksum_of(file)
                path = name.rstrip(b"/")
                found[name] = [line(path, mode, modified_of(info), size, checksum, target)]
    return [text for lines in found.values() for text in lines]


def describe_item(path, name):
    status = os.lstat(path)
    checksum = size = 0
    target = os.readlink(path) if stat.S_ISLNK(status.st_mode) else b""
    if stat.S_ISREG(status.st_mode):
        with open(path, "rb") as file:
            checksum, size = checksum_of(file)
    lines = [line(name, status.st_mode, int(status.st_mtime), size, checksum, target)]
    if not stat.S_ISLNK(status.st_mode):
        names = [n for n in os.listxattr(path) if n.startswith("user.")]
        lines += attribute_lines(
            name, {os.fsencode(n[len("user.") :]): os.getxattr(path, n) for n in names}
        )
    return lines


def describe_tree(path):
    top = os.path.dirname(path)
    lines, waiting = [], [path]
    while waiting:
        item = waiting.pop()
        lines += describe_item(item, os.path.relpath(item, top))
        if os.path.isdir(item) and not os.path.islink(item):
            waiting += [os.path.join(item, name) for name in os.listdir(item)]
    return lines


def main():
    command, path = sys.argv[1], os.fsencode(sys.argv[2])
    if command == "depth":
        with zipfile.ZipFile(os.fsdecode(path)) as archive:
            names = archive.namelist()
            assert archive.testzip() is None
            print(len(names), max(name.rstrip("/").count("/") for name in names))
        return
    lines = describe_archive(os.fsdecode(path)) if command == "list" else describe_tree(path)
    print("\n".join(sorted(lines, key=lambda text: text.split(" ")[1:])))


main()
