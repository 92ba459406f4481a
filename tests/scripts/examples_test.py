"""docs/tools/compile-examples on pages of its own: what it compiles, and mistakes that it has to find."""
import os
import pathlib
import re
import shutil
import subprocess
import tempfile
import unittest

ROOT = pathlib.Path(__file__).resolve().parents[2]

GOOD = """\
# Beds

<!-- compiled as
struct Bed : CWnd { void water(); int litres; };
void Bed::water()
{
    {code}
}
-->
```cpp
#include <numeric>

litres += std::gcd(12, 18);
```

```cpp
int rows = 0;
```

```cmake
find_package(ovoui CONFIG REQUIRED)
add_executable(host WIN32 host.cpp)
target_link_libraries(host PRIVATE ovo::ui)
```

```rc
STRINGTABLE
BEGIN
    IDS_BED, "Roses and größe"
    IDS_UPDATE_NONE, "%s"
END
```

```c
struct Bed { long rows; };
long rows_of(const struct Bed* bed);
```

```sh
cmake --build build && echo "${HOME:-no home}"
```

```xml
<?xml version="1.0" encoding="UTF-8"?>
<bed rows="3"/>
```

<!-- file garden.txt -->
```text
Loam
```
"""


class Examples(unittest.TestCase):
    def setUp(self):
        self.folder = pathlib.Path(tempfile.mkdtemp())
        self.addCleanup(shutil.rmtree, self.folder)
        for name in ("mfc", "ovoui", "ovocor", "ovomsg", "ovosvg", "ovouires", "testkit"):
            (self.folder / name).symlink_to(ROOT / name)
        (self.folder / "docs").mkdir()

    def compile(self, page):
        (self.folder / "docs/beds.md").write_text(page, encoding="utf-8")
        return subprocess.run([ROOT / "docs/tools/compile-examples", self.folder, self.folder / "out",
                               "x86_64-w64-mingw32-g++-posix", "x86_64-w64-mingw32-windres"],
                              capture_output=True, text=True, env={**os.environ, "LC_ALL": "C"})

    def test_blocks_compile_with_what_stands_around_them(self):
        done = self.compile(GOOD)
        self.assertEqual(done.returncode, 0, done.stderr)
        self.assertEqual(done.stdout, "blocks: 2 of C++, 1 of CMake, 1 of resource scripts, 1 of C, 1 of commands, 1 of XML\n")

    def test_mistakes_are_found_where_they_stand_in_the_page(self):
        done = self.compile(GOOD.replace("litres +=", "gallons +=").replace("int rows = 0", 'int rows = "many"')
                            .replace("ovo::ui)", "ovo::garden)"))
        self.assertNotEqual(done.returncode, 0)
        self.assertIn("docs/beds.md:13:1: error: 'gallons' was not declared", done.stderr)
        self.assertIn("docs/beds.md:17:12: error: invalid conversion", done.stderr)
        self.assertIn("ovo::garden", done.stderr)

    def refuses(self, before, now, words):
        """One block alone is wrong."""
        page = "\n".join(["# Beds\n", *re.findall(r"^```(?:rc|c|sh|xml)\n.*?^```\n", GOOD, re.DOTALL | re.MULTILINE)])
        self.assertIn(before, page)
        done = self.compile(page.replace(before, now))
        self.assertNotEqual(done.returncode, 0)
        self.assertIn(words, done.stderr)
        self.assertIn("a block of code does not compile", done.stderr)

    def test_a_script_of_resources_that_does_not_compile(self):
        self.refuses("BEGIN", "BIGIN", "docs/beds.md:4: ")

    def test_a_block_of_c_that_does_not_compile(self):
        self.refuses("const struct Bed*", "const Bed&", "docs/beds.md:12: ")

    def test_commands_that_no_shell_reads(self):
        self.refuses("no home}\"", "no home}", "docs/beds.md:17: ")

    def test_a_page_of_xml_that_is_not_closed(self):
        self.refuses('rows="3"/>', 'rows="3">', "docs/beds.md:21: ")

    def test_a_language_that_nothing_reads(self):
        self.refuses("```sh", "```c++", "docs/beds.md:17: nothing reads blocks of c++")

    def test_a_block_of_a_guide_that_names_no_language(self):
        (self.folder / "docs/guides").mkdir()
        (self.folder / "docs/guides/hedges.md").write_text("# Hedges\n\n```text\na\n```\n\n```\nint rows = none;\n```\n", encoding="utf-8")
        done = self.compile("# Beds\n\n```\na drawing\n```\n")
        self.assertNotEqual(done.returncode, 0)
        self.assertIn("docs/guides/hedges.md:7: the block names no language", done.stderr)
        self.assertNotIn("beds.md", done.stderr)

    def test_a_file_of_an_example_is_taken_out(self):
        (self.folder / "docs/beds.md").write_text(GOOD, encoding="utf-8")
        take = [ROOT / "docs/tools/take-example", self.folder, "docs/beds.md"]
        subprocess.run([*take, "garden.txt", self.folder / "taken"], check=True)
        self.assertEqual((self.folder / "taken").read_text(encoding="utf-8"), "Loam\n")
        missing = subprocess.run([*take, "herbs.txt", self.folder / "none"], capture_output=True, text=True)
        self.assertIn("docs/beds.md has 0 blocks called herbs.txt", missing.stderr)

    def test_the_tests_of_a_page_become_a_source_file(self):
        page = """\
```cpp
#include <garden.h>
TEST(Bed, HasRows) {}
```

```cpp
int rows = 0;
```

<!-- compiled as
struct Oak {};
{code}
-->
```cpp
#include <garden.h>
#include <trees.h>
TEST_F(Tree, Grows) {}
```
"""
        (self.folder / "docs/beds.md").write_text(page, encoding="utf-8")
        take = [ROOT / "docs/tools/take-tests", self.folder, self.folder / "taken.cpp", "--pages", "docs/beds.md", "--headers", "first.h"]
        subprocess.run(take, check=True)
        taken = (self.folder / "taken.cpp").read_text(encoding="utf-8")
        self.assertTrue(taken.startswith("#include <first.h>\n#include <garden.h>\n#include <trees.h>\nnamespace example_0\n"), taken)
        self.assertIn('#line 2 "docs/beds.md"\n\nTEST(Bed, HasRows) {}\n', taken)
        self.assertRegex(taken, r"namespace example_1\n\{\nstruct Oak \{\};\n\n#line 15 .*\n\n\nTEST_F\(Tree, Grows\) \{\}")
        self.assertNotIn("rows = 0", taken)
        (self.folder / "docs/beds.md").write_text("# Beds\n", encoding="utf-8")
        without = subprocess.run(take, capture_output=True, text=True)
        self.assertIn("docs/beds.md shows no tests", without.stderr)


if __name__ == "__main__":
    unittest.main()
