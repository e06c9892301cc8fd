# Rules: Tools and packages
import re
import unittest

import tool

check = tool.load("check-language")
language_codes = tool.load("language_codes")

TABLE = """
    Title(IDM_mnuFile, "mnuFile", "Datei"),
    Reporting(
        IDM_mnuFileNew, "mnuFileNew", "Neu", [](Commands c) { c.file.mnuFileNew_Click(); },
        Ctrl('N')),
    Separator(IDM_mnuFileHR, "mnuFileHR"),
    Entry(IDM_mnuQuit, "mnuQuit", "Beenden", [](Commands c) { c.quit(); }),
    KeyRow{Key::Control, "keyCtrl", "Strg"},
    ToolbarRow{"sepST1", ToolbarButtonStyle::Separator, ToolbarGroup::Standard, "", 0, ""},
    ToolbarRow{"View List", ToolbarButtonStyle::ButtonGroup, ToolbarGroup::ListView, "", 1, "V"},
    ButtonMenuRow{"New", "NewGroup", "Neue Gruppe", IDM_mnuColorNewGroup},
"""
NUMBERS = "inline constexpr std::int32_t Save = 30;"
GOOD = (b"; comment\r\n[frmMain]\r\nmnuFile.Caption=&File\r\nmnuFileNew.Caption=&New\r\n"
        b"mnuQuit.Caption=&Quit\r\nkeyCtrl.Caption=Ctrl\r\ntlbarMain.View List.ToolTipText=List\r\n"
        b"tlbarMain.New.NewGroup.Text=New group\r\n[Info]\r\nText.30=Save\r\n")


def faults(old=b"", new=b""):
    return check.faults_of(GOOD.replace(old, new) if old else GOOD, TABLE, NUMBERS)


class LanguageFile(unittest.TestCase):
    def test_that_says_everything_has_no_fault(self):
        self.assertEqual(faults(), [])

    def test_without_a_key_that_the_program_asks_for_is_faulty(self):
        for key in (b"mnuQuit.Caption=&Quit\r\n", b"keyCtrl.Caption=Ctrl\r\n",
                    b"tlbarMain.View List.ToolTipText=List\r\n",
                    b"tlbarMain.New.NewGroup.Text=New group\r\n", b"Text.30=Save\r\n"):
            with self.subTest(key):
                self.assertIn(key.decode().partition("=")[0] + ": missing", faults(key)[0])

    def test_is_compared_with_tables_that_are_found(self):
        self.assertEqual(list(check.unread_tables(TABLE)), [])
        for name, row in (("menus", r"(Title|Reporting|Entry|Separator)\("), ("keys", "KeyRow{"),
                          ("toolbar", "ToolbarRow{"), ("menus of buttons", "ButtonMenuRow{")):
            with self.subTest(name):
                self.assertEqual(list(check.unread_tables(re.sub(row, "Row(", TABLE))),
                                 [f"the program's table of the {name} was not found"])

    def test_with_an_access_key_twice_in_one_menu_is_faulty(self):
        self.assertEqual(faults(b"&Quit", b"Qui&n"),
                         ["mnuFile: mnuQuit and mnuFileNew share the access key n"])

    def test_with_a_caption_without_access_key_is_faulty(self):
        self.assertEqual(faults(b"&Quit", b"Quit"), ["mnuFile: mnuQuit has no access key"])

    def test_with_a_key_twice_is_faulty(self):
        self.assertEqual(faults(b"[Info]", b"mnuQuit.Caption=&Q\r\n[Info]"),
                         ["frmMain mnuQuit.Caption: stands there twice"])

    def test_with_other_line_ends_is_faulty(self):
        self.assertTrue(any("not CR LF" in fault for fault in faults(b"Save\r\n", b"Save\n\n")))

    def test_with_a_value_of_256_bytes_is_faulty(self):
        self.assertEqual(faults(b"=Save", b"=" + b"x" * 255), [])
        self.assertEqual(len(faults(b"=Save", b"=" + b"x" * 256)), 1)

    def test_lacks_the_built_in_words_of_an_error(self):
        words = """ErrorText Long{
            InfoTextNumber::Long, "Not \\"%1\\", " "nor %2"};"""
        number = "std::int32_t Long = 110;"
        entries = {("Info", "Text.110"): 'Not "%1", nor %2'}
        self.assertEqual(list(check.built_in_faults(entries, words, number)), [])
        entries["Info", "Text.110"] = "Other"
        self.assertEqual(list(check.built_in_faults(entries, words, number)),
                         ["Info Text.110: not the built-in words of Long"])

    def test_with_other_arguments_than_the_english_one_is_faulty(self):
        key = ("Info", "Text.110")
        self.assertEqual(list(check.argument_faults("de", {key: "%2 %1"}, {key: "%1 %2"})), [])
        self.assertEqual(list(check.argument_faults("de", {key: "%1"}, {key: "%1 %2"})),
                         ["Info Text.110: other arguments than in English (de)"])

    def test_with_other_keys_than_the_english_one_is_faulty(self):
        one, other = {("Info", "Text.1"): "a"}, {("Info", "Text.2"): "b"}
        self.assertEqual(list(check.key_faults("de", one, one)), [])
        self.assertEqual(list(check.key_faults("de", one, other)),
                         ["Info Text.1: only in one language (de)",
                          "Info Text.2: only in one language (English)"])

    def test_has_all_words_of_errors(self):
        good = """throw RuntimeError(ErrorNumber::Automation, SystemMessage(result));
            throw RuntimeError(ErrorNumber::Overflow, ErrorTexts::Long, {"a", "b"}, "Member");"""
        self.assertEqual(list(check.own_words_faults("x.cpp", good)), [])
        for bad in ('throw RuntimeError(1, "Wrong");', 'RuntimeError(static_cast<int>(error),\n "W");',
                    'OperationStopped() : RuntimeError(ErrorNumber::X, "Stopped") {}'):
            with self.subTest(bad):
                self.assertEqual(list(check.own_words_faults("x.cpp", bad)),
                                 ["x.cpp:1: words of an error that no language file has"])


class Languages(unittest.TestCase):
    def test_are_those_of_the_programs_table(self):
        table = """inline constexpr std::array kLanguages = {
            Language{LanguageNumber::German, "de", IDM_mnuOptionsLngGerman},
            Language{
                LanguageNumber::French, "fr", IDM_mnuOptionsLngFrench},
        };"""
        self.assertEqual(language_codes.codes_in(table), {"German": "de", "French": "fr"})
        with self.assertRaises(ValueError):
            language_codes.codes_in("std::array kLanguages = {};")

    def test_have_the_language_files_and_no_others(self):
        files = {file.name for file in (tool.ROOT / "resources" / "language").glob("*.ini")}
        codes = language_codes.language_codes().values()
        self.assertEqual(files, {check.language_file(code).name for code in codes})


if __name__ == "__main__":
    unittest.main()
