"""No colour is fixed in the code of library and gallery but those that are content: what follows is the system's."""
import pathlib
import re
import unittest

ROOT = pathlib.Path(__file__).resolve().parents[2]
FOLDERS = ("ovoui", "gallery", "mfc")
FIXED = re.compile(r"\bRGB\(\s*(?:\d+|0x[0-9A-Fa-f]+)\s*,|\b(?:WHITE|BLACK|GRAY|LTGRAY|DKGRAY)_(?:BRUSH|PEN)\b")

# Each with the reason.
ALLOWED = {
    "ovoui/colour/ColourButton.cpp": "the palette that is offered",
    "ovoui/colour/ColPickerPaletteDlg.cpp": "the palette that is offered",
    "ovoui/colour/ColPickerPaint.cpp": "markers that invert the colour below them",
    "ovoui/colour/ColourCells.cpp": "a mark in black and white, one of which shows on every colour",
    "mfc/src/frame/toolbarimages.cpp": "the colours of pictures that the system's take the place of",
    "gallery/model/PickerDialogs.cpp": "the swatches of a host",
    "gallery/pages/ColourSample.cpp": "a colour is shown on white and on black",
    "gallery/pages/ListsPage.cpp": "marks of three states, and the mask around them",
    "gallery/pages/TurnedBox.cpp": "the faces of the box",
}


def without_comments(text):
    return re.sub(r"//[^\n]*|/\*.*?\*/", "", text, flags=re.DOTALL)


def fixed_colours(text):
    return FIXED.findall(without_comments(text))


def sources():
    for folder in FOLDERS:
        yield from sorted(path for path in (ROOT / folder).rglob("*") if path.suffix in (".cpp", ".h"))


class Colours(unittest.TestCase):
    def test_what_counts(self):
        self.assertTrue(fixed_colours("dc.SetTextColor(RGB(0, 0, 0));"))
        self.assertTrue(fixed_colours("dc.SelectStockObject(WHITE_BRUSH);"))
        self.assertFalse(fixed_colours("/// RGB(1, 2, 3)\n/* RGB(1, 2, 3) */"))
        self.assertFalse(fixed_colours("RGB(red, green, blue) + ::GetSysColor(COLOR_WINDOW)"))

    def test_only_content_has_colours_of_its_own(self):
        for path in sources():
            name = path.relative_to(ROOT).as_posix()
            with self.subTest(name):
                if name not in ALLOWED:
                    self.assertEqual(fixed_colours(path.read_text(encoding="utf-8")), [])

    def test_what_is_allowed_is_there(self):
        for name in ALLOWED:
            with self.subTest(name):
                self.assertTrue(fixed_colours((ROOT / name).read_text(encoding="utf-8")))


if __name__ == "__main__":
    unittest.main()
