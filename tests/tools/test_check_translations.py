# SPDX-License-Identifier: LGPL-2.1-or-later
"""What tools/check_translations finds in a file of translations, and what it lets pass."""

import pathlib
import subprocess
import sys
import tempfile
import unittest

TOOL = pathlib.Path(__file__).resolve().parents[2] / "tools/check_translations"
CASES = [
    # context, source, translation element, expected words or "" where all is well
    ("MvA", "&amp;Öffnen…", "<translation>&amp;Open…</translation>", ""),
    ("MvA", "Bild &amp; Ton", "<translation>Picture &amp; sound</translation>", ""),
    ("MvA", "&lt;b&gt;%1&lt;/b&gt; von %2", "<translation>%2: &lt;b&gt;%1&lt;/b&gt;</translation>", ""),
    ("MvA", "Titel", '<translation type="unfinished">Title</translation>', "is unfinished"),
    ("MvA", "Titel", '<translation type="vanished">Title</translation>', "is vanished"),
    ("MvA", "Titel", "<translation> </translation>", "is empty"),
    ("MvA", "%1 von %2", "<translation>%1 of %1</translation>", "placeholders"),
    ("MvA", "Seite %1", "<translation>Page %2</translation>", "placeholders"),
    ("MvA", "&amp;Datei", "<translation>File</translation>", "mnemonics"),
    ("MvA", "Öffnen…", "<translation>Open</translation>", "ends with"),
    ("MvA", "Öffnen…", "<translation>Open...</translation>", "ends with"),
    ("MvA", "Name:", "<translation>Name</translation>", "ends with"),
    ("MvA", "Schuljahr ", "<translation>School year</translation>", "blanks"),
    ("MvA", "&lt;b&gt;x&lt;/b&gt;", "<translation>&lt;b&gt;x</translation>", "tags"),
    ("MvA", "„%1“", "<translation>„%1“</translation>", "quotation"),
    ("MvCalendariumRendererYear", "Schuljahr %1", "<translation>School year %1</translation>", "printed"),
]
NUMERUS = "<translation>{}</translation>"


class CheckTranslations(unittest.TestCase):
    def output_for(self, context, source, translation, attributes="", language="en"):
        with tempfile.TemporaryDirectory() as folder:
            file = pathlib.Path(folder) / "x.ts"
            file.write_text(
                f'<TS version="2.1" language="{language}"><context><name>{context}</name><message{attributes}>'
                f"<source>{source}</source>{translation}</message></context></TS>",
                encoding="utf-8",
            )
            result = subprocess.run([sys.executable, TOOL, "--file", file], capture_output=True, text=True, check=False)
            self.assertIn(result.returncode, (0, 1), result.stderr)
            return "" if result.returncode == 0 else result.stdout

    def test_single_texts(self):
        for context, source, translation, expected in CASES:
            with self.subTest(source=source, translation=translation):
                output = self.output_for(context, source, translation)
                self.assertIn(expected, output) if expected else self.assertEqual("", output)

    def test_numerus_forms(self):
        for language, forms, expected in (
            ("en", ["%n page", "%n pages"], ""),
            ("en", ["one page", "%n pages"], ""),
            ("en", ["%n page"], "numerus forms"),
            ("en", ["%n page", "%1 pages"], "placeholders"),
            ("de", ["%n „Seite“", "%n „Seiten“"], ""),
            ("de", ["%n Seite", "%n Blätter"], "source text itself"),
        ):
            with self.subTest(forms=forms):
                inner = "".join(f"<numerusform>{form}</numerusform>" for form in forms)
                output = self.output_for("MvA", "%n „Seiten“", NUMERUS.format(inner), ' numerus="yes"', language)
                self.assertIn(expected, output) if expected else self.assertEqual("", output)


if __name__ == "__main__":
    unittest.main()
