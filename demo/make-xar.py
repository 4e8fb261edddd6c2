#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 Ravel developers
# SPDX-License-Identifier: GPL-2.0-or-later
"""make-xar.py ARCHIVE DIRECTORY [DOCUMENT...]: packs a directory, with documents about it.

Each document becomes a subdocument of the table of contents, named by its root element; the
archivers of Debian write none. A table holds trees, not running text: an element has elements or
text in it. Documents and their elements are stored back to front, as the format's own archiver
leaves them.
Directories, files and symbolic links are packed, owned by root; their times come from
SOURCE_DATE_EPOCH when that is set.
"""

import hashlib
import os
import stat
import struct
import sys
import time
import xml.etree.ElementTree as ET
import zlib

MAGIC = 0x78617221
HEADER = struct.Struct(">IHHQQI")
SHA1 = 1


def add(parent, tag, text):
    ET.SubElement(parent, tag).text = str(text)


def add_checksum(parent, tag, content):
    add(parent, tag, hashlib.sha1(content).hexdigest())
    parent[-1].set("style", "sha1")


def iso_time(status):
    seconds = os.environ.get("SOURCE_DATE_EPOCH", status.st_mtime)
    return time.strftime("%Y-%m-%dT%H:%M:%SZ", time.gmtime(int(seconds)))


class Archive:
    def __init__(self):
        self.root = ET.Element("xar")
        self.toc = ET.SubElement(self.root, "toc")
        checksum = ET.SubElement(self.toc, "checksum", style="sha1")
        add(checksum, "offset", 0)
        add(checksum, "size", hashlib.sha1().digest_size)
        self.heap = bytearray(hashlib.sha1().digest_size)
        self.members = 0

    def add_document(self, path):
        document = ET.parse(path).getroot()
        for element in document.iter():
            texts = [element.text] + [child.tail for child in element]
            if len(element) and any(text and text.strip() for text in texts):
                raise ValueError(f"{path}: running text in <{element.tag}>")
            element[:] = reversed(element)
        subdocument = ET.Element("subdoc", subdoc_name=document.tag)
        subdocument.append(document)
        self.root.insert(0, subdocument)

    def add_tree(self, path, parent=None):
        status = os.lstat(path)
        self.members += 1
        member = ET.SubElement(self.toc if parent is None else parent, "file", id=str(self.members))
        # In front of the members that are in this one: readers make their paths from it.
        add(member, "name", os.path.basename(path))
        for tag, value in (("uid", 0), ("user", "root"), ("gid", 0), ("group", "root")):
            add(member, tag, value)
        add(member, "mode", f"{stat.S_IMODE(status.st_mode):04o}")
        add(member, "mtime", iso_time(status))
        if stat.S_ISDIR(status.st_mode):
            add(member, "type", "directory")
            for name in sorted(os.listdir(path)):
                self.add_tree(os.path.join(path, name), member)
        elif stat.S_ISLNK(status.st_mode):
            add(member, "type", "symlink")
            add(member, "link", os.readlink(path))
            member[-1].set("type", "file")
        elif stat.S_ISREG(status.st_mode):
            add(member, "type", "file")
            with open(path, "rb") as file:
                self.add_content(member, file.read())
        else:
            raise ValueError(f"{path}: neither directory, file nor link")

    def add_content(self, member, content):
        packed = zlib.compress(content, 9)
        data = ET.SubElement(member, "data")
        add_checksum(data, "archived-checksum", packed)
        add_checksum(data, "extracted-checksum", content)
        ET.SubElement(data, "encoding", style="application/x-gzip")
        add(data, "size", len(content))
        add(data, "offset", len(self.heap))
        add(data, "length", len(packed))
        self.heap += packed

    def write(self, path):
        ET.indent(self.root, " ")
        table = ET.tostring(self.root, encoding="UTF-8", xml_declaration=True)
        packed = zlib.compress(table, 9)
        digest = hashlib.sha1(packed).digest()
        self.heap[: len(digest)] = digest
        with open(path, "wb") as file:
            file.write(HEADER.pack(MAGIC, HEADER.size, 1, len(packed), len(table), SHA1))
            file.write(packed)
            file.write(self.heap)


def main(arguments):
    if len(arguments) < 2:
        print("usage: make-xar.py ARCHIVE DIRECTORY [DOCUMENT...]", file=sys.stderr)
        return 2
    archive = Archive()
    for document in arguments[2:]:
        archive.add_document(document)
    archive.add_tree(os.path.normpath(arguments[1]))
    archive.write(arguments[0])
    return 0


if __name__ == "__main__":
    try:
        sys.exit(main(sys.argv[1:]))
    except (OSError, ValueError, ET.ParseError) as error:
        sys.exit(f"make-xar.py: {error}")
