# Rules: Tools and packages
import pathlib
import shutil
import tempfile
import unittest
from unittest import mock

import tool

tidy = tool.load("check-tidy")

CLEAN = "#include <string>\n\nnamespace {\nint One() {\n    return 1;\n}\n} // namespace\n\n"
USES_ONE = CLEAN + "int First() {\n    return One();\n}\n"
NULL_VALUE = "#include <string>\n\nint Second() {\n    int* none = 0;\n    return *none;\n}\n"


class CheckTidy(unittest.TestCase):
    def setUp(self):
        temporary = tempfile.TemporaryDirectory()
        self.addCleanup(temporary.cleanup)
        self.folder = pathlib.Path(temporary.name)
        patch = mock.patch.object(tidy, "KNOWN", self.folder)
        patch.start()
        self.addCleanup(patch.stop)

    def write(self, name, text):
        file = self.folder / name
        file.write_text(text, encoding="utf-8")
        return file

    def test_joined_files_keep_their_line_numbers_and_include_everything_once(self):
        a, b = self.write("a.cpp", "#include <string>\nint a;\n"), self.write(
            "b.cpp", "#include <vector>\n  # include <string>\nint b;\n")
        self.assertEqual(tidy.joined([a, b]).splitlines(),
                         [f'#line 1 "{a}"', "#include <string>", "int a;",
                          f'#line 1 "{b}"', "#include <vector>", "", "int b;"])

    def test_only_files_with_the_same_options_of_which_nothing_is_known_go_together(self):
        files = [self.write(f"{index}.cpp", f"int a{index};\n") for index in range(5)]
        commands = {file: ["-std=c++20"] for file in files[:4]} | {files[4]: ["-DX"]}
        (self.folder / tidy.fingerprint(files[0], ["-std=c++20"], "tool")).touch()
        self.assertEqual(tidy.batches(commands, "tool"),
                         [(files[1:4], ("-std=c++20",)), (files[4:5], ("-DX",))])

    def test_files_that_a_build_compiles_as_one_are_found_behind_it(self):
        sources = [self.write("a.cpp", ""), self.write("b.cpp", "")]
        (self.folder / "Unity").mkdir()
        together = self.write("Unity/unity_0_cxx.cxx", "/* made */\n\n" + "".join(
            f'#include "{source}"\n\n' for source in sources))
        self.assertEqual(tidy.sources_of(together), sources)
        self.assertEqual(tidy.sources_of(sources[0]), sources[:1])

    def test_files_that_are_clean_together_are_known_to_be_clean(self):
        files = [self.write(f"{index}.cpp", f"int a{index};\n") for index in range(3)]
        with mock.patch.object(tidy, "findings", return_value="") as findings:
            self.assertEqual(tidy.check(files, [], "tool"), ["", "", ""])
        self.assertEqual(findings.call_count, 1)
        self.assertEqual(tidy.batches({file: [] for file in files}, "tool"), [])

    @unittest.skipUnless(shutil.which("clang-tidy"), "clang-tidy is not there")
    def test_what_is_found_together_is_told_of_its_own_file(self):
        files = [self.write("a.cpp", USES_ONE), self.write("b.cpp", NULL_VALUE)]
        clean, found = tidy.check(files, ["-std=c++20"], "tool")
        self.assertEqual(clean, "")
        self.assertIn("b.cpp:4:", found)
        self.assertIn("modernize-use-nullptr", found)
        self.assertIn("clang-analyzer", found)

    @unittest.skipUnless(shutil.which("clang-tidy"), "clang-tidy is not there")
    def test_paths_through_the_code_are_followed_when_that_is_asked_for(self):
        file = self.write("a.cpp", "int First() {\n    int* none = nullptr;\n    return *none;\n}\n")
        self.assertEqual(tidy.check([file], ["-std=c++20", tidy.WITHOUT_PATHS], "tool"), [""])
        self.assertIn("clang-analyzer", tidy.check([file], ["-std=c++20"], "tool")[0])

    @unittest.skipUnless(shutil.which("clang-tidy"), "clang-tidy is not there")
    def test_files_that_do_not_go_together_after_all_are_looked_at_in_halves(self):
        files = [self.write("a.cpp", USES_ONE), self.write("b.cpp", USES_ONE.replace("First", "B"))]
        self.assertEqual(tidy.check(files, ["-std=c++20"], "tool"), ["", ""])


if __name__ == "__main__":
    unittest.main()
