"""Runs the screen tests and writes their counts.

Usage: screen_run.py FOLDER RESULTS [PATTERN] runs FOLDER/test_*.py and writes
RESULTS, a JSON list with one object a file; screen_run.py --lines RESULTS
prints that list as lines "file passed failed skipped seconds".
"""
import json
import os
import sys
import time
import unittest


class Counter(unittest.TestResult):
    """Counts by file and tells each failure when it happens."""

    def __init__(self):
        super().__init__()
        self.suites = {}
        self.started = 0.0

    def startTest(self, test):
        super().startTest(test)
        self.started = time.monotonic()
        self.failed_parts = 0

    def stopTest(self, test):
        suite = self.suite(test)
        suite["seconds"] += time.monotonic() - self.started
        if self.failed_parts:
            suite["failed"] += 1
        super().stopTest(test)

    def suite(self, test):
        name = type(test).__module__
        # What could not be imported stands for the file it was in.
        if name == "unittest.loader":
            name = test.id().rsplit(".", 1)[-1]
        # A fixture of a class or module that failed has no test of its own.
        if name == "unittest.suite":
            name = test.id().split("(")[-1].rstrip(")").split(".")[0]
        empty = {"passed": 0, "failed": 0, "skipped": 0, "seconds": 0.0}
        return self.suites.setdefault(name, empty)

    def addSuccess(self, test):
        super().addSuccess(test)
        self.suite(test)["passed"] += 1

    def addSkip(self, test, reason):
        super().addSkip(test, reason)
        self.suite(test)["skipped"] += 1

    def addFailure(self, test, err):
        super().addFailure(test, err)
        self.tell(test, self.failures[-1][1])

    def addError(self, test, err):
        super().addError(test, err)
        self.tell(test, self.errors[-1][1])

    def addSubTest(self, test, subtest, err):
        super().addSubTest(test, subtest, err)
        if err is not None:
            kept = self.failures if issubclass(err[0], test.failureException) else self.errors
            self.tell(subtest, kept[-1][1], test)

    def addExpectedFailure(self, test, err):
        super().addExpectedFailure(test, err)
        self.suite(test)["passed"] += 1

    def addUnexpectedSuccess(self, test):
        super().addUnexpectedSuccess(test)
        self.tell(test, "passed, although a failure is expected\n")

    def tell(self, test, text, owner=None):
        if "_ErrorHolder" in type(test).__name__:
            self.suite(test)["failed"] += 1
        else:
            self.failed_parts += 1
        print(f"    FAILED {(owner or test).id()}" + (f" {test}" if owner else ""))
        for line in text.rstrip().splitlines()[-15:]:
            print(f"        {line}")
        sys.stdout.flush()


def run(folder, results, pattern):
    sys.path.insert(0, os.path.abspath(folder))
    loader = unittest.TestLoader()
    if pattern:
        loader.testNamePatterns = [pattern if "*" in pattern else f"*{pattern}*"]
    counter = Counter()
    loader.discover(folder, "test_*.py").run(counter)
    rows = [{"suite": name, **counts} for name, counts in counter.suites.items()]
    with open(results, "w", encoding="utf-8") as file:
        json.dump(rows, file, indent=1)
    return 0 if counter.wasSuccessful() else 1


def lines(results):
    with open(results, encoding="utf-8") as file:
        for row in json.load(file):
            print(row["suite"], row["passed"], row["failed"], row["skipped"], round(row["seconds"]))
    return 0


def main(arguments):
    if arguments[0] == "--lines":
        return lines(arguments[1])
    return run(arguments[0], arguments[1], arguments[2] if len(arguments) > 2 else "")


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
