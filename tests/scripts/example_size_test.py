"""The examples stay short enough to be read: all files of one, scripts of resources and of CMake included. So does the host that
the first guide builds."""
import pathlib
import subprocess
import tempfile
import unittest

ROOT = pathlib.Path(__file__).resolve().parents[2]
EXAMPLES = ROOT / "examples"
MOST_LINES = 400
MOST_LINES_OF_THE_FIRST_HOST = 60


class Size(unittest.TestCase):
    def test_no_example_is_longer_than_can_be_read(self):
        folders = [path for path in EXAMPLES.iterdir() if path.is_dir()]
        self.assertEqual(len(folders), 3)
        for folder in folders:
            files = [path for path in folder.rglob("*") if path.is_file()]
            lines = sum(len(path.read_text(encoding="utf-8").splitlines()) for path in files)  # a picture is no text
            self.assertLessEqual(lines, MOST_LINES, folder.name)
            self.assertGreater(lines, 100, f"{folder.name} is empty")

    def test_the_first_host_has_as_many_lines_as_its_guide_says(self):
        lines = 0
        with tempfile.TemporaryDirectory() as folder:
            for name in ("host.cpp", "CMakeLists.txt"):
                taken = pathlib.Path(folder) / name
                subprocess.run([ROOT / "docs/tools/take-example", ROOT, "docs/guides/first-host.md", name, taken], check=True)
                lines += len(taken.read_text(encoding="utf-8").splitlines())
        self.assertLessEqual(lines, MOST_LINES_OF_THE_FIRST_HOST)


if __name__ == "__main__":
    unittest.main()
