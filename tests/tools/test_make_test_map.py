"""The page that says which test holds which rule is made from the tests."""
# Rules: Tools and packages

import pathlib
import unittest

import tool

MAP = tool.load("make-test-map")
FILE = MAP.TESTS / "library" / "SomeTest.cpp"
TEXT = "// Rules: Library files\n#include <gtest/gtest.h>\n\nTEST(Suite, NewRuleHolds) {}\n"


class TestMap(unittest.TestCase):
    def test_page_is_what_the_tests_say(self):
        self.assertEqual((MAP.TESTS / "RULES.md").read_text("utf-8"), MAP.page(MAP.test_files()))

    def test_name_of_a_test_is_its_rule_as_a_sentence(self):
        self.assertEqual(MAP.sentence("F2InTheListStartsTheEdit"), "F2 in the list starts the edit")
        self.assertEqual(MAP.sentence("SolidWorksThatDiesIsAnError"),
                         "SolidWorks that dies is an error")

    def test_rules_stand_under_the_subject_that_the_file_names(self):
        page = MAP.page([(FILE, TEXT)])
        self.assertTrue(page.endswith(
            "\n## Library files\n\n`library/SomeTest.cpp`\n\n- New rule holds\n"))

    def test_file_that_names_no_subject_is_refused(self):
        for text in (TEXT.partition("\n")[2], TEXT.replace("Library files", "Something")):
            with self.subTest(text), self.assertRaises(SystemExit) as refused:
                MAP.page([(FILE, text)])
            self.assertIn("tests/library/SomeTest.cpp", str(refused.exception))


if __name__ == "__main__":
    unittest.main()
