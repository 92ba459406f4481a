"""tests/package/check-archive names all that an unpacked SDK lacks."""
import pathlib
import subprocess
import tempfile
import unittest

ROOT = pathlib.Path(__file__).resolve().parents[2]


class CheckArchive(unittest.TestCase):
    def said_of(self, folder, *options):
        done = subprocess.run([ROOT / "tests/package/check-archive", ROOT, folder, "1.2.3", *options], capture_output=True, text=True,
                              check=False)
        self.assertEqual((done.returncode, done.stderr), (1, ""))
        return done.stdout.splitlines()

    def test_what_is_missing_is_listed(self):
        with tempfile.TemporaryDirectory() as folder:
            lines = self.said_of(folder)
            for name in ("bin/ovoui.dll", "bin/libstdc++-6.dll", "bin/gallery.exe", "bin/ovo-update-lint.exe", "licences/ovoui.txt",
                         "licences/runtime/gcc-copyright.txt", "lib/cmake/ovoui/ovouiConfig.cmake", "lib/pkgconfig/ovoui.pc",
                         "lib/by-export-list/ovoui.lib", "include/ovoui/ovoui.h", "include/testkit/Robot.h",
                         "examples/folder-browser/CMakeLists.txt", "examples/palette-editor/CMakeLists.txt",
                         "examples/settings-dialog/CMakeLists.txt"):
                self.assertIn(f"{name} is missing", lines)
            self.assertNotIn("doc/index.html is missing", lines)
            (pathlib.Path(folder) / "bin").mkdir()
            (pathlib.Path(folder) / "bin/ovoui.dll").touch()
            self.assertNotIn("bin/ovoui.dll is missing", self.said_of(folder))

    def test_the_whole_archive_has_the_reference(self):
        with tempfile.TemporaryDirectory() as folder:
            lines = self.said_of(folder, "--whole")
            self.assertIn("doc/index.html is missing", lines)
            self.assertIn("doc/search/search.js is missing", lines)


if __name__ == "__main__":
    unittest.main()
