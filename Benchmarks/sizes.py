#!/usr/bin/env python3
"""Tells how large the library is without its symbols, and fails above the limits.

usage: sizes.py LIBRARY
"""

import pathlib
import subprocess
import sys
import tempfile

LONGEST_FILE = 100_000
LONGEST_TEXT = 64_000


def output(*command):
    return subprocess.run(command, capture_output=True, text=True, check=True).stdout


def sizes(library):
    """Bytes of the stripped file, of its section .text, and of all that `size` calls text: code,
    constants, and what the dynamic linker and exceptions need."""
    with tempfile.TemporaryDirectory() as directory:
        stripped = pathlib.Path(directory, "stripped.so")
        output("strip", "-o", stripped, library)
        file = stripped.stat().st_size
    section = next(line.split()[1] for line in output("size", "-A", library).splitlines()
                   if line.startswith(".text "))
    column = output("size", library).splitlines()[1].split()[0]
    return file, int(section), int(column)


def main():
    file, section, column = sizes(sys.argv[1])
    print(f"{pathlib.Path(sys.argv[1]).name}, stripped: {file} bytes (at most {LONGEST_FILE}); "
          f"code and constants: {column} bytes (at most {LONGEST_TEXT}); code alone: {section} bytes.")
    if file > LONGEST_FILE or column > LONGEST_TEXT:
        sys.exit("The library is larger than that.")


if __name__ == "__main__":
    main()
