"""Changes the framework in one place at a time and sees whether its unit tests notice.

usage: bin/mutate [--list] [--sample N] [FILE...]
  --list      only prints the mutants
  --sample N  tries N of them, evenly spread
  FILE...     only those of these files

Prints each mutant that survives, and at the end how many of each file were tried, killed, explained
and not. Fails when one survives that explained.txt does not explain, and, where all are tried, when
it explains what does not survive.
"""

import argparse
import os
import shlex
import subprocess
import sys
import tempfile
import threading
from collections import Counter
from concurrent.futures import ThreadPoolExecutor

from mutants import mutants_of

BUILD = 'build/mutation'
PROGRAM = 'Tests/unit_tests'
ROOTS = ('Framework/VMetrics/src/', 'Framework/VMetrics/include/')
EXPLAINED = os.path.join(os.path.dirname(__file__), 'explained.txt')
# A row's texts each make a mutant, and one table of all rows kills them all.
ROWS = 'Framework/VMetrics/src/VMetrics/BuiltInMetrics.cpp'
PROCESSORS = len(os.sched_getaffinity(0))
SECONDS = 30  # All tests together take less than one.


class Change:
    """A mutant of a file, and how a reader is told of it."""

    def __init__(self, file, source, mutant):
        self.file = file
        self.mutated = source[:mutant.begin] + mutant.text + source[mutant.end:]
        self.line = source.count('\n', 0, mutant.begin) + 1
        begin = source.rfind('\n', 0, mutant.begin) + 1
        end = source.find('\n', mutant.end)
        # A line that stands there more than once is told with those in front of it.
        while begin > 0 and source.count(source[begin:end]) > 1:
            begin = source.rfind('\n', 0, begin - 1) + 1
        self.before = ' '.join(source[begin:end].split())
        self.after = ' '.join((source[begin:mutant.begin] + mutant.text +
                               source[mutant.end:end]).split())

    def __str__(self):
        return f'{self.file}:{self.line}\n  - {self.before}\n  + {self.after}'

    def key(self):
        return self.file, self.before, self.after


def all_changes(files):
    changes = []
    for file in files:
        with open(file, encoding='utf-8') as stream:
            source = stream.read()
        changes += [Change(file, source, mutant) for mutant in mutants_of(source)]
    return changes


def explained_changes():
    """Blocks of four lines or more: the file, "- before", "+ after", the reason."""
    with open(EXPLAINED, encoding='utf-8') as stream:
        text = ''.join(line for line in stream if not line.startswith('#'))
    keys = set()
    for block in filter(None, (block.strip() for block in text.split('\n\n'))):
        lines = [line.strip() for line in block.split('\n')]
        if len(lines) < 4 or lines[1][:2] != '- ' or lines[2][:2] != '+ ':
            sys.exit(f'{EXPLAINED}: not an explanation:\n{block}')
        keys.add((lines[0], lines[1][2:], lines[2][2:]))
    return keys


def run(command):
    return subprocess.run(command, cwd=BUILD, capture_output=True, check=False).returncode == 0


def ninja(*arguments):
    return subprocess.run(['ninja', '-C', BUILD, '--quiet', *arguments], check=True,
                          capture_output=True, text=True).stdout


class Program:
    """The test program, its framework as a shared library: only that is linked for each mutant."""

    def __init__(self, directory):
        self.directory = directory
        self.commands = {}
        for line in ninja('-t', 'commands', PROGRAM).splitlines():
            words = shlex.split(line)
            if '-c' in words:
                # All that is inside can be called from outside.
                self.commands[words[words.index('-o') + 1]] = [
                    word for word in words if not word.startswith('-fvisibility')]
            elif PROGRAM in words:
                # Between nothing before it and the listing of the tests after it.
                self.link = ' '.join(words).split(' && ')[1].split(' ')
        self.readers = self.find_readers()
        self.framework = [target for target in self.commands if 'VMetricsObjects.dir' in target]
        self.objects = {}
        self.make_unchanged()

    def find_readers(self):
        """Which objects are made from a file."""
        readers = {}
        current = None
        for line in ninja('-t', 'deps').splitlines():
            if line and not line[0].isspace():
                current = line.split(':')[0]
            elif line.strip() and current in self.commands:
                path = os.path.relpath(os.path.join(BUILD, line.strip()))
                readers.setdefault(path, []).append(current)
        return readers

    def make_unchanged(self):
        for number, target in enumerate(self.framework):
            self.objects[target] = os.path.join(self.directory, f'{number}.o')
        with ThreadPoolExecutor(PROCESSORS) as pool:
            made = list(pool.map(lambda target: run(self.compilation(
                target, self.objects[target], [])), self.framework))
        if not (all(made) and self.link_library({}, self.directory) and
                self.link_program({}, self.directory)):
            sys.exit('The test program cannot be made.')

    def make(self, change, scratch):
        """Makes what has the change; returns the program, or None if it does not compile."""
        mutated = os.path.join(scratch, change.file)
        os.makedirs(os.path.dirname(mutated), exist_ok=True)
        with open(mutated, 'w', encoding='utf-8') as stream:
            stream.write(change.mutated)
        # Found first: the compiler looks for "Unit/Header.h" next to the includer in vain.
        overlays = [f'-I{os.path.join(scratch, root)}' for root in ROOTS]
        replaced = {}
        for number, target in enumerate(self.readers[change.file]):
            replaced[target] = os.path.join(scratch, f'{number}.o')
            source = mutated if change.file.endswith('.cpp') else None
            if not run(self.compilation(target, replaced[target], overlays, source)):
                return None
        if not self.link_library(replaced, scratch):
            return None
        if not set(replaced) - set(self.framework):
            return os.path.join(self.directory, 'unit_tests')
        return os.path.join(scratch, 'unit_tests') if self.link_program(replaced, scratch) else None

    def compilation(self, target, result, overlays, source=None):
        words = list(self.commands[target])
        for option in ('-o', '-MF', '-MT'):
            words[words.index(option) + 1] = result if option == '-o' else result + '.d'
        return [words[0], *overlays, '-w', *words[1:-1], source or words[-1]]

    def link_library(self, replaced, directory):
        objects = [replaced.get(target, made) for target, made in self.objects.items()]
        return run([self.link[0], '-shared', '-Wl,-soname,libframework.so', *objects,
                    '-o', os.path.join(directory, 'libframework.so')])

    def link_program(self, replaced, directory):
        words = [replaced.get(word, word) for word in self.link if word not in self.framework]
        words[words.index('-o') + 1] = os.path.join(directory, 'unit_tests')
        # In front of the platform's archive, of which it needs most.
        words.insert(words.index('-o'), os.path.join(self.directory, 'libframework.so'))
        return run(words)


def tests_pass(program, directory):
    """Runs the tests with the library that is in `directory`."""
    try:
        # A changed program may write, and wait, without end.
        return subprocess.run([program, '--gtest_fail_fast', '--gtest_brief=1'], cwd=directory,
                              env={**os.environ, 'LD_LIBRARY_PATH': directory},
                              stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL,
                              stderr=subprocess.DEVNULL, check=False,
                              timeout=SECONDS).returncode == 0
    except subprocess.TimeoutExpired:
        return False


def outcome(program, change):
    with tempfile.TemporaryDirectory(prefix='mutant') as scratch:
        made = program.make(change, scratch)
        if made is None:
            return 'not compiled'
        return 'survived' if tests_pass(made, scratch) else 'killed'


def try_all(program, changes):
    """Returns how many changes came to what by file, and the explanations that explain one."""
    explained = explained_changes()
    counts = {}
    used = set()
    lock = threading.Lock()

    def attempt(change):
        result = outcome(program, change)
        with lock:
            if result == 'survived' and change.key() in explained:
                result = 'explained'
                used.add(change.key())
            counts.setdefault(change.file, Counter())[result] += 1
            if result == 'survived':
                print(change, flush=True)

    with ThreadPoolExecutor(PROCESSORS) as pool:
        list(pool.map(attempt, changes))
    return counts, used


def figures(counts):
    tried = sum(counts.values()) - counts['not compiled']
    rate = 100 * (counts['killed'] + counts['explained']) / tried if tried else 100
    return (f"{tried} mutants: {counts['killed']} killed, {counts['explained']} explained, "
            f"{counts['survived']} survived ({rate:.1f}% killed or explained); "
            f"{counts['not compiled']} more do not compile")


def tell(counts):
    for file in sorted(counts):
        print(f'{file}: {figures(counts[file])}')
    print('Without the rows:', figures(sum((counts[file] for file in counts if file != ROWS),
                                           Counter())))
    print('All:', figures(sum(counts.values(), Counter())))


def tell_unused(used):
    """Whether there are explanations of changes that are gone, or killed by now."""
    unused = explained_changes() - used
    for file, before, after in sorted(unused):
        print(f'Explained, but nothing that survives: {file}\n  - {before}\n  + {after}')
    return bool(unused)


def main():
    parser = argparse.ArgumentParser(usage=__doc__.split('\n\n', 1)[1])
    parser.add_argument('--list', action='store_true')
    parser.add_argument('--sample', type=int)
    parser.add_argument('files', nargs='*', metavar='FILE')
    options = parser.parse_args()
    files = options.files or subprocess.run(
        ['git', 'ls-files', 'Framework/*.cpp', 'Framework/*.h'], check=True, capture_output=True,
        text=True).stdout.split()
    changes = all_changes(files)
    if options.sample:
        changes = changes[::max(1, len(changes) // options.sample)][:options.sample]
    if options.list:
        print(*changes, sep='\n')
        return 0
    with tempfile.TemporaryDirectory(prefix='unchanged') as directory:
        program = Program(directory)
        if not tests_pass(os.path.join(directory, 'unit_tests'), directory):
            sys.exit('The unit tests fail as they are.')
        counts, used = try_all(
            program, [change for change in changes if change.file in program.readers])
    tell(counts)
    all_tried = not options.files and not options.sample
    unused = all_tried and tell_unused(used)
    return 1 if unused or any(count['survived'] for count in counts.values()) else 0


if __name__ == '__main__':
    sys.exit(main())
