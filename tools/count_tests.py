"""Counts what a test program reported.

Reads the closing lines of GoogleTest, of Python's unittest and of programs that end with
"N passed, N failed".  A program that ended early (crash, time limit) or reported nothing counts
as one failure more than it told, and so does one that fails without naming a failed test.
"""

import re

GTEST_END = re.compile(r"\[==========\] (\d+) tests? from \d+ test (?:suite|case)s? ran")
GTEST_FAILED = re.compile(r"\[  FAILED  \] (\d+) tests?, listed below")
GTEST_SKIPPED = re.compile(r"\[  SKIPPED \] (\d+) tests?, listed below")
UNITTEST_END = re.compile(r"^Ran (\d+) tests? in ", re.MULTILINE)
UNITTEST_RESULT = re.compile(r"^(?:OK|FAILED)(?: \((.*)\))?\s*$", re.MULTILINE)
PLAIN_END = re.compile(r"^(\d+) passed, (\d+) failed\s*$", re.MULTILINE)


def first_number(pattern, text):
    found = pattern.search(text)
    return int(found.group(1)) if found else 0


def count_gtest(log):
    end = GTEST_END.search(log)
    if not end:
        return None
    failed, skipped = first_number(GTEST_FAILED, log), first_number(GTEST_SKIPPED, log)
    return int(end.group(1)) - failed - skipped, failed, skipped


def count_unittest(log):
    end, results = UNITTEST_END.search(log), UNITTEST_RESULT.findall(log)
    if not end or not results:
        return None
    counts = dict(item.split("=") for item in results[-1].split(", ") if item)
    failed = int(counts.get("failures", 0)) + int(counts.get("errors", 0))
    skipped = int(counts.get("skipped", 0))
    return int(end.group(1)) - failed - skipped, failed, skipped


def count_plain(log):
    ends = PLAIN_END.findall(log)
    return (int(ends[-1][0]), int(ends[-1][1]), 0) if ends else None


def count_unfinished(log):
    """A program that never reached its closing lines."""
    passed, failed = log.count("[       OK ]"), len(re.findall(r"\[  FAILED  \] \S+ \(", log))
    return passed, failed + 1, 0


def count(log, status):
    """Passed, failed and skipped tests by a program's output and its exit status."""
    log = log.replace("\r\n", "\n")
    counts = count_gtest(log) or count_unittest(log) or count_plain(log)
    passed, failed, skipped = counts or count_unfinished(log)
    if failed == 0 and (status != 0 or passed == 0):
        failed = 1
    return passed, failed, skipped

