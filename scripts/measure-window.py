#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Measures how refdialer starts with a long history.

    scripts/measure-window.py BUILD/bin [REPETITIONS]

With 0, 10,000 and 100,000 connections: the seconds until the window is drawn with all its
rows in their order, those of the processor until the program has ended, and the most
memory held, each the least of all repetitions. The window is drawn into a picture, without
a display; that adds some 0.05 s.
"""

import os
import subprocess
import sys
import tempfile
import time
from pathlib import Path

FIRST_START = 1293836400  # New Year 2011 in Berlin
SPAN = 12 * 365 * 24 * 3600


def utc(seconds):
    return time.strftime("%Y-%m-%dT%H:%M:%SZ", time.gmtime(seconds))


def lines(count):
    yield "profile,start,end,connected_seconds,uploaded_bytes,downloaded_bytes,ending,interface"
    for number in range(count):
        start = FIRST_START + SPAN * number // count
        duration = 30 + number * 37 % 20000
        yield (f"internet{number % 7}.example,{utc(start)},{utc(start + duration)},{duration},"
               f"{number * 104729 % 3000000000},{number * 1299709 % 30000000000},normal,ppp0")


def make_store(programs, folder, count, environment):
    file = folder / f"{count}.csv"
    file.write_text("\n".join(lines(count)) + "\n", encoding="utf-8")
    subprocess.run([programs / "connrecord", "import", "--format", "csv", file], check=True,
                   env=environment, stdout=subprocess.DEVNULL)


def start(programs, folder, environment):
    """Seconds, seconds of the processor, and megabytes."""
    picture = folder / "window.png"
    begin = time.time()
    process = subprocess.Popen([programs / "refdialer", "--screenshot", picture],
                               env=environment, stderr=subprocess.DEVNULL)
    _, status, usage = os.wait4(process.pid, 0)
    if status:
        sys.exit("refdialer has failed; start it by hand to see why.")
    # What it writes last is the picture; then it frees what it has.
    drawn = picture.stat().st_mtime
    return drawn - begin, usage.ru_utime + usage.ru_stime, usage.ru_maxrss / 1024


def measure(programs, count, repetitions):
    with tempfile.TemporaryDirectory() as name:
        folder = Path(name)
        environment = {**os.environ, "HOME": name, "XDG_CONFIG_HOME": name,
                       "NETINFO_STORE": str(folder / "connections.db")}
        make_store(programs, folder, count, environment)
        results = [start(programs, folder, environment) for _ in range(repetitions)]
    return [min(values) for values in zip(*results)]


def main(arguments):
    if len(arguments) not in (1, 2):
        sys.exit(__doc__)
    print("| connections | until the window is drawn | of the processor | memory |")
    print("| ---: | ---: | ---: | ---: |")
    for count in (0, 10000, 100000):
        elapsed, processor, memory = measure(Path(arguments[0]).resolve(), count,
                                             int((arguments + ["5"])[1]))
        print(f"| {count:,} | {elapsed:.2f} s | {processor:.2f} s | {memory:.0f} MB |")


if __name__ == "__main__":
    main(sys.argv[1:])
