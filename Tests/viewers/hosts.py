"""Hosts of the library that write a metrics file, and what must have come of their lines."""
import glob
import gzip
import json
import subprocess
import time

LIMIT = 60


def wait_until(done, what, limit=LIMIT):
    """Waits for a condition, and not for ever."""
    end = time.monotonic() + limit
    while not done():
        if time.monotonic() > end:
            raise SystemExit(f'not within {limit} s: {what}')
        time.sleep(0.05)


def lines_of(pattern):
    """The whole lines of all files that match, as bytes; packed ones are unpacked."""
    lines = []
    for path in glob.glob(pattern):
        with (gzip.open if path.endswith('.gz') else open)(path, 'rb') as file:
            content = file.read()
        lines += content[:content.rfind(b'\n') + 1].split(b'\n')[:-1]
    return lines


def writer_and_number(line):
    """Which line of which writer it is: an event or a step."""
    record = json.loads(line)
    args = record['args']
    if 'number' in args:
        return args['writer'], args['number']
    return record['transactionId'], int(args['stepName'].removeprefix('number '))


class Writers:
    """Processes that write to one file until they are told to end."""

    def __init__(self, program, file, names, stack):
        self.written = {}
        self._processes = {}
        for name in names:
            process = subprocess.Popen([program, file, name], stdin=subprocess.PIPE,
                                       stdout=subprocess.PIPE, cwd=file.rpartition('/')[0])
            stack.callback(process.wait)
            stack.callback(process.kill)
            self._processes[name] = process

    def end(self):
        for name, process in self._processes.items():
            output = process.communicate(timeout=LIMIT)[0]
            if process.returncode != 0:
                raise SystemExit(f'writer {name} failed')
            self.written[name] = int(output)

    def expect_each_once(self, lines):
        """Every line of every writer is among the lines, once, and nothing else is."""
        found = sorted(map(writer_and_number, lines))
        wanted = sorted((name, number) for name, count in self.written.items()
                        for number in range(count))
        if found != wanted:
            lost = sorted(set(wanted) - set(found))
            raise SystemExit(f'{len(wanted)} lines written, {len(found)} found; lost: {lost[:5]}')
