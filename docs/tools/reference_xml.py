"""Finds parameters that no comment mentions, and values of enumerations without a comment, of which Doxygen says nothing."""
import re
import xml.etree.ElementTree as ElementTree


def words(node):
    return "" if node is None else " ".join(node.itertext())


def comment(node):
    return words(node.find("briefdescription")) + " " + words(node.find("detaileddescription"))


def spoken(name):
    """The words of a name, without a prefix for its type: `defExt` as "def ext"."""
    name = re.sub(r"^(lpsz|lp|p|b|dw|n|i)(?=[A-Z])", "", name)
    return re.sub(r"(?<=[a-z])(?=[A-Z])", " ", name).lower()


def mentions(text, name):
    """By its own name or in words: `columns` also as "column", `sharpen` also as "sharpened"."""
    stem = re.sub(r"s$", "", spoken(name))
    return re.search(rf"\b({re.escape(name)}\b|{re.escape(stem)}(s|ed|es)?\b)", text, re.IGNORECASE) is not None


def missing(member, known):
    """The parameters of a function that neither its comment nor its name has, nor what is `known` from elsewhere."""
    text = comment(member) + " " + spoken(member.findtext("name"))
    names = [words(param.find("declname")) for param in member.findall("param")]
    return [name for name in names if name and name not in known and not mentions(text, name)]


def names_in_backticks(compound):
    """A class's comment may speak of a parameter that many of its functions have."""
    return {words(code) for part in ("briefdescription", "detaileddescription")
            for code in compound.findall(f"{part}//computeroutput")}


def line_of(member):
    return int(member.find("location").get("line"))


def functions(compound):
    """In the order of the header; those without a comment need none, or have been complained about already."""
    found = [member for member in compound.iter("memberdef") if member.get("kind") == "function" and comment(member).strip()]
    return sorted(found, key=lambda member: (member.find("location").get("file"), line_of(member)))


def values_without_comment(compound, seen):
    """Places and names; those of a group are in the file's description, too."""
    for member in compound.iter("memberdef"):
        if member.get("kind") == "enum" and member.get("prot") != "private" and member.get("id") not in seen:
            seen.add(member.get("id"))
            yield from ((member, value.findtext("name")) for value in member.findall("enumvalue") if not comment(value).strip())


def check(xml, source):
    seen, enumerations = set(), set()
    for path in sorted(xml.glob("*.xml")):
        for compound in ElementTree.parse(path).getroot().findall("compounddef"):
            for member, name in values_without_comment(compound, enumerations):
                yield (f"{source}/{member.find('location').get('file')}:{line_of(member)}: warning: the value {name} of "
                       f"{member.findtext('name')} is not documented")
            of_class = names_in_backticks(compound) if compound.get("kind") in ("class", "struct") else set()
            above = set()  # the parameters of the function before, which "the same" refers to
            for member in functions(compound):
                refers = re.search(r"\b(the same|as above)\b", comment(member), re.IGNORECASE)
                known = of_class | (above if refers else set())
                above = {words(param.find("declname")) for param in member.findall("param")} | (above if refers else set())
                if member.get("id") in seen:
                    continue
                seen.add(member.get("id"))
                for name in missing(member, known):
                    yield (f"{source}/{member.find('location').get('file')}:{line_of(member)}: warning: the comment of "
                           f"{member.findtext('name')} does not mention the parameter '{name}'")
