#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 Ravel developers
# SPDX-License-Identifier: GPL-2.0-or-later
"""translations.py update|check [--root DIR]: the catalogues and the sources.

update  takes new texts of the sources into every catalogue and drops those that are gone
check   says what a catalogue lacks, or breaks: one line for each finding, exit code 1
"""
import argparse
import collections
import functools
import html
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as ElementTree

# Name of the catalogues, their folder, and the folders of the sources that they are for.
CATALOGUES = (
    ("ravel", "resources/translations",
     ("archive", "core", "descriptor", "install", "network", "repository", "ui")),
    ("ravel-host", "host/translations", ("host",)),
)
# Texts that Qt's own catalogues may bring.
QT_CONTEXTS = ("QSslSocket",)
RIGHT_TO_LEFT = ("ar", "he")
# Scripts in which no key of the keyboard is a letter of the text: "(&A)" stands behind it.
APPENDED_MNEMONIC = ("ja", "ko", "zh_CN", "zh_TW")
FSI, PDI = "\u2068", "\u2069"
# Behind a blank that would else hang over the line's end.
RLM = "\u200f"
ITALICS = ("<i>", "</i>")

ARGUMENT = re.compile(r"%(?:L?\d+|n)|%[pvm]\b")
# What an argument is put into decides whether it has a direction of its own.
NUMBER = re.compile(r"%\d [KMG]iB|%n|%[pvm]\b")
MNEMONIC = re.compile(r"&(?!&|\w+;|#)(.?)", re.DOTALL)
TAG = re.compile(r"<(/?)([A-Za-z]\w*)[^<>]*?(/?)>")
ENDS = (
    (":", ":："),
    ("...", ("...", "…")),
    (".", ".。।"),
    ("?", "?？؟"),
    ("!", "!！"),
)

Message = collections.namedtuple("Message", "context source comment note numerus kind texts")


def tool(name):
    for candidate in (f"{name}-qt5", f"/usr/lib/qt5/bin/{name}", name):
        found = shutil.which(candidate)
        if found:
            return found
    raise SystemExit(f"translations: {name} is missing (package qttools5-dev-tools)")


def messages(path):
    result = []
    for context in ElementTree.parse(path).getroot().iter("context"):
        for message in context.iter("message"):
            translation = message.find("translation")
            forms = translation.findall("numerusform")
            result.append(Message(
                context.findtext("name"), message.findtext("source") or "",
                message.findtext("comment") or "", message.findtext("extracomment") or "",
                message.get("numerus") == "yes", translation.get("type", ""),
                [form.text or "" for form in forms] if forms else [translation.text or ""]))
    return result


@functools.lru_cache(maxsize=None)
def qt_texts(code):
    """What Qt's catalogue of a language translates in the contexts that we share with it."""
    folder = subprocess.run([tool("qmake"), "-query", "QT_INSTALL_TRANSLATIONS"], check=True,
                            capture_output=True, text=True).stdout.strip()
    catalogue = pathlib.Path(folder) / f"qtbase_{code}.qm"
    if not catalogue.exists():
        return set()
    with tempfile.TemporaryDirectory() as name:
        target = pathlib.Path(name) / "qt.ts"
        subprocess.run([tool("lconvert"), "-i", catalogue, "-o", target, "-of", "ts"], check=True)
        return {(m.context, m.source) for m in messages(target)
                if m.context in QT_CONTEXTS and m.texts[0]}


def without(text, dropped):
    """The catalogue `text` without the messages of (context, source) in `dropped`."""
    def context(match):
        name = html.unescape(re.search(r"<name>(.*?)</name>", match[0])[1])
        kept = re.sub(
            r"    <message(?: [^>]*)?>\n.*?    </message>\n",
            lambda message: "" if (name, html.unescape(re.search(
                r"<source>(.*?)</source>", message[0], re.DOTALL)[1])) in dropped else message[0],
            match[0], flags=re.DOTALL)
        return kept if "<message" in kept else ""
    return re.sub(r"<context>\n.*?</context>\n", context, text, flags=re.DOTALL)


def update(root, name, folder, sources, codes, obsolete="-no-obsolete"):
    """Brings `folder` (absolute) up to date with the source folders below `root`."""
    folder.mkdir(parents=True, exist_ok=True)
    paths = {code: folder / f"{name}_{code}.ts" for code in codes}
    for code, path in paths.items():
        if not path.exists():
            # lupdate would name the country too.
            path.write_text('<?xml version="1.0" encoding="utf-8"?>\n<!DOCTYPE TS>\n'
                            f'<TS version="2.1" language="{code}" sourcelanguage="en"></TS>\n')
    result = subprocess.run(
        [tool("lupdate"), "-silent", "-locations", "none", "-no-ui-lines", obsolete, "-I", "."]
        + [source for source in sources if (root / source).is_dir()]
        + ["-ts", *map(str, paths.values())],
        cwd=root, check=False, capture_output=True, text=True)
    if result.returncode != 0:
        raise SystemExit(result.stdout + result.stderr)
    for code, path in paths.items():
        path.write_text(without(path.read_text(), qt_texts(code)))


def mnemonics(text):
    """The keys behind single ampersands."""
    return [match[1] for match in MNEMONIC.finditer(text.replace("&&", ""))]


def tags(text):
    return sorted(match[0] for match in TAG.finditer(text))


def is_balanced(text):
    tag_stack = []
    for closing, name, empty in TAG.findall(text):
        if empty:
            continue
        if not closing:
            tag_stack.append(name)
        elif not tag_stack or tag_stack.pop() != name:
            return False
    return not tag_stack


def ending(text, kinds=ENDS):
    """Which kind of end a text has: the first of ENDS that fits, or none."""
    text = TAG.sub("", text).rstrip(RLM).rstrip().rstrip("".join((FSI, PDI)))
    for kind, marks in kinds:
        if text.endswith(tuple(marks)):
            return kind
    return ""


def blanks(text):
    text = text.rstrip(RLM)
    return text[:len(text) - len(text.lstrip(" \n"))], text[len(text.rstrip(" \n")):]


def faults(message, text, code):
    """What is wrong with one form of a translation."""
    source = message.source
    if not text:
        yield "is empty"
        return
    if sorted(ARGUMENT.findall(source)) != sorted(ARGUMENT.findall(text)):
        yield "has other arguments than the source"
    keys = mnemonics(text)
    if len(keys) != len(mnemonics(source)):
        yield "has another number of mnemonics than the source"
    for key in keys:
        if not key.isalnum():
            yield "has a mnemonic that is no letter or digit"
        elif code in APPENDED_MNEMONIC and f"(&{key})" not in text:
            yield "has its mnemonic inside the text instead of behind it"
    # No italics in scripts that have none.
    dropped = ITALICS if code in RIGHT_TO_LEFT and not set(tags(text)) & set(ITALICS) else ()
    if [tag for tag in tags(source) if tag not in dropped] != tags(text):
        yield "has other markup than the source"
    if not is_balanced(text):
        yield "has markup that is not closed"
    # A list is joined by what the language joins it by.
    if blanks(source) != blanks(text) and re.search(r"\w", source):
        yield "begins or ends with other blanks than the source"
    if ending(source) != ending(text):
        yield "ends in another kind of punctuation mark than the source"
    if message.source.count("\n") != text.count("\n"):
        yield "has another number of lines than the source"
    if text.count(FSI) != text.count(PDI):
        yield "opens and closes isolated runs unevenly"
    if code in RIGHT_TO_LEFT:
        for argument in set(ARGUMENT.findall(NUMBER.sub("", source))):
            if f"{FSI}{argument}{PDI}" not in text:
                yield f"does not isolate {argument} (U+2068, U+2069)"


def check_catalogue(path, code):
    """What is wrong with a catalogue by itself."""
    language = ElementTree.parse(path).getroot().get("language")
    if language != code:
        yield f"{path.name}: says that its language is {language}"
    for message in messages(path):
        name = f"{path.name}: {message.context}: \"{message.source}\""
        if message.kind:
            yield f"{name} is {message.kind}"
            continue
        for text in message.texts:
            for fault in faults(message, text, code):
                yield f"{name} {fault}"


def check(root, codes):
    for name, directory, sources in CATALOGUES:
        folder = root / directory
        found = {path.stem[len(name) + 1:] for path in folder.glob(f"{name}_*.ts")}
        for code in sorted(found ^ set(codes)):
            yield (f"{directory}: {name}_{code}.ts "
                   + ("is missing" if code in codes else "is not in RAVEL_LANGUAGES"))
        present = [code for code in codes if code in found]
        with tempfile.TemporaryDirectory() as temporary:
            fresh = pathlib.Path(temporary)
            for code in present:
                shutil.copy(folder / f"{name}_{code}.ts", fresh)
            update(root, name, fresh, sources, present)
            for code in present:
                file = f"{name}_{code}.ts"
                committed = {m[:5]: m for m in messages(folder / file)}
                current = {m[:5]: m for m in messages(fresh / file)}
                for key in committed.keys() - current.keys():
                    yield f"{file}: {key[0]}: \"{key[1]}\" is in no source"
                for key in current.keys() - committed.keys():
                    yield f"{file}: {key[0]}: \"{key[1]}\" is missing"
                for key in current.keys() & committed.keys():
                    if len(current[key].texts) != len(committed[key].texts):
                        yield f"{file}: {key[0]}: \"{key[1]}\" has not the language's plural forms"
        for code in present:
            yield from check_catalogue(folder / f"{name}_{code}.ts", code)


def languages(root):
    text = (root / "cmake/RavelTranslations.cmake").read_text()
    return re.search(r"set\(RAVEL_LANGUAGES ([^)]*)\)", text)[1].split()


def main():
    parser = argparse.ArgumentParser(description=__doc__,
                                     formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("command", choices=("update", "check"))
    parser.add_argument("--root", type=pathlib.Path,
                        default=pathlib.Path(__file__).resolve().parents[1])
    arguments = parser.parse_args()
    root = arguments.root.resolve()
    codes = languages(root)
    if arguments.command == "update":
        for name, directory, sources in CATALOGUES:
            update(root, name, root / directory, sources, codes)
        return 0
    found = sorted(set(check(root, codes)))
    for finding in found:
        print(finding)
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
