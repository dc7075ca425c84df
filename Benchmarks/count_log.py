#!/usr/bin/env python3
"""Counts what `vmetrics stats` counts, as a user would write it: to be measured against it.

usage: count_log.py LOG

Prints a line for each step and metric: kind, ID, name, count, failures, median, 95th percentile.
"""

import collections
import json
import math
import sys


def percentile(values, percent):
    rank = math.ceil(percent * sum(values.values()) / 100)
    passed = 0
    for value in sorted(values):
        passed += values[value]
        if passed >= rank:
            return value


def main():
    values = collections.defaultdict(collections.Counter)
    failures = collections.Counter()
    with open(sys.argv[1], encoding="utf-8") as log:
        for line in log:
            record = json.loads(line)
            args = record.get("args", {})
            if "spanId" in record and "stepName" in args:
                key = ("step", "", args["stepName"])
                values[key][args["usedTime"]] += 1
                failures[key] += args["errorCode"] != 0
            elif "moduleId" in record:
                for name, value in args.items():
                    if type(value) in (int, float):
                        values[("metric", record["eventId"], name)][value] += 1
    for key, counts in values.items():
        print(*key, sum(counts.values()), failures[key], percentile(counts, 50),
              percentile(counts, 95), sep="\t")


if __name__ == "__main__":
    main()
