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

Row = collections.namedtuple("Row", "operation ours against label target greater_is_better")


def at_most(operation, ours, against, label, target=None):
    return Row(operation, ours, against, label, target, False)


# What is compared with what, by the names of the benchmarks; what the other one is called; and the
# ratio that we want to reach, ours to the other's.
ROWS = [
    at_most("numeric record to text", "numeric/ours", "numeric/snprintf", "snprintf", 1.0),
    at_most("", "numeric/ours", "numeric/hand-written", "hand-written", 2.0),
    at_most("", "numeric/ours", "numeric/nlohmann", "nlohmann", 0.2),
    at_most("", "numeric/ours", "numeric/fmt", "fmt"),
    at_most("", "numeric/ours", "numeric/RapidJSON", "RapidJSON"),
    at_most("", "numeric/ours", "numeric/jsoncpp", "jsoncpp"),
    at_most("string record, 220-byte payload", "string220/ours", "string220/hand-written",
            "hand-written", 1.25),
    at_most("", "string220/ours", "string220/nlohmann", "nlohmann", 0.15),
    at_most("", "string220/ours", "string220/RapidJSON", "RapidJSON"),
    at_most("", "string220/ours", "string220/jsoncpp", "jsoncpp"),
    at_most("string record, 60 KB payload", "string60k/ours", "string60k/Boost.JSON",
            "Boost.JSON, payload alone", 1.15),
    at_most("", "string60k/ours", "string60k/simdjson", "simdjson, payload alone", 1.3),
    at_most("", "string60k/ours", "string60k/nlohmann", "nlohmann"),
    at_most("", "string60k/ours", "string60k/RapidJSON", "RapidJSON"),
    at_most("", "string60k/ours", "string60k/jsoncpp", "jsoncpp"),
    at_most("one event to a file", "event/ours", "event/hand-written", "hand-written", 1.6),
    at_most("ready text to a file", "ready/ours", "ready/write(2)", "write(2)", 1.10),
    at_most("", "ready/ours", "ready/spdlog", "spdlog with flush", 1.0),
    at_most("`GenerateUuid`", "identifier/ours", "identifier/hand-written", "hand-written", 1.05),
    at_most("start and end of a step", "step/ours", "step/hand-written", "hand-written", 1.10),
    Row("rendering on 2 threads, rate", "threads/real_time/threads:2",
        "threads/real_time/threads:1", "one thread; ratio to twice its rate", 0.95, True),
    at_most("4,000 ends of steps from 4 processes", "processes/4/manual_time",
            "processes/1/manual_time", "from one process", 1.15),
    at_most("rendering one metric among 100,000 more", "catalogue/one/100000/real_time",
            "catalogue/one/0/real_time", "among no more", 1.6),
    at_most("rendering any of 100,000 metrics", "catalogue/any/100000/real_time",
            "catalogue/any/121/real_time", "any of 121", 1.6),
    at_most("registering 100,000 metrics in ascending order, each",
            "register/ascending/100000/real_time", "register/ascending/1000/real_time",
            "1,000 metrics", 2.0),
    at_most("registering 100,000 metrics in no order, each", "register/shuffled/100000/real_time",
            "register/shuffled/1000/real_time", "1,000 metrics", 2.0),
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
                     f"{row.label} | {spread(times[row.against])} | "
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
        f"Linux {platform.release().split('-')[0]}, {compiler.stdout.splitlines()[0]}; libVMetrics with -O2, all else that is "
        "built here with -O3, and with NDEBUG.",
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
