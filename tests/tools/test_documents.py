"""The texts that stand beside the program, each in both languages."""
# Rules: Tools and packages

import pathlib
import unittest

DOCUMENTS = pathlib.Path(__file__).resolve().parents[2] / "resources" / "documents"
ENTRIES = ("readme", "lizenz", "changes", "todo", "limitations")
LANGUAGES = ("de", "us")


class Documents(unittest.TestCase):
    def test_each_entry_has_its_text_in_both_languages_and_there_are_no_others(self):
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


if __name__ == "__main__":
    unittest.main()
