"""Reads a property-list file, or writes it anew beside, with Python's plistlib, whenever a line asks for it.

    plistlib_times.py REQUESTS FILE

REQUESTS is where the lines "read" and "write" come from. Each is answered with the microseconds that it took."""
import plistlib
import sys
import time


def read(path):
    with open(path, "rb") as file:
        return plistlib.load(file)


def write(contents, path):
    with open(path, "wb") as file:
        plistlib.dump(contents, file, fmt=plistlib.FMT_BINARY)


def main(requests, path):
    contents = read(path)
    with open(requests, encoding="ascii") as lines:
        for line in lines:
            start = time.perf_counter()
            if line == "read\n":
                read(path)
            else:
                write(contents, path + ".python")
            print((time.perf_counter() - start) * 1e6, flush=True)


main(sys.argv[1], sys.argv[2])
