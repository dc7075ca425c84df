#!/usr/bin/env python3
"""Measures the tool on a large log against jq and Python, and compares what they have counted.

usage: tool.py VMETRICS LOG [DOCUMENT]

Then a million packed numeric records are decoded. Prints the table; with DOCUMENT also writes it there, between the two marker lines.
"""

import collections
import csv
import pathlib
import statistics
import subprocess
import sys
import tempfile

import report
from count_log import percentile

HERE = pathlib.Path(__file__).parent
BEGIN = "<!-- tool: begin -->"
END = "<!-- tool: end -->"
LEAST_RATE = 300  # MB a second of one processor's time.
MOST_MEMORY = 200  # MB.
RECORDS = 1000000
LEAST_RECORDS = 1000000  # A second of one processor's time.

Run = collections.namedtuple("Run", "wall processor memory")
Command = collections.namedtuple("Command", "title words repetitions is_ours")


def commands(vmetrics, log):
    return [
        Command("`vmetrics stats`", [vmetrics, "stats", "--format", "csv", log], 5, True),
        Command("`vmetrics trace --last 1`", [vmetrics, "trace", "--last", "1", log], 5, True),
        Command("jq, sort and uniq, the count of `stats`",
                ["sh", "-c", 'jq --raw-output --from-file "$1" "$2" | LC_ALL=C sort | uniq -c',
                 "sh", HERE / "count_log.jq", log], 1, False),
        Command("Python, the count of `stats`",
                [sys.executable, HERE / "count_log.py", log], 1, False),
        Command("`wc -l`", ["wc", "-l", log], 5, False),
    ]


def run(words):
    """Seconds of the clock and of the processor, MB of memory, and what was printed."""
    with tempfile.NamedTemporaryFile("r") as figures:
        measured = ["/usr/bin/time", "--format", "%e %U %S %M", "--output", figures.name]
        printed = subprocess.run(measured + words, stdout=subprocess.PIPE, text=True,
                                 check=True).stdout
        wall, user, system, kilobytes = figures.read().split()
    return Run(float(wall), float(user) + float(system), int(kilobytes) * 1024 / 1e6), printed


def counts_of_tool(printed):
    """By kind, ID and name: count, failures, median, 95th percentile; and by how much they err."""
    counts, errors = {}, {}
    for row in csv.DictReader(printed.splitlines()):
        key = (row["kind"], row["id"], row["name"])
        counts[key] = [float(row[name] or 0) for name in ("count", "failures", "median", "p95")]
        errors[key] = float(row["relativeError"])
    return counts, errors


def counts_of_jq(printed):
    values, failures = collections.defaultdict(collections.Counter), collections.Counter()
    for line in printed.splitlines():
        count, line = line.lstrip().split(" ", 1)
        *key, failed, value = line.split("\t")
        values[tuple(key)][float(value)] += int(count)
        failures[tuple(key)] += int(count) * int(failed)
    return {key: [sum(counts.values()), failures[key], percentile(counts, 50),
                  percentile(counts, 95)] for key, counts in values.items()}


def counts_of_python(printed):
    rows = (line.split("\t") for line in printed.splitlines())
    return {tuple(row[:3]): [float(number) for number in row[3:]] for row in rows}


def differences(counts, errors, peer):
    for key in sorted(counts.keys() | peer.keys()):
        ours, theirs = counts.get(key, []), peer.get(key, [])
        exact = ours[:2] == theirs[:2] and len(ours) == len(theirs)
        if not exact or any(abs(a - b) > errors[key] * abs(b) for a, b in zip(ours, theirs)):
            yield f"{key}: {ours} instead of {theirs}"


def rate_text(rate, command):
    reached = f" (>= {LEAST_RATE}: {'yes' if rate >= LEAST_RATE else '**no**'})"
    return f"{rate:.0f}{reached if command.is_ours else ''}"


def memory_text(memory, command):
    reached = f" (<= {MOST_MEMORY}: {'yes' if memory <= MOST_MEMORY else '**no**'})"
    return f"{memory:.0f}{reached if command.is_ours else ''}"


def row(command, runs, megabytes):
    processor = statistics.median(run.processor for run in runs)
    wall = statistics.median(run.wall for run in runs)
    memory = max(run.memory for run in runs)
    return (f"| {command.title} | {wall:.2f} | {processor:.2f} | "
            f"{rate_text(megabytes / max(processor, 0.01), command)} | "
            f"{memory_text(memory, command)} |")


def decoding_text(vmetrics):
    """How quickly records become lines, the records lying in a file and the lines in another."""
    record = subprocess.run([vmetrics, "encode", "302645249", "60"], stdout=subprocess.PIPE,
                            check=True).stdout
    with tempfile.NamedTemporaryFile() as records:
        records.write(record * RECORDS)
        records.flush()
        words = ["sh", "-c", '"$1" decode --numeric "$2" >"$3" && wc -l <"$3"', "sh", vmetrics,
                 records.name, records.name + ".lines"]
        try:
            results = [run(words) for _ in range(5)]
        finally:
            pathlib.Path(records.name + ".lines").unlink(missing_ok=True)
    if any(int(lines) != RECORDS for _, lines in results):
        sys.exit("A record was not decoded.")
    rate = RECORDS / statistics.median(result.processor for result, _ in results)
    return (f"`vmetrics decode --numeric` of {RECORDS} records: {rate / 1e6:.1f} million a second "
            f"(>= {LEAST_RECORDS / 1e6:.1f}: {'yes' if rate >= LEAST_RECORDS else '**no**'}), "
            "counting the lines included.")


def main():
    vmetrics, log = sys.argv[1:3]
    megabytes = pathlib.Path(log).stat().st_size / 1e6
    rows, printed = [], {}
    for command in commands(vmetrics, log):
        print(f"measuring: {command.title}", file=sys.stderr)
        run(["wc", "-l", log])  # Brings the file into memory, whatever the one before has used.
        results = [run(command.words) for _ in range(command.repetitions)]
        printed[command.title] = results[0][1]
        rows.append(row(command, [result[0] for result in results], megabytes))
    titles = list(printed)
    counts, errors = counts_of_tool(printed[titles[0]])
    for peer, read in zip(titles[2:4], (counts_of_jq, counts_of_python)):
        wrong = list(differences(counts, errors, read(printed[peer])))
        if wrong:
            sys.exit("\n".join([f"{titles[0]} differs from {peer}:"] + wrong))
    lines = int(printed[titles[-1]].split()[0])
    text = "\n".join([
        f"{report.processor()}; a log of {megabytes:.0f} MB, {lines} lines, in memory; all that "
        f"count found the same {len(counts)} steps and metrics.",
        "",
        "| what | wall, s | user and system, s | MB/s of these | peak memory, MB |",
        "|---|---|---|---|---|"] + rows + ["", decoding_text(vmetrics)])
    print(text)
    if len(sys.argv) > 3:
        report.write_table(sys.argv[3], BEGIN, END, text)


if __name__ == "__main__":
    main()
