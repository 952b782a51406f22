"""Describes property-list files as PropertyListDescription does, and writes them again.

    plist_description.py FOLDER

Reads each file of the folder with Python's plistlib. Writes its description, or "unreadable", to FILE.description,
and the same value, if plistlib can write it, to FILE.binary and FILE.xml."""
import datetime
import math
import pathlib
import plistlib
import sys

REFERENCE_DATE = datetime.datetime(2001, 1, 1)


def real(template, number):
    return "nan" if math.isnan(number) else template % number


def hexadecimal(text):
    return text.encode("utf-8", "surrogatepass").hex()


def describe(value):
    if value is None:
        return "N"
    if isinstance(value, bool):
        return "T" if value else "F"
    if isinstance(value, int):
        return f"i{value}"
    if isinstance(value, float):
        return "r" + real("%.17g", value)
    if isinstance(value, str):
        return "s" + hexadecimal(value)
    if isinstance(value, bytes):
        return "b" + value.hex()
    if isinstance(value, datetime.datetime):
        return "d" + real("%.6f", (value - REFERENCE_DATE).total_seconds())
    if isinstance(value, plistlib.UID):
        return f"u{value.data}"
    if isinstance(value, list):
        return "[" + "".join(describe(element) + "," for element in value) + "]"
    return "<" + "".join(f"{hexadecimal(key)}={describe(element)}," for key, element in value.items()) + ">"


def write(value, path, form):
    try:
        path.write_bytes(plistlib.dumps(value, fmt=form, sort_keys=False))
    except Exception:
        path.unlink(missing_ok=True)


def beside(path, suffix):
    return path.with_name(path.name + suffix)


def main(folder):
    for path in sorted(pathlib.Path(folder).iterdir()):
        try:
            value = plistlib.loads(path.read_bytes())
            description = describe(value)
        except Exception:
            beside(path, ".description").write_text("unreadable")
            continue
        beside(path, ".description").write_text(description)
        write(value, beside(path, ".binary"), plistlib.FMT_BINARY)
        write(value, beside(path, ".xml"), plistlib.FMT_XML)


main(sys.argv[1])
