#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Fails if a source file is so long that it should come apart."""
import pathlib
import subprocess
import sys

LONGEST = 500
# Of a hundred files, ninety-five are shorter.
USUAL = 300


def main():
    files = subprocess.check_output(["git", "ls-files", "*.h", "*.cpp"], text=True).split()
    sizes = sorted((len(pathlib.Path(file).read_bytes().splitlines()), file) for file in files)
    too_long = [(lines, file) for lines, file in sizes if lines > LONGEST]
    for lines, file in too_long:
        print(f"{file}: {lines} lines; more than {LONGEST} are too many", file=sys.stderr)
    long_ones = [(lines, file) for lines, file in sizes if lines >= USUAL]
    too_many = len(long_ones) * 100 > len(sizes) * 5
    if too_many:
        print(f"{len(long_ones)} of {len(sizes)} files have {USUAL} lines or more,"
              " which 5 of 100 may have:", file=sys.stderr)
        for lines, file in reversed(long_ones):
            print(f"  {file}: {lines}", file=sys.stderr)
    return 1 if too_long or too_many else 0


if __name__ == "__main__":
    sys.exit(main())
