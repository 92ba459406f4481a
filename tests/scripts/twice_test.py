"""What sdk/build-twice says of builds that give the same from any folder, and of others."""
import os
import pathlib
import shutil
import subprocess
import tempfile
import unittest

ROOT = pathlib.Path(__file__).resolve().parents[2]

# Stands in for cmake: makes one program and one library in the folder that it is called in.
CMAKE = """#!/bin/bash
[ "$1" = --build ] || exit 0
mkdir -p build/release/bin build/release/lib
{program}
{library}
"""
PROGRAM = "echo program > build/release/bin/program.exe"

# Stands in for cpack: packs the library into the folder behind -B.
CPACK = """#!/bin/bash
mkdir -p "${@: -1}/_CPack_Packages/$RANDOM"
cat build/release/lib/library.a > "${@: -1}/ovoui-sdk.zip"
"""


class BuildTwice(unittest.TestCase):
    def run_with(self, library, what="all", program=PROGRAM):
        with tempfile.TemporaryDirectory() as name:
            folder = pathlib.Path(name)
            checkout, programs = folder / "checkout", folder / "programs"
            (checkout / "sdk").mkdir(parents=True)
            programs.mkdir()
            shutil.copy(ROOT / "sdk/build-twice", checkout / "sdk")
            for name, text in (("cmake", CMAKE.format(library=library, program=program)), ("cpack", CPACK)):
                (programs / name).write_text(text)
                (programs / name).chmod(0o755)
            done = subprocess.run([checkout / "sdk/build-twice", folder / "both", what], capture_output=True, text=True,
                                  check=False, env=dict(os.environ, PATH=f"{programs}:{os.environ['PATH']}",
                                                        SOURCE_DATE_EPOCH="1700000000"))
            return done.returncode, done.stdout + done.stderr

    def test_the_same(self):
        status, said = self.run_with("echo $SOURCE_DATE_EPOCH > build/release/lib/library.a")
        self.assertEqual(status, 0, said)
        self.assertIn("bin/program.exe", said)
        self.assertIn("lib/library.a", said)

    def test_a_file_that_knows_its_folder(self):
        status, said = self.run_with("pwd > build/release/lib/library.a")
        self.assertEqual(status, 1)
        self.assertIn("lib/library.a", said)
        self.assertNotIn("program.exe", said)
        self.assertIn("The two builds differ.", said)

    def test_a_file_that_one_build_alone_makes(self):
        status, said = self.run_with('case $PWD in */both/one) touch build/release/lib/library.a;; esac')
        self.assertEqual(status, 1)
        self.assertIn("library.a", said)

    def test_the_same_archives(self):
        status, said = self.run_with("echo $SOURCE_DATE_EPOCH > build/release/lib/library.a", "--archive")
        self.assertEqual(status, 0, said)
        self.assertIn("ovoui-sdk.zip", said)
        self.assertNotIn("_CPack_Packages", said)

    def test_archives_that_differ(self):
        status, said = self.run_with("pwd > build/release/lib/library.a", "--archive")
        self.assertEqual(status, 1)
        self.assertIn("ovoui-sdk.zip", said)
        self.assertIn("The two builds differ.", said)

    def test_builds_that_make_nothing(self):
        status, said = self.run_with("", program="")
        self.assertEqual(status, 1)
        self.assertIn("The builds have made nothing to compare.", said)

    def test_a_build_that_fails(self):
        status, said = self.run_with("echo no compiler; exit 1")
        self.assertEqual(status, 1)
        self.assertIn("no compiler", said)


if __name__ == "__main__":
    unittest.main()
