#!/usr/bin/env python3
"""Plants faults in a copy of the sources, one after the other, and prints which of them
no test notices.

  tests/mutate.py              every fault of tests/mutations.txt
  tests/mutate.py WORD...      those whose line has one of the words
  tests/mutate.py --check      plants nothing, and only sees that the list still fits the sources
  tests/mutate.py --list FILE  another list

A line of the list has, between bars: the file; what stands there, exactly once in the file; what is
to stand there instead; and the tests that are run, a regular expression for ctest. "\\n" is a line
break. The copy, and its build folder, is build/mutate; a fault that does not compile is noticed.

Ends with 0 when every fault was noticed, 1 when one was not, 2 when the list does not fit.
"""
import argparse
import filecmp
import os
import shutil
import subprocess
import sys

ROOT = os.path.dirname(os.path.dirname(os.path.abspath(__file__)))
LIST = os.path.join(ROOT, "tests", "mutations.txt")
COPY = os.path.join(ROOT, "build", "mutate")
BUILD = os.path.join(COPY, "build")
OPTIONS = ["-G", "Ninja", "-DCWIDGET_QT_MAJOR=5", "-DCMAKE_BUILD_TYPE=Release",
           "-DCMAKE_CXX_FLAGS_RELEASE=-O0", "-DCMAKE_LINK_DEPENDS_NO_SHARED=ON"]
PATIENCE = 1200  # seconds; a fault that hangs is noticed


class Fault:
    def __init__(self, number, text):
        fields = [field.strip().replace("\\n", "\n") for field in text.split(" | ")]
        self.number = number
        self.text = text
        self.valid = len(fields) == 4
        if self.valid:
            self.file, self.pattern, self.replacement, self.tests = fields

    def mistake(self):
        """What is wrong with the line of the list, or None."""
        if not self.valid:
            return "is not of four parts"
        if not os.path.isfile(os.path.join(ROOT, self.file)):
            return "names a file that is not there"
        count = read(os.path.join(ROOT, self.file)).count(self.pattern)
        if count != 1:
            return "has a pattern that stands %d times in the file" % count
        if self.pattern == self.replacement:
            return "changes nothing"
        return None


def read(path):
    with open(path, encoding="utf-8", newline="") as file:
        return file.read()


def write(path, text):
    with open(path, "w", encoding="utf-8", newline="") as file:
        file.write(text)


def same(source, target):
    return os.path.isfile(target) and filecmp.cmp(source, target, shallow=False)


def faults(path, words):
    lines = read(path).splitlines()
    every = [Fault(number, line) for number, line in enumerate(lines, 1)
             if line.strip() and not line.startswith("#")]
    return [fault for fault in every
            if not words or any(word in fault.text for word in words)]


def check(every):
    """Prints the lines that do not fit; returns whether all do."""
    good = bool(every)
    if not every:
        print("no fault in the list", file=sys.stderr)
    for fault in every:
        mistake = fault.mistake()
        if mistake:
            print("line %d %s" % (fault.number, mistake), file=sys.stderr)
            good = False
    return good


def succeeds(*command):
    try:
        done = subprocess.run(command, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL,
                              timeout=PATIENCE, check=False)
    except subprocess.TimeoutExpired:
        return False
    return done.returncode == 0


def copy_tree():
    """Only what is under version control, as it is now; what has not changed keeps its time."""
    files = subprocess.run(["git", "-C", ROOT, "ls-files"], capture_output=True, text=True,
                           check=True).stdout
    for name in files.splitlines():
        source, target = os.path.join(ROOT, name), os.path.join(COPY, name)
        if not os.path.isfile(source) or same(source, target):
            continue
        os.makedirs(os.path.dirname(target), exist_ok=True)
        shutil.copy2(source, target)


def targets_of(tests):
    """The library and the programs of the tests. A test that is no program of its name installs
    what is built, or runs a script: it gets all that stands beside the tests."""
    listed = subprocess.run(["ctest", "--test-dir", BUILD, "-N", "-R", tests],
                            capture_output=True, text=True, check=True).stdout
    names = {line.split(": ", 1)[1] for line in listed.splitlines() if " Test " in line}
    if not names:
        sys.exit("no test is called %s" % tests)
    targets = subprocess.run(["ninja", "-C", BUILD, "-t", "targets", "all"], capture_output=True,
                             text=True, check=True).stdout
    known = {line.split(":")[0] for line in targets.splitlines()}
    beside = {target for target in known if target.endswith("/all") and target[:5] != "tests"}
    return ["cwidget"] + sorted(names & known | (beside if names - known else set()))


def passes(tests):
    return (succeeds("cmake", "--build", BUILD, "--target", *targets_of(tests)) and
            succeeds("ctest", "--test-dir", BUILD, "-R", tests, "-j2"))


def is_noticed(fault):
    path = os.path.join(COPY, fault.file)
    sound = read(path)
    write(path, sound.replace(fault.pattern, fault.replacement))
    try:
        return not passes(fault.tests)
    finally:
        write(path, sound)


def arguments():
    parser = argparse.ArgumentParser(description=__doc__,
                                     formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--check", action="store_true")
    parser.add_argument("--list", default=LIST)
    parser.add_argument("words", nargs="*")
    return parser.parse_args()


def main():
    given = arguments()
    every = faults(given.list, given.words)
    if not check(every):
        return 2
    if given.check:
        print("%d faults fit the sources" % len(every))
        return 0
    copy_tree()
    if not succeeds("cmake", "-S", COPY, "-B", BUILD, *OPTIONS):
        sys.exit("the copy cannot be configured")
    for tests in sorted({fault.tests for fault in every}):
        if not passes(tests):
            sys.exit("without any fault, %s fails" % tests)
    missed = 0
    for fault in every:
        noticed = is_noticed(fault)
        missed += not noticed
        print("%-8s %d: %s" % ("noticed" if noticed else "MISSED", fault.number, fault.text),
              flush=True)
    print("%d of %d faults noticed" % (len(every) - missed, len(every)))
    return 1 if missed else 0


if __name__ == "__main__":
    sys.exit(main())
