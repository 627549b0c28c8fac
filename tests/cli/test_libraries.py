# SPDX-License-Identifier: LGPL-2.1-or-later
"""What the command line program asks the system for: test_libraries.py PROGRAM MODULE. A server has no windows, a list
no pages, and what reads or writes a kind of file is loaded with the first of them."""

import os
import re
import shutil
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

MODULE = Path(sys.argv.pop())
PROGRAM = Path(sys.argv.pop())
WINDOWS = re.compile(r"MvCalendarWidgets|Qt6(Widgets|\w+Widgets|PrintSupport|Quick|Qml)")
PAGES = re.compile(r"libMvCalendar\.|MvProject|Qt6(?!Core)")
OF_FILES = re.compile(r"libheif|libqpdf|libzip|gnutls|libcrypto")
SESSION = re.compile(r"Qt6DBus")  # the paint system itself brings it along; we do not ask for it


def needed(binary):
    dynamic = subprocess.run(["readelf", "-d", binary], capture_output=True, text=True, check=True).stdout
    return re.findall(r"\(NEEDED\).*\[(.*)\]", dynamic)


def loaded(binary):
    lines = subprocess.run(["ldd", binary], capture_output=True, text=True, check=True).stdout.splitlines()
    return dict(line.split()[0:3:2] for line in lines if "=>" in line)


class Libraries(unittest.TestCase):
    def test_a_list_loads_nothing_of_pages(self):
        libraries = loaded(PROGRAM)
        self.assertIn("libMvCalendarBase.so.1", libraries)
        self.assertEqual([name for name in libraries if PAGES.search(name)], [])

    def test_pages_load_nothing_of_windows_or_files(self):
        libraries = loaded(MODULE)
        self.assertIn("libMvCalendar.so.1", libraries)
        self.assertEqual([name for name in libraries if WINDOWS.search(name) or OF_FILES.search(name)], [])

    def test_what_is_missing_is_named(self):
        """Programs and libraries without the modules that are loaded."""
        libraries = Path(loaded(PROGRAM)["libMvCalendarBase.so.1"]).resolve().parent
        with tempfile.TemporaryDirectory() as folder:
            for path in [PROGRAM, *libraries.glob("libMv*.so.1")]:
                shutil.copy(path, folder)
            page = ["render", "--months", "1", "-o", f"{folder}/page.pdf"]
            for modules, call, name in (((), ["colors"], "MvPages"), ((MODULE,), page, "MvPdf")):
                modules_folder = Path(folder, MODULE.parent.name)
                modules_folder.mkdir(exist_ok=True)
                for module in modules:
                    shutil.copy(module, modules_folder)
                run = subprocess.run([f"{folder}/{PROGRAM.name}", *call], capture_output=True, text=True,
                                     env=os.environ | {"LD_LIBRARY_PATH": folder})
                self.assertEqual(run.returncode, 1)
                self.assertRegex(run.stderr, rf"^mvcalendar: .*{modules_folder}/{name}\.so")
            self.assertFalse(Path(folder, "page.pdf").exists())

    def test_no_session_is_asked_for(self):
        for binary in [PROGRAM, MODULE, *(path for name, path in loaded(MODULE).items() if name.startswith("libMv"))]:
            with self.subTest(binary):
                self.assertEqual([name for name in needed(binary) if SESSION.search(name)], [])


if __name__ == "__main__":
    unittest.main()
