"""The texts that stand beside the program, each in every language."""
# Rules: Tools and packages

import re
import unittest

from documents import DOCUMENTS, ENTRIES, LANGUAGES, content, document, words


def told(entry, language):
    return words(document(entry, language))


def section(path, heading):
    text = content(path).partition(f"\n## {heading}\n")[2].partition("\n## ")[0]
    return words(text.replace("**", ""))


class Documents(unittest.TestCase):
    def test_each_entry_has_its_text_in_every_language_and_there_are_no_others(self):
        expected = {f"{entry}_{language}.txt" for entry in ENTRIES for language in LANGUAGES}
        self.assertEqual({path.name for path in DOCUMENTS.iterdir()}, expected)

    def test_texts_are_in_the_western_code_page_with_lines_as_windows_ends_them(self):
        for path in DOCUMENTS.iterdir():
            with self.subTest(path.name):
                text = path.read_bytes().decode("cp1252")
                self.assertNotIn("\ufffd", text)
                self.assertNotIn("\u00c3", text, "UTF-8 taken for the code page")
                self.assertTrue(text.endswith("\r\n"))
                self.assertNotIn("\n", text.replace("\r\n", ""))

    def test_texts_begin_with_the_name_of_the_program_and_say_something(self):
        for path in DOCUMENTS.iterdir():
            with self.subTest(path.name):
                lines = path.read_bytes().decode("cp1252").split("\r\n")
                self.assertTrue(lines[0].startswith("TNT4SWX - "))
                self.assertGreater(len([line for line in lines if line]), 5)
                self.assertLessEqual(max(map(len, lines)), 90)

    def test_german_and_english_have_as_many_sections(self):
        for entry in ENTRIES:
            with self.subTest(entry):
                counts = {(DOCUMENTS / f"{entry}_{language}.txt").read_bytes().count(b"\r\n\r\n")
                          for language in LANGUAGES}
                self.assertEqual(len(counts), 1)

    def test_readme_says_to_which_file_save_writes(self):
        self.assertIn("From then on its file is the one that was opened or saved last",
                      told("readme", "us"))
        self.assertIn("Danach ist ihre Datei diejenige, die zuletzt im Dateidialog geöffnet oder "
                      "gespeichert wurde", told("readme", "de"))

    def test_readme_says_that_a_library_without_groups_is_not_written(self):
        self.assertIn("A library without groups is not written.", told("readme", "us"))
        self.assertIn("Eine Bibliothek ohne Gruppen wird nicht geschrieben.",
                      told("readme", "de"))

    def test_readme_says_that_there_are_two_languages_and_none_plans_a_third(self):
        self.assertIn("The program has these two languages.", told("readme", "us"))
        self.assertIn("Das Programm hat diese zwei Sprachen.", told("readme", "de"))
        for language in LANGUAGES:
            with self.subTest(language):
                self.assertNotRegex(told("todo", language), re.compile("language|sprache", re.I))


class Banners(unittest.TestCase):
    """The page for those who put banners beside the program says what the code does."""

    RULES = (
        "the bitmap files (`.bmp`) of the folder `banners`; no other format is shown",
        "Their number is free: after the last comes the first again",
        "Their size is free, too: a picture is scaled to its place and keeps its proportions",
        "The number at the end of a picture's name is its place",
        "Pictures without a number come last, in the order of their names",
        "`banners.txt` holds the web addresses, one in each line",
        "The picture with the number 3 has line 3",
        "An empty line, or one that is not there, is a picture without an address",
        "Without the file all pictures are shown without links",
        "A picture that cannot be loaded keeps its turn and shows nothing",
        "Without pictures there is no banner",
    )

    def test_page_says_their_rules(self):
        text = section("docs/distributing.md", "Banners")
        for rule in self.RULES:
            with self.subTest(rule):
                self.assertIn(rule, text)

    def test_page_names_folder_file_format_and_time_of_the_code(self):
        text = section("docs/distributing.md", "Banners")
        for source, constant, said in (
                ("app/main.cpp", r'"\\\\banners"', "folder `banners`"),
                ("app/main.cpp", r'"\\\\banners\.txt"', "`banners.txt`"),
                ("support/windows/BannerPictures.cpp", r'HasExtension\(.*"\.bmp"\)', "(`.bmp`)"),
                ("mainwindow/frmMain.cpp", r"kBannerInterval = 5000; // milliseconds",
                 "every five seconds")):
            with self.subTest(said):
                self.assertRegex(content(source), constant)
                self.assertIn(said, text)


if __name__ == "__main__":
    unittest.main()
