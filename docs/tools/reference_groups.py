"""Looks whether each group of the reference has a picture and a table of keys, or says that there are no keys, and whether all
groups that headers are put into are there."""
import re

GROUP = re.compile(r"/\*\* @defgroup (\w+) .*?\*/", re.DOTALL)
PICTURE = re.compile(r"^!\[[^]]+\]\([^)]+\)$", re.MULTILINE)
TABLE = re.compile(r"^(\|.*\|)\n\|(?: *-+ *\|)+\n\|", re.MULTILINE)


def check(folder, used):
    """Complaints about the groups of all .dox files in `folder`, and about those of `used` that none of them defines."""
    problems, defined = [], set()
    for path in sorted(folder.glob("*.dox")):
        text = path.read_text(encoding="utf-8")
        for group in GROUP.finditer(text):
            defined.add(group[1])
            where = f"{path.name}:{text.count(chr(10), 0, group.start()) + 1}: the group {group[1]}"
            heads = TABLE.findall(group[0])
            if not PICTURE.search(group[0]):
                problems.append(f"{where} has no picture")
            if not heads:
                problems.append(f"{where} has no table")
            elif not any(re.search(r"\bkeys?\b", head) for head in heads) and not re.search(r"\bno\s+keys\b", group[0]):
                problems.append(f"{where} has neither a table of keys nor a sentence that there are no keys")
    return problems + [f"the group {name} is not defined in {folder.name}" for name in sorted(used - defined)]
