#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""tidy.py BUILD FOLDER...: asks clang-tidy about the sources of these folders, which
are compiled in that build directory.

Nearly all the time goes into the headers that sources share, so those of a target are
read as one file. Where clang-tidy does not like what it reads there, be it that two
files use a name twice, each is asked alone, and that answer counts. Files that were
found clean and have not changed since are not asked again.
"""
import concurrent.futures
import json
import os
import pathlib
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
    def __init__(self, folder, number, entries):
        self.files = [os.path.relpath(entry["file"]) for entry in entries]
        self.entries = entries
        self.source = folder / f"{number}.cpp"
        self.stamp = folder / (self.files[0].replace("/", "_") + f".{len(self.files)}.clean")

    def size(self):
        return sum(os.path.getsize(file) for file in self.files)

    def write(self):
        # Not by #include: of what is included, not all is analysed.
        self.source.write_text("".join(f'#line 1 "{file}"\n{pathlib.Path(file).read_text()}'
                                       for file in self.files))
        first = self.entries[0]
        quoted = f"-iquote {pathlib.Path(first['file']).parent} -c "
        return {
            "directory": first["directory"],
            "file": str(self.source),
            "command": first["command"].replace(first["file"], str(self.source))
                                       .replace("-c ", quoted, 1),
        }

    def is_clean(self, headers):
        if not self.stamp.exists():
            return False
        clean_since = self.stamp.stat().st_mtime
        return all(os.path.getmtime(file) < clean_since for file in [*self.files, *headers])

    def check(self, build, folder):
        """What clang-tidy finds; empty if the files are clean."""
        begun = folder / (self.stamp.name + ".begun")
        begun.touch()
        together = tidy(folder, self.source)
        found = ""
        if together:
            # Worth mending where the files themselves turn out to be clean.
            print(f"{self.files[0]} and {len(self.files) - 1} others are read one by one:\n"
                  + together, file=sys.stderr)
            found = "".join(tidy(build, file) for file in self.files)
        if not found:
            begun.rename(self.stamp)
        return found


def tidy(build, file):
    done = subprocess.run(["clang-tidy", "--quiet", "-p", str(build), str(file)],
                          capture_output=True, text=True, check=False)
    return done.stdout or (done.stderr if done.returncode else "")


def main():
    build, folders = pathlib.Path(sys.argv[1]).resolve(), sys.argv[2:]
    folder = build / "tidy"
    folder.mkdir(exist_ok=True)
    database = json.loads((build / "compile_commands.json").read_text())
    sources = set(tracked(*(f"{name}/*.cpp" for name in folders)))
    headers = [*tracked("*.h"), ".clang-tidy"]
    every = [Batch(folder, number, entries)
             for number, entries in enumerate(batches(database, sources))]
    (folder / "compile_commands.json").write_text(json.dumps([batch.write() for batch in every]))
    missing = sources.difference(*(batch.files for batch in every))
    for file in sorted(missing):
        print(f"{file} is compiled by no target", file=sys.stderr)
    left = sorted((batch for batch in every if not batch.is_clean(headers)), key=Batch.size)
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        found = "".join(pool.map(lambda batch: batch.check(build, folder), reversed(left)))
    sys.stdout.write(found)
    return 1 if found or missing else 0


if __name__ == "__main__":
    sys.exit(main())
