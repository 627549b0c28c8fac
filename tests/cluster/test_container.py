# SPDX-License-Identifier: LGPL-2.1-or-later
"""The container's root file system, built as for a container, prints what this computer prints.

test_container.py BUILD_FOLDER
"""

import os
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

import orders

BUILD = Path(sys.argv.pop()).resolve()
TOOLS = Path(__file__).resolve().parents[2] / "tools" / "container"
CALENDAR = ("render", "--year", "2027", "--region", "BY", "--vacations")


def run(*command, **options):
    result = subprocess.run([str(word) for word in command], capture_output=True, text=True, **options)
    if result.returncode:
        raise AssertionError(f"{' '.join(map(str, command))}\n{result.stdout}{result.stderr[-3000:]}")
    return result.stdout


class Container(unittest.TestCase):
    def test_prints_the_same(self):
        orders.need("mmdebstrap", "dpkg-deb", "chroot")
        if os.geteuid() != 0:
            self.skipTest("only root changes the root folder")
        with tempfile.TemporaryDirectory() as name:
            folder = Path(name)
            run("cpack", "--config", BUILD / "CPackConfig.cmake", "-B", folder / "packages", "-D",
                "CPACK_COMPONENTS_ALL=engine;tools")
            run(TOOLS / "make_image", folder / "packages", folder / "image.tar")
            root = folder / "root"
            root.mkdir()
            run("tar", "-xf", folder / "image.tar", "-C", root, "--exclude=./dev/*")
            for needless in ("libQt6Widgets.so*", "libLLVM*.so*", "libz3.so*", "libperl.so*"):
                self.assertEqual([str(path) for path in root.rglob(needless)], [])
            environment = {"SOURCE_DATE_EPOCH": "1800000000", "LANG": "C.UTF-8", "XDG_CACHE_HOME": "/tmp/cache",
                           "PATH": "/usr/bin:/bin:/usr/sbin"}
            inside = ("chroot", "--userspec=1000:1000", root, "/usr/bin/mvcalendar")
            run(*inside, *CALENDAR, "-o", "/work/calendar.pdf", env=environment)
            run(BUILD / "bin" / "mvcalendar", *CALENDAR, "--no-config", "-o", folder / "calendar.pdf", env=environment)
            self.assertEqual((root / "work/calendar.pdf").read_bytes(), (folder / "calendar.pdf").read_bytes())
            order = '{"year": 2027, "months": 2, "output": "/work/batch-%m.png", "dpi": 50}\n'
            self.assertIn('"state":"done"', run(*inside, "batch", "-", input=order, env=environment))
            self.assertEqual(len(list((root / "work").glob("batch-*.png"))), 2)


if __name__ == "__main__":
    unittest.main()
