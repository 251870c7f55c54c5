#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""tidy.py BUILD FOLDER...: asks clang-tidy about the sources of these folders, which
are compiled in that build directory.

Nearly all the time goes into the headers that sources share, so those of a target are
read as one file. Where clang-tidy does not like what it reads there, be it that two
files use a name twice, it is asked about each half, down to single files, whose answer
counts. Files that were found clean and have not changed since are not asked again.
"""
import concurrent.futures
import json
import os
import pathlib
import shlex
import subprocess
import sys

# Enough to share the cost of the headers, few enough for every processor to have some.
MOST_AT_ONCE = 30


def tracked(*patterns):
    return subprocess.check_output(["git", "ls-files", *patterns], text=True).split()


def batches(database, sources):
    """The sources that are compiled alike, in lists of (file, compile command)."""
    alike = {}
    for entry in database:
        file = os.path.relpath(entry["file"])
        if file not in sources:
            continue
        command = entry["command"].split(" -o ")[0]
        folder, name = os.path.split(file)
        # Beside the functions that it calls, main would have to catch their authors' faults.
        alike.setdefault((command, folder, name == "main.cpp"), {})[file] = entry
    for entries in alike.values():
        files = sorted(entries)
        for first in range(0, len(files), MOST_AT_ONCE):
            yield [entries[file] for file in files[first:first + MOST_AT_ONCE]]


class Batch:
    def __init__(self, entries):
        self.entries = entries
        self.files = [os.path.relpath(entry["file"]) for entry in entries]
        self.name = self.files[0].replace("/", "_") + f".{len(self.files)}"

    def size(self):
        return sum(os.path.getsize(file) for file in self.files)

    def is_clean(self, folder, headers):
        stamp = folder / f"{self.name}.clean"
        if not stamp.exists():
            return False
        clean_since = stamp.stat().st_mtime
        return all(os.path.getmtime(file) < clean_since for file in [*self.files, *headers])

    def check(self, folder):
        """What clang-tidy finds; empty if the files are clean."""
        begun = folder / f"{self.name}.begun"
        begun.touch()
        found = self.found_together(folder)
        if found and len(self.files) > 1:
            # Worth mending where the files themselves turn out to be clean.
            print(f"{self.files[0]} and {len(self.files) - 1} more are read apart:",
                  found.splitlines()[0], file=sys.stderr)
            middle = len(self.files) // 2
            found = "".join(Batch(half).check(folder)
                            for half in (self.entries[:middle], self.entries[middle:]))
        if not found:
            begun.rename(folder / f"{self.name}.clean")
        return found

    def found_together(self, folder):
        first = self.entries[0]
        source = pathlib.Path(first["file"])
        options = shlex.split(first["command"].split(" -o ")[0])
        options = options[next(i for i, word in enumerate(options) if word.startswith("-")):]
        if len(self.files) > 1:
            # Not by #include: of what is included, not all is analysed.
            options += ["-iquote", str(source.parent)]
            source = folder / f"{self.name}.cpp"
            source.write_text("".join(f'#line 1 "{file}"\n{pathlib.Path(file).read_text()}'
                                      for file in self.files))
        done = subprocess.run(["clang-tidy", "--quiet", str(source), "--", *options],
                              cwd=first["directory"], capture_output=True, text=True, check=False)
        return done.stdout or (done.stderr if done.returncode else "")


def main():
    build, folders = pathlib.Path(sys.argv[1]).resolve(), sys.argv[2:]
    folder = build / "tidy"
    folder.mkdir(exist_ok=True)
    database = json.loads((build / "compile_commands.json").read_text())
    sources = set(tracked(*(f"{name}/*.cpp" for name in folders)))
    headers = [*tracked("*.h"), ".clang-tidy"]
    every = [Batch(entries) for entries in batches(database, sources)]
    missing = sources.difference(*(batch.files for batch in every))
    for file in sorted(missing):
        print(f"{file} is compiled by no target", file=sys.stderr)
    left = sorted((batch for batch in every if not batch.is_clean(folder, headers)),
                  key=Batch.size)
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        found = "".join(pool.map(lambda batch: batch.check(folder), reversed(left)))
    sys.stdout.write(found)
    return 1 if found or missing else 0


if __name__ == "__main__":
    sys.exit(main())
