"""What cmake/under-wine does with the programs that it starts, with another Wine in the place of the real one."""
import os
import pathlib
import subprocess
import tempfile
import unittest

COMMAND = pathlib.Path(__file__).resolve().parents[2] / "cmake/under-wine"
NO_DESKTOP = 75

# Makes a prefix when it is asked for one. Another program is noted, with what the registry says of the display, and ends with the
# next of the statuses in a file.
WINE = """#!/bin/sh
if [ "$1" = wineboot ]; then
    mkdir -p "$WINEPREFIX/drive_c/windows/Fonts"
    touch "$WINEPREFIX/user.reg" "$WINEPREFIX/system.reg"
    exit 0
fi
echo "$* $(grep -c '"Graphics"="null"' "$WINEPREFIX/user.reg")" >> "$NOTES/runs"
read -r status < "$NOTES/statuses"
sed -i 1d "$NOTES/statuses"
exit "$status"
"""
SERVER = """#!/bin/sh
echo "$1" >> "$NOTES/server"
"""


class UnderWine(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)
        for name, text in (("wine", WINE), ("wineserver", SERVER)):
            path = self.folder / name
            path.write_text(text, encoding="ascii")
            path.chmod(0o755)

    def run_program(self, *statuses):
        """The status of a program that ends with these in turn, and what was noted of each run."""
        (self.folder / "statuses").write_text("".join(f"{status}\n" for status in statuses), encoding="ascii")
        own = os.environ | {"PATH": f"{self.folder}:{os.environ['PATH']}", "NOTES": str(self.folder)}
        done = subprocess.run([COMMAND, "--home", self.folder / "home", "--unseen", "a.exe", "x"], env=own,
                              capture_output=True, text=True, check=False)
        runs = self.folder / "runs"
        noted = runs.read_text(encoding="ascii").splitlines()
        runs.unlink()
        return done.returncode, noted

    def test_the_status_is_the_programs(self):
        for status in (0, 1, 3):
            self.assertEqual(self.run_program(status), (status, ["a.exe x 1"]), "without a display, as it was asked for")

    def test_a_program_without_a_desktop_is_started_again(self):
        for last in (0, 1):
            self.assertEqual(self.run_program(NO_DESKTOP, last), (last, 2 * ["a.exe x 1"]))
        server = (self.folder / "server").read_text(encoding="ascii").split()
        self.assertGreaterEqual(server.count("-k"), 4, "in another session of Wine")

    def test_but_not_for_ever(self):
        self.assertEqual(self.run_program(NO_DESKTOP, NO_DESKTOP, NO_DESKTOP, 0), (NO_DESKTOP, 3 * ["a.exe x 1"]))


if __name__ == "__main__":
    unittest.main()
