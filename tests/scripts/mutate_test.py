"""The faults that tests/mutate makes."""
import pathlib
import sys
import unittest

ROOT = pathlib.Path(__file__).resolve().parents[2]
sys.path.insert(0, str(ROOT / "tests" / "tools"))
from mutation import mutants  # noqa: E402


def results(source):
    return [mutant.apply(source) for mutant in mutants(source)]


class Mutants(unittest.TestCase):
    def test_operators(self):
        self.assertEqual(results("x = a + b;"), ["x = a - b;"])
        self.assertEqual(results("x = a <= b;"), ["x = a < b;"])
        self.assertEqual(results("x = a && b;"), ["x = a || b;"])

    def test_constants(self):
        self.assertEqual(results("x = 41;"), ["x = 42;"])
        self.assertEqual(results("x = 0.5;"), ["x = 1.5;"])
        self.assertEqual(results("x = true;"), ["x = false;"])

    def test_conditions(self):
        self.assertEqual(results("if (f(a))\n    b;"), ["if (!(f(a)))\n    b;"])

    def test_calls(self):
        self.assertEqual(results("{\n    update(a);\n}"), ["{\n    ;\n}"])
        self.assertEqual(results("{\n    return update(a);\n}"), [])

    def test_what_is_inert_stays(self):
        for source in ("// a + b", "/* 1 */", 'f = "1 + 1";', "c = '1';", "#if A == 1", "std::vector<int> a;", "T& b;", "T&& c;",
                       "static_assert(a == 3);", "name1 = L\"a < b\";"):
            self.assertEqual(results(source), [], source)

    def test_they_know_their_line(self):
        self.assertEqual([str(mutant) for mutant in mutants("a;\nb = 1;\n")], ["2: `1` becomes `2`"])


if __name__ == "__main__":
    unittest.main()
