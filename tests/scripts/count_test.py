"""What cmake/run-tests makes of the reports of test programs."""
import contextlib
import importlib.machinery
import importlib.util
import io
import pathlib
import tempfile
import unittest
import xml.etree.ElementTree as ElementTree

ROOT = pathlib.Path(__file__).resolve().parents[2]

PROGRESS = """[==========] Running 90 tests from 9 test suites.
[----------] Global test environment set-up.
[ RUN      ] Box.Opens
[       OK ] Box.Opens (12 ms)
[ RUN      ] Box.Closes
some/file.cpp:12: Failure
[  FAILED  ] Box.Closes (3 ms)
[ RUN      ] Box.IsSkipped
[  SKIPPED ] Box.IsSkipped (0 ms)
[ RUN      ] Box.Hangs
watchdog: the test has not ended within 60 s; the program is ended
"""

REPORT = """<testsuites tests="4"><testsuite name="Box">
<testcase name="Opens" status="run" result="completed"/>
<testcase name="Closes" status="run" result="completed"><failure message="no"/></testcase>
<testcase name="IsSkipped" status="run" result="skipped"/>
<testcase name="IsLeftOut" status="notrun" result="suppressed"/>
</testsuite></testsuites>"""


def load(path):
    loader = importlib.machinery.SourceFileLoader("run_tests", str(path))
    module = importlib.util.module_from_spec(importlib.util.spec_from_loader("run_tests", loader))
    loader.exec_module(module)
    return module


run_tests = load(ROOT / "cmake/run-tests")


class Counting(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.results = pathlib.Path(folder.name)
        self.counts = run_tests.Counts()

    def add(self, status, output="", report=None):
        if report:
            (self.results / "program.xml").write_text(report)
        run = ElementTree.Element("testcase", name="program", status=status)
        ElementTree.SubElement(run, "system-out").text = output
        self.counts.add_run(run, self.results)

    def numbers(self):
        return self.counts.passed, self.counts.failed, self.counts.skipped

    def said(self):
        out = io.StringIO()
        with contextlib.redirect_stdout(out):
            well = run_tests.report(self.counts)
        return well, out.getvalue().splitlines()

    def test_cases_of_a_report(self):
        self.add("fail", report=REPORT)
        self.assertEqual(self.numbers(), (1, 1, 1))

    def test_program_that_fails_though_its_cases_passed(self):
        self.add("fail", report='<testsuites><testcase name="a" status="run" result="completed"/></testsuites>')
        self.assertEqual(self.numbers(), (1, 1, 0))

    def test_program_without_cases(self):
        self.add("run")
        self.assertEqual(self.numbers(), (1, 0, 0))
        self.add("fail", output="no such file")
        self.assertEqual(self.numbers(), (1, 1, 0))

    def test_cases_that_a_program_did_not_get_to_have_failed(self):
        self.add("fail", output=PROGRESS)
        self.assertEqual(self.numbers(), (1, 2 + 86, 1))
        well, lines = self.said()
        self.assertFalse(well)
        self.assertEqual(lines[0], "program ended early, in Box.Hangs: 86 of 90 tests did not run")
        self.assertEqual(lines[-1], "1 passed, 88 failed")

    def test_program_that_ends_before_its_first_case(self):
        self.add("fail", output="[==========] Running 7 tests from 1 test suite.\n")
        self.assertEqual(self.counts.failed, 8)
        self.assertEqual(self.said()[1][0], "program ended early: 7 of 7 tests did not run")

    def test_output_that_mentions_the_words_of_a_report_is_none(self):
        self.add("fail", output=PROGRESS + "said [       OK ] in the middle\n  [  FAILED  ] 1 test, listed below:\n")
        self.assertEqual(self.numbers(), (1, 2 + 86, 1))

    def test_nothing_run_is_not_well(self):
        well, lines = self.said()
        self.assertFalse(well)
        self.assertEqual(lines, ["0 passed, 0 failed"])

    def test_all_passed_is_well(self):
        self.add("run")
        self.assertEqual(self.said(), (True, ["1 passed, 0 failed"]))


if __name__ == "__main__":
    unittest.main()
