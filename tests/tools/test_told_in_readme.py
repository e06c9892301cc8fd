"""Commands, keys, options, files and settings of the programs are told, in both languages."""
# Rules: Tools and packages

import re
import unittest

import tool
from documents import ENTRIES, LANGUAGES, ROOT, content, document, words

LANGUAGE_CHECK = tool.load("check-language")
COMMANDS = {"us": "All commands", "de": "Alle Befehle"}
KEYS = {"us": "Keys and mouse", "de": "Tasten und Maus"}
FILES = {"us": "Programs and files", "de": "Programme und Dateien"}
ROOMS = ("app", "library", "mainwindow", "platform", "support")


def bullets(headings, language):
    """The entries of a section of the readme, each on one line."""
    after = document("readme", language).partition(f"\n{headings[language]}\n---")[2]
    section = re.split(r"\n.+\n-{3,}\n", after)[0]
    return [words(entry.partition("\n\n")[0]) for entry in section.split("\n  - ")[1:]]


def captions(language):
    """Caption of each control of the main window, as one reads it."""
    entries = LANGUAGE_CHECK.parse(LANGUAGE_CHECK.language_file(language).read_bytes())[0]
    return {key.removesuffix(".Caption"): value.replace("&", "").removesuffix(" ...")
            for (section, key), value in entries.items() if section == "frmMain"}


def menus(language):
    """[title, entries] of each menu; an entry is its caption and those of its submenu."""
    caption, result = captions(language), []
    for kind, name in LANGUAGE_CHECK.MENU_ROW.findall(content("mainwindow/CommandTable.cpp")):
        if kind == "Title":
            result.append([caption[name], []])
        elif kind == "SubmenuEntry":
            result[-1][1][-1][1].append(caption[name])
        elif kind != "Separator":
            result[-1][1].append((caption[name], []))
    return result


class Commands(unittest.TestCase):
    def test_readme_lists_every_menu_with_its_entries_in_their_order(self):
        for language in LANGUAGES:
            told, expected = bullets(COMMANDS, language), menus(language)
            self.assertEqual(len(told), len(expected))
            for (title, entries), bullet in zip(expected, told):
                texts = [name + (f" ({', '.join(submenu)})" if submenu else "")
                         for name, submenu in entries]
                with self.subTest(language=language, menu=title):
                    sentence = f"{title}: {', '.join(texts)}."
                    self.assertEqual(bullet[:len(sentence)], sentence)


class Buttons(unittest.TestCase):
    """Of the windows beside the main one; those that close a window or stop work need no words."""

    NEED_NO_WORDS = {"OK", "Close", "Schließen", "Stop", "Stopp"}

    def test_readme_names_every_button(self):
        for language in LANGUAGES:
            entries = LANGUAGE_CHECK.parse(LANGUAGE_CHECK.language_file(language).read_bytes())[0]
            told = words(document("readme", language))
            for (section, key), value in entries.items():
                caption = re.sub(r" \.\.\.$| \(F\d\)$", "", value.replace("&", ""))
                if (section != "frmMain" and re.fullmatch(r"cmd\w+\.Caption", key) and
                        caption not in self.NEED_NO_WORDS):
                    with self.subTest(language=language, window=section, button=caption):
                        self.assertRegex(told, rf"(?<!\w){re.escape(caption)}(?!\w)")


class Ways(unittest.TestCase):
    """"Menu > Entry" leads somewhere, wherever it is said."""

    # In the language of the text; a page of the project may name either.
    TEXTS = ([(f"resources/documents/{entry}_{language}.txt", "cp1252", (language,))
              for entry in ENTRIES for language in LANGUAGES] +
             [(f"resources/language/tntlng_{language}.ini", "cp1252", (language,))
              for language in LANGUAGES] +
             [(file.relative_to(ROOT).as_posix(), "utf-8", LANGUAGES)
              for file in (*ROOT.glob("*.md"), *(ROOT / "docs").glob("*.md"),
                           ROOT / "packaging" / "how-to.txt")])
    FIRST_WAY = "Options > Language > German"  # the German readme's way out of English

    @staticmethod
    def leads_somewhere(way, entries):
        """way: what stands behind the menu and its ">"."""
        for name, submenu in entries:
            plain = re.sub(r" \(.*\)$", "", name)  # a way may leave it out
            rest = way.removeprefix(plain)
            if rest != way and not rest[:1].isalpha():
                return not rest.startswith(" > ") or any(rest[3:].startswith(entry)
                                                         for entry in submenu)
        return False

    def test_every_way_through_the_menus_that_a_text_names_is_there(self):
        for path, encoding, languages in self.TEXTS:
            text = words((ROOT / path).read_bytes().decode(encoding)).replace(self.FIRST_WAY, "")
            known = {}
            for language in languages:
                for title, entries in menus(language):
                    known.setdefault(title, []).extend(entries)
            for title, entries in known.items():
                for found in re.finditer(rf"\b{title} > ", text):
                    way = text[found.end():found.end() + 60]
                    with self.subTest(path, way=f"{title} > {way}"):
                        self.assertTrue(self.leads_somewhere(way, entries))

    def test_way_out_of_the_first_language_is_in_its_menus(self):
        title, *way = self.FIRST_WAY.split(" > ")
        self.assertTrue(self.leads_somewhere(" > ".join(way), dict(menus("us"))[title]))
        self.assertIn(self.FIRST_WAY, words(document("readme", "de")))


class Shortcuts(unittest.TestCase):
    """Keys of the command table."""

    ROWS = content("mainwindow/CommandTable.cpp").partition("kMenuRows = {")[2].partition("};")[0]
    KEY = r"(?:'(\w)'|Key::(\w+))"
    MADE = re.compile(rf"\b(Plain|Shifted|Ctrl|CtrlShift|OutsideText|InList)\({KEY}\)")
    BY_FIELDS = re.compile(rf"\{{((?:\.(?:ctrl|shift) = true, )*)\.key = {KEY}")
    MODIFIERS = {"Plain": (), "InList": (), "Shifted": ("Shift",), "Ctrl": ("Control",),
                 "OutsideText": ("Control",), "CtrlShift": ("Control", "Shift")}

    @classmethod
    def shortcuts(cls):
        """Modifiers and key of each shortcut."""
        for kind, letter, key in cls.MADE.findall(cls.ROWS):
            yield (*cls.MODIFIERS[kind], letter or key)
        for fields, letter, key in cls.BY_FIELDS.findall(cls.ROWS):
            yield (*(("Control",) if "ctrl" in fields else ()),
                   *(("Shift",) if "shift" in fields else ()), letter or key)

    def test_all_keys_of_the_table_are_understood_here(self):
        self.assertEqual(len(list(self.shortcuts())), len(re.findall(self.KEY, self.ROWS)))

    def test_readme_lists_the_key_of_every_command(self):
        named = dict(re.findall(r'KeyRow\{Key::(\w+), "(\w+)"',
                                content("mainwindow/CommandTable.h")))
        for language in LANGUAGES:
            caption = captions(language)
            told = {key for bullet in bullets(KEYS, language)
                    for key in re.split(" (?:and|or|und|oder) ", bullet.partition(":")[0])}
            for shortcut in self.shortcuts():
                keys = "+".join(caption[named[key]] if key in named else key for key in shortcut)
                with self.subTest(language=language, keys=keys):
                    self.assertIn(keys, told)


class OtherKeys(unittest.TestCase):
    """Keys and double clicks that the windows and controls take themselves."""

    ENTER = {"us": "Enter: the button with the strong frame",
             "de": "Eingabetaste: der stark umrandete Knopf"}
    DOUBLE_CLICK = {"us": "a double click on a row does the same",
                    "de": "ein Doppelklick auf eine Zeile tut dasselbe"}
    SWATCH = {"us": "Double click on the color field: choose color value",
              "de": "Doppelklick auf das Farbfeld: Farbwert wählen"}
    DRAG_COPIES = {"us": "Ctrl while a drag begins: copy color",
                   "de": "Strg zu Beginn des Ziehens: Farbe kopieren"}
    ESCAPE = {"us": "Escape: closes every window but the main one; gives up a renaming, a drag, or "
                    "a SolidWorks that is busy; stops a long run",
              "de": "Escape: schließt jedes Fenster außer dem Hauptfenster; bricht eine "
                    "Umbenennung, ein Ziehen oder das Warten auf SolidWorks ab; hält "
                    "einen langen Lauf an"}
    RENAME = {"us": "F2: rename", "de": "F2: umbenennen"}
    HINT = {"us": "Arrow keys, Enter or Space: what the empty list offers; Tab leaves it",
            "de": "Pfeiltasten, Eingabetaste oder Leertaste: was die leere Liste anbietet; Tab "
                  "verlässt sie"}
    PANES = {"us": "F6 and Shift+F6: from tree to list to editor, and back",
             "de": "F6 und Umschalt+F6: vom Baum zur Liste zum Editor, und zurück"}
    MENU = {"us": "Shift+F10 or the right mouse button: menu of colors (in tree and list)",
            "de": "Umschalt+F10 oder die rechte Maustaste: Menü der Farben (in Baum und Liste)"}
    LETTERS = {"us": "Letters: the next color whose name begins with them",
               "de": "Buchstaben: die nächste Farbe, deren Name mit ihnen beginnt"}

    TOLD = {
        ("mainwindow/frmMain.cpp", "VK_F6"): PANES,
        ("mainwindow/frmMain.cpp", "VK_SHIFT"): PANES,
        ("mainwindow/frmMain.cpp", "onContextMenu"): MENU,
        ("platform/controls/TreeView.cpp", "VK_F10"): MENU,
        ("platform/controls/TreeView.cpp", "VK_SHIFT"): MENU,
        ("platform/controls/TreeView.cpp", "VK_F2"): RENAME,
        ("platform/controls/ListView.cpp", "VK_F2"): RENAME,
        ("platform/controls/ListView.cpp", "LVN_ODFINDITEMW"): LETTERS,
        ("platform/controls/LabelEdit.cpp", "VK_ESCAPE"): ESCAPE,
        ("platform/Win32EventPump.cpp", "VK_ESCAPE"): ESCAPE,
        ("mainwindow/panes/DragTracker.cpp", "VK_ESCAPE"): ESCAPE,
        ("mainwindow/panes/DragTracker.cpp", "VK_CONTROL"): DRAG_COPIES,
        ("mainwindow/panes/DragTracker.cpp", "VK_SHIFT"): DRAG_COPIES,  # with Ctrl: it moves again
        ("mainwindow/panes/DragTracker.cpp", "VK_MENU"): DRAG_COPIES,
        ("mainwindow/panes/MainEditor.cpp", "onDoubleClick"): SWATCH,
        ("mainwindow/frmFind.cpp", "VK_DOWN"): {
            "us": "Arrow down: from the text to the list (in Find)",
            "de": "Pfeil ab: vom Text in die Liste (in Suchen)"},
        ("mainwindow/frmFind.cpp", "onDoubleClick"): DOUBLE_CLICK,
        ("mainwindow/frmFind.cpp", "SetDefaultButton"): ENTER,
        ("mainwindow/frmLevels.cpp", "VK_F5"): {"us": "F5: read again", "de": "F5: neu lesen"},
        ("mainwindow/frmLevels.cpp", "onDoubleClick"): DOUBLE_CLICK,
        ("mainwindow/frmLevels.cpp", "SetDefaultButton"): ENTER,
        ("mainwindow/frmRecover.cpp", "VK_DELETE"): {
            "us": "delete for good (in the list of Recover)",
            "de": "endgültig löschen (in der von Wiederherstellen)"},
        ("mainwindow/frmRecover.cpp", "onDoubleClick"): DOUBLE_CLICK,
        ("mainwindow/frmRecover.cpp", "SetDefaultButton"): ENTER,
        ("platform/InputBox.cpp", "SetDefaultButton"): ENTER,
        ("support/windows/frmAbout.cpp", "SetDefaultButton"): ENTER,
        ("support/windows/frmTxtView.cpp", "SetDefaultButton"): ENTER,
        ("platform/controls/Label.cpp", "VK_RETURN"): HINT,
        ("platform/controls/Label.cpp", "VK_SPACE"): HINT,
        ("platform/controls/ListHint.cpp", "VK_DOWN"): HINT,
        ("platform/controls/ListHint.cpp", "VK_UP"): HINT,
        ("platform/controls/ListHint.cpp", "VK_TAB"): HINT,
        ("platform/controls/ListHint.cpp", "VK_SHIFT"): HINT,  # with Tab
    }
    NAMES_ONLY = "platform/Shortcuts.cpp"  # how the keys of the command table are called
    TAKEN = re.compile(r"\bVK_\w+|SetDefaultButton(?=\(ID)|\bon(?:DoubleClick|ContextMenu)(?= =)|"
                       r"\bLVN_ODFINDITEMW")

    def test_all_keys_that_the_sources_take_are_in_the_table_above(self):
        taken = {(file.relative_to(ROOT).as_posix(), key)
                 for room in ROOMS for file in (ROOT / room).rglob("*.cpp")
                 for key in self.TAKEN.findall(file.read_text(encoding="utf-8"))}
        self.assertEqual({pair for pair in taken if pair[0] != self.NAMES_ONLY}, set(self.TOLD))

    def test_readme_tells_what_each_of_them_does(self):
        for language in LANGUAGES:
            told = " - ".join(bullets(KEYS, language))
            for (file, key), phrase in self.TOLD.items():
                with self.subTest(language=language, file=file, key=key):
                    self.assertIn(phrase[language], told)


class Options(unittest.TestCase):
    OF_CONVERTER = set(re.findall(r'"(--[a-z-]+)"', content("converter/ConverterArguments.cpp")))
    OF_STANDIN = set(re.findall(r'\{"(--[a-z-]+)"', content("standin/model/CommandLine.cpp")))

    @staticmethod
    def names_in(path, table):
        rows = content(path).partition(table)[2].partition("}};")[0]
        return re.findall(r'\{"([a-z-]+)",', rows)

    def test_options_are_found(self):
        self.assertIn("--help", self.OF_CONVERTER)
        self.assertIn("--hidden", self.OF_STANDIN)

    def test_readme_names_every_program_and_all_options(self):
        for language in LANGUAGES:
            told = words(document("readme", language))
            programs = tool.load("make-packages").PROGRAMS
            for name in (*programs, *self.OF_CONVERTER, *self.OF_STANDIN):
                with self.subTest(language=language, name=name):
                    self.assertRegex(told, rf"(?<![\w-]){re.escape(name)}(?![\w-])")

    def test_pages_of_the_console_programs_name_their_options_and_no_others(self):
        for page, options in (("docs/convert.md", self.OF_CONVERTER),
                              ("standin/README.md", self.OF_STANDIN)):
            with self.subTest(page):
                rows = [line.split(" | ")[0] for line in content(page).splitlines()
                        if line.startswith("| `--")]
                self.assertEqual({option for row in rows
                                  for option in re.findall(r"--[a-z-]+", row)}, options)

    def test_page_of_the_stand_in_names_every_scenario_and_every_kind_of_fault(self):
        page = content("standin/README.md")
        scenarios = self.names_in("standin/model/Scenario.cpp", "kWords")
        faults = self.names_in("standin/model/Fault.cpp", "kKindNames")
        self.assertTrue(scenarios and faults)
        for name in (*scenarios, *(f"N:{kind}" for kind in faults)):
            with self.subTest(name):
                self.assertIn(f"`{name}`", page)

    def test_readme_says_that_the_main_program_has_no_options_and_it_reads_none(self):
        for room in ROOMS:
            for file in (ROOT / room).rglob("*.cpp"):
                self.assertNotRegex(file.read_text(encoding="utf-8"),
                                    "GetCommandLine|CommandLineToArgv|__w?argv", file)
        self.assertIn("tnt4swx.exe has no options.", bullets(FILES, "us")[0])
        self.assertIn("tnt4swx.exe hat keine Optionen.", bullets(FILES, "de")[0])


class Files(unittest.TestCase):
    """Files that the program makes beside those that it was asked for."""

    BESIDE, RECOVERY = "docs/file-format.md", "docs/distributing.md"
    TOLD = {
        ("library/SafeFileWriter.cpp", ".bak"): (BESIDE, "`name.tnt.bak`"),
        ("library/SafeFileWriter.cpp", ".saving"): (BESIDE, "`name.tnt.saving`"),
        ("library/KeptFiles.cpp", " (kept "): (BESIDE, "`name (kept YYYY-MM-DD hhmmss).tnt`"),
        ("platform/Win32Files.cpp", ".turn"): (BESIDE, "`name.tnt.turn`"),
        ("library/RecoveryFolder.cpp", ".tnt"): (RECOVERY, "`ID.tnt`"),
        ("library/RecoveryFolder.cpp", ".txt"): (RECOVERY, "`ID.txt`"),
        ("library/RecoveryFolder.cpp", ".saving"): (RECOVERY, "`.saving`"),
        ("platform/CrashHandler.cpp", ".dmp"): (RECOVERY, "`crash DATE TIME.dmp`"),
        ("platform/CrashHandler.cpp", ".new"): (RECOVERY, "`.new`"),
        ("app/CrashReports.cpp", ".new"): (RECOVERY, "`.new`"),
        ("app/CrashReports.cpp", ".txt"): (RECOVERY, "`crash DATE TIME.txt`"),
        ("library/KeptFiles.cpp", ".tnt"): (BESIDE, "`name (kept YYYY-MM-DD hhmmss).tnt`"),
    }
    IN_README = (".bak", ".saving", ".turn", " (kept ")

    def test_all_endings_that_the_sources_write_are_in_the_table_above(self):
        ending = re.compile(r'"( \(kept |\.[a-z]+)"')
        written = {(file.relative_to(ROOT).as_posix(), found)
                   for room in ("app", "library", "platform")
                   for file in (ROOT / room).rglob("*.cpp")
                   for found in ending.findall(file.read_text(encoding="utf-8"))}
        self.assertEqual(written, set(self.TOLD))

    def test_page_and_readme_tell_each_of_them(self):
        for (file, ending), (page, phrase) in self.TOLD.items():
            with self.subTest(file, ending=ending):
                self.assertIn(phrase, words(content(page)))
        for language in LANGUAGES:
            told = " - ".join(bullets(FILES, language))
            for ending in self.IN_README:
                with self.subTest(language=language, ending=ending):
                    self.assertIn(ending, told)

    def test_readme_and_pages_name_registry_key_and_recovery_folder_of_the_code(self):
        names = content("common/ProgramNames.h")
        key = re.search(r'RegistryPath = "([^"]+)"', names).group(1).replace("\\\\", "\\")
        folder = re.search(r'RecoveryFolder = R"\((.+)\)"', names).group(1)
        texts = {f"readme_{language}": " - ".join(bullets(FILES, language))
                 for language in LANGUAGES}
        texts |= {page: words(content(page)) for page in (self.RECOVERY, "packaging/how-to.txt")}
        for name, text in texts.items():
            with self.subTest(name):
                self.assertIn(f"HKEY_CURRENT_USER\\{key}", text)
                self.assertIn(f"%LOCALAPPDATA%{folder}", text)


class Settings(unittest.TestCase):
    HEADER = content("common/Settings.h")

    def default_of(self, member):
        default = re.search(rf"\b{member}(?: = (\w+))?;", self.HEADER).group(1)
        return {"true": "on", "false": "off", None: "empty"}.get(default, f"`{default}`")

    def test_page_has_a_row_for_each_setting_with_its_default(self):
        rows = re.findall(r'SettingRow\{"(\w+)", &Settings::(\w+)',
                          content("app/SettingsStore.cpp"))
        self.assertGreater(len(rows), 10)
        expected = [(name, self.default_of(member)) for name, member in rows]
        page = content("docs/distributing.md").partition("\n## Settings\n")[2].partition("\n## ")[0]
        told = re.findall(r"^\| `(\w+)` \| (\S+) \|", page, re.M)
        self.assertEqual(told, expected)


if __name__ == "__main__":
    unittest.main()
