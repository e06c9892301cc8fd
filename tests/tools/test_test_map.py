"""The page that says which test holds which rule names tests that are there."""

import pathlib
import re
import unittest

TESTS = pathlib.Path(__file__).resolve().parents[1]
FILE = re.compile(r"[\w/]+\.(?:cpp|py|h|sh)")
NAME = re.compile(r"(?:\w+/)?(\w+)\.(\w+)(?:/\w+)?")


def named_tests():
    """File, suite and name of each test of the page; a file without names has none."""
    for line in (TESTS / "README.md").read_text("utf-8").splitlines():
        if not line.startswith("| "):
            continue
        file = None
        for quoted in re.findall(r"`([^`]+)`", line.split(" | ", 1)[-1]):
            if FILE.fullmatch(quoted):
                file = quoted
                yield file, None, None
            elif file and file.endswith("Test.cpp") and NAME.fullmatch(quoted):
                yield (file, *NAME.fullmatch(quoted).groups())


class TestMap(unittest.TestCase):
    def test_every_test_that_is_named_stands_in_its_file(self):
        named = list(named_tests())
        self.assertGreater(len(named), 500)
        for file, suite, name in named:
            with self.subTest(f"{file} {suite}.{name}"):
                path = TESTS / file
                self.assertTrue(path.is_file())
                if suite:
                    text = path.read_text("utf-8")
                    self.assertTrue(
                        re.search(rf"TEST(_F|_P)?\(\s*{suite},\s*{name}\s*\)", text))


if __name__ == "__main__":
    unittest.main()
