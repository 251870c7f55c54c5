#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Makes a table and a chart of what the program "benchmarks" has measured.

    benchmarks/report.py CHART.svg RUN.json...

Each RUN.json is what benchmarks --benchmark_out=RUN.json has written. The table
goes to the standard output as Markdown, one column for each run; of repeated
measurements it takes the least, which other programs have disturbed least.
"""

import json
import sys
from collections import defaultdict


class Run:
    """The least values of one run, by the benchmark's name."""

    def __init__(self, path):
        with open(path, encoding="utf-8") as file:
            content = json.load(file)
        self.qt = content["context"]["qt"]
        self._entries = defaultdict(list)
        for entry in content["benchmarks"]:
            if entry["run_type"] == "iteration":
                name = entry["run_name"].split("/iterations:")[0]
                self._entries[name].append(entry)

    def value(self, name, key="real_time"):
        return min(entry[key] for entry in self._entries[name])

    def ratio(self, name, base, key="real_time"):
        return self.value(name, key) / self.value(base, key)

    def logging(self):
        return self.value("log/init/10000") / (self.value("log/lines/10000") +
                                               self.value("init/10000"))

    def growth(self, name, size, base_size):
        """How much more one of `size` costs than one of `base_size`."""
        return self.ratio(f"{name}/{size}", f"{name}/{base_size}") * base_size / size


def times(work, against, base, target):
    """A line that weighs one benchmark against another."""
    return (work, against, target, lambda run: run.ratio(*base))


def lines():
    bare = "Qt, plainly"
    limit = "the limit"
    result = []
    for size in (10000, 100000):
        result.append(times(f"fill {size:,} rows", bare,
                            (f"fill/plug-in/{size}", f"fill/bare/{size}"), None))
    for work, name, target, sizes in (("init with", "init", 1.6, (10000, 100000)),
                                      ("fill with", "fill/plug-in", 1.3, (10000, 100000))):
        for size in sizes:
            for zone, suffix in (("with TZ", ""), ("without TZ", "/no-zone")):
                result.append(times(f"{work} {size:,} records, {zone}", limit,
                                    (f"{name}{suffix}/{size}", f"fill/limit/{size}"), target))
    for size in (100000, 1000000):
        result.append((f"fill {size:,} rows, each", "each of 10,000", 1.2,
                       lambda run, size=size: run.growth("fill/plug-in", size, 10000)))
    result.append(("init with 10,000 records, debug output on",
                   "its lines by `qDebug`, and a silent init", 1.2, Run.logging))
    result.append(times("convert a record", "the same, times by Qt",
                        ("conversion/plug-in", "conversion/plain"), 0.4))
    result.append(times("convert a record, silent log", "the same without log lines",
                        ("conversion/plug-in", "conversion/without_log"), 1.05))
    for kind, size, work in (("scattered", 1000, "1,000 scattered rows of 100,000"),
                             ("block", 10000, "10,000 rows in the middle of 100,000"),
                             ("all", 10000, "all of 10,000 rows")):
        names = [f"deletion/{kind}/{side}/{size}" for side in ("plug-in", "bare")]
        result.append(times(f"delete {work}", bare, names, 1.1))
    for kind, work in (("block", "rows one below the other"), ("scattered", "scattered rows")):
        result.append((f"delete 10,000 {work}, each", "each of 1,000", 1.1,
                       lambda run, kind=kind: run.growth(f"deletion/{kind}/plug-in", 10000, 1000)))
    result.append(("memory of a row of 100,000", bare, 1.05, lambda run: run.ratio(
        "fill/plug-in/100000", "fill/bare/100000", "bytes_per_row")))
    result.append(times("list 100,000 records of libsdk", "stepping with SQLite",
                        ("list/libsdk/100000", "list/sqlite/100000"), 1.5))
    return result


def table(runs):
    heads = ["work", "against", "to reach"] + [f"Qt {run.qt}" for run in runs]
    rows = [heads, ["---"] * 3 + ["---:"] * len(runs)]
    for work, against, target, figure in lines():
        rows.append([work, against, f"at most {target:.2f}" if target else "", ] +
                    [marked(figure(run), target) for run in runs])
    removal = "removal/libsdk/10000"
    rows.append(["remove 10,000 records of libsdk one by one", "", "under 2 s"] +
                [f"{run.value(removal) / 1000:.2f} s" for run in runs])
    rows.append(["disk syncs of these removals", "", "not one each"] +
                [f"{run.value(removal, 'syncs'):.0f}" for run in runs])
    return "\n".join("| " + " | ".join(row) + " |" for row in rows)


def marked(figure, target):
    return f"{figure:.2f}" if not target or figure <= target else f"**{figure:.2f}**"


WIDTH, ROW, LEFT, BAR = 720, 26, 190, 430
COLOURS = {"other": "#b0b7c3", "plug-in": "#2f6fb3"}


def bar(row, label, milliseconds, longest, colour):
    width = max(BAR * milliseconds / longest, 1)
    middle = row * ROW + 64
    return (f'<text x="{LEFT - 8}" y="{middle + 5}" text-anchor="end">{label}</text>'
            f'<rect x="{LEFT}" y="{middle - 8}" width="{width:.1f}" height="16" fill="{colour}"/>'
            f'<text x="{LEFT + width + 6:.1f}" y="{middle + 5}">{milliseconds:,.0f} ms</text>')


def chart(run):
    """The work with 100,000 records beside others' fills, as an SVG picture."""
    bars = [("Qt, plainly", "fill/bare/100000", "other"),
            ("the limit", "fill/limit/100000", "other"),
            ("plug-in: fill", "fill/plug-in/100000", "plug-in"),
            ("plug-in: init", "init/100000", "plug-in"),
            ("plug-in: reload", "reload/100000", "plug-in")]
    longest = max(run.value(name) for _, name, _ in bars)
    drawn = [bar(row, label, run.value(name), longest, COLOURS[side])
             for row, (label, name, side) in enumerate(bars)]
    height = len(bars) * ROW + 70
    title = f"100,000 connections into the table (Qt {run.qt}, less is better)"
    return "\n".join(
        [f'<svg xmlns="http://www.w3.org/2000/svg" width="{WIDTH}" height="{height}"'
         f' viewBox="0 0 {WIDTH} {height}" font-family="sans-serif" font-size="14">',
         f'<rect width="{WIDTH}" height="{height}" fill="white"/>',
         f'<text x="16" y="30" font-size="16">{title}</text>', *drawn, "</svg>", ""])


def main(arguments):
    if len(arguments) < 2:
        sys.exit(__doc__)
    runs = [Run(path) for path in arguments[1:]]
    with open(arguments[0], "w", encoding="utf-8") as file:
        file.write(chart(runs[0]))
    print(table(runs))


if __name__ == "__main__":
    main(sys.argv[1:])
