# SPDX-License-Identifier: LGPL-2.1-or-later
"""Plants violations into small source trees and asks tools/check_includes to find them."""

import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

TOOL = Path(__file__).resolve().parents[2] / "tools" / "check_includes"

ROOMS = """mv_add_room(MvCalendar vocabulary INCLUDE MvCalendar
    PUBLIC MvName  # a word
    PRIVATE MvKey
)
mv_add_room(MvCalendar appearance INCLUDE MvCalendar
    PUBLIC MvLook
)
"""
GOOD = {
    "libs/MvCore/CMakeLists.txt": "mv_add_room(MvCalendar . INCLUDE MvCore PUBLIC MvMath MvA MvB)",
    "libs/MvXML/CMakeLists.txt": "mv_add_room(MvCalendarBase files INCLUDE MvXML PUBLIC MvBytes)\n"
                               "mv_add_room(MvCalendar . INCLUDE MvXML PUBLIC MvLoader MvA MvB)",
    "libs/MvXML/files/MvBytes.h": "",
    "libs/MvCalendar/CMakeLists.txt": ROOMS,
    "libs/MvCore/MvMath.h": "#include <QString>\n#include \"MvCore/mvcore_export.h\"\n",
    "libs/MvXML/MvLoader.h": '#include "MvCore/MvMath.h"\n#include "MvXML/mvxml_export.h"\n',
    "libs/MvCalendar/vocabulary/MvName.h": '#include "MvXML/MvLoader.h"\n',
    "libs/MvCalendar/vocabulary/MvName.cpp": '#include "MvCalendar/MvKey.h"\n',
    "libs/MvCalendar/vocabulary/MvKey.h": "",
    "libs/MvCalendar/appearance/MvLook.h": '#include "MvCalendar/MvName.h"\n',
    "libs/MvCalendar/appearance/MvLook.cpp": '#include "MvCalendar/MvLook.h"\n#include "MvCalendar/MvKey.h"\n',
    "apps/cli/main.cpp": '#include "MvCalendar/MvLook.h"\n#include "MvCommand.h"\n',
    "apps/cli/MvCommand.h": "",
}

# name, files over the good tree, words that the finding must hold (none: no finding)
CASES = [
    ("a tree in order", {}, []),
    ("upwards", {"libs/MvCore/MvMath.cpp": '#include "MvXML/MvLoader.h"\n'},
     ["libs/MvCore/MvMath.cpp:1", "MvCore must not look at MvXML"]),
    ("upwards, to a generated header", {"libs/MvCore/MvMath.cpp": '\n#include "MvXML/mvxml_export.h"\n'},
     ["libs/MvCore/MvMath.cpp:2", "must not look at MvXML"]),
    ("upwards in angle brackets", {"libs/MvCore/MvMath.cpp": "#  include <MvXML/MvLoader.h>\n"}, ["must not look at"]),
    ("sideways", {"libs/MvFoto/MvImage.h": '#include "MvProductBase/mvproductbase_export.h"\n'}, ["MvFoto must not look at"]),
    ("a library on a program", {"libs/MvXML/MvB.h": '#include "cli/MvCommand.h"\n'}, ["must not look at apps/cli"]),
    ("a program on another", {"apps/studio/main.cpp": '#include "cli/MvCommand.h"\n'},
     ["apps/studio must not look at apps/cli"]),
    ("a module nobody ordered", {"libs/MvNew/MvA.h": ""}, ["MvNew is in no order"]),
    ("a header that is not there", {"libs/MvXML/MvA.h": '#include "MvCore/MvGone.h"\n'}, ["MvGone.h does not exist"]),
    ("a room upwards", {"libs/MvCalendar/vocabulary/MvKey.h": '#include "MvCalendar/MvLook.h"\n'},
     ["libs/MvCalendar/vocabulary/MvKey.h:1", "the room vocabulary must not look at appearance"]),
    ("a library upwards", {"libs/MvXML/files/MvBytes.h": '#include "MvCore/MvMath.h"\n'},
     ["libs/MvXML/files/MvBytes.h:1", "MvCalendarBase must not look at MvCalendar (MvCore/MvMath.h)"]),
    ("a class in another room", {"libs/MvCalendar/vocabulary/MvLook.h": ""}, ["MvLook is not listed in the room vocabulary"]),
    ("a class in no list", {"libs/MvCalendar/MvStray.h": ""}, ["MvStray.h:1: MvStray is not listed in the room ."]),
    ("an installed header on one that is not",
     {"libs/MvCalendar/appearance/MvLook.h": '#include "MvCalendar/MvKey.h"\n'},
     ["MvLook.h is installed, MvCalendar/MvKey.h is not"]),
    ("a program's folder upwards",
     {"apps/studio/CMakeLists.txt": "add_library(A\n    pages/MvPage.cpp\n    window/MvWindow.cpp\n)\n",
      "apps/studio/pages/MvPage.cpp": '#include "window/MvWindow.h"\n', "apps/studio/window/MvWindow.h": ""},
     ["apps/studio/pages/MvPage.cpp:1: pages must not look at window"]),
    ("two headers in a circle",
     {"libs/MvCore/MvA.h": '#include "MvCore/MvB.h"\n', "libs/MvCore/MvB.h": '#include "MvA.h"\n'},
     ["cycle of files", "MvA.h -> libs/MvCore/MvB.h"]),
    ("modules in a circle", {"libs/MvCore/MvMath.cpp": '#include "MvXML/MvLoader.h"\n'},
     ["cycle of modules: MvXML -> MvCore -> MvXML"]),
]


class CheckIncludes(unittest.TestCase):
    def check(self, files):
        with tempfile.TemporaryDirectory() as folder:
            for name, text in files.items():
                path = Path(folder, name)
                path.parent.mkdir(parents=True, exist_ok=True)
                path.write_text(text, encoding="utf-8")
            return subprocess.run([sys.executable, TOOL, folder], capture_output=True, text=True)

    def test_findings(self):
        for name, files, words in CASES:
            with self.subTest(name):
                result = self.check(GOOD | files)
                self.assertEqual(result.returncode, 1 if words else 0, result.stdout + result.stderr)
                for word in words:
                    self.assertIn(word, result.stdout)

    def test_an_empty_tree_is_not_in_order(self):
        self.assertEqual(self.check({}).returncode, 2)


if __name__ == "__main__":
    unittest.main()
