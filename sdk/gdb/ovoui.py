"""Views of the library's values for gdb: texts, handles, colours, angles, vectors and nodes of trees as one reads them.

In gdb, or in ~/.gdbinit:

    source <where the SDK is>/share/gdb/ovoui/ovoui.py
"""
import gdb
import gdb.printing


class StringView:
    """CString: the text. Wide characters have two bytes on Windows, whatever gdb takes for usual where it runs."""

    def __init__(self, value):
        self.text = value["m_pszData"]

    def to_string(self):
        return self.text.string("utf-16-le" if self.text.type.strip_typedefs().target().sizeof == 2 else "utf-32-le", "replace")

    def display_hint(self):
        return "string"


class QuarkView:
    """Quark: the text that it stands for."""

    def __init__(self, value):
        self.text = value["m_text"]

    def to_string(self):
        return self.text.dereference()


class HandleView:
    """OVO::Handle<T>: the object as what it really is, and how many handles hold it."""

    def __init__(self, value):
        self.object = value["m_object"]

    def to_string(self):
        if not self.object:
            return "nothing"
        counted = self.object.cast(self.object.dynamic_type)
        held = self.references(counted.dereference())
        return f"{counted.dynamic_type.target()} at {int(counted):#x}" + (f", held {held} times" if held else "")

    @staticmethod
    def references(counted):
        try:
            return int(counted["m_references"])
        except gdb.error:  # counts in a way of its own
            return None

    def children(self):
        if self.object:
            yield "object", self.object.cast(self.object.dynamic_type).dereference()


class ColourView:
    """Colour: as it is written in style sheets, with alpha where it has one."""

    def __init__(self, value):
        self.value = value

    def to_string(self):
        red, green, blue, alpha = (float(self.value[f"m_{name}"]) for name in "rgba")
        code = "#" + "".join(f"{int(min(max(part, 0), 1) * 255 + 0.5):02x}" for part in (red, green, blue))
        return code if alpha < 0 else f"{code} alpha {alpha:g}"


class AngleView:
    """Angle: in degrees."""

    def __init__(self, value):
        self.value = value

    def to_string(self):
        return f"{float(self.value['m_degrees']):g} degrees"


class VectorView:
    """Vector<N>: its components."""

    def __init__(self, value):
        self.components = value["m_components"]["_M_elems"]

    def to_string(self):
        first, last = self.components.type.strip_typedefs().range()
        return "(" + ", ".join(f"{float(self.components[i]):g}" for i in range(first, last + 1)) + ")"


class NodeView:
    """A node of a tree, by its own class: its item, and the states that it has."""

    STATES = {0x2: "selected", 0x4: "cut", 0x8: "drop target", 0x10: "bold", 0x20: "open", 0x40: "was open"}

    def __init__(self, value):
        self.value = value

    def to_string(self):
        item, state = int(self.value["m_hTreeItem"]), int(self.value["state"])
        words = [word for bit, word in self.STATES.items() if state & bit]
        if int(self.value["children"]):
            words.append("with children")
        return ", ".join([f"item {item:#x}" if item else "in no tree", *words])

    def children(self):
        for field in self.value.type.fields():
            if not field.is_base_class and not hasattr(field, "enumval") and hasattr(field, "bitpos"):
                if field.name not in ("m_hTreeItem", "state", "children"):
                    yield field.name, self.value[field]


def is_node(kind):
    """Whether a class is MultiTreeCtrl::Node or derives from it."""
    if kind.code != gdb.TYPE_CODE_STRUCT:
        return False
    return kind.name == "MultiTreeCtrl::Node" or any(is_node(f.type.strip_typedefs()) for f in kind.fields() if f.is_base_class)


class Views(gdb.printing.RegexpCollectionPrettyPrinter):
    def __call__(self, value):
        view = super().__call__(value)
        if view is None and is_node(value.type.strip_typedefs()):
            view = NodeView(value)
        return view


def views():
    collection = Views("ovoui")
    collection.add_printer("CString", "^CString$", StringView)
    collection.add_printer("Quark", "^Quark$", QuarkView)
    collection.add_printer("Handle", "^OVO::Handle<.*>$", HandleView)
    collection.add_printer("Colour", "^Colour$", ColourView)
    collection.add_printer("Angle", "^Angle$", AngleView)
    collection.add_printer("Vector", "^(OVO::)?Vector<.*>$", VectorView)
    return collection


gdb.printing.register_pretty_printer(None, views(), replace=True)
