# SPDX-License-Identifier: LGPL-2.1-or-later
"""What the command line program asks the system for: test_libraries.py PROGRAM. A server has no windows."""

import re
import subprocess
import sys
import unittest
from pathlib import Path

PROGRAM = Path(sys.argv.pop())
WINDOWS = re.compile(r"MvCalendarWidgets|Qt6(Widgets|\w+Widgets|PrintSupport|Quick|Qml)")
SESSION = re.compile(r"Qt6DBus")  # the paint system itself brings it along; we do not ask for it


def needed(binary):
    dynamic = subprocess.run(["readelf", "-d", binary], capture_output=True, text=True, check=True).stdout
    return re.findall(r"\(NEEDED\).*\[(.*)\]", dynamic)


class Libraries(unittest.TestCase):
    def setUp(self):
        lines = subprocess.run(["ldd", PROGRAM], capture_output=True, text=True, check=True).stdout.splitlines()
        self.loaded = dict(line.split()[0:3:2] for line in lines if "=>" in line)

    def test_nothing_of_windows_is_loaded(self):
        self.assertIn("libMvCalendar.so.1", self.loaded)
        self.assertEqual([name for name in self.loaded if WINDOWS.search(name)], [])

    def test_no_session_is_asked_for(self):
        for binary in [PROGRAM, *(path for name, path in self.loaded.items() if name.startswith("libMv"))]:
            with self.subTest(binary):
                self.assertEqual([name for name in needed(binary) if SESSION.search(name)], [])


if __name__ == "__main__":
    unittest.main()
