"""Turns the public headers and the pages into what Doxygen reads, and tells where a line of that came from."""
import os
import pathlib
import re
import shutil

from markdown_text import headings, link_targets

GROUPS = (  # the first prefix that fits names the group of a header
    ("ovocor/", "core"),
    ("ovomsg/", "messages"),
    ("ovosvg/", "svg"),
    ("ovoui/frame/", "frame"),
    ("ovoui/images/", "images"),
    ("ovoui/colour/", "colour"),
    ("ovoui/toolbar/", "toolbar"),
    ("ovoui/tree/", "tree"),
    ("ovoui/lists/", "lists"),
    ("ovoui/files/", "files"),
    ("ovoui/sliders/", "sliders"),
    ("ovoui/sysinfo/", "sysinfo"),
    ("ovoui/update/", "update"),
    ("testkit/", "testkit"),
)
GROUP_WITHOUT_FOLDER = "frame"  # of the headers that lie in ovoui itself
PAGES = ("README.md", "CONTRIBUTING.md", "CHANGELOG.md", "docs/*.md", "docs/guides/*.md")

# What needs no comment of its own: the framework's business, and what every class has.
FRAMEWORK = re.compile(r"^\s*(afx_msg\b|DECLARE_\w+\(|friend class\b|friend struct\b)")
COPYING = re.compile(r"^\s*(virtual\s+)?(~\w+\(\)|(\w+|\w+&\s*operator=)\((const\s+(\w+)(<\w+>)?&|(\w+)(<\w+>)?&&)(\s*\w+)?\))")
OVERRIDE = re.compile(r"\)[^;{]*\boverride\b")
DEFAULTED = re.compile(r"=\s*(default|delete)\s*;")
TYPE = re.compile(r"\s*(template\s*<[^(){};]*>\s*)?(class|struct|enum|union|namespace)\b[^;(]*$")
FUNCTION = re.compile(r"([\w~]+|operator\s*[^\s\w(]+|operator\(\)|operator bool)\s*\(")


def version(root):
    return re.search(r'OVOUI_VERSION_STRING "(.+)"', (root / "ovoui/version.h").read_text(encoding="utf-8"))[1]


def group_of(name):
    """The group of a header, or None for a folder that belongs to none."""
    if name.count("/") == 1 and name.startswith("ovoui/"):
        return GROUP_WITHOUT_FOLDER
    return next((group for prefix, group in GROUPS if name.startswith(prefix)), None)


def escaped(prose):
    """Prose of a comment, in which nothing is a command of Doxygen's; code in backticks stays."""
    parts = re.split(r"(`[^`]*`)", prose)
    for i in range(0, len(parts), 2):
        parts[i] = re.sub(r"([\\@<>#&%$]|(?<![\w>])::)", r"\\\1", parts[i])
    return "".join(parts)


def function_name(declaration):
    found = FUNCTION.search(declaration)
    return found[1] if found else None


class Header:
    """One header on its way: `lines` of what Doxygen reads, each with the number of the line that it is from."""

    def __init__(self, name, text):
        self.name = name
        self.source = text.splitlines()
        self.lines, self.numbers = [], []
        self.private_within = []  # for each open private part, how far its label is indented
        self.problems = []  # (line, text)
        self.convert()

    def put(self, number, *lines):
        self.lines.extend(lines)
        self.numbers.extend([number] * len(lines))

    def statement(self, start):
        """The number of the line behind the declaration that begins at `start`."""
        if re.match(r"\s*DECLARE_", self.source[start]):
            return start + 1
        depth, i = 0, start
        while i < len(self.source):
            code = re.sub(r"//.*|'[{}()]'|\"[^\"]*\"", "", self.source[i])
            depth += len(re.findall(r"[({]", code)) - len(re.findall(r"[)}]", code))
            i += 1
            if depth <= 0 and re.search(r"[;}]\s*$", code):
                break
            if depth == 1 and TYPE.match(" ".join(self.source[start:i])):
                break
        return i

    def convert(self):
        group = group_of(self.name)
        if not group:
            self.problems.append((1, "the folder belongs to no group of the reference"))
        comment, comment_of = [], None  # the last comment, and the function that it was for
        self.head = []  # the comment at the head of the file, which is also that of a class that has none
        i = 0
        while i < len(self.source):
            line = self.source[i]
            stripped = line.strip()
            self.note_access(line)
            if stripped == "#pragma once" or re.match(r"#define OVOUI_\w+_H$", stripped):
                self.put(i + 1, *comment, f"/// @file {self.name}", "", f"/** @addtogroup {group} */ /** @{{ */")
                self.head = comment
                comment, comment_of, i = [], None, i + 1
            elif stripped.startswith("///") and not stripped.startswith("///<"):
                if comment_of is not None:
                    comment, comment_of = [], None
                comment.append(self.prose(line))
                i += 1
            elif not stripped:
                if comment_of is None:
                    self.put(i, *comment)
                comment, comment_of = [], None
                self.put(i + 1, line)
                i += 1
            else:
                comment, comment_of, i = self.declaration(i, comment, comment_of)
        self.put(len(self.source), "/** @} */")

    def declaration(self, start, comment, comment_of):
        """Passes one declaration on, with its comment; gives what an overload right below may share."""
        line = self.source[start]
        if not re.match(r"^\s+\w|^\w|^\s*\[\[|^\s*~", line) or re.match(r"^\s*(public|protected|private):|^namespace\b", line):
            self.put(start + 1, *comment, self.code(line))
            return [], None, start + 1
        end = self.statement(start)
        text = " ".join(part.strip() for part in self.source[start:end])
        name = function_name(re.sub(r"\b(requires|noexcept|decltype|__declspec)\([^()]*\)", "", text))
        shared = comment_of is not None and name == comment_of
        own = comment if comment_of is None else []
        if not own and self.head and self.begins_own_class(text):
            own, self.head = self.head, []
        definition = TYPE.match(text)
        if definition and not own and not self.private_within and "namespace" not in definition[0]:
            # Doxygen says nothing of a type of which nothing at all is documented.
            self.problems.append((start + 1, f"{text.split('{')[0].strip()} is not documented"))
        if definition and definition[2] == "class":
            self.private_within.append(len(line) - len(line.lstrip()))  # until the first label
        if not own and "///<" not in text and self.needs_none(text):
            self.put(start + 1, "")
            return comment, comment_of, end
        # Numbers are those of the declaration, so that complaints point there.
        self.put(start + 1, *(comment if shared else own))
        for i in range(start, end):
            self.put(i + 1, self.code(self.source[i]))
        kept = comment if shared else own
        return (kept, name, end) if kept and name else ([], None, end)

    def note_access(self, line):
        indent = len(line) - len(line.lstrip())
        if re.match(r"\s*(public|protected|private):|\s*};", line):
            self.private_within = [within for within in self.private_within if within < indent]
        if re.match(r"\s*private:", line):
            self.private_within.append(indent)

    def begins_own_class(self, text):
        """Whether a class begins here after which the file is named."""
        match = re.match(r"(?:class|struct) (?:\w+_API )?(\w+)[^;]*$", text)
        stem = pathlib.Path(self.name).stem
        return bool(match) and re.sub(r"^(COVO|CVantor|C)(?=[A-Z])", "", match[1]) in (stem, re.sub(r"^Vantor", "", stem))

    @staticmethod
    def needs_none(text):
        copying = COPYING.match(text)
        if copying and not copying[4] and not copying[6]:
            return True  # a destructor
        return bool(FRAMEWORK.match(text) or copying or OVERRIDE.search(text) or DEFAULTED.search(text))

    @staticmethod
    def prose(line):
        indent, text = re.match(r"^(\s*)///(.*)$", line).groups()
        return f"{indent}///{text if text.startswith('     ') else escaped(text)}"

    @staticmethod
    def code(line):
        before, mark, after = line.partition("///<")
        # Doxygen 1.9 lists functions that a class befriends and defines, and does not show them.
        line = re.sub(r"^(\s*)friend (?!class|struct)", r"\1", before.replace("afx_msg ", ""))
        return line + mark + escaped(after)


class Source:
    """The folder that Doxygen reads."""

    def __init__(self, root, folder, headers):
        self.root, self.folder = root, folder
        self.names = headers
        self.converted = {}
        self.headers = self.pages = 0

    def write(self):
        """Fills the folder; gives the complaints about types without a comment and about links between pages."""
        shutil.rmtree(self.folder, ignore_errors=True)
        for name in self.names:
            header = Header(name, (self.root / name).read_text(encoding="utf-8"))
            self.converted[name] = header
            self.put(name, "\n".join(header.lines) + "\n")
            self.headers += 1
        problems = [f"{name}:{line}: {what}" for name, header in self.converted.items() for line, what in header.problems]
        for path in sorted((self.root / "docs/reference").glob("*.dox")):
            self.put(f"reference/{path.name}", path.read_text(encoding="utf-8"))
        return problems + self.write_pages()

    def put(self, name, text):
        path = self.folder / name
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_text(text, encoding="utf-8")

    def write_pages(self):
        problems, pages = [], [path for pattern in PAGES for path in sorted(self.root.glob(pattern))]
        for path in pages:
            name = path.relative_to(self.root)
            problems += [f"{name}:{line}: {what}" for line, what in link_targets(self.root, path)]
            self.put(str(name), self.page(path, pages))
            self.pages += 1
        return problems

    def page(self, path, pages):
        """A page with its links between pages as Doxygen understands them."""
        def link(match):
            target, _, anchor = match[2].partition("#")
            other = pathlib.Path(os.path.normpath(path.parent / target)) if target else path
            if other in pages:
                return f"[{match[1]}](@ref {self.label(other, anchor)})"
            if re.match(r"https?:", target) or target.endswith((".png", ".svg")):
                return match[0]
            return match[1] # a file of the sources, which the reference has not

        lines, fenced, used = [], False, set()
        anchors = iter(headings(path))
        for line in path.read_text(encoding="utf-8").splitlines():
            if line.startswith("```"):
                fenced = not fenced
                language = line[3:].strip()
                line = f"```{'{.' + language + '}' if language else ''}" if fenced else "```"
            elif not fenced and re.match(r"#{1,6} ", line):
                level = len(line) - len(line.lstrip("#"))
                anchor = next(anchors)
                if anchor not in used:
                    line += f" {{#{self.label(path, '' if level == 1 else anchor)}}}"
                used.add(anchor)
            elif not fenced and not line.startswith("    "):
                line = re.sub(r"`::(?=\w)", "`:\u200b:", line)  # else a reference to a name of ours
                line = re.sub(r"!\[([^\]]*)\]\((?:[^)]*/)?([^)/]+)\)", r"![\1](\2)", line)
                line = re.sub(r"(?<!!)\[([^\]]+)\]\(([^)\s]+)\)", link, line)
                line = re.sub(r"<!--.*?-->", "", line)
            lines.append(line)
        return "\n".join(lines) + "\n"

    def label(self, path, anchor):
        """What Doxygen knows a page, or a heading on it, by."""
        parts = path.relative_to(self.root).with_suffix("").parts
        text = "_".join(("page", *parts, *([anchor] if anchor else [])))
        return re.sub(r"[^a-z0-9]", "_", text.lower())

    def original(self, line):
        """A complaint about a file of the folder as one about the file that it was made from."""
        match = re.match(rf"{re.escape(str(self.folder))}/([^:]+):(\d+): warning: (?:error: )?(.*)", line)
        if not match:
            return line
        name, number = match[1], int(match[2])
        if name in self.converted:
            numbers = self.converted[name].numbers
            number = numbers[min(number, len(numbers)) - 1]
        return f"{name}:{number}: {match[3]}"
