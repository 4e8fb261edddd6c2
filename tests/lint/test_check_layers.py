#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 Ravel developers
# SPDX-License-Identifier: GPL-2.0-or-later
"""The layer check finds what it is there to find, and passes this tree."""
import pathlib
import sys
import tempfile
import unittest

ROOT = pathlib.Path(__file__).resolve().parents[2]
sys.path.insert(0, str(ROOT / "tools"))
sys.dont_write_bytecode = True
import check_layers  # noqa: E402


class CheckLayers(unittest.TestCase):
    def found(self, files):
        with tempfile.TemporaryDirectory() as name:
            root = pathlib.Path(name)
            for path, text in files.items():
                (root / path).parent.mkdir(parents=True, exist_ok=True)
                (root / path).write_text(text)
            return list(check_layers.violations(root))

    def test_this_tree_is_clean(self):
        self.assertEqual(list(check_layers.violations(ROOT)), [])

    def test_upward_include(self):
        self.assertEqual(self.found({"core/A.cpp": '#include "ui/RVStyle.h"\n'}),
                         ["core/A.cpp: core/ may not include ui/RVStyle.h"])

    def test_engine_sees_no_widget_of_the_framework(self):
        self.assertTrue(self.found({"repository/A.h": "#include <plume/WizardPage.h>\n"}))
        self.assertFalse(self.found({"repository/A.h": "#include <plume/LocaleString.h>\n"}))

    def test_formats_know_neither_network_nor_each_other(self):
        for header in ("network/XFtp.h", "repository/RVData.h", "archive/ArchiveDeb.h"):
            self.assertTrue(self.found({"descriptor/A.h": f'#include "{header}"\n'}))
        for header in ("network/XFtp.h", "repository/RVData.h", "descriptor/DescriptorDeb.h"):
            self.assertTrue(self.found({"archive/A.h": f'#include "{header}"\n'}))
        self.assertFalse(self.found({"archive/A.h": '#include "core/RVPaths.h"\n'}))

    def test_linter_stands_on_the_engine_alone(self):
        self.assertFalse(self.found({"lint/A.h": '#include "install/RVInstallProc.h"\n'}))
        self.assertTrue(self.found({"lint/A.h": '#include "cli/RVCtlText.h"\n'}))
        self.assertTrue(self.found({"install/A.h": '#include "lint/RVLintReport.h"\n'}))
        self.assertFalse(self.found({"cli/A.h": '#include "lint/RVLintReport.h"\n'}))

    def test_fences(self):
        self.assertTrue(self.found({"core/RVLogger.cpp": "#include <apt-pkg/error.h>\n"}))
        self.assertTrue(self.found({"core/RVInstalledPackages.h": "#include <apt-pkg/error.h>\n"}))
        self.assertFalse(self.found({"core/RVInstalledPackages.cpp": "#include <apt-pkg/error.h>\n"}))
        self.assertTrue(self.found({"ui/A.cpp": "#include <private/qobject_p.h>\n"}))

    def test_circle(self):
        found = self.found({"core/A.h": '#include "core/B.h"\n', "core/B.h": '#include "core/A.h"\n'})
        self.assertEqual(found, ["circle: core/A.h -> core/B.h -> core/A.h"])


if __name__ == "__main__":
    unittest.main()
