"""Which packages each way of using the project installs."""
# Rules: Tools and packages

import subprocess
import unittest

import tool


def packages(name):
    command = [tool.ROOT / "tools" / "setup.sh", "--list", name]
    return set(subprocess.run(command, check=True, stdout=subprocess.PIPE, text=True)
               .stdout.split())


class Setup(unittest.TestCase):
    def test_running_wants_nothing_that_only_tests_and_packages_need(self):
        others = {"clang", "clang-tidy", "clang-format", "cppcheck", "gcovr", "nsis", "g++"}
        self.assertEqual(packages("run") & others, set())
        self.assertIn("wine", packages("run"))

    def test_packages_and_native_tests_want_no_wine(self):
        for name in ("package", "native"):
            self.assertEqual({"wine", "xvfb"} & packages(name), set(), name)
        self.assertIn("nsis", packages("package"))

    def test_testing_wants_all_that_the_others_want(self):
        for name in ("run", "package", "native"):
            self.assertLess(packages(name), packages("test"))

    def test_an_unknown_set_is_refused(self):
        result = subprocess.run([tool.ROOT / "tools" / "setup.sh", "everything"], check=False,
                                stderr=subprocess.PIPE, text=True)
        self.assertEqual(result.returncode, 2)
        self.assertIn("usage", result.stderr)


if __name__ == "__main__":
    unittest.main()
