# SPDX-License-Identifier: LGPL-2.1-or-later
"""The files for desktops and readers of manuals: valid, and true of the programs that were built."""

import argparse
import re
import subprocess
import tempfile
import unittest
import xml.etree.ElementTree as ElementTree
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
DESKTOP = ROOT / "resources/desktop"
MANUALS = ROOT / "docs/man"
METAINFO = DESKTOP / "org.mvcalendar.Studio.metainfo.xml"
MIME_TYPE = "application/x-mvcalendar-project+xml"
options = argparse.Namespace()


def run(*command):
    """Output and errors together; a failed command raises with them."""
    result = subprocess.run([str(c) for c in command], stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True)
    if result.returncode:
        raise AssertionError(f"{' '.join(map(str, command))}\n{result.stdout}")
    return result.stdout


def options_in(text):
    return set(re.findall(r"(?<![\w-])--([a-z][a-z-]*)", text))


class Desktop(unittest.TestCase):
    def test_desktop_entry(self):
        entry = DESKTOP / "mvcalendar-studio.desktop"
        self.assertEqual(run("desktop-file-validate", entry), "")
        self.assertIn(f"MimeType={MIME_TYPE};", entry.read_text(encoding="utf-8"))

    def test_metainfo(self):
        run("appstreamcli", "validate", "--no-net", METAINFO)
        tree = ElementTree.parse(METAINFO)
        self.assertEqual(tree.findtext("launchable"), "mvcalendar-studio.desktop")
        self.assertIn(MIME_TYPE, [element.text for element in tree.iter("mediatype")])
        newest = tree.find("releases/release").get("version")
        for program in (options.cli, options.studio):
            self.assertEqual(run(program, "--version").split()[-1], newest)

    def test_mime_type(self):
        with tempfile.TemporaryDirectory() as folder:
            packages = Path(folder) / "packages"
            packages.mkdir()
            (packages / "mvcalendar.xml").write_bytes((DESKTOP / "mvcalendar.xml").read_bytes())
            run("update-mime-database", folder)
            globs = (Path(folder) / "globs2").read_text(encoding="utf-8")
            self.assertIn(f":{MIME_TYPE}:*.mvcalendar\n", globs)
            roots = (Path(folder) / "XMLnamespaces").read_text(encoding="utf-8")
            self.assertIn(f" calendarproject {MIME_TYPE}\n", roots)


class Manuals(unittest.TestCase):
    def plain(self, name):
        return re.sub(r".\x08", "", run("mandoc", "-T", "utf8", "-O", "width=200", MANUALS / name))

    def test_lint(self):
        for page in sorted(MANUALS.glob("*.1")):
            with self.subTest(page=page.name):
                self.assertEqual(run("mandoc", "-T", "lint", "-W", "warning", page), "")

    def test_command_line(self):
        text = self.plain("mvcalendar.1")
        commands = re.findall(r"^  ([a-z]+)  ", run(options.cli, "help").split("\n\n")[1], re.MULTILINE)
        self.assertIn("render", commands)
        known = {"help", "version"}
        for command in commands:
            helped = run(options.cli, "help", command)
            self.assertRegex(text, rf"\b{command}\b")
            known |= options_in(helped)
        self.assertGreater(len(known), 20)
        self.assertEqual(options_in(text), known)

    def test_studio(self):
        self.assertEqual(options_in(self.plain("mvcalendar-studio.1")), options_in(run(options.studio, "--help")))


if __name__ == "__main__":
    parser = argparse.ArgumentParser()
    parser.add_argument("--cli", type=Path, required=True)
    parser.add_argument("--studio", type=Path, required=True)
    options, rest = parser.parse_known_args()
    unittest.main(argv=[__file__, *rest])
