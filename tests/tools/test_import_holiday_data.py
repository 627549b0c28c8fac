# SPDX-License-Identifier: LGPL-2.1-or-later
"""Imports small collections and reads back what tools/import_holiday_data made of them."""

import json
import subprocess
import sys
import tempfile
import unittest
import xml.etree.ElementTree as ElementTree
from pathlib import Path

TOOL = Path(__file__).resolve().parents[2] / "tools" / "import_holiday_data"

FACTS = {"countries": [{
    "country": "ZZ", "language": "de", "name": "Land", "notes": ["a < b & c"],
    "regions": [{"code": "N", "name": "Norden"}, {"code": "N-1", "name": "Ort", "parent": "N", "language": "fr"}],
    "holidays": [
        {"name": "Tag \"A\"", "type": "public", "rule": "01-01", "regions": None, "from": None, "until": None},
        {"name": "Tag B", "type": "optional", "rule": "easter+1", "regions": ["N", "N-1"], "from": 1990, "until": 1999,
         "except": [1995, 1996], "partial": True, "names": {"fr": "Jour B"}}]}]}
VACATIONS = {
    "_about": {"ZZ": "about ZZ"},
    "ZZ": {"N": [{"name": "Später", "start": "2027-08-01", "end": "2027-08-02", "src": "odbl",
                  "names": {"fr": "Plus tard"}},
                 {"name": "Sommer", "start": "2026-07-01", "end": "2026-08-02", "names": {"fr": "Été", "en": "S"}},
                 {"name": "Winter", "start": "2026-02-01", "end": "2026-02-08", "names": {"fr": "Hiver"}},
                 {"name": "Winter", "start": "2027-02-01", "end": "2027-02-08", "names": {"fr": "Semaine blanche"}}],
           "N-1": [{"name": "Plage", "start": "2026-07-01", "end": "2026-08-02", "names": {"de": "Strand"}}]}}
OLD = {"_about": {"YY": "old"}, "YY": {"": [{"name": "Alt", "start": "2026-03-01", "end": "2026-03-02"}]}}
SHARED = {"_about": {"YY": "new"}, "XX": {"": []}, "YY": {"": [{"name": "Frei", "start": "2026-03-01", "end": "2026-03-02"}]}}


class ImportTest(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = Path(folder.name)
        self.out = self.folder / "out"
        for name, content in (("facts", FACTS), ("vacations", VACATIONS), ("old", OLD), ("shared", SHARED)):
            (self.folder / f"{name}.json").write_text(json.dumps(content), encoding="utf-8")
        self.run_tool(check=True)

    def run_tool(self, **how):
        return subprocess.run([sys.executable, TOOL, "--out", self.out, self.folder / "facts.json",
                               self.folder / "vacations.json", "--share-alike", self.folder / "old.json",
                               self.folder / "shared.json", "--vacations-of", "YY", "ZZ"], **how)

    def read(self, name):
        return ElementTree.parse(self.out / name).getroot()

    def test_one_file_per_kind(self):
        self.assertEqual(sorted(path.name for path in self.out.iterdir()),
                         ["ZZ.xml", "countries.xml", "vacations-YY-odbl.xml", "vacations-ZZ-odbl.xml",
                          "vacations-ZZ.xml"])

    def test_facts_are_taken_over(self):
        root = self.read("ZZ.xml")
        self.assertEqual(root.findtext("note"), "a < b & c")
        self.assertEqual([region.attrib for region in root.iter("region")], FACTS["countries"][0]["regions"])
        first, second = root.iter("holiday")
        self.assertEqual(first.attrib, {"name": "Tag \"A\"", "type": "public", "rule": "01-01"})
        self.assertEqual(second.attrib, {"name": "Tag B", "type": "optional", "rule": "easter+1", "regions": "N N-1",
                                         "from": "1990", "until": "1999", "except": "1995 1996", "partial": "true"})
        self.assertEqual(second.find("name").attrib, {"language": "fr", "text": "Jour B"})
        self.assertEqual(self.read("countries.xml").find("country").attrib,
                         {"code": "ZZ", "name": "Land", "languages": "de fr"})

    def test_share_alike_rows_stay_apart_with_their_attribution(self):
        free = self.read("vacations-ZZ.xml")
        self.assertEqual([row.get("name") for row in free.iter("vacation")], ["Winter", "Sommer", "Winter", "Plage"])
        self.assertIsNone(free.find("attribution"))
        for name, rows in (("vacations-ZZ-odbl.xml", ["Später"]), ("vacations-YY-odbl.xml", ["Frei"])):
            shared = self.read(name)
            self.assertEqual([row.get("name") for row in shared.iter("vacation")], rows)
            self.assertIn("Open Database License", shared.findtext("attribution"))
        self.assertEqual([note.text for note in shared.iter("note")], ["old", "new"])

    def test_names_are_kept_in_the_languages_of_the_country(self):
        free = self.read("vacations-ZZ.xml")
        common = {names.get("of"): [name.attrib for name in names] for names in free.iter("names")}
        self.assertEqual(common, {"Winter": [{"language": "fr", "text": "Hiver"}],
                                  "Sommer": [{"language": "fr", "text": "Été"}],
                                  "Plage": [{"language": "de", "text": "Strand"}]})
        self.assertEqual([[name.get("text") for name in row] for row in free.iter("vacation")],
                         [[], [], ["Semaine blanche"], []])
        vacations = self.folder / "vacations.json"
        vacations.write_text(vacations.read_text(encoding="utf-8").replace('"fr": "\\u00c9t\\u00e9", ', ""))
        refused = self.run_tool(capture_output=True, text=True)
        self.assertIn('ZZ: "Sommer" has no name in fr', refused.stderr)


if __name__ == "__main__":
    unittest.main()
