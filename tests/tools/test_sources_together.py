# Rules: Tools and packages
import pathlib
import subprocess
import sys
import tempfile
import unittest

import tool

together = tool.load("sources_together")


class SourcesTogether(unittest.TestCase):
    def setUp(self):
        temporary = tempfile.TemporaryDirectory()
        self.addCleanup(temporary.cleanup)
        self.folder = pathlib.Path(temporary.name).resolve()

    def write(self, name, text):
        file = self.folder / name
        file.write_text(text, encoding="utf-8")
        return file

    def test_no_more_files_than_are_asked_for_go_together(self):
        files = [self.write(f"{index}.cpp", "") for index in range(5)]
        self.assertEqual([len(group) for group in together.groups(files, 2)], [2, 2, 1])

    def test_file_goes_to_those_that_include_what_it_does(self):
        texts = ["#include <a>\n", "#include <b>\n", "#include <a>\n", "#include <b>\n"]
        files = [self.write(f"{index}.cpp", text) for index, text in enumerate(texts)]
        self.assertEqual(together.groups(files, 2), [files[::2], files[1::2]])

    def test_name_that_a_file_has_for_itself_alone_stands_in_no_other_one(self):
        for declared in ("int One() {", "constexpr int One = 1;", "struct One {", "class One : Two {",
                         "enum class One {", "using One = int;", "const std::array<int, 2> One{1, 2};",
                         "template <typename T> T One(T t) {", "int One[2];"):
            with self.subTest(declared):
                own = f"namespace {{\n\n{declared}\n    One();\n\n}} // namespace\n"
                files = [self.write("a.cpp", own), self.write("b.cpp", own),
                         self.write("c.cpp", "int Three(); // no One()\n"),
                         self.write("d.cpp", "int Four() {\n    return Other::One();\n}\n")]
                self.assertEqual(together.groups(files, 4),
                                 [[files[0], files[2]], [files[1]], [files[3]]])

    def test_name_of_its_own_is_no_type_in_the_headers_of_another_file(self):
        own = self.write("a.cpp", "namespace {\n\nint Document(int page) {\n}\n\n} // namespace\n")
        self.write("inner.h", "class Document;\n")
        header = self.write("outer.h", f'#include "{self.folder}/inner.h"\n')
        other = self.write("b.cpp", f'#include "{header}"\n')
        self.assertEqual(together.groups([own, other], 2), [[own], [other]])

    def test_two_programs_do_not_go_together(self):
        files = [self.write("a.cpp", "int main() {}\n"), self.write("b.cpp", "int main() {}\n")]
        self.assertEqual(together.groups(files, 2), [files[:1], files[1:]])

    def test_build_is_told_the_group_of_each_file(self):
        files = [self.write("a.cpp", "#include <a>\n"), self.write("b.cpp", "#include <b>\n"),
                 self.write("c.cpp", "#include <a>\n")]
        told = subprocess.run([sys.executable, together.__file__, "2", *files], check=True,
                              stdout=subprocess.PIPE, text=True).stdout
        self.assertEqual(told, "0;1;0")


if __name__ == "__main__":
    unittest.main()
