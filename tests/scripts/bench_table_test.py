"""The table that bench/all makes of what benchmarks print."""
import importlib.machinery
import importlib.util
import pathlib
import sys
import tempfile
import unittest
from unittest import mock

ROOT = pathlib.Path(__file__).resolve().parents[2]

OUTPUT = """
RATIOS select all
  TVM_SETITEM, 1000 [baseline]                                        1000000.0 ns     1.000
  selectAll, 1000 [at most 1.3]                                       1100000.0 ns     1.100
  TVM_SETITEM, 10000 [baseline]                                      12000000.0 ns     1.000
  selectAll, 10000 [at most 1.3]                                     24000000.0 ns     2.000
  private memory: 12 KB

RATIOS a message
  a switch                                                                 50.0 ns     1.000
  message map [at most 1.15]                                               54.0 ns     1.080
"""


def load(path):
    loader = importlib.machinery.SourceFileLoader("bench_all", str(path))
    module = importlib.util.module_from_spec(importlib.util.spec_from_loader("bench_all", loader))
    loader.exec_module(module)
    return module


sys.dont_write_bytecode = True
bench_all = load(ROOT / "bench/all")


class Table(unittest.TestCase):
    def setUp(self):
        patch = mock.patch.object(bench_all, "plot", lambda title, lines: title + ".png")
        patch.start()
        self.addCleanup(patch.stop)
        self.lines = bench_all.table({"bench_tree": OUTPUT})

    def test_rows_with_times_ratios_and_verdicts(self):
        self.assertIn("| TVM_SETITEM, 1000 | 1 ms | baseline |  |  |", self.lines)
        self.assertIn("| selectAll, 1000 | 1.1 ms | 1.10 | 1.3 | holds |", self.lines)
        self.assertIn("| selectAll, 10000 | 24 ms | 2.00 | 1.3 | **missed** |", self.lines)
        self.assertIn("| a switch | 50 ns | baseline |  |  |", self.lines)
        self.assertIn("private memory: 12 KB", self.lines)

    def test_what_is_missed_is_listed(self):
        self.assertEqual(self.lines[-1], "- select all: selectAll, 10000, 2.00 instead of 1.3")

    def test_a_picture_for_what_grows_and_no_other(self):
        self.assertIn("![select all](select all.png)", self.lines)
        self.assertFalse([line for line in self.lines if line.startswith("![a message")])

    def test_series(self):
        rows = bench_all.sections(OUTPUT)[0][1]
        self.assertEqual(bench_all.series(rows), {"TVM_SETITEM, N": [(1000, 1e6), (10000, 12e6)],
                                                  "selectAll, N": [(1000, 1.1e6), (10000, 24e6)]})


class Programs(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        root = pathlib.Path(folder.name)
        patch = mock.patch.object(bench_all, "ROOT", root)
        patch.start()
        self.addCleanup(patch.stop)
        self.programs = root / "build/bench/bin"
        self.programs.mkdir(parents=True)

    def add(self, name):
        (self.programs / name).touch()

    def test_those_that_others_start_are_not_run(self):
        for name in ("bench_empty_frame.exe", "bench_frame.exe", "bench_module_host.exe", "bench_tree.exe"):
            self.add(name)
        self.assertEqual(list(bench_all.programs([])), ["bench_frame", "bench_tree"])
        self.assertEqual(list(bench_all.programs(["bench_tree"])), ["bench_tree"])

    def test_a_name_that_no_program_has_is_refused(self):
        self.add("bench_tree.exe")
        with self.assertRaisesRegex(SystemExit, "bench_tre$"):
            bench_all.programs(["bench_tree", "bench_tre"])

    def test_one_that_fails_takes_no_other_with_it(self):
        command = lambda code: [sys.executable, "-c", f"import sys; print(sys.argv[1:]); raise SystemExit({code})"]
        results = []
        with mock.patch("builtins.print"):
            failed = bench_all.run({"first": command(3), "second": command(0)}, ["--samples", "9"],
                                   lambda name, output: results.append((name, output)))
        self.assertEqual(results, [("first", "['--samples', '9']\n"), ("second", "['--samples', '9']\n")])
        self.assertEqual(failed, ["first"])


if __name__ == "__main__":
    unittest.main()
