# Rules: Tools and packages
import pathlib
import subprocess
import sys
import tempfile
import unittest

import tool

check = tool.load("check-includes")


def faults(path, *lines):
    return list(check.faults_of_file(path, "\n".join(lines)))


class WindowsHeaders(unittest.TestCase):
    def test_are_refused_in_the_portable_half(self):
        for path in ("common/Text.cpp", "mainwindow/Layout.cpp", "standin/model/Part.cpp",
                     "tests/common/TextTest.cpp", "app/Start.cpp", "support/windows/AboutRules.cpp"):
            with self.subTest(path):
                self.assertEqual(len(faults(path, "#include <windows.h>")), 1)

    def test_are_welcome_in_the_windows_half(self):
        for path in ("platform/Window.cpp", "mainwindow/frmMain.cpp", "support/windows/frmAbout.h",
                     "support/windows/BannerPictures.cpp", "support/windows/FormOnDemand.h", "app/main.cpp", "standin/com/Server.cpp", "tests/ui/FormTest.cpp",
                     "resources/tnt4swx.rc"):
            with self.subTest(path):
                self.assertEqual(faults(path, "#include <windows.h>"), [])

    def test_are_found_with_blanks_around_the_hash(self):
        self.assertEqual(len(faults("common/Text.cpp", "  #  include<commctrl.h>")), 1)

    def test_are_refused_through_a_header_of_the_windows_half(self):
        self.assertEqual(len(faults("support/settings/Options.cpp", '#include "platform/Window.h"')), 1)
        self.assertEqual(len(faults("mainwindow/Views.cpp", '#include "mainwindow/frmMain.h"')), 1)

    def test_those_of_linux_are_for_what_the_console_program_asks_it(self):
        self.assertEqual(faults("converter/linux/LinuxFiles.cpp", "#include <unistd.h>"), [])
        self.assertEqual(faults("tests/converter/linux/LinuxFilesTest.cpp",
                                "#include <sys/stat.h>"), [])
        for path in ("converter/Converter.cpp", "tests/converter/ConverterTest.cpp"):
            self.assertEqual(len(faults(path, "#include <unistd.h>")), 1)
            self.assertEqual(len(faults(path, '#include "converter/linux/LinuxFiles.h"')), 1)
        self.assertEqual(len(faults("converter/linux/LinuxFiles.cpp", "#include <windows.h>")), 1)
        self.assertEqual(faults("converter/windows/Win32Console.cpp", "#include <windows.h>"), [])

    def test_that_of_the_command_lines_library_stands_in_one_file(self):
        self.assertEqual(faults("converter/ConverterArguments.cpp", "#include <CLI/CLI.hpp>"), [])
        for path in ("converter/Converter.cpp", "converter/ConverterArguments.h"):
            self.assertEqual(len(faults(path, "#include <CLI/CLI.hpp>")), 1)

    def test_the_fault_names_file_line_and_header(self):
        found = faults("common/Text.cpp", "#include <string>", "#include <windows.h>")
        self.assertTrue(found[0].startswith("common/Text.cpp:2: windows.h: "), found)


class StandardHeaders(unittest.TestCase):
    def test_are_welcome_everywhere(self):
        self.assertEqual(faults("common/Text.cpp", "#include <string_view>", "#include <span>"), [])

    def test_those_of_the_test_framework_only_in_tests(self):
        self.assertEqual(faults("tests/common/TextTest.cpp", "#include <gtest/gtest.h>"), [])
        self.assertEqual(len(faults("common/Text.cpp", "#include <gtest/gtest.h>")), 1)


class OwnHeaders(unittest.TestCase):
    def test_may_not_be_included_up_the_house(self):
        for path, header in (("common/Text.cpp", "library/Library.h"),
                             ("library/Library.cpp", "support/language/Language.h"),
                             ("support/settings/Options.cpp", "mainwindow/MainView.h"),
                             ("mainwindow/Views.cpp", "app/Application.h")):
            with self.subTest(path):
                self.assertEqual(len(faults(path, f'#include "{header}"')), 1)

    def test_may_not_be_included_across_one_floor(self):
        for path, header in (("library/Library.cpp", "solidworks/Bridge.h"),
                             ("platform/Window.cpp", "library/Library.h"),
                             ("solidworks/Bridge.cpp", "library/Library.h"),
                             ("support/settings/Options.cpp", "support/windows/About.h"),
                             ("palettes/Palette.cpp", "library/Library.h"),
                             ("library/Library.cpp", "convert/LibraryPalette.h"),
                             ("library/Library.cpp", "shading/SurfaceShade.h"),
                             ("shading/SurfaceShade.cpp", "library/Library.h"),
                             ("library/Library.cpp", "palettes/Palette.h"),
                             ("support/windows/About.cpp", "library/Library.h")):
            with self.subTest(path):
                self.assertEqual(len(faults(path, f'#include "{header}"')), 1)

    def test_may_be_included_down_the_house(self):
        self.assertEqual(faults("app/main.cpp", '#include "mainwindow/frmMain.h"',
                                '#include "platform/Window.h"', '#include "common/Text.h"'), [])

    def test_that_ask_or_show_are_closed_to_the_library(self):
        for header in ("common/ports/Prompts.h", "common/ports/InfoTexts.h", "common/ShownProgress.h",
                       "common/InfoTextNumber.h"):
            with self.subTest(header):
                self.assertEqual(len(faults("library/Library.cpp", f'#include "{header}"')), 1)
                self.assertEqual(faults("mainwindow/Views.cpp", f'#include "{header}"'), [])
        self.assertEqual(faults("library/Library.cpp", '#include "common/ports/Files.h"'), [])

    def test_of_the_toolkit_belong_to_the_form_and_its_panes(self):
        header = '#include "platform/Window.h"'
        self.assertEqual(faults("mainwindow/frmMain.h", header,
                                '#include "mainwindow/panes/MainTree.h"'), [])
        self.assertEqual(faults("mainwindow/panes/MainTree.h", header), [])
        self.assertGreater(len(faults("mainwindow/ColorList.h", header)), 0)

    def test_of_stand_in_and_tests_belong_to_them_alone(self):
        self.assertEqual(len(faults("solidworks/Bridge.cpp", '#include "standin/model/Part.h"')), 1)
        self.assertEqual(len(faults("common/Text.cpp", '#include "tests/fakes/Files.h"')), 1)
        self.assertEqual(len(faults("standin/model/Part.cpp", '#include "library/Library.h"')), 1)
        self.assertEqual(faults("standin/com/Server.cpp", '#include "standin/model/Part.h"'), [])

    def test_are_named_from_the_root(self):
        self.assertEqual(len(faults("common/Text.cpp", '#include "Numbers.h"')), 1)

    def test_with_the_products_numbers_are_for_those_who_know_the_product(self):
        header = '#include "resources/controls.h"'
        self.assertEqual(faults("mainwindow/CommandTable.h", header), [])
        for room in ("common", "library", "solidworks", "platform", "standin/model"):
            with self.subTest(room):
                self.assertEqual(len(faults(f"{room}/Any.h", header)), 1)


class Circles(unittest.TestCase):
    def circles(self, **files):
        includes = {path.replace("__", ".").replace("_", "/"): "".join(
            f'#include "{header}"\n' for header in headers) for path, headers in files.items()}
        return list(check.circle_faults(includes))

    def test_of_headers_are_found(self):
        self.assertEqual(
            self.circles(common_B__h=["common/A.h"], common_A__h=["common/B.h"]),
            ["files include each other: common/A > common/B > common/A"])

    def test_through_the_source_of_a_header_are_found(self):
        self.assertEqual(
            self.circles(common_A__h=["common/B.h"], common_B__h=["common/C.h"], common_C__h=[],
                         common_C__cpp=["common/C.h", "common/A.h"]),
            ["files include each other: common/A > common/B > common/C > common/A"])

    def test_are_each_told_once_and_alone(self):
        found = self.circles(common_A__h=["common/B.h"], common_B__h=["common/A.h"],
                             common_C__h=["common/D.h", "common/A.h"],
                             common_D__h=["common/C.h"], common_E__h=["common/C.h"])
        self.assertEqual(found, ["files include each other: common/A > common/B > common/A",
                                 "files include each other: common/C > common/D > common/C"])

    def test_are_not_where_two_files_include_a_third_or_a_source_its_header(self):
        self.assertEqual(self.circles(common_A__h=["common/C.h"], common_A__cpp=["common/A.h"],
                                      common_B__h=["common/A.h", "common/C.h"], common_C__h=[]), [])

    def test_are_left_to_the_sources_of_the_model_which_is_one_and_not_to_its_headers(self):
        there, back = "standin_model_Part", "standin_model_Face"
        header = ["standin/model/Face.h"], ["standin/model/Part.h"]
        self.assertEqual(self.circles(**{there + "__h": header[0], back + "__h": [],
                                         back + "__cpp": header[1]}), [])
        self.assertEqual(len(self.circles(**{there + "__h": header[0],
                                             back + "__h": header[1]})), 1)


class Rooms(unittest.TestCase):
    def test_may_include_only_what_they_need(self):
        used = {(check.room_of(path), check.room_of(header))
                for file in check.source_files(tool.ROOT)
                for path in [file.relative_to(tool.ROOT).as_posix()]
                for header in check.own_headers(path, file.read_text(encoding="utf-8"))}
        for room, below in check.ROOMS_BELOW.items():
            for other in below:
                if room != "tests":
                    self.assertIn((room, other), used)


class Program(unittest.TestCase):
    def run_on(self, content, **headers):
        with tempfile.TemporaryDirectory() as folder:
            file = pathlib.Path(folder) / "library" / "Library.cpp"
            file.parent.mkdir()
            file.write_text(content, encoding="utf-8")
            for name, text in headers.items():
                (file.parent / name.replace("__", ".")).write_text(text, encoding="utf-8")
            return subprocess.run([sys.executable, tool.ROOT / "tools/check-includes.py", folder],
                                  stdout=subprocess.PIPE, text=True, check=False)

    def test_fails_on_a_planted_violation_and_names_it(self):
        result = self.run_on('#include "mainwindow/MainView.h"\n')
        self.assertEqual(result.returncode, 1)
        self.assertIn("library/Library.cpp:1: mainwindow/MainView.h", result.stdout)

    def test_fails_on_a_planted_circle(self):
        result = self.run_on('#include "library/Library.h"\n', Library__h='#include "library/Other.h"\n',
                             Other__h='#include "library/Library.h"\n')
        self.assertEqual(result.returncode, 1)
        self.assertIn("library/Library > library/Other > library/Library", result.stdout)

    def test_is_silent_on_a_clean_tree(self):
        result = self.run_on('#include "common/Text.h"\n#include <vector>\n')
        self.assertEqual((result.returncode, result.stdout), (0, ""))


if __name__ == "__main__":
    unittest.main()
