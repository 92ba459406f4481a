"""docs/tools/make-reference on a small project of its own: what it takes, and each mistake that it has to find."""
import pathlib
import re
import shutil
import subprocess
import tempfile
import unittest

ROOT = pathlib.Path(__file__).resolve().parents[2]

GOOD = """\
/// A bed of the garden.
#pragma once

/// Rows of plants.
class OVOUI_API Bed
{
public:
    Bed(const Bed&) = delete;

    /// Puts `plant` into a row, counted from 0.
    bool put(int plant, int row);
    bool put(int plant);

    int rows = 0; ///< at most 9

protected:
    afx_msg void OnPaint();
    DECLARE_MESSAGE_MAP()

private:
    void water(int litres);
};
"""
GROUP = """\
/** @defgroup tree Trees

![A bed](bed.svg)

A group.

| key | |
|---|---|
| Enter | waters |
*/
"""
README = "# Garden\n\nSee [the beds](docs/beds.md) and [their soil](docs/beds.md#the-soil).\n"
PAGE = "# Beds\n\n## The soil\n\nLoam.\n"


def luminance(colour):
    """Of a colour such as "#16191d", relative to white."""
    def linear(part):
        share = int(part, 16) / 255
        return share / 12.92 if share <= 0.04045 else ((share + 0.055) / 1.055) ** 2.4

    red, green, blue = (linear(colour[at:at + 2]) for at in (1, 3, 5))
    return 0.2126 * red + 0.7152 * green + 0.0722 * blue


def contrast(one, other):
    light, dark = sorted((luminance(one), luminance(other)), reverse=True)
    return (light + 0.05) / (dark + 0.05)


class Reference(unittest.TestCase):
    def setUp(self):
        self.folder = pathlib.Path(tempfile.mkdtemp(prefix="the garden "))
        self.addCleanup(shutil.rmtree, self.folder)
        self.write("ovoui/version.h", '#define OVOUI_VERSION_STRING "1.2.3"\n')
        self.write("docs/reference/groups.dox", GROUP)
        self.write("docs/images/bed.svg", '<svg xmlns="http://www.w3.org/2000/svg" width="9" height="9"/>')
        for name in ("Doxyfile", "style.css"):
            self.write(f"docs/reference/{name}", (ROOT / "docs/reference" / name).read_text(encoding="utf-8"))

    def write(self, name, text):
        path = self.folder / name
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_text(text, encoding="utf-8")

    def make(self, header=GOOD, readme=README, page=PAGE, name="ovoui/tree/Bed.h"):
        self.write(name, header)
        self.write("README.md", readme)
        self.write("docs/beds.md", page)
        return subprocess.run([ROOT / "docs/tools/make-reference", self.folder, self.folder / "out", name],
                              capture_output=True, text=True)

    def complains(self, words, **files):
        made = self.make(**files)
        self.assertNotEqual(made.returncode, 0)
        self.assertIn(words, made.stderr)

    def test_what_is_documented_becomes_pages(self):
        made = self.make()
        self.assertEqual((made.returncode, made.stderr), (0, ""))
        page = (self.folder / "out/html/classBed.html").read_text(encoding="utf-8")
        self.assertIn("Rows of plants", page)
        self.assertNotIn("OnPaint", page)
        self.assertNotIn("water", page)

    def test_the_pages_can_be_searched_and_are_dark_where_the_reader_wants_it(self):
        self.assertEqual(self.make().returncode, 0)
        html = self.folder / "out/html"
        page = (html / "classBed.html").read_text(encoding="utf-8")
        self.assertIn('src="search/search.js"', page)
        found = "".join(path.read_text(encoding="utf-8") for path in (html / "search").glob("all_*.js"))
        for name in ("Bed", "put", "Beds", "Trees"):
            self.assertIn(f"'{name}'", found)
        self.assertIn('href="style.css"', page)
        self.assertIn("@media (prefers-color-scheme: dark)", (html / "style.css").read_text(encoding="utf-8"))

    def test_colours_of_text_can_be_read_on_the_page_and_on_the_panels_in_both_schemes(self):
        style = (ROOT / "docs/reference/style.css").read_text(encoding="utf-8")
        schemes = [dict(re.findall(r"--(\w+): (#\w{6});", part)) for part in style.split("@media (prefers-color-scheme: dark)")]
        self.assertEqual([len(colours) for colours in schemes], [11, 11])
        for colours in schemes:
            for text in set(colours) - {"back", "panel", "line", "mark"}:
                for ground in ("back", "panel"):
                    self.assertGreaterEqual(contrast(colours[text], colours[ground]), 4.5, f"{text} on {ground}")
            self.assertGreaterEqual(contrast(colours["text"], colours["mark"]), 4.5)
        rules = re.sub(r"--\w+: #\w{6};", "", style)
        self.assertEqual(re.findall(r"color: *#\w+|background: *#\w+", rules), [], "a colour that the schemes do not know")

    def test_a_name_without_a_comment(self):
        self.complains("ovoui/tree/Bed.h:16: Member weeds (variable) of class Bed is not documented",
                       header=GOOD.replace("at most 9\n", "at most 9\n\n    int weeds = 0;\n"))

    def test_a_function_below_one_with_a_comment_needs_its_own(self):
        self.complains("Bed.h:12: Member take(int plant)", header=GOOD.replace("bool put(int plant);", "bool take(int plant);"))

    def test_a_class_without_a_comment(self):
        self.complains("ovoui/tree/Bed.h:24: struct Path is not documented", header=GOOD + "\nstruct Path\n{\n};\n")

    def test_a_type_within_a_class(self):
        self.complains("ovoui/tree/Bed.h:14: enum class Soil is not documented",
                       header=GOOD.replace("    int rows", "    enum class Soil\n    {\n        Loam\n    };\n\n    int rows"))

    def test_a_value_of_an_enumeration(self):
        soil = "    /// What grows well.\n    enum class Soil\n    {\n        Loam, ///< heavy\n        Sand\n    };\n\n    int rows"
        self.complains("ovoui/tree/Bed.h:15: the value Sand of Soil is not documented", header=GOOD.replace("    int rows", soil))
        made = self.make(header=GOOD.replace("    int rows", soil.replace("Sand", "Sand ///< light")))
        self.assertEqual((made.returncode, made.stderr), (0, ""))

    def test_every_kind_of_name_outside_of_classes(self):
        for name, declaration in {"OVOUI_BEDS": "#define OVOUI_BEDS 3", "bedsOf": "int bedsOf(int garden);", "Row": "using Row = int;",
                                  "kBeds": "inline constexpr int kBeds = 3;", "beds": "extern int beds;",
                                  "grown": "template <class T>\nT grown(T plant);"}.items():
            with self.subTest(name):
                self.complains(f"Member {name}", header=f"{GOOD}\n{declaration}\n")

    def test_what_deriving_classes_see(self):
        self.complains("Member m_depth (variable) of class Bed", header=GOOD.replace("protected:\n", "protected:\n    int m_depth = 0;\n\n"))

    def test_a_private_type_needs_no_comment(self):
        made = self.make(header=GOOD.replace("    void water", "    struct Pipe\n    {\n    };\n    enum class Tap\n    {\n        Open\n    };\n"
                                                       "    /// With a comment, which it need not have.\n    enum class Can\n    {\n        Full\n    };\n"
                                                       "    void water"))
        self.assertEqual((made.returncode, made.stderr), (0, ""))

    def test_the_comment_of_the_file_is_that_of_its_class(self):
        made = self.make(header=GOOD.replace("/// Rows of plants.\n", ""))
        self.assertEqual((made.returncode, made.stderr), (0, ""))

    def test_a_parameter_that_the_comment_does_not_mention(self):
        self.complains("ovoui/tree/Bed.h:11: the comment of put does not mention the parameter 'plant'",
                       header=GOOD.replace("Puts `plant` into a row", "Fills a row"))

    def test_an_override_of_the_framework_needs_no_comment(self):
        made = self.make(header=GOOD.replace("afx_msg", "void PostNcDestroy() override;\n    afx_msg"))
        self.assertEqual((made.returncode, made.stderr), (0, ""))

    def test_a_link_to_a_page_that_is_not_there(self):
        self.complains("README.md:3: the link to docs/herbs.md leads nowhere", readme=README.replace("beds.md)", "herbs.md)"))

    def test_a_link_to_a_heading_that_is_not_there(self):
        self.complains("has no heading #the-sand", readme=README.replace("#the-soil", "#the-sand"))

    def test_a_link_over_two_lines(self):
        self.complains("README.md:3: a link is broken over two lines", readme=README.replace("the beds", "the\nbeds"))

    def test_a_picture_that_is_not_there(self):
        self.complains("docs/beds.md:3: the link to images/soil.png leads nowhere",
                       page=PAGE.replace("## The", "![Soil](images/soil.png)\n\n## The"))

    def test_a_reference_to_a_name_that_is_not_there(self):
        self.write("docs/reference/groups.dox", GROUP.replace("A group", "As @ref Garden"))
        self.complains("Garden")

    def test_a_group_without_a_picture(self):
        self.write("docs/reference/groups.dox", GROUP.replace("![A bed](bed.svg)", ""))
        self.complains("groups.dox:1: the group tree has no picture")

    def test_a_group_without_a_table(self):
        self.write("docs/reference/groups.dox", GROUP.replace("|---|---|\n", ""))
        self.complains("groups.dox:1: the group tree has no table")

    def test_a_group_that_says_nothing_of_keys(self):
        self.write("docs/reference/groups.dox", GROUP.replace("| key |", "| part |"))
        self.complains("neither a table of keys nor a sentence")

    def test_a_group_without_keys_says_so(self):
        self.write("docs/reference/groups.dox", GROUP.replace("| key |", "| part |").replace("A group.", "It has no\nkeys."))
        made = self.make()
        self.assertEqual((made.returncode, made.stderr), (0, ""))

    def test_a_folder_without_a_group(self):
        self.complains("ovoui/herbs/Bed.h:1: the folder belongs to no group", name="ovoui/herbs/Bed.h")

    def test_a_header_beside_the_folders_is_in_the_first_group(self):
        self.complains("the group frame is not defined", name="ovoui/Bed.h")

    def test_a_group_that_is_not_defined(self):
        self.write("docs/reference/groups.dox", GROUP.replace("defgroup tree", "defgroup shrubs"))
        self.complains("the group tree is not defined in reference")

    def test_prose_holds_no_commands(self):
        made = self.make(header=GOOD.replace("Rows of plants.", "Rows of C:\\beds\\new, <plants> & #1 @home."))
        self.assertEqual((made.returncode, made.stderr), (0, ""))
        page = (self.folder / "out/html/classBed.html").read_text(encoding="utf-8")
        self.assertIn(r"Rows of C:\beds\new, &lt;plants&gt; &amp; #1 @home", page)


if __name__ == "__main__":
    unittest.main()
