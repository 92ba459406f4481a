"""sdk/make-zip: the same names and contents give the same bytes, whatever else is different about two folders."""
import os
import pathlib
import shutil
import subprocess
import tempfile
import unittest
import zipfile

ROOT = pathlib.Path(__file__).resolve().parents[2]
FILES = {"bin/garden.exe": b"MZ", "doc/index.html": b"<p>Loam</p>" * 99, "doc/Größe.html": b"", "a file.txt": b"oak\n"}


class MakeZip(unittest.TestCase):
    def setUp(self):
        self.place = pathlib.Path(tempfile.mkdtemp(prefix="two archives "))
        self.addCleanup(shutil.rmtree, self.place)

    def folder(self, within, names, mode=0o644, age=0):
        root = self.place / within / "garden-1.0"
        for name in names:
            path = root / name
            path.parent.mkdir(parents=True, exist_ok=True)
            path.write_bytes(FILES[name])
            path.chmod(mode)
            os.utime(path, (1_000_000_000 + age, 1_000_000_000 + age))
        return root

    def packed(self, folder, epoch="1700000000", **environment):
        archive = self.place / "packed.zip"
        archive.unlink(missing_ok=True)
        subprocess.run([ROOT / "sdk/make-zip", archive, folder], check=True, env=dict(os.environ, SOURCE_DATE_EPOCH=epoch, **environment))
        return archive.read_bytes()

    def test_neither_order_nor_times_nor_modes_nor_the_place_count(self):
        one = self.packed(self.folder("one", FILES), TZ="UTC")
        other = self.packed(self.folder("the other one", reversed(FILES), mode=0o600, age=12345), TZ="Asia/Tokyo")
        self.assertEqual(one, other)

    def test_contents_names_and_the_time_of_the_source_do_count(self):
        folder = self.folder("one", FILES)
        first = self.packed(folder)
        self.assertNotEqual(self.packed(folder, epoch="1700000002"), first)
        (folder / "a file.txt").rename(folder / "another file.txt")
        renamed = self.packed(folder)
        self.assertNotEqual(renamed, first)
        (folder / "another file.txt").write_bytes(b"elm\n")
        self.assertNotEqual(self.packed(folder), renamed)

    def test_the_archive_has_every_file_below_the_name_of_its_folder(self):
        self.packed(self.folder("one", FILES))
        with zipfile.ZipFile(self.place / "packed.zip") as archive:
            self.assertIsNone(archive.testzip())
            self.assertEqual({name: archive.read(name) for name in archive.namelist()},
                             {f"garden-1.0/{name}": content for name, content in FILES.items()})
            modes = {entry.filename: entry.external_attr >> 16 & 0o777 for entry in archive.infolist()}
            self.assertEqual(modes["garden-1.0/bin/garden.exe"], 0o755)
            self.assertEqual(modes["garden-1.0/a file.txt"], 0o644)
            self.assertEqual({entry.date_time for entry in archive.infolist()}, {(2023, 11, 14, 22, 13, 20)})


if __name__ == "__main__":
    unittest.main()
