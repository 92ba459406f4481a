"""Small faults that a test should notice, made from the text of a C++ source."""
import bisect
import dataclasses
import re

# What stands between blanks is an operator and no template argument or reference: the sources are formatted.
SWAPPED = {
    "==": "!=", "!=": "==", "<": "<=", "<=": "<", ">": ">=", ">=": ">",
    "&&": "||", "||": "&&", "+": "-", "-": "+", "*": "/", "/": "*", "%": "*",
    "+=": "-=", "-=": "+=", "|": "&", "&": "|", "|=": "&=",
}
OPERATOR = re.compile(r"(?<= )(" + "|".join(re.escape(o) for o in sorted(SWAPPED, key=len, reverse=True)) + r")(?=[ \n])")
NUMBER = re.compile(r"(?<![\w.'])(\d+)(?![\w.'])")
FRACTION = re.compile(r"(?<![\w.'])(\d+\.\d+)(?![\w.'])")
TRUTH = re.compile(r"\b(true|false)\b")
CONDITION = re.compile(r"\b(?:if|while) \(")
CALL = re.compile(r"^ +(?!return\b|throw\b|delete\b|case\b|using\b|static\b|const\b|new\b)[\w:.>\-\[\]*]+\([^{}\n]*\);$", re.MULTILINE)
# Comments, texts and lines of the preprocessor, in which nothing is changed.
INERT = re.compile(r'//[^\n]*|/\*.*?\*/|R"(\w*)\(.*?\)\1"|"(?:\\.|[^"\\\n])*"|\'(?:\\.|[^\'\\\n])+\'|^[ \t]*#(?:[^\n]*\\\n)*[^\n]*'
                   r"|\bstatic_assert\([^;]*;|\bASSERT\([^;]*;", re.DOTALL | re.MULTILINE)


@dataclasses.dataclass(frozen=True)
class Mutant:
    """One change of a source: the text from `begin` to `end` becomes `new`."""
    kind: str
    line: int
    begin: int
    end: int
    old: str
    new: str

    def apply(self, source):
        return source[:self.begin] + self.new + source[self.end:]

    def __str__(self):
        return f"{self.line}: `{short(self.old)}` becomes `{short(self.new)}`"


def short(text):
    text = " ".join(text.split())
    return text if len(text) <= 60 else text[:57] + "..."


def blanked(source):
    """The source with blanks for all that is inert, at the same places."""
    return INERT.sub(lambda match: re.sub(r"[^\n]", " ", match[0]), source)


def closing(text, opened):
    """Where the bracket at `opened` is closed; -1 when it is not."""
    depth = 0
    for at in range(opened, len(text)):
        depth += {"(": 1, ")": -1}.get(text[at], 0)
        if depth == 0:
            return at
    return -1


def mutants(source):
    """All changes of a source, in the order of the text."""
    code = blanked(source)
    starts = [0] + [match.end() for match in re.finditer("\n", source)]
    found = []

    def add(kind, begin, end, new):
        found.append(Mutant(kind, bisect.bisect_right(starts, begin), begin, end, source[begin:end], new))

    for match in OPERATOR.finditer(code):
        add("operator", match.start(1), match.end(1), SWAPPED[match[1]])
    for match in NUMBER.finditer(code):
        add("constant", match.start(1), match.end(1), str(int(match[1]) + 1))
    for match in FRACTION.finditer(code):
        add("constant", match.start(1), match.end(1), str(float(match[1]) + 1))
    for match in TRUTH.finditer(code):
        add("constant", match.start(1), match.end(1), "false" if match[1] == "true" else "true")
    for match in CONDITION.finditer(code):
        opened = match.end() - 1
        closed = closing(code, opened)
        if closed > 0 and ";" not in code[opened:closed]:
            add("condition", opened, closed + 1, "(!" + source[opened:closed + 1] + ")")
    for match in CALL.finditer(code):
        if code[:match.start()].rstrip().endswith((";", "{", "}", ")", "else", ":")):
            begin = match.start() + len(match[0]) - len(match[0].lstrip())
            add("call", begin, match.end(), ";")
    return sorted(found, key=lambda mutant: (mutant.begin, mutant.new))
