#!/usr/bin/env python3
"""Tells what the library costs besides time per call: allocations, size, loading, memory.

usage: costs.py BUILD_DIRECTORY [DOCUMENT]

Prints the table; with DOCUMENT also writes it there, between the two marker lines.
"""

import pathlib
import statistics
import subprocess
import sys

import report
import sizes

BEGIN = "<!-- costs: begin -->"
END = "<!-- costs: end -->"
LOADS = 300
ALLOCATIONS = pathlib.Path(__file__).parent.parent / "Tests/golden/allocations.tsv"


def output(*command):
    return subprocess.run(command, capture_output=True, text=True, check=True).stdout


def read_table(text):
    return {name: int(number) for name, number in
            (line.split("\t") for line in text.splitlines())}


def load_times(build, library):
    """Nanoseconds, one process after another; the first ones only bring the files into memory."""
    program = build / "Benchmarks/load_time"
    return [int(output(program, library)) for _ in range(LOADS + 5)][5:]


def row(what, value, shown, target=None, shown_target=""):
    reached = "" if target is None else "yes" if value <= target else "**no**"
    return f"| {what} | {shown} | {shown_target} | {reached} |"


def count_row(what, value, target):
    return row(what, value, value, target, f"<= {target}")


def size_row(what, value, target=None):
    return row(what, value, f"{value / 1000:.1f} KB", target,
               f"<= {target // 1000} KB" if target else "")


def table(build):
    library = build / "Framework/VMetrics/libVMetrics.so"
    allocations = read_table(ALLOCATIONS.read_text())
    memory = read_table(output(build / "Benchmarks/entry_memory"))
    file, section, column = sizes.sizes(library)
    loads = load_times(build, library)
    return "\n".join([
        "| what | measured | target | reached |",
        "|---|---|---|---|",
        count_row("allocations of a rendered numeric record, the returned text included",
                  allocations["GetBaseMetricsString"], 3),
        count_row("allocations of a rendered string record with a short payload",
                  allocations["GetStringBaseMetricsString_short"], 6),
        size_row("`libVMetrics.so`, stripped", file, sizes.LONGEST_FILE),
        size_row("its code and constants, the column `text` of `size`", column, sizes.LONGEST_TEXT),
        size_row("its code alone, the section `.text`", section),
        row(f"loading it, `dlopen` in {LOADS} new processes", statistics.median(loads),
            report.spread(loads), 200_000, "<= 200 us"),
        row("memory of a metric among 100,000, numeric ID", memory["numeric ID"],
            f"{memory['numeric ID']} bytes", 400, "<= 400 bytes"),
        row("memory of a metric among 100,000, event ID", memory["event ID"],
            f"{memory['event ID']} bytes", 400, "<= 400 bytes"),
    ])


def main():
    text = table(pathlib.Path(sys.argv[1]))
    print(text)
    if len(sys.argv) > 2:
        report.write_table(sys.argv[2], BEGIN, END, text)


main()
