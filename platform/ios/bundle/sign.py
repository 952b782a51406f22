#!/usr/bin/env python3
"""Signs a Mach-O file ad hoc. Replaces the signature of the linker.

    sign.py FILE IDENTIFIER

The linker only hashes the pages with SHA-256. iOS 9 and 10 need SHA-1, so this writes a code directory for each hash.
"""

import hashlib
import struct
import sys

PAGE = 4096
SEGMENT_ALIGNMENT = 0x4000

MH_MAGIC_64 = 0xFEEDFACF
LC_SEGMENT_64 = 0x19
LC_CODE_SIGNATURE = 0x1D

# The magic numbers of a signature's blobs, and their slots in the signature.
SIGNATURE, CODE_DIRECTORY, REQUIREMENTS, CMS = 0xFADE0CC0, 0xFADE0C02, 0xFADE0C01, 0xFADE0B01
SLOT_CODE_DIRECTORY, SLOT_REQUIREMENTS, SLOT_ALTERNATE_CODE_DIRECTORY, SLOT_CMS = 0, 2, 0x1000, 0x10000

AD_HOC = 0x2
HASHES = {"sha1": 1, "sha256": 2}


def round_up(number, step):
    return -(-number // step) * step


def blob(magic, content):
    return struct.pack(">II", magic, 8 + len(content)) + content


NO_REQUIREMENTS = blob(REQUIREMENTS, struct.pack(">I", 0))


def code_directory(code, identifier, text_size, algorithm):
    """Version 2.4: the hashes of every page, preceded in reverse order by those of the Info.plist (none: it is a
    separate file) and of the requirements."""

    def digest(data):
        return hashlib.new(algorithm, data).digest()

    pages = [digest(code[start : start + PAGE]) for start in range(0, len(code), PAGE)]
    special = [digest(NO_REQUIREMENTS), bytes(hashlib.new(algorithm).digest_size)]
    name = identifier.encode() + b"\0"
    header_size = 88
    fields = struct.pack(
        ">7I4BIIIIQQQQ",
        0x20400,
        AD_HOC,
        header_size + len(name) + len(b"".join(special)),  # where the hashes of the pages are
        header_size,  # where the identifier is
        len(special),
        len(pages),
        len(code),
        len(special[0]),
        HASHES[algorithm],
        0,  # no platform binary
        PAGE.bit_length() - 1,
        0,
        0,  # not scattered
        0,  # no team
        0,
        0,  # the size of the code fits into the field above
        0,  # where __TEXT is
        text_size,
        0,  # not a main binary
    )
    return blob(CODE_DIRECTORY, fields + name + b"".join(special + pages))


def signature(code, identifier, text_size):
    blobs = {
        SLOT_CODE_DIRECTORY: code_directory(code, identifier, text_size, "sha1"),
        SLOT_REQUIREMENTS: NO_REQUIREMENTS,
        SLOT_ALTERNATE_CODE_DIRECTORY: code_directory(code, identifier, text_size, "sha256"),
        SLOT_CMS: blob(CMS, b""),
    }
    offset = 12 + 8 * len(blobs)
    index = struct.pack(">I", len(blobs))
    for slot, content in blobs.items():
        index += struct.pack(">II", slot, offset)
        offset += len(content)
    return blob(SIGNATURE, index + b"".join(blobs.values()))


def load_commands(image):
    magic, _, _, _, count = struct.unpack_from("<5I", image)
    if magic != MH_MAGIC_64:
        sys.exit("sign.py: not a 64-bit Mach-O file")
    offset = 32
    for _ in range(count):
        command, size = struct.unpack_from("<II", image, offset)
        yield command, offset
        offset += size


def signed(image, identifier):
    image = bytearray(image)
    segments = {}
    signature_command = None
    for command, offset in load_commands(image):
        if command == LC_SEGMENT_64:
            segments[bytes(image[offset + 8 : offset + 24]).rstrip(b"\0")] = offset
        elif command == LC_CODE_SIGNATURE:
            signature_command = offset
    if signature_command is None:
        sys.exit("sign.py: the linker left no room for a signature")

    code_size = struct.unpack_from("<I", image, signature_command + 8)[0]
    text_size = struct.unpack_from("<Q", image, segments[b"__TEXT"] + 48)[0]
    del image[code_size:]

    # The size of the signature is stored in the first page, which is signed too.
    size = round_up(len(signature(image, identifier, text_size)), 16)
    struct.pack_into("<I", image, signature_command + 12, size)
    link_edit = segments[b"__LINKEDIT"]
    link_edit_size = code_size + size - struct.unpack_from("<Q", image, link_edit + 40)[0]
    struct.pack_into("<Q", image, link_edit + 32, round_up(link_edit_size, SEGMENT_ALIGNMENT))
    struct.pack_into("<Q", image, link_edit + 48, link_edit_size)

    return bytes(image) + signature(image, identifier, text_size).ljust(size, b"\0")


def main():
    path, identifier = sys.argv[1:]
    with open(path, "rb") as file:
        image = file.read()
    with open(path, "wb") as file:
        file.write(signed(image, identifier))


if __name__ == "__main__":
    main()
