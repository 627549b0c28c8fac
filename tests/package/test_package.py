# SPDX-License-Identifier: LGPL-2.1-or-later
"""Installs the build, packs it and makes it part of another project; builds and runs a stand-alone client of each."""

import argparse
import os
import shutil
import struct
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

CLIENT = Path(__file__).resolve().parent / "client"
PARENT = Path(__file__).resolve().parent / "parent"
SOURCE = Path(__file__).resolve().parents[2]
options = argparse.Namespace()


def run(*command, **environment):
    result = subprocess.run([str(c) for c in command], capture_output=True, text=True, env=os.environ | environment)
    if result.returncode:
        raise AssertionError(f"{' '.join(map(str, command))}\n{result.stdout}{result.stderr}")
    return result.stdout


def assert_prints(test, program, prefix):
    """The client prints a calendar with the libraries of the prefix."""
    libraries = next(prefix.rglob("libMvCalendar.so.1")).parent
    with tempfile.TemporaryDirectory() as folder:
        pdf = Path(folder) / "client.pdf"
        test.assertEqual(run(program, pdf, LD_LIBRARY_PATH=str(libraries)), "12\n")
        test.assertTrue(pdf.read_bytes().startswith(b"%PDF-"))


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

    def test_pkg_config(self):
        program = self.work / "client"
        run(options.compiler, *options.flags.split(), "-std=c++20", "-fPIC", CLIENT / "main.cpp", "-o", program,
            *self.pkg_config("--cflags", "--libs"))
        assert_prints(self, program, self.prefix)
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
        for path in [*self.prefix.rglob("*.so.*.*.*"), *self.prefix.rglob("mvcalendar-*/*.so")]:
            self.assertNotIn(str(options.build), run("readelf", "-d", path), path)

    def test_licences_come_along(self):
        folder = self.prefix / "share/doc/mvcalendar"
        licence = (folder / "LICENSE").read_text(encoding="utf-8").splitlines()[0].split()[-1]
        for name in (licence, "ODbL-1.0", "OFL-1.1"):
            self.assertTrue((folder / f"LICENSES/{name}.txt").is_file(), name)

    def test_part_of_another_project(self):
        build = self.work / "parent"
        run(options.cmake, "-G", "Ninja", "-S", PARENT, "-B", build, f"-DMV_SOURCE={SOURCE}",
            f"-DCMAKE_CXX_COMPILER={options.compiler}")
        rules = (build / "build.ninja").read_text(encoding="utf-8")
        self.assertIn("libMvProject.so", rules)
        for unasked in ("-Werror", "bin/mvcalendar", "tst_", "MvCalendarDesignerPlugin"):
            self.assertNotIn(unasked, rules)
        self.assertLessEqual({path.name for path in build.iterdir() if path.is_dir()}, {"CMakeFiles", "calendar", ".qt"})
        run(options.cmake, "--install", build, "--prefix", self.work / "nothing")
        self.assertFalse((self.work / "nothing").exists())


@unittest.skipIf("sanitize" in " ".join(sys.argv), "nobody packs what a sanitizer watches")
@unittest.skipUnless(shutil.which("dpkg-shlibdeps"), "no Debian system")
class DebianPackages(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        folder = tempfile.TemporaryDirectory()
        cls.addClassCleanup(folder.cleanup)
        cls.work = Path(folder.name)
        run(Path(options.cmake).parent / "cpack", "--config", Path(options.build) / "CPackConfig.cmake", "-B", cls.work)
        cls.packages = {path.name.split("_")[0]: path for path in cls.work.glob("*.deb")}
        for package in cls.packages.values():
            run("dpkg-deb", "-x", package, cls.work / "root")

    def field(self, package, name):
        return run("dpkg-deb", "-f", self.packages[package], name).strip()

    def test_what_needs_what(self):
        self.assertEqual(set(self.packages), {"libmvcalendar1", "libmvcalendarwidgets1", "libmvcalendar-dev", "mvcalendar",
                                              "mvcalendar-studio"})
        version = self.field("libmvcalendar1", "Version")
        for package in set(self.packages) - {"libmvcalendar1"}:
            self.assertIn(f"libmvcalendar1 (= {version})", self.field(package, "Depends"), package)
        for package in ("libmvcalendar1", "mvcalendar"):
            self.assertNotRegex(self.field(package, "Depends"), "widgets", package)
            self.assertRegex(self.field(package, "Depends"), "libqt6gui6", package)
        self.assertRegex(self.field("libmvcalendar1", "Depends"), "(?=.*libqpdf)(?=.*libzip)(?=.*libheif)")

    def test_papers(self):
        for package in self.packages:
            folder = self.work / f"root/usr/share/doc/{package}"
            self.assertIn("SIL OPEN FONT LICENSE", (folder / "copyright").read_text(encoding="utf-8"))
            self.assertTrue((folder / "changelog.Debian.gz").is_file())

    def test_programs_and_client_run(self):
        prefix = self.work / "root/usr"
        libraries = next(prefix.rglob("libMvCalendar.so.1")).parent
        for program in ("mvcalendar", "mvcalendar-studio"):
            self.assertNotIn("RUNPATH", run("readelf", "-d", prefix / "bin" / program))
            self.assertIn(program, run(prefix / "bin" / program, "--version", LD_LIBRARY_PATH=str(libraries)))
        self.assertIn("OFFICE_RED", run(prefix / "bin/mvcalendar", "colors", LD_LIBRARY_PATH=str(libraries)))
        build = self.work / "client"
        run(options.cmake, "-G", "Ninja", "-S", CLIENT, "-B", build, f"-DCMAKE_PREFIX_PATH={prefix}",
            f"-DCMAKE_CXX_COMPILER={options.compiler}", f"-DCMAKE_CXX_FLAGS={options.flags}")
        run(options.cmake, "--build", build)
        assert_prints(self, build / "client", prefix)

    @unittest.skipUnless(shutil.which("lintian"), "lintian is not installed")
    def test_lintian(self):
        run("lintian", "--allow-root", "--fail-on", "error", *self.packages.values())


if __name__ == "__main__":
    parser = argparse.ArgumentParser()
    for name in ("build", "cmake", "compiler", "flags"):
        parser.add_argument(f"--{name}", default="")
    options, rest = parser.parse_known_args()
    unittest.main(argv=[__file__, *rest])
