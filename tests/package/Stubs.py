"""Reads the stubs of the device's libraries: which symbols each library contains."""

import pathlib
import re


def stubs(folder):
    """The symbols of each library, by its path on the device."""
    return dict(_stub(path.read_text()) for path in pathlib.Path(folder).rglob("*.tbd"))


def _stub(text):
    library = re.search(r"^install-name:\s+'(.*)'", text, re.MULTILINE).group(1)

    def listed(key):
        found = re.search(rf"^\s+{key}:\s+\[(.*?)\]", text, re.MULTILINE | re.DOTALL)
        return [name.strip(" '\n") for name in found.group(1).split(",")] if found else []

    symbols = set(listed("symbols") + listed("weak-symbols"))
    for name in listed("objc-classes"):
        symbols |= {f"_OBJC_CLASS_$_{name}", f"_OBJC_METACLASS_$_{name}"}
    symbols |= {f"_OBJC_IVAR_$_{name}" for name in listed("objc-ivars")}
    symbols |= {f"_OBJC_EHTYPE_$_{name}" for name in listed("objc-eh-types")}
    return library, symbols
