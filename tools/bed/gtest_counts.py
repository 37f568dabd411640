"""Counts a GoogleTest result file: prints "passed failed skipped".

Usage: gtest_counts.py RESULTS EXIT_CODE. What failed, and why, goes to the
standard error output.
"""
import json
import sys

LINES_PER_FAILURE = 12


def tests(results):
    for suite in results.get("testsuites", []):
        for test in suite.get("testsuite", []):
            yield f"{suite['name']}.{test['name']}", test


def verdict(test):
    if test.get("status") == "NOTRUN" or test.get("result") == "SUPPRESSED":
        return None
    if test.get("failures"):
        return "failed"
    return "skipped" if test.get("result") == "SKIPPED" else "passed"


def show(name, test):
    print(f"FAILED {name}", file=sys.stderr)
    for failure in test["failures"]:
        lines = failure.get("failure", "").splitlines()
        for line in lines[:LINES_PER_FAILURE]:
            print(f"    {line}", file=sys.stderr)
        if len(lines) > LINES_PER_FAILURE:
            print("    ...", file=sys.stderr)


def main():
    path, code = sys.argv[1], int(sys.argv[2])
    with open(path, encoding="utf-8", errors="replace") as file:
        results = json.load(file)
    counts = {"passed": 0, "failed": 0, "skipped": 0}
    for name, test in tests(results):
        outcome = verdict(test)
        if outcome:
            counts[outcome] += 1
        if outcome == "failed":
            show(name, test)
    if code and not counts["failed"]:
        counts["failed"] += 1
        print(f"every test passed, but the program ended with code {code}", file=sys.stderr)
    print(counts["passed"], counts["failed"], counts["skipped"])


if __name__ == "__main__":
    try:
        main()
    except FileNotFoundError:
        sys.exit(1)
    except (OSError, ValueError, KeyError) as error:
        print(f"no usable result file: {error}", file=sys.stderr)
        sys.exit(1)
