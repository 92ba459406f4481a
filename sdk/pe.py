"""Reads Windows x86-64 programs and DLLs: sections, exports, imports and the version that the system shows.

    image = Image(path)
    image.exports()["_ZN7CButtonC1Ev"]   # the address, relative to the start of the image
    image.is_code(address)
    image.version()                      # "11.0.0.0", or None
"""
import struct

EXPORTS, IMPORTS, RESOURCES = 0, 1, 2  # the tables of the optional header
SECTION_IS_CODE = 0x20
RT_VERSION = 16
FIXED_VERSION = b"\xbd\x04\xef\xfe"  # the signature of the fixed part of a version record


class Section:
    def __init__(self, header):
        size, self.address, self.stored, self.offset = struct.unpack_from("<4I", header, 8)
        self.size = max(size, self.stored)
        self.flags, = struct.unpack_from("<I", header, 36)


class Image:
    def __init__(self, path):
        with open(path, "rb") as file:
            self.data = file.read()
        self._pe, = struct.unpack_from("<I", self.data, 0x3C)
        if self.data[:2] != b"MZ" or self.data[self._pe:self._pe + 4] != b"PE\0\0":
            raise ValueError(f"{path} is no program or DLL of Windows")
        count, self.timestamp = struct.unpack_from("<HI", self.data, self._pe + 6)
        optional_size, = struct.unpack_from("<H", self.data, self._pe + 20)
        self._optional = self._pe + 24
        self.base, = struct.unpack_from("<Q", self.data, self._optional + 24)
        first = self._optional + optional_size
        self.sections = [Section(self.data[at:at + 40]) for at in range(first, first + 40 * count, 40)]

    def table(self, index):
        """Address and size of a table, 0 and 0 where there is none."""
        return struct.unpack_from("<2I", self.data, self._optional + 112 + 8 * index)

    def section(self, address):
        """The section that holds an address, or None."""
        return next((s for s in self.sections if s.address <= address < s.address + s.size), None)

    def is_code(self, address):
        section = self.section(address)
        return section is not None and bool(section.flags & SECTION_IS_CODE)

    def read(self, form, address):
        """What `struct` unpacks at an address."""
        section = self.section(address)
        return struct.unpack_from("<" + form, self.data, section.offset + address - section.address)

    def text(self, address):
        section = self.section(address)
        start = section.offset + address - section.address
        return self.data[start:self.data.index(b"\0", start)].decode("ascii")

    def exports(self):
        """The addresses of the exported names."""
        table, size = self.table(EXPORTS)
        if not size:
            return {}
        count, functions, names, ordinals = self.read("4I", table + 24)
        found = {}
        for i in range(count):
            name, = self.read("I", names + 4 * i)
            ordinal, = self.read("H", ordinals + 2 * i)
            found[self.text(name)], = self.read("I", functions + 4 * ordinal)
        return found

    def imports(self):
        """The imported names by the address of the slot that the loader fills."""
        at, size = self.table(IMPORTS)
        found = {}
        while size:
            names, _, _, library, slots = self.read("5I", at)
            if not library:
                break
            while (entry := self.read("Q", names)[0]) != 0:
                if not entry >> 63:  # by name, not by number
                    found[slots] = self.text(entry + 2)
                names, slots = names + 8, slots + 8
            at += 20
        return found

    def version(self):
        """The file's version as four numbers, or None without a version record."""
        root, size = self.table(RESOURCES)
        if not size:
            return None
        at = root
        for wanted in (RT_VERSION, None, None):  # type, name, language
            named, numbered = self.read("2H", at + 12)
            entries = [self.read("2I", at + 16 + 8 * i) for i in range(named + numbered)]
            at = next((root + (place & 0x7FFFFFFF) for key, place in entries if wanted in (key, None)), None)
            if at is None:
                return None
        start, length = self.read("2I", at)
        section = self.section(start)
        record = self.data[section.offset + start - section.address:][:length]
        high, low = struct.unpack_from("<2I", record, record.index(FIXED_VERSION) + 8)
        return f"{high >> 16}.{high & 0xFFFF}.{low >> 16}.{low & 0xFFFF}"
