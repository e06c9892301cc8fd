# Rules: Tools and packages
import unittest

import tool

count = tool.load("count_tests").count

ALL_PASSED = """[ RUN      ] A.B
[       OK ] A.B (0 ms)
[==========] 7 tests from 2 test suites ran. (3 ms total)
[  PASSED  ] 7 tests.
"""
TWO_FAILED_ONE_SKIPPED = """[==========] 7 tests from 2 test suites ran. (3 ms total)
[  PASSED  ] 4 tests.
[  SKIPPED ] 1 test, listed below:
[  SKIPPED ] A.D
[  FAILED  ] 2 tests, listed below:
[  FAILED  ] A.B
[  FAILED  ] A.C
"""
CRASHED = """[       OK ] A.A (0 ms)
[       OK ] A.B (0 ms)
[  FAILED  ] A.C (0 ms)
[ RUN      ] A.D
"""


class Count(unittest.TestCase):
    def test_of_a_good_run(self):
        self.assertEqual(count(ALL_PASSED, 0), (7, 0, 0))

    def test_of_a_windows_program_whose_lines_end_otherwise(self):
        self.assertEqual(count(ALL_PASSED.replace("\n", "\r\n"), 0), (7, 0, 0))

    def test_of_failed_and_skipped_tests(self):
        self.assertEqual(count(TWO_FAILED_ONE_SKIPPED, 1), (4, 2, 1))

    def test_a_crash_is_a_failure_of_its_own(self):
        self.assertEqual(count(CRASHED, 139), (2, 2, 0))

    def test_a_leak_found_after_the_last_test_is_a_failure(self):
        self.assertEqual(count(ALL_PASSED, 23), (7, 1, 0))

    def test_a_program_that_is_missing_is_a_failure(self):
        self.assertEqual(count("No such file or directory\n", 127), (0, 1, 0))

    def test_no_test_at_all_is_a_failure(self):
        self.assertEqual(count("[==========] 0 tests from 0 test suites ran. (0 ms total)\n", 0),
                         (0, 1, 0))

    def test_of_python_tests(self):
        self.assertEqual(count("....\nRan 4 tests in 0.1s\n\nOK (skipped=1)\n", 0), (3, 0, 1))
        self.assertEqual(count("F.E.\nRan 4 tests in 0.1s\n\nFAILED (failures=1, errors=1)\n", 1),
                         (2, 2, 0))

    def test_of_a_program_that_ends_with_its_own_summary(self):
        self.assertEqual(count("1 open\n12 passed, 0 failed\n", 0), (12, 0, 0))
        self.assertEqual(count("1 open\n11 passed, 1 failed\n", 1), (11, 1, 0))


if __name__ == "__main__":
    unittest.main()
