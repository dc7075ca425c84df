#!/usr/bin/env python3
"""Turns the results of the benchmarks into the table of ratios.

usage: report.py RESULTS_DIRECTORY [DOCUMENT]

Prints the table; with DOCUMENT also writes it there, between the two marker lines.
"""

import collections
import datetime
import json
import pathlib
import platform
import statistics
import subprocess
import sys

Row = collections.namedtuple("Row", "operation ours against target greater_is_better")

# What is compared with what, and the ratio that we want to reach: ours to the other's.
ROWS = [
    Row("numeric record to text", "numeric/ours", "numeric/snprintf", 1.0, False),
    Row("", "numeric/ours", "numeric/hand-written", 2.0, False),
    Row("", "numeric/ours", "numeric/nlohmann", 0.2, False),
    Row("", "numeric/ours", "numeric/fmt", None, False),
    Row("", "numeric/ours", "numeric/RapidJSON", None, False),
    Row("", "numeric/ours", "numeric/jsoncpp", None, False),
    Row("string record, 220-byte payload", "string220/ours", "string220/hand-written", 1.25, False),
    Row("", "string220/ours", "string220/nlohmann", 0.15, False),
    Row("", "string220/ours", "string220/RapidJSON", None, False),
    Row("", "string220/ours", "string220/jsoncpp", None, False),
    Row("string record, 60 KB payload", "string60k/ours", "string60k/Boost.JSON", 1.15, False),
    Row("", "string60k/ours", "string60k/simdjson", 1.3, False),
    Row("", "string60k/ours", "string60k/nlohmann", None, False),
    Row("", "string60k/ours", "string60k/RapidJSON", None, False),
    Row("", "string60k/ours", "string60k/jsoncpp", None, False),
    Row("one event to a file", "event/ours", "event/hand-written", 1.6, False),
    Row("ready text to a file", "ready/ours", "ready/write(2)", 1.10, False),
    Row("", "ready/ours", "ready/spdlog", 1.0, False),
    Row("`GenerateUuid`", "identifier/ours", "identifier/hand-written", 1.05, False),
    Row("start and end of a step", "step/ours", "step/hand-written", 1.10, False),
    Row("rendering on 2 threads, rate against 2 x one thread's", "threads/real_time/threads:2",
        "threads/real_time/threads:1", 0.95, True),
    Row("ends of steps from 4 processes, against one doing the same", "processes/4/manual_time",
        "processes/1/manual_time", 1.15, False),
    Row("rendering among 100,000 registered metrics", "catalogue/100000", "catalogue/0", 1.6, False),
    Row("registering, per entry: 100,000 against 1,000", "register/100000", "register/1000", 2.0,
        False),
]

BEGIN = "<!-- table: begin -->"
END = "<!-- table: end -->"


def read_times(directory):
    """The times of all repetitions in nanoseconds, by the name of the benchmark."""
    times = collections.defaultdict(list)
    for path in sorted(pathlib.Path(directory).glob("*.json")):
        for run in json.loads(path.read_text())["benchmarks"]:
            if run.get("error_occurred"):
                sys.exit(f"{run['name']}: {run['error_message']}")
            if run["run_type"] != "iteration":
                continue
            time = run["real_time"]
            # Where one iteration handles many items, or several threads share them.
            if "items_per_second" in run:
                time = 1e9 / run["items_per_second"]
            times[run["run_name"]].append(time)
    return times


def shown(nanoseconds):
    for unit, size in (("ms", 1e6), ("us", 1e3)):
        if nanoseconds >= size:
            return f"{nanoseconds / size:.3g} {unit}"
    return f"{nanoseconds:.3g} ns"


def spread(times):
    return f"{shown(statistics.median(times))} [{shown(min(times))} - {shown(max(times))}]"


def ratio(row, times):
    value = statistics.median(times[row.ours]) / statistics.median(times[row.against])
    # Twice the rate of one thread is half its time.
    return 1 / (2 * value) if row.greater_is_better else value


def verdict(row, value):
    if row.target is None:
        return "", ""
    sign = ">=" if row.greater_is_better else "<="
    reached = value >= row.target if row.greater_is_better else value <= row.target
    return f"{sign} {row.target}", "yes" if reached else "**no**"


def table(times):
    lines = ["| operation | ours | against | theirs | ratio | target | reached |",
             "|---|---|---|---|---|---|---|"]
    for row in ROWS:
        value = ratio(row, times)
        target, reached = verdict(row, value)
        lines.append(f"| {row.operation} | {spread(times[row.ours])} | "
                     f"{row.against.split('/', 1)[-1]} | {spread(times[row.against])} | "
                     f"{value:.3g} | {target} | {reached} |")
    return "\n".join(lines)


def package_versions():
    names = ["libbenchmark-dev", "libboost-json1.81-dev", "libfmt-dev", "libjsoncpp-dev",
             "libsimdjson-dev", "libspdlog-dev", "nlohmann-json3-dev", "rapidjson-dev"]
    listed = subprocess.run(["dpkg-query", "--show", "--showformat", "${Package} ${Version}, "]
                            + names, capture_output=True, text=True, check=True)
    return listed.stdout.rstrip(", ")


def processor():
    for line in pathlib.Path("/proc/cpuinfo").read_text().splitlines():
        if line.startswith("model name"):
            return line.split(":", 1)[1].strip()
    return platform.machine()


def machine(times):
    compiler = subprocess.run(["g++", "--version"], capture_output=True, text=True, check=True)
    repetitions = min(len(runs) for runs in times.values())
    return "\n".join([
        f"Measured on {datetime.date.today().isoformat()}: {processor()}, "
        f"Linux {platform.release().split('-')[0]}, {compiler.stdout.splitlines()[0]}, -O3 -DNDEBUG.",
        f"Medians of {repetitions} repetitions in random order, least and greatest in brackets; "
        "files in memory.",
        f"Versions: {package_versions()}.",
    ])


def write_table(document, begin, end, text):
    """Puts the text between two marker lines of the document, in place of what stands there."""
    path = pathlib.Path(document)
    before, rest = path.read_text().split(begin)
    after = rest.split(end)[1]
    path.write_text(f"{before}{begin}\n{text}\n{end}{after}")


def main():
    times = read_times(sys.argv[1])
    text = f"{machine(times)}\n\n{table(times)}"
    print(text)
    if len(sys.argv) > 2:
        write_table(sys.argv[2], BEGIN, END, text)


if __name__ == "__main__":
    main()
