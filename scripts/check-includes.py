#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Fails if a source file includes a header that its folder must not know."""
import pathlib
import re
import subprocess
import sys

# Who may include whose headers; every folder may include its own.
KNOWN_TO = {
    "host": [],
    "src": ["host"],
    "refhost/libcore": ["host"],
    "refhost/libsdk": ["host", "history"],
    "refhost/dialupservice": [],
    "refhost/translations": [],
    "history": [],
    "modem": [],
    "usage": ["history"],
    "formats": ["usage", "history"],
    "recorder/bus": ["recorder", "modem", "history"],
    "recorder": ["modem", "history"],
    "apps/common": ["formats", "usage", "recorder/bus", "recorder", "modem", "history"],
    "apps/connrecord": ["apps/common", "formats", "usage", "recorder/bus", "recorder", "modem", "history"],
    "apps/refdialer": [
        "host", "refhost/libcore", "apps/common", "formats", "usage", "recorder/bus", "recorder", "modem",
        "history",
    ],
    "examples": ["host"],
    "scripts": [],
}
# They may know everything.
OPEN = ("tests/", "benchmarks/")


def folder_of(path):
    return next((folder for folder in KNOWN_TO if path.startswith(folder + "/")), None)


def included_folder(line, own):
    """The folder of a header of the project, or None for any other line."""
    match = re.match(r'\s*#\s*include\s+"([^"]+)"', line)
    if not match:
        return None
    name = match.group(1)
    if "/" in name:
        return folder_of(name) or name
    if list(pathlib.Path("src" if own == "src" else own).rglob(name)):
        return own
    return "host" if pathlib.Path("host", name).exists() else None


def main():
    files = subprocess.check_output(["git", "ls-files", "*.h", "*.cpp"], text=True).split()
    wrong = 0
    for file in files:
        if file.startswith(OPEN):
            continue
        own = folder_of(file)
        if not own:
            print(f"{file}: nothing says what its folder may include", file=sys.stderr)
            wrong += 1
            continue
        for number, line in enumerate(pathlib.Path(file).read_text().splitlines(), 1):
            other = included_folder(line, own)
            if other and other != own and other not in KNOWN_TO[own]:
                print(f"{file}:{number}: {own}/ must not know {other}", file=sys.stderr)
                wrong += 1
    return 1 if wrong else 0


if __name__ == "__main__":
    sys.exit(main())
