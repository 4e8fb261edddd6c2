#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 Ravel developers
# SPDX-License-Identifier: GPL-2.0-or-later
"""The check of the catalogues finds what it is there to find, and passes this tree."""
import pathlib
import shutil
import sys
import tempfile
import unittest

ROOT = pathlib.Path(__file__).resolve().parents[2]
sys.path.insert(0, str(ROOT / "tools"))
sys.dont_write_bytecode = True
import translations  # noqa: E402

CODES = translations.languages(ROOT)
GERMAN = "resources/translations/ravel_de.ts"
ARABIC = "resources/translations/ravel_ar.ts"


def message(source):
    return translations.Message("Context", source, "", "", False, "", [""])


class Tree(unittest.TestCase):
    """A copy of what the check reads, to be broken."""

    def setUp(self):
        self.directory = tempfile.TemporaryDirectory()
        self.addCleanup(self.directory.cleanup)
        self.root = pathlib.Path(self.directory.name)
        (self.root / "cmake").mkdir()
        shutil.copy(ROOT / "cmake/RavelTranslations.cmake", self.root / "cmake")
        for _, folder, sources in translations.CATALOGUES:
            for name in (folder, *sources):
                shutil.copytree(ROOT / name, self.root / name, dirs_exist_ok=True)

    def found(self):
        return sorted(set(translations.check(self.root, translations.languages(self.root))))

    def replace(self, path, old, new):
        text = (self.root / path).read_text()
        self.assertIn(old, text)
        (self.root / path).write_text(text.replace(old, new, 1))

    def test_this_tree_is_clean(self):
        self.assertEqual(self.found(), [])

    def test_a_new_text(self):
        self.replace("ui/RVControlFrame.cpp", 'tr("&Retry")', 'tr("&Once more")')
        found = self.found()
        for code in CODES:
            self.assertIn(f'ravel_{code}.ts: RVControlFrame: "&Once more" is missing', found)
            self.assertIn(f'ravel_{code}.ts: RVControlFrame: "&Retry" is in no source', found)

    def test_a_new_note_for_translators(self):
        self.replace("ui/RVControlFrame.cpp", 'tr("&Retry")', 'tr("&Retry", "the button")')
        self.assertEqual(len(self.found()), 2 * len(CODES))

    def test_a_new_text_of_the_host(self):
        self.replace("host/HostWindow.cpp", 'tr("&Quit")', 'tr("&Leave")')
        self.assertIn('ravel-host_de.ts: HostWindow: "&Leave" is missing', self.found())

    def test_a_certificate_error_that_qt_lacks(self):
        self.replace("ui/CertDialog.cpp", "The certificate has expired", "The certificate is old")
        self.assertIn('ravel_de.ts: QSslSocket: "The certificate is old" is missing', self.found())

    def test_an_unfinished_text(self):
        self.replace(GERMAN, "<translation>Abbrechen", '<translation type="unfinished">Abbrechen')
        self.assertEqual(self.found(), ['ravel_de.ts: BusyDialog: "Cancel" is unfinished'])

    def test_a_text_that_is_gone(self):
        self.replace(GERMAN, "<translation>Abbrechen", '<translation type="vanished">Abbrechen')
        self.assertTrue(self.found())

    def test_a_plural_form_too_few(self):
        text = (self.root / ARABIC).read_text()
        begin = text.index("            <numerusform>")
        end = text.index("\n", begin) + 1
        (self.root / ARABIC).write_text(text[:begin] + text[end:])
        self.assertTrue([line for line in self.found() if "plural forms" in line])

    def test_a_catalogue_that_is_missing(self):
        (self.root / GERMAN).unlink()
        self.assertIn("resources/translations: ravel_de.ts is missing", self.found())

    def test_a_catalogue_that_is_not_built(self):
        shutil.copy(self.root / GERMAN, self.root / "resources/translations/ravel_fi.ts")
        self.assertEqual(self.found(),
                         ["resources/translations: ravel_fi.ts is not in RAVEL_LANGUAGES"])

    def test_a_catalogue_of_another_language(self):
        self.replace(GERMAN, 'language="de"', 'language="nl"')
        self.assertIn("ravel_de.ts: says that its language is nl", self.found())

    def test_update_repairs(self):
        self.replace("ui/RVControlFrame.cpp", 'tr("&Retry")', 'tr("&Once more")')
        for name, folder, sources in translations.CATALOGUES:
            translations.update(self.root, name, self.root / folder, sources, CODES)
        self.assertEqual({line.rsplit(" ", 1)[1] for line in self.found()}, {"unfinished"})
        self.assertEqual(len(self.found()), len(CODES))

    def test_update_changes_nothing_here(self):
        before = {path: path.read_text() for path in self.root.rglob("*.ts")}
        for name, folder, sources in translations.CATALOGUES:
            translations.update(self.root, name, self.root / folder, sources, CODES)
        self.assertEqual({path: path.read_text() for path in self.root.rglob("*.ts")}, before)


class Faults(unittest.TestCase):
    ROWS = (
        # what, language, source, translation, finding
        ("nothing", "de", "Cancel", "", "is empty"),
        ("argument lost", "de", "For '%1'.", "Für.", "other arguments"),
        ("argument added", "de", "Done.", "%1 fertig.", "other arguments"),
        ("argument twice", "de", "For '%1'.", "„%1“, „%1“.", "other arguments"),
        ("argument changed", "de", "%1 of %2", "%1 von %3", "other arguments"),
        ("count lost", "de", "and %n more", "und mehr", "other arguments"),
        ("format of a bar lost", "de", "%v of %m KiB", "%v KiB", "other arguments"),
        ("mnemonic lost", "de", "&Install", "Installieren", "number of mnemonics"),
        ("mnemonic added", "de", "Cancel", "&Abbrechen", "number of mnemonics"),
        ("mnemonic twice", "de", "&Install", "&Instal&lieren", "number of mnemonics"),
        ("mnemonic before a blank", "de", "&All of it", "Alles& davon", "no letter or digit"),
        ("mnemonic in a character", "ja", "&Install", "&インストール", "instead of behind"),
        ("tag lost", "de", "<b>Title</b>", "Titel", "other markup"),
        ("tag changed", "de", "<b>Title</b>", "<i>Titel</i>", "other markup"),
        ("tag added", "de", "Title", "<b>Titel</b>", "other markup"),
        ("italics lost", "de", "<i>None.</i>", "Keine.", "other markup"),
        ("half of the italics lost", "ar", "<i>None.</i>", "<i>لا شيء.", "other markup"),
        ("tag not closed", "de", "<b><i>T</i></b>", "<b><i>T</b></i>", "not closed"),
        ("blank at the end lost", "de", "Name:  ", "Name:", "other blanks"),
        ("blank at the end added", "de", "Name", "Name ", "other blanks"),
        ("blank at the start added", "de", "Name", " Name", "other blanks"),
        ("colon lost", "de", "Name:", "Name", "punctuation"),
        ("full stop lost", "de", "Failed.", "Misslungen", "punctuation"),
        # The dialog puts one behind it.
        ("full stop added", "zh_CN", "It has expired", "证书已过期。", "punctuation"),
        ("question mark lost", "fr", "Valid?", "Valide.", "punctuation"),
        ("dots lost", "de", "Working...", "Läuft.", "punctuation"),
        ("line lost", "de", "Installed\nVersion", "Version", "number of lines"),
        ("address not isolated", "ar", "For '%1'.", "«%1».", "isolate %1"),
        ("second one not isolated", "he", "%1 '%2'", "\u2068%1\u2069 %2", "isolate %2"),
        ("isolated run left open", "de", "For %1", "Für \u2068%1", "unevenly"),
    )
    SOUND = (
        ("plain", "de", "Cancel", "Abbrechen"),
        ("arguments in another order", "de", "%1 of %2", "%2: %1"),
        ("mnemonic behind the text", "ja", "&Install", "インストール(&I)"),
        ("mnemonic of another script", "ru", "&Install", "&Установить"),
        ("an ampersand as such", "de", "A && B", "A && B"),
        ("wide colon", "zh_CN", "Name:  ", "名称：  "),
        ("spaced colon", "fr", "Name:  ", "Nom\u00a0:  "),
        ("ellipsis", "de", "Working...", "Läuft\u00a0…"),
        ("wide question mark", "zh_CN", "Valid?", "是否有效？"),
        ("Arabic question mark", "ar", "Valid?", "صالح؟"),
        ("isolated address", "ar", "For '%1'.", "«\u2068%1\u2069»."),
        ("no italics in Arabic", "ar", "<i>None.</i>", "لا شيء."),
        ("mark behind the last blank", "ar", "Name: ", "الاسم: \u200f"),
        ("number as it is", "ar", "%1 KiB", "%1 ك.بايت"),
        ("list of another script", "ja", ", ", "、"),
    )

    def test_faults(self):
        for what, code, source, translation, finding in self.ROWS:
            with self.subTest(what):
                faults = list(translations.faults(message(source), translation, code))
                self.assertTrue([fault for fault in faults if finding in fault], faults)

    def test_sound(self):
        for what, code, source, translation in self.SOUND:
            with self.subTest(what):
                self.assertEqual(
                    list(translations.faults(message(source), translation, code)), [])


if __name__ == "__main__":
    unittest.main()
