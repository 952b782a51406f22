"""Reads a Mach-O file, independently of the tools that made it."""

import struct

LC_SYMTAB = 0x2
LC_LOAD_DYLIB = 0xC
LC_LOAD_WEAK_DYLIB = 0x80000018
LC_RPATH = 0x8000001C
LC_SEGMENT_64 = 0x19
LC_CODE_SIGNATURE = 0x1D
LC_DYLD_INFO_ONLY = 0x80000022
LC_VERSION_MIN_IPHONEOS = 0x25

CODE_DIRECTORY = 0xFADE0C02


class Bytes:
    """A position in the file from which data is read."""

    def __init__(self, data, offset):
        self.data = data
        self.offset = offset

    def byte(self):
        self.offset += 1
        return self.data[self.offset - 1]

    def leb(self):
        """An unsigned number with seven bits per byte, the lowest bits first."""
        value = shift = 0
        while True:
            byte = self.byte()
            value |= (byte & 0x7F) << shift
            shift += 7
            if byte < 0x80:
                return value

    def text(self):
        start = self.offset
        self.offset = self.data.index(0, start) + 1
        return self.data[start : self.offset - 1].decode()


class Class:
    """An Objective-C class in the file."""

    def __init__(self, name, superclass, methods, class_methods):
        self.name = name
        self.superclass = superclass
        self.methods = methods
        self.class_methods = class_methods


class CodeDirectory:
    def __init__(self, data, offset):
        (self.version, self.flags, hashes, identifier, special_count, count, self.code_limit) = struct.unpack_from(
            ">7I", data, offset + 8
        )
        size, self.hash_type, _, page = struct.unpack_from(">4B", data, offset + 36)
        self.page_size = 1 << page
        self.identifier = Bytes(data, offset + identifier).text()
        hashes += offset
        self.hashes = [data[hashes + i * size :][:size] for i in range(count)]
        # Their slots are numbered from 1, in the opposite direction to the pages.
        self.special_hashes = {i: data[hashes - i * size :][:size] for i in range(1, special_count + 1)}


class MachO:
    def __init__(self, path):
        with open(path, "rb") as file:
            self.data = file.read()
        (self.magic, self.cpu, self.cpu_kind, self.kind, count, _, self.flags) = struct.unpack_from("<7I", self.data)
        self.commands = []
        offset = 32
        for _ in range(count):
            command, size = struct.unpack_from("<II", self.data, offset)
            self.commands.append((command, offset))
            offset += size
        self.segments = [self._segment(offset) for offset in self._offsets(LC_SEGMENT_64)]
        self.sections = {name: place for segment in self.segments for name, place in segment["sections"].items()}
        self.libraries = [self._path(offset) for offset in self._offsets(LC_LOAD_DYLIB, LC_LOAD_WEAK_DYLIB)]
        # Those that may be missing.
        self.weak_libraries = [self._path(offset) for offset in self._offsets(LC_LOAD_WEAK_DYLIB)]
        self.run_paths = [self._path(offset) for offset in self._offsets(LC_RPATH)]
        # The symbols that are null when they are missing.
        self.weak_imports = set()
        self.binds = self._binds()

    def _offsets(self, *commands):
        return [offset for command, offset in self.commands if command in commands]

    def _segment(self, offset):
        name, start, size, file_offset, file_size, _, _, count, _ = struct.unpack_from("<16s4Q4I", self.data, offset + 8)
        sections = {}
        for i in range(count):
            section, _, address, section_size, section_offset = struct.unpack_from(
                "<16s16sQQI", self.data, offset + 72 + 80 * i
            )
            sections[section.rstrip(b"\0").decode()] = (address, section_size, section_offset)
        return {
            "name": name.rstrip(b"\0").decode(),
            "address": start,
            "size": size,
            "offset": file_offset,
            "file_size": file_size,
            "sections": sections,
        }

    def _path(self, offset):
        """The path in the load command of a library or of a run path."""
        (path,) = struct.unpack_from("<I", self.data, offset + 8)
        return Bytes(self.data, offset + path).text()

    def minimum_os(self):
        """Major and minor version, from the only load command that contains them."""
        (offset,) = self._offsets(LC_VERSION_MIN_IPHONEOS)
        (version,) = struct.unpack_from("<I", self.data, offset + 8)
        return version >> 16, version >> 8 & 0xFF

    def _dyld_info(self):
        (offset,) = self._offsets(LC_DYLD_INFO_ONLY)
        names = ("rebase", "bind", "weak_bind", "lazy_bind", "export")
        numbers = struct.unpack_from("<10I", self.data, offset + 8)
        return {name: numbers[2 * i : 2 * i + 2] for i, name in enumerate(names)}

    def _binds(self):
        """The loader's bindings: an address, its symbol, and the library that contains the symbol."""
        info = self._dyld_info()
        return [bind for table in ("bind", "lazy_bind") for bind in self._bind_table(*info[table])]

    def _bind_table(self, offset, size):
        stream = Bytes(self.data, offset)
        library = symbol = address = None
        while stream.offset < offset + size:
            byte = stream.byte()
            operation, immediate = byte & 0xF0, byte & 0x0F
            if operation == 0x10:
                library = immediate
            elif operation == 0x20:
                library = stream.leb()
            elif operation == 0x30:
                library = -immediate
            elif operation == 0x40:
                symbol = stream.text()
                if immediate & 1:
                    self.weak_imports.add(symbol)
            elif operation == 0x50:
                assert immediate == 1, "only pointers are bound"
            elif operation == 0x60:
                stream.leb()  # what is added to the address
            elif operation == 0x70:
                address = self.segments[immediate]["address"] + stream.leb()
            elif operation == 0x80:
                address = (address + stream.leb()) % (1 << 64)
            elif operation in (0x90, 0xA0, 0xB0, 0xC0):
                count, skip = 1, 0
                if operation == 0xC0:
                    count, skip = stream.leb(), stream.leb()
                elif operation == 0xA0:
                    skip = stream.leb()
                elif operation == 0xB0:
                    skip = immediate * 8
                for _ in range(count):
                    yield address, symbol, library
                    address = (address + 8 + skip) % (1 << 64)
            else:
                assert operation == 0, f"unknown operation {byte:#x}"

    def weak_binds(self):
        """The symbols that any library may replace."""
        return {symbol for _, symbol, _ in self._bind_table(*self._dyld_info()["weak_bind"])}

    def exports(self):
        """The exported symbols."""
        offset, size = self._dyld_info()["export"]

        def below(node, prefix):
            stream = Bytes(self.data, offset + node)
            length = stream.leb()
            if length:
                yield prefix
            stream.offset += length
            for _ in range(stream.byte()):
                edge = stream.text()
                yield from below(stream.leb(), prefix + edge)

        return list(below(0, "")) if size else []

    def symbols(self):
        """Names and types of the symbol table."""
        (command,) = self._offsets(LC_SYMTAB)
        table, count, strings, _ = struct.unpack_from("<4I", self.data, command + 8)
        for i in range(count):
            name, kind = struct.unpack_from("<IB", self.data, table + 16 * i)
            yield Bytes(self.data, strings + name).text(), kind

    def file_offset(self, address):
        for segment in self.segments:
            if segment["address"] <= address < segment["address"] + segment["file_size"]:
                return address - segment["address"] + segment["offset"]
        raise ValueError(f"{address:#x} is in no segment")

    def pointer(self, address):
        return struct.unpack_from("<Q", self.data, self.file_offset(address))[0]

    def text(self, address):
        return Bytes(self.data, self.file_offset(address)).text()

    def texts(self):
        """The C strings."""
        _, size, offset = self.sections["__cstring"]
        return self.data[offset : offset + size].decode().split("\0")

    def classes(self):
        """The classes by name. A superclass is a name, or a symbol when it is in another library."""
        bound = {address: symbol for address, symbol, _ in self.binds}
        start, size, _ = self.sections["__objc_classlist"]

        def read_only(address):
            return self.pointer(address + 32) & ~7

        def name(address):
            return self.text(self.pointer(read_only(address) + 24))

        def methods(address):
            table = self.pointer(read_only(address) + 32)
            if not table:
                return []
            entry, count = struct.unpack_from("<II", self.data, self.file_offset(table))
            return [self.text(self.pointer(table + 8 + i * entry)) for i in range(count)]

        result = {}
        for place in range(start, start + size, 8):
            address = self.pointer(place)
            superclass = bound.get(address + 8) or name(self.pointer(address + 8))
            metaclass = self.pointer(address)
            result[name(address)] = Class(name(address), superclass, methods(address), methods(metaclass))
        return result

    def signature(self):
        """The signature's offset and size, and its blobs by slot, each with its magic number."""
        (command,) = self._offsets(LC_CODE_SIGNATURE)
        offset, size = struct.unpack_from("<II", self.data, command + 8)
        magic, _, count = struct.unpack_from(">III", self.data, offset)
        assert magic == 0xFADE0CC0, f"a signature begins with {magic:#x}"
        blobs = {}
        for i in range(count):
            slot, place = struct.unpack_from(">II", self.data, offset + 12 + 8 * i)
            magic, length = struct.unpack_from(">II", self.data, offset + place)
            blobs[slot] = magic, self.data[offset + place :][:length]
        return offset, size, blobs

    def code_directories(self):
        return [CodeDirectory(blob, 0) for magic, blob in self.signature()[2].values() if magic == CODE_DIRECTORY]
