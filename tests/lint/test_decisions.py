#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 Ravel developers
# SPDX-License-Identifier: GPL-2.0-or-later
"""What the decisions and the security notes name is there: tests, their functions, and files."""
import pathlib
import re
import unittest

ROOT = pathlib.Path(__file__).resolve().parents[2]
DECISIONS = sorted((ROOT / "docs/adr").glob("[0-9]*.md"))
DOCUMENTS = DECISIONS + [ROOT / "docs/adr/README.md", ROOT / "SECURITY.md",
                         ROOT / "docs/ARCHITECTURE.md", ROOT / "CONTRIBUTING.md"]
# `ui.Trust` (`one`, `another`) or `ui.Trust` [one]
NAMED = re.compile(r"`(?P<folder>[a-z0-9]+)\.(?P<name>\w+)`"
                   r"(?: \((?P<quoted>[^)]*)\)| \[(?P<plain>[^\]]*)\])?")
LINK = re.compile(r"\]\(([^)#:]+)(?:#[^)]*)?\)")


def tests_in(text):
    """The ctest names of a text with the functions behind each."""
    for match in NAMED.finditer(text):
        if (ROOT / "tests" / match["folder"]).is_dir():
            functions = re.findall(r"`(\w+)`", match["quoted"] or "")
            functions += re.findall(r"\w+", match["plain"] or "")
            yield match["folder"], match["name"], functions


def sources_of(folder, name):
    return [path for path in (ROOT / "tests" / folder).iterdir()
            if path.is_file() and path.stem in (name, f"tst_{name}")]


def is_registered(folder, name):
    build = (ROOT / "tests" / folder / "CMakeLists.txt").read_text(encoding="utf-8")
    return re.search(rf"\b{folder}\.{name}\b", build) is not None


class Decisions(unittest.TestCase):
    def test_each_names_a_test(self):
        for path in DECISIONS:
            text = path.read_text(encoding="utf-8")
            with self.subTest(path.name):
                self.assertTrue(any(tests_in(text)) or "`tests/" in text)

    def test_named_tests_exist(self):
        for path in DOCUMENTS:
            for folder, name, functions in tests_in(path.read_text(encoding="utf-8")):
                with self.subTest(path.name, test=f"{folder}.{name}"):
                    sources = sources_of(folder, name)
                    self.assertTrue(sources or is_registered(folder, name))
                    code = "".join(source.read_text(encoding="utf-8") for source in sources)
                    for function in functions:
                        self.assertRegex(code, rf"\bvoid (?:tst_\w+::)?{function}\(")

    def test_linked_files_exist(self):
        for path in DOCUMENTS:
            for target in LINK.findall(path.read_text(encoding="utf-8")):
                with self.subTest(path.name, target=target):
                    self.assertTrue((path.parent / target).exists())

    def test_each_is_in_the_list(self):
        listed = (ROOT / "docs/adr/README.md").read_text(encoding="utf-8")
        for path in DECISIONS:
            with self.subTest(path.name):
                self.assertIn(f"]({path.name})", listed)
                title = path.read_text(encoding="utf-8").splitlines()[0].removeprefix("# ")
                self.assertIn(f"[{title}]", listed)


if __name__ == "__main__":
    unittest.main()
