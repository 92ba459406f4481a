"""Follows the links within the pages that were made."""
import html.parser
import urllib.parse


# Doxygen's own, for classes whose nested ones are all private.
NOT_OURS = {"#nested-classes"}


class Page(html.parser.HTMLParser):
    def __init__(self, text):
        super().__init__()
        self.anchors, self.links = set(), []
        self.feed(text)

    def handle_starttag(self, tag, attributes):
        for name, value in attributes:
            if name == "id" or (tag == "a" and name == "name"):
                self.anchors.add(value)
            elif value and name in ("href", "src"):
                self.links.append((self.getpos()[0], value))


def check(folder):
    pages = {path.name: Page(path.read_text(encoding="utf-8")) for path in sorted(folder.glob("*.html"))}
    problems = []
    for name, page in pages.items():
        for line, link in page.links:
            parts = urllib.parse.urlsplit(link)
            if parts.scheme or link in NOT_OURS:
                continue
            target = urllib.parse.unquote(parts.path) or name
            anchor = urllib.parse.unquote(parts.fragment)
            if not (folder / target).exists():
                problems.append(f"{name}:{line}: {link} is not there")
            elif anchor and target in pages and anchor not in pages[target].anchors:
                problems.append(f"{name}:{line}: {link} has no such place")
    return problems
