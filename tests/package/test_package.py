# SPDX-License-Identifier: LGPL-2.1-or-later
"""Installs the build into a temporary prefix and builds a stand-alone client against it, in both ways there are."""

import argparse
import os
import struct
import subprocess
import tempfile
import unittest
from pathlib import Path

CLIENT = Path(__file__).resolve().parent / "client"
options = argparse.Namespace()


def run(*command, **environment):
    result = subprocess.run([str(c) for c in command], capture_output=True, text=True, env=os.environ | environment)
    if result.returncode:
        raise AssertionError(f"{' '.join(map(str, command))}\n{result.stdout}{result.stderr}")
    return result.stdout


class Package(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.folder = tempfile.TemporaryDirectory()
        cls.addClassCleanup(cls.folder.cleanup)
        cls.work = Path(cls.folder.name)
        cls.prefix = cls.work / "prefix"
        run(options.cmake, "--install", options.build, "--prefix", cls.prefix)

    def pkg_config(self, *arguments):
        path = next(self.prefix.rglob("mvcalendar.pc")).parent
        return run("pkg-config", *arguments, "mvcalendar-project", PKG_CONFIG_PATH=str(path)).split()

    def assert_runs(self, program):
        libraries = next(self.prefix.rglob("libMvCalendar.so")).parent
        pdf = self.work / "client.pdf"
        self.addCleanup(pdf.unlink)
        self.assertEqual(run(program, pdf, LD_LIBRARY_PATH=str(libraries)), "12\n")
        self.assertTrue(pdf.read_bytes().startswith(b"%PDF-"))

    def test_cmake(self):
        build = self.work / "cmake"
        run(options.cmake, "-G", "Ninja", "-S", CLIENT, "-B", build, f"-DCMAKE_PREFIX_PATH={self.prefix}",
            f"-DCMAKE_CXX_COMPILER={options.compiler}", f"-DCMAKE_CXX_FLAGS={options.flags}")
        run(options.cmake, "--build", build)
        self.assert_runs(build / "client")

    def test_pkg_config(self):
        program = self.work / "client"
        run(options.compiler, *options.flags.split(), "-std=c++20", "-fPIC", CLIENT / "main.cpp", "-o", program,
            *self.pkg_config("--cflags", "--libs"))
        self.assert_runs(program)
        self.assertEqual(Path(*self.pkg_config("--variable=prefix")).resolve(), self.prefix.resolve())

    def test_desktop_finds_the_studio(self):
        share = self.prefix / "share"
        for file in ("applications/mvcalendar-studio.desktop", "mime/packages/mvcalendar.xml",
                     "metainfo/org.mvcalendar.Studio.metainfo.xml", "man/man1/mvcalendar.1",
                     "man/man1/mvcalendar-studio.1", "icons/hicolor/scalable/apps/mvcalendar-studio.svg"):
            self.assertTrue((share / file).is_file(), file)
        for size in (16, 24, 32, 48, 64, 128, 256):
            png = (share / f"icons/hicolor/{size}x{size}/apps/mvcalendar-studio.png").read_bytes()
            self.assertEqual(struct.unpack(">II", png[16:24]), (size, size))
        self.assertIn("mvcalendar-studio", run(self.prefix / "bin/mvcalendar-studio", "--version"))

    def test_no_build_path_remains(self):
        for path in [*self.prefix.rglob("*.cmake"), *self.prefix.rglob("*.pc")]:
            self.assertNotIn(str(options.build), path.read_text(encoding="utf-8"), path)
        for path in self.prefix.rglob("*.so.*.*.*"):
            self.assertNotIn(str(options.build), run("readelf", "-d", path), path)


if __name__ == "__main__":
    parser = argparse.ArgumentParser()
    for name in ("build", "cmake", "compiler", "flags"):
        parser.add_argument(f"--{name}", default="")
    options, rest = parser.parse_known_args()
    unittest.main(argv=[__file__, *rest])
