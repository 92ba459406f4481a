"""When cmake/unless-unchanged runs a test again."""
import os
import pathlib
import subprocess
import tempfile
import unittest

COMMAND = pathlib.Path(__file__).resolve().parents[2] / "cmake/unless-unchanged"


class UnlessUnchanged(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)
        self.inputs = self.folder / "inputs"
        (self.inputs / "within").mkdir(parents=True)
        self.write("within/one", "1")
        self.extra = self.folder / "extra"
        self.extra.write_text("an input outside", encoding="ascii")
        self.runs = self.folder / "runs"

    def write(self, name, text):
        (self.inputs / name).write_text(text, encoding="ascii")

    def run_test(self, command="true", **environment):
        """Whether the command was run, and its status."""
        self.runs.unlink(missing_ok=True)
        own = {name: value for name, value in os.environ.items() if name != "OVO_ALL_TESTS"} | environment
        done = subprocess.run([COMMAND, self.folder / "passed/stamp", self.inputs, self.extra, "--", "sh", "-c",
                               f"touch {self.runs}; {command}"], env=own, capture_output=True, text=True, check=False)
        return self.runs.exists(), done.returncode

    def test_what_has_passed_is_not_run_again(self):
        self.assertEqual(self.run_test(), (True, 0))
        self.assertEqual(self.run_test(), (False, 0))

    def test_what_has_failed_is(self):
        self.assertEqual(self.run_test("exit 3"), (True, 3))
        self.assertEqual(self.run_test("exit 3"), (True, 3))

    def test_a_failure_makes_it_forget(self):
        self.run_test()
        self.write("within/one", "2")
        self.assertEqual(self.run_test("exit 1"), (True, 1))
        self.write("within/one", "1")
        self.assertEqual(self.run_test(), (True, 0))

    def test_any_change_of_an_input_counts(self):
        def changed(change):
            self.run_test()
            change()
            return self.run_test()[0]

        self.assertTrue(changed(lambda: self.write("within/one", "2")))
        self.assertTrue(changed(lambda: self.write("within/two", "")), "a new file")
        self.assertTrue(changed(lambda: (self.inputs / "within/two").unlink()), "a file that is gone")
        self.assertTrue(changed(lambda: (self.inputs / "within/one").rename(self.inputs / "one")), "another name")
        self.assertTrue(changed(lambda: self.extra.write_text("other", encoding="ascii")))
        self.assertFalse(changed(lambda: self.write("one", "2")), "the same content again")

    def test_another_command_is_run(self):
        self.run_test()
        self.assertEqual(self.run_test("true again"), (True, 0))

    def test_what_is_built_is_no_input(self):
        self.run_test()
        (self.inputs / "build").mkdir()
        self.write("build/one", "1")
        self.assertEqual(self.run_test(), (False, 0))

    def test_an_input_that_changes_meanwhile_counts_the_next_time(self):
        self.run_test(f"echo 3 > {self.inputs}/within/one")
        self.assertEqual(self.run_test(), (True, 0))

    def test_all_can_be_asked_for(self):
        self.run_test()
        self.assertEqual(self.run_test(OVO_ALL_TESTS="1"), (True, 0))

    def test_an_input_that_is_missing_fails(self):
        self.extra.unlink()
        self.assertNotEqual(self.run_test()[1], 0)


if __name__ == "__main__":
    unittest.main()
