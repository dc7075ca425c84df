#!/usr/bin/env python3
"""Counts the instructions that a call of each operation takes, and compares them with the baseline.

usage: instructions.py PROGRAM [--update]

PROGRAM is the built instruction_counts. With --update the counts become the new baseline.
"""

import concurrent.futures
import os
import pathlib
import re
import subprocess
import sys

BASELINE = pathlib.Path(__file__).with_name("instructions.tsv")
CALLS = 200
TOLERANCE = 0.05

# Nothing of the caller's environment, as it moves the stack; and of the C library's variants of
# memcpy and the like always the same ones, whatever the processor could do.
ENVIRONMENT = {
    "PATH": "/usr/bin:/bin",
    "GLIBC_TUNABLES": "glibc.cpu.hwcaps=-AVX2,-AVX,-ERMS,-FSRM,-SSE4_2,-SSE4_1,-SSSE3",
}


def toolchain_and_operations(program):
    listed = subprocess.run([program], capture_output=True, text=True, check=True)
    toolchain, *operations = listed.stdout.splitlines()
    return toolchain, operations


def count(program, operation):
    run = subprocess.run(
        ["valgrind", "--tool=callgrind", "--callgrind-out-file=/dev/null", "--collect-atstart=no",
         program, operation, str(CALLS)],
        capture_output=True, text=True, env=ENVIRONMENT)
    collected = re.search(r"Collected : (\d+)", run.stderr)
    if run.returncode != 0 or not collected:
        sys.exit(f"{operation} could not be counted:\n{run.stderr}")
    return round(int(collected[1]) / CALLS)


def count_all(program, operations):
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        return dict(zip(operations, pool.map(lambda name: count(program, name), operations)))


def read_baseline():
    toolchain, *rows = BASELINE.read_text().splitlines()
    return toolchain.removeprefix("# "), {name: int(number) for name, number in
                                          (row.split("\t") for row in rows)}


def write_baseline(toolchain, counts):
    rows = "".join(f"{name}\t{number}\n" for name, number in counts.items())
    BASELINE.write_text(f"# {toolchain}\n{rows}")
    print(f"Written: {BASELINE.name}, {len(counts)} operations, {toolchain}.")


def complaints(counts, baseline):
    """What is wrong, a line for each operation. A baseline that is too high is wrong, too: it would
    hide what grows later."""
    for name in sorted(counts.keys() ^ baseline.keys()):
        yield f"{name}: {'not in the baseline' if name in counts else 'only in the baseline'}"
    for name in (name for name in counts if name in baseline):
        change = counts[name] / baseline[name] - 1
        if abs(change) > TOLERANCE:
            yield f"{name}: {baseline[name]} -> {counts[name]} instructions a call ({change:+.1%})"


def main():
    program = sys.argv[1]
    toolchain, operations = toolchain_and_operations(program)
    if "--update" in sys.argv:
        write_baseline(toolchain, count_all(program, operations))
        return
    baseline_toolchain, baseline = read_baseline()
    if toolchain != baseline_toolchain:
        sys.exit(f"Not comparable: the baseline is of {baseline_toolchain}, this build of {toolchain}. "
                 "'bin/instructions --update' writes a new one.")
    wrong = list(complaints(count_all(program, operations), baseline))
    if wrong:
        sys.exit("\n".join(wrong + ["If that is meant, 'bin/instructions --update' writes a new "
                                    "baseline, to be committed with its cause."]))
    print(f"No operation of {len(operations)} has grown or shrunk by more than {TOLERANCE:.0%}.")


if __name__ == "__main__":
    main()
