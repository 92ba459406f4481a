"""The table of call-outs in docs/testing.md: it names whatever the public headers let a host override or hand over, each
row names tests that exist, and each call-out is tried by all kinds of exceptions."""
import pathlib
import re
import unittest

ROOT = pathlib.Path(__file__).resolve().parents[2]
NOT_EXPORTED = re.compile(r"^///? ?Not exported")
INCLUDE = re.compile(r"#include [<\"](ovoui/[^>\"]+)[>\"]")
OVERRIDABLE = re.compile(r"\bvirtual\s[^;{(]*?\b(\w+)\s*\(")
HANDED_OVER = re.compile(r"std::function<[^;]*?>\s+(\w+)\s*[,;)=]")
CALLBACK = re.compile(r"\busing (\w+) = (?:std::function<|[^;]*\(\*\)\()")
DESTRUCTOR = re.compile(r"\bvirtual ~\w+")
COMMENT = re.compile(r"//[^\n]*")
# In tests that go through Raising::kinds(): where a host raises, and where a test or its table arms it
RAISED = re.compile(r'(?:Raising::here|\bwith)\("(\w+)"')
ARMED = re.compile(r'(?:\{|\bRaising \w+\()"(\w+)"')
# The handlers of the classic file dialog, which a table there names without "On"
HANDLERS = re.compile(r"ClassicDialogEvent kClassicEvents\[\] = \{\n(.*?)\n\};", re.S)
NOT_CALLED = re.compile(r"^The library does not call these: (.*?)\n\n", re.M | re.S)
TEST = re.compile(r"\bTEST(?:_[FP])?\((\w+),\s*(\w+)\)")


def call_outs(header):
    """Names of what a header lets a host override or hand over."""
    code = DESTRUCTOR.sub("", COMMENT.sub("", header))
    return {name for pattern in (OVERRIDABLE, HANDED_OVER, CALLBACK) for name in pattern.findall(code)}


def public_headers():
    """ovoui.h and what it includes, but for what says that it is not exported."""
    found, open_ones = {}, ["ovoui/ovoui.h"]
    while open_ones:
        name = open_ones.pop()
        text = (ROOT / name).read_text(encoding="utf-8")
        if name in found or "/core/" in name or NOT_EXPORTED.match(text):
            continue
        found[name] = text
        open_ones += INCLUDE.findall(text)
    return found


def section():
    text = (ROOT / "docs" / "testing.md").read_text(encoding="utf-8")
    return text.split("\n## Call-outs\n")[1].split("\n## ")[0]


def held_by():
    """For each row of the table the tests in its last column."""
    lines = [line for line in section().splitlines() if line.startswith("| ")]
    for line in lines[1:]:
        cells = [cell.strip() for cell in line.strip("|").split("|")]
        yield cells[0], re.findall(r"`([\w.]+)`", cells[-1])


def raised_by_all_kinds():
    """Names of the call-outs that tests let raise each kind of exception. A test's scenes stand in its folder."""
    tests = [path for path in (ROOT / "tests").rglob("*.cpp") if path.parent.name != "support"]
    folders = {path.parent for path in tests if "Raising::kinds()" in path.read_text(encoding="utf-8")}
    text = "".join(path.read_text(encoding="utf-8") for path in tests if path.parent in folders)
    handlers = re.findall(r'^    \{"(\w+)"', HANDLERS.search(text)[1], re.M)
    armed = set(RAISED.findall(text)) & set(ARMED.findall(text))
    return armed | {f"On{name}{end}" for name in handlers for end in ("", "Notify")}


def not_called():
    """What the section says is no call-out, though a header looks like it."""
    return set(re.findall(r"`(\w+)`", NOT_CALLED.search(section())[1]))


class CallOuts(unittest.TestCase):
    def test_finds_all_kinds(self):
        self.assertEqual(call_outs("virtual bool a(int) = 0;\nvirtual ~B();\nvoid c(std::function<void(int)> d);\n"
                                   "using E = std::function<int(X& x)>;\nusing F = LRESULT (*)(X*);\n// virtual g()\n"),
                         {"a", "d", "E", "F"})

    def test_every_one_is_listed(self):
        listed = set(re.findall(r"`(\w+)`", section()))
        missing = {f"{path}: {name}" for path, text in public_headers().items()
                   for name in call_outs(text) if name not in listed}
        self.assertEqual(missing, set())

    def test_every_one_is_tried_by_all_kinds(self):
        tried = raised_by_all_kinds() | not_called()
        missing = {f"{path}: {name}" for path, text in public_headers().items() for name in call_outs(text) - tried}
        self.assertEqual(missing, set())

    def test_what_is_not_called_is_not_tried(self):
        self.assertEqual(not_called() & raised_by_all_kinds(), set())

    def test_the_tests_of_each_row_exist(self):
        tests = set()
        for path in (ROOT / "tests").rglob("*.cpp"):
            for suite, name in TEST.findall(path.read_text(encoding="utf-8")):
                tests |= {suite, f"{suite}.{name}"}
        table = dict(held_by())
        self.assertGreater(len(table), 15)
        self.assertEqual({row for row, names in table.items() if not names}, set())
        self.assertEqual({name for names in table.values() for name in names} - tests, set())


if __name__ == "__main__":
    unittest.main()
