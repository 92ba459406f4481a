"""The commands run, test and package in a small checkout: what they say where they cannot go on, and two at a time."""
import os
import pathlib
import shutil
import signal
import subprocess
import tempfile
import textwrap
import time
import unittest

ROOT = pathlib.Path(__file__).resolve().parents[2]
NOBODY = 65534
PATIENCE = 30  # seconds for what takes none on a machine that is not busy


class Checkout(unittest.TestCase):
    """A folder with the commands, and a PATH on which programs that change the machine or take long are replaced."""

    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        top = pathlib.Path(folder.name)
        top.chmod(0o755)
        self.root = top / "checkout"
        self.programs = top / "programs"
        (self.root / "cmake").mkdir(parents=True)
        self.programs.mkdir()
        for name in ("run", "test", "package", "cmake/setup.sh"):
            shutil.copy(ROOT / name, self.root / name)
        self.program("cmake", "exit 0")
        self.program("dpkg-query", "printf installed")
        self.program("apt-get", "echo apt-get was called; exit 1")

    def program(self, name, body):
        self.script(self.programs / name, body)

    @staticmethod
    def script(path, body):
        path.write_text("#!/bin/bash\n" + textwrap.dedent(body) + "\n")
        path.chmod(0o755)

    def start(self, command, user=None):
        """The command in a group of its own, as a shell starts it; as another user where root can."""
        words = [str(self.root / command)]
        if user is not None and os.getuid() == 0:
            words = ["setpriv", f"--reuid={user}", f"--regid={user}", "--clear-groups", *words]
        process = subprocess.Popen(words, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True,
                                   start_new_session=True,
                                   env=dict(os.environ, PATH=f"{self.programs}:{os.environ['PATH']}"))
        self.addCleanup(process.stdout.close)
        self.addCleanup(process.wait)
        self.addCleanup(self.kill, process)
        return process

    @staticmethod
    def kill(process):
        try:
            os.killpg(process.pid, signal.SIGKILL)
        except ProcessLookupError:
            pass

    def outcome(self, process):
        said, _ = process.communicate(timeout=PATIENCE)
        return process.returncode, said

    def wait_for(self, path):
        deadline = time.monotonic() + PATIENCE
        while not path.exists():
            self.assertLess(time.monotonic(), deadline, f"{path.name} has not come")
            time.sleep(0.01)


class Refusals(Checkout):
    def refused(self, process, words):
        status, said = self.outcome(process)
        self.assertEqual(status, 1, said)
        self.assertEqual(len(said.splitlines()), 1, said)
        self.assertIn(words, said)

    def test_missing_packages_without_the_right_to_install(self):
        self.program("dpkg-query", '[ "${@: -1}" = xvfb ] || printf installed')
        for command in ("test", "run"):
            self.refused(self.start(command, NOBODY),
                         "packages are missing; as root run: apt-get update && apt-get install --no-install-recommends xvfb")

    def test_a_system_without_packages(self):
        self.programs.joinpath("dpkg-query").unlink()
        for name in ("bash", "basename", "dirname", "env", "setpriv"):
            self.programs.joinpath(name).symlink_to(shutil.which(name))
        process = subprocess.run([str(self.programs / "bash"), str(self.root / "test")], capture_output=True, text=True,
                                 env={"PATH": str(self.programs)}, check=False)
        self.assertEqual(process.returncode, 1)
        self.assertIn("needs the packages of Debian 12", process.stderr)
        self.assertEqual(len(process.stderr.splitlines()), 1)

    def test_a_checkout_that_cannot_be_written_to(self):
        self.root.chmod(0o555)
        for command in ("test", "run"):
            self.refused(self.start(command, NOBODY), "cannot be written to; use a checkout of your own")
        self.root.chmod(0o755)

    def test_a_build_folder_of_another_user(self):
        self.root.joinpath("build").mkdir()
        self.root.joinpath("build").chmod(0o555)
        self.refused(self.start("test", NOBODY), "cannot be written to")

    def test_a_lock_of_another_user(self):
        build = self.root / "build"
        build.mkdir()
        build.chmod(0o777)
        lock = build / "test-lock"
        lock.touch()
        lock.chmod(0o444)
        self.refused(self.start("test", NOBODY), "test-lock cannot be written to")

    def test_a_resolution_that_is_none(self):
        for words in ("", "abc", "0", "-96", "100000"):
            process = subprocess.run([self.root / "run", "--dpi", words], capture_output=True, text=True, check=False)
            self.assertEqual(process.returncode, 1)
            self.assertEqual(process.stderr, "run: --dpi needs a number from 48 to 480\n")

    def test_a_word_that_package_does_not_know(self):
        for words in (["--archive"], ["--twice", "again"], [""]):
            process = subprocess.run([self.root / "package", *words], capture_output=True, text=True, check=False)
            self.assertEqual(process.returncode, 1)
            self.assertEqual(process.stderr, "package: takes nothing but --twice\n")


    def test_words_that_test_does_not_know(self):
        for words in (["--verbose"], ["Tree", "List"]):
            process = subprocess.run([self.root / "test", *words], capture_output=True, text=True, check=False)
            self.assertEqual(process.returncode, 1)
            self.assertEqual(process.stderr, "test: takes one filter at most\n")


class Help(Checkout):
    def test_each_command_tells_how_it_is_called(self):
        self.program("dpkg-query", "exit 1")  # nothing is needed for help, and nothing done
        for command in ("run", "test", "package"):
            for asked in ("--help", "-h"):
                process = subprocess.run([self.root / command, asked], capture_output=True, text=True, check=False,
                                         env=dict(os.environ, PATH=f"{self.programs}:{os.environ['PATH']}"))
                self.assertEqual((process.returncode, process.stderr), (0, ""))
                comment = [line for line in (ROOT / command).read_text().splitlines()[1:] if line.startswith("# ")]
                first = process.stdout.splitlines()[0]
                self.assertEqual("# " + first, comment[0])
                self.assertIn(f"  ./{command}  ", process.stdout)
                self.assertNotIn("root=", process.stdout)
        self.assertFalse((self.root / "build").exists())


class TwoAtATime(Checkout):
    def test_the_second_waits_and_says_so(self):
        self.script(self.root / "cmake/run-tests", """
            mkdir "$1/running" || { echo "two at a time"; exit 1; }
            touch "$1/started"
            while [ ! -e "$1/may-end" ]; do sleep 0.02; done
            rmdir "$1/running"
        """)
        first = self.start("test")
        self.wait_for(self.root / "started")
        second = self.start("test")
        self.assertEqual(second.stdout.readline(), "Waiting for another test in this checkout to end.\n")
        (self.root / "may-end").touch()
        self.assertEqual(self.outcome(first), (0, ""))
        self.assertEqual(self.outcome(second), (0, ""))

    def test_what_the_tests_leave_running_does_not_keep_the_lock(self):
        shutil.copy(ROOT / "cmake/run-tests", self.root / "cmake/run-tests")
        for preset in ("mingw", "native"):
            (self.root / "build" / preset).mkdir(parents=True)
        self.program("cmake", f'ls -l /proc/$$/fd > "{self.root}/seen-by-build"')
        self.program("ctest", f'ls -l /proc/$$/fd > "{self.root}/seen-by-tests"')
        status, said = self.outcome(self.start("test"))
        self.assertEqual(status, 1, said)
        for seen in ("seen-by-build", "seen-by-tests"):
            text = (self.root / seen).read_text()
            self.assertIn("->", text)
            self.assertNotIn("test-lock", text)


class Interruption(Checkout):
    # The programs that stand in write their file without starting another program: a shell that waits for one
    # would forget the interruption.

    def interrupted(self, process):
        os.killpg(process.pid, signal.SIGINT)
        status, said = self.outcome(process)
        self.assertEqual(status, 130, said)
        self.assertNotIn("Traceback", said)
        self.assertEqual(said.split(), ["Interrupted."])

    def test_while_building(self):
        self.program("cmake", f': > "{self.root}/building"; exec sleep 60')
        process = self.start("test")
        self.wait_for(self.root / "building")
        self.interrupted(process)

    def test_while_testing(self):
        shutil.copy(ROOT / "cmake/run-tests", self.root / "cmake/run-tests")
        for preset in ("mingw", "native"):
            (self.root / "build" / preset).mkdir(parents=True)
        self.program("ctest", f': > "{self.root}/testing"; exec sleep 60')
        process = self.start("test")
        self.wait_for(self.root / "testing")
        self.interrupted(process)


if __name__ == "__main__":
    unittest.main()
