"""The concerns of the tree keep apart: a source knows its own, and at most one other; and the control's public header shows what a
host uses, and little else."""
import pathlib
import re
import unittest

TREE = pathlib.Path(__file__).resolve().parents[2] / "ovoui" / "tree"
INCLUDE = re.compile(r"#include [<\"](?:ovoui/tree/)?(\w+)\.h[>\"]")
SCREEN = 50  # lines


def concerns():
    return {path.stem for path in TREE.glob("*.h") if "public Concern" in path.read_text(encoding="utf-8")}


def others(path, names):
    included = set(INCLUDE.findall(path.read_text(encoding="utf-8")))
    return (included & names) - {path.stem}


class Concerns(unittest.TestCase):
    def test_there_are_some(self):
        self.assertGreaterEqual(concerns(), {"Selection", "Mouse", "Expansion"})

    def test_no_source_includes_more_than_one_other(self):
        names = concerns()
        for path in sorted([*TREE.glob("*.cpp"), *TREE.glob("*.h")]):
            with self.subTest(path.name):
                self.assertLessEqual(len(others(path, names)), 1, others(path, names))

    def test_the_private_half_of_the_control_fits_on_one_screen(self):
        text = (TREE / "MultiTreeCtrl.h").read_text(encoding="utf-8")
        private = re.search(r"^private:\n.*?^};$", text, re.DOTALL | re.MULTILINE)[0]
        self.assertLessEqual(len(private.splitlines()), SCREEN)


if __name__ == "__main__":
    unittest.main()
