"""What is there because of Wine: behind switches that tests set to either side, and told of in docs/wine.md, which marks
each of its statements about Windows."""
import pathlib
import re
import unittest

ROOT = pathlib.Path(__file__).resolve().parents[2]
SWITCH = re.compile(r"^\s*bool (\w+);", re.MULTILINE)
MARK = re.compile(r"\*\((?:documented|assumed)\)\*")
# Places that ask whether the program runs under Wine: the switches, and the dialog that tells of the machine.
ASKING = {"ovoui/frame/Platform.cpp", "ovoui/sysinfo/MachineInfo.cpp"}


def switches():
    return SWITCH.findall((ROOT / "ovoui/frame/Platform.h").read_text(encoding="utf-8"))


def statements(page):
    """The sentences of a page behind its introduction, each in one line."""
    body = page.split("\n## ", 1)[1]
    for block in re.split(r"\n\s*\n|\n(?=- |## )", body):
        text = " ".join(block.split())
        yield from re.split(r"(?<=[.:])\s+(?=[A-Z`*])", text)


def unmarked(page):
    return [text for text in statements(page) if re.search(r"\bWindows\b", text) and not MARK.search(text)]


class Platform(unittest.TestCase):
    def test_wine_is_asked_for_in_one_place(self):
        asking = {path.relative_to(ROOT).as_posix() for path in (ROOT / "ovoui").rglob("*.cpp")
                  if "wine_get_version" in path.read_text(encoding="utf-8")}
        self.assertEqual(asking, ASKING)

    def test_each_switch_is_set_to_both_sides(self):
        self.assertGreater(len(switches()), 4)
        tests = "\n".join(path.read_text(encoding="utf-8") for path in (ROOT / "tests").rglob("*.cpp"))
        for switch in switches():
            with self.subTest(switch):
                values = set(re.findall(rf"->{switch} = (\w+|GetParam\(\));", tests))
                self.assertTrue(values & {"GetParam()"} or values >= {"true", "false"}, values)

    def test_each_switch_is_told_of(self):
        page = (ROOT / "docs/wine.md").read_text(encoding="utf-8")
        for switch in switches():
            with self.subTest(switch):
                self.assertIn(f"`Platform::{switch}`", page)

    def test_what_is_a_statement_without_a_mark(self):
        page = "# Title\nAbout Windows.\n\n## Part\n- **One.** Wine does. On Windows it is so *(assumed)*.\n- On Windows\n  it is not.\n"
        self.assertEqual(unmarked(page), ["- On Windows it is not."])

    def test_statements_about_windows_are_marked(self):
        self.assertEqual(unmarked((ROOT / "docs/wine.md").read_text(encoding="utf-8")), [])


if __name__ == "__main__":
    unittest.main()
