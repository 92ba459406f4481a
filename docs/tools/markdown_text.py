"""What the tools read out of Markdown: headings, links and blocks of code."""
import os
import pathlib
import re

LINK = re.compile(r"!?\[[^\]]*\]\(([^)\s]+)\)")


def lines_outside_code(path):
    fenced = False
    for number, line in enumerate(path.read_text(encoding="utf-8").splitlines(), 1):
        if line.startswith("```"):
            fenced = not fenced
        elif not fenced:
            yield number, line


def headings(path):
    """The anchors of a page's headings, in order, as the usual viewers make them."""
    for _, line in lines_outside_code(path):
        match = re.match(r"#{1,6} (.*)", line)
        if match:
            words = re.sub(r"\[([^\]]*)\]\([^)]*\)", r"\1", match[1]).strip().lower()
            yield re.sub(r"[^\w\- ]", "", words).replace(" ", "-")


def link_targets(root, path):
    """Complains about links to what is not there, and about those broken over two lines, as (line, text)."""
    opened = False
    for number, line in lines_outside_code(path):
        if opened and re.match(r"[^\[\]]*\]\(", line):
            yield number - 1, "a link is broken over two lines"
        opened = re.search(r"\[[^\]]*$", line) is not None
        for target in LINK.findall(re.sub(r"`[^`]*`", "", line)):
            if re.match(r"[a-z]+:", target):
                continue
            name, _, anchor = target.partition("#")
            other = pathlib.Path(os.path.normpath(path.parent / name)) if name else path
            if not other.exists() or root not in (other, *other.parents):
                yield number, f"the link to {target} leads nowhere"
            elif anchor and (other.suffix != ".md" or anchor not in headings(other)):
                yield number, f"{name or 'this page'} has no heading #{anchor}"
