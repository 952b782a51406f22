"""Reads a property-list file, or writes its contents to another file, with Python's plistlib, on request.

    plistlib_times.py REQUESTS FILE

REQUESTS contains the lines "read" and "write". The answer to each is its duration in microseconds."""
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
