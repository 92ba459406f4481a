"""Blocks of code in the pages, with what has to stand around them for a compiler.

A block of C++ stands at file scope. One that does not is preceded by a comment, which readers do not see:

    <!-- compiled as
    void Frame::ask() { {code} }
    -->

where {code} is the block. `<!-- file NAME -->` names a block that is a whole file, such as a resource script; the last part of
NAME is what the example itself calls it.
"""
import re

AROUND = re.compile(r"<!-- compiled as\n((?:(?!-->).)*)\n-->\s*\Z", re.DOTALL)
FILE = re.compile(r"<!-- file (\S+) -->\s*\Z")


class Example:
    def __init__(self, page, line, language, code, before):
        self.page, self.line, self.language, self.code = page, line, language, code
        around, file = AROUND.search(before), FILE.search(before)
        self.around = around[1] if around else "{code}"
        self.file = file[1] if file else None

    def compiled(self):
        """The code with what stands around it, and lines that are counted as the page counts them."""
        start, _, end = self.around.partition("{code}")
        return f'{start}\n#line {self.line} "{self.page}"\n{self.code}\n#line 1 "around {self.page}:{self.line}"\n{end}\n'


def unnamed(path):
    """The lines of a page in which a block begins that names no language."""
    fences = [(number, line) for number, line in enumerate(path.read_text(encoding="utf-8").splitlines(), 1)
              if line.lstrip().startswith("```")]
    return [number for number, line in fences[::2] if line.strip() == "```"]


def examples(root, path):
    text = path.read_text(encoding="utf-8")
    for match in re.finditer(r"^([ \t]*)```(\S+)[^\n]*\n(.*?)^\1```$", text, re.DOTALL | re.MULTILINE):
        before = text[: match.start()]
        yield Example(str(path.relative_to(root)), before.count("\n") + 2, match[2], match[3], before[-6000:])
