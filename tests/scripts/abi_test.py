"""What sdk/abi-snapshot finds changed between two states of a small library."""
import contextlib
import importlib.machinery
import importlib.util
import io
import pathlib
import subprocess
import sys
import tempfile
import unittest
from unittest import mock

ROOT = pathlib.Path(__file__).resolve().parents[2]
COMPILER = "x86_64-w64-mingw32-g++-posix"

HEADER = """
#pragma once
#include <stdexcept>
class API Base
{
public:
    virtual ~Base();
    virtual void ask() = 0;
    virtual void ask(int);
    virtual int answer() const = 0;
    int number = 0;
};
class API Derived : public Base
{
public:
    void ask() override;
    int answer() const override;
};
namespace house { class API Room { public: Room(); class API Door { public: Door(); char open; }; double size; }; }
struct Question final { int most; };
class Asked
{
public:
    virtual void first() = 0;
    virtual void second() = 0;
};
enum class Answer { Yes };
template <class Key, class Value> struct Pairs { struct Pair { Key key; Value value; virtual void turn() {} }; Pair first; };
inline Pairs<int, double> somePairs;
API int count(Base&);
"""

SOURCE = """
#define API __declspec(dllexport)
#include "library.h"
Base::~Base() {}
void Base::ask(int) {}
void Derived::ask() {}
int Derived::answer() const { return 1; }
house::Room::Room() {}
house::Room::Door::Door() {}
int count(Base&) { return 1; }
"""


def load(path):
    sys.path.insert(0, str(path.parent))
    loader = importlib.machinery.SourceFileLoader("abi_snapshot", str(path))
    module = importlib.util.module_from_spec(importlib.util.spec_from_loader("abi_snapshot", loader))
    loader.exec_module(module)
    return module


abi_snapshot = load(ROOT / "sdk/abi-snapshot")


class Snapshot(unittest.TestCase):
    """Each case builds the library as it was released and as it is now."""

    @classmethod
    def setUpClass(cls):
        folder = tempfile.TemporaryDirectory()
        cls.addClassCleanup(folder.cleanup)
        cls.folder = pathlib.Path(folder.name)
        cls.run_command("record", HEADER, SOURCE)

    @classmethod
    def run_command(cls, action, header, source):
        """The exit status and what was said."""
        (cls.folder / "library.h").write_text(header)
        (cls.folder / "library.cpp").write_text(source)
        dll = cls.folder / "library.dll"
        subprocess.run([COMPILER, "-shared", "-o", dll, cls.folder / "library.cpp"], check=True)
        words = ["abi-snapshot", action, str(cls.folder / "record.txt"), "--headers", "library.h", "--dlls", str(dll),
                 "--compiler", COMPILER, "-DAPI=__declspec(dllimport)", f"-I{cls.folder}"]
        said = io.StringIO()
        with mock.patch.object(sys, "argv", words), contextlib.redirect_stdout(said):
            status = abi_snapshot.main()
        return status, said.getvalue()

    def compare(self, before="", now="", in_source=("", "")):
        for text, words in ((HEADER, before), (SOURCE, in_source[0])):
            self.assertIn(words, text)
        return self.run_command("compare", HEADER.replace(before, now, 1), SOURCE.replace(*in_source, 1))

    def assert_broken(self, outcome, *sentences):
        status, said = outcome
        self.assertEqual(status, 1, said)
        for sentence in sentences:
            self.assertIn(sentence, said)
        self.assertIn("Programs that were built against the last release would not work", said)

    def assert_harmless(self, outcome, *sentences):
        status, said = outcome
        self.assertEqual(status, 0, said)
        for sentence in sentences:
            self.assertIn(sentence, said)

    def test_the_record_has_what_programs_rely_on_and_nothing_else(self):
        self.run_command("compare", HEADER, SOURCE)
        record = (self.folder / "record.txt").read_text().splitlines()
        self.assertIn("class Base = size 16", record)
        self.assertIn("class house::Room::Door = size 1", record)
        self.assertIn("virtual Base   2 = _ZN4Base3askEv", record)
        self.assertIn("virtual Derived   4 = _ZNK7Derived6answerEv", record)
        self.assertIn("export _Z5countR4Base", record)
        self.assertIn("class Question = size 4", record)
        self.assertIn("virtual Asked   1 = _ZN5Asked6secondEv", record)
        classes = {line.split()[1] for line in record if line.startswith("class ")}
        self.assertEqual(classes, {"Base", "Derived", "house::Room", "house::Room::Door", "Question", "Asked"})

    def test_nothing_changed(self):
        self.assertEqual(self.compare(), (0, ""))

    def test_a_removed_function(self):
        self.assert_broken(self.compare("API int count", "int wasCounted", ("int count", "int wasCounted")),
                           "export count(Base&) is gone")

    def test_a_removed_class(self):
        self.assert_broken(self.compare("struct Question final { int most; };", ""), "class Question had size 4, now is gone")

    def test_a_class_that_is_exported_no_more(self):
        self.assert_broken(self.compare("class API Door", "class Door"), "export house::Room::Door::Door() is gone")

    def test_a_grown_class(self):
        self.assert_broken(self.compare("int number = 0;", "int number = 0; double more = 0;"),
                           "class Base had size 16, now has size 24", "class Derived had size 16, now has size 24")

    def test_a_grown_structure_that_exports_nothing(self):
        self.assert_broken(self.compare("int most;", "int most; int least;"), "class Question had size 4, now has size 8")

    def test_swapped_virtual_functions_of_a_class_that_exports_nothing(self):
        self.assert_broken(self.compare("virtual void first() = 0;\n    virtual void second() = 0;",
                                        "virtual void second() = 0;\n    virtual void first() = 0;"),
                           "virtual function at place 0 of Asked was Asked::first(), now is Asked::second()")

    def test_swapped_virtual_functions(self):
        self.assert_broken(self.compare("virtual void ask() = 0;\n    virtual void ask(int);",
                                        "virtual void ask(int);\n    virtual void ask() = 0;"),
                           "virtual function at place 2 of Base was Base::ask(), now is Base::ask(int)",
                           "virtual function at place 3 of Base was Base::ask(int), now is Base::ask()")

    def test_swapped_pure_functions(self):
        self.assert_broken(self.compare("virtual void ask() = 0;\n    virtual void ask(int);\n    virtual int answer() const = 0;",
                                        "virtual int answer() const = 0;\n    virtual void ask(int);\n    virtual void ask() = 0;"),
                           "virtual function at place 2 of Base was Base::ask(), now is Base::answer() const")

    def test_a_virtual_function_more(self):
        self.assert_broken(self.compare("int number = 0;", "virtual void more() = 0; int number = 0;"),
                           "virtual function Base::more() is new, at place 5 of Base")

    def test_a_virtual_function_less(self):
        header = HEADER.replace("    virtual int answer() const = 0;\n", "").replace("    int answer() const override;\n", "")
        source = SOURCE.replace("int Derived::answer() const { return 1; }\n", "")
        self.assert_broken(self.run_command("compare", header, source),
                           "virtual function at place 4 of Base was Base::answer() const, now is none")

    def test_new_functions_classes_and_overrides_do_no_harm(self):
        header = HEADER.replace("int answer() const override;", "int answer() const override; void ask(int) override;")
        header += "class API Newer { public: virtual void begin(); };\n"
        source = SOURCE + "void Derived::ask(int) {}\nvoid Newer::begin() {}\n"
        self.assert_harmless(self.run_command("compare", header, source), "class Newer is new",
                             "virtual function Newer::begin() is new", "virtual function Derived::ask(int) is new",
                             "export Newer::begin() is new")


if __name__ == "__main__":
    unittest.main()
