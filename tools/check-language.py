#!/usr/bin/env python3
"""Checks the language files: that all say everything the program asks for, in the same places.

  - Windows-1252, CR LF line ends, values of at most 255 bytes, no key twice or without a value
  - the same sections and keys in every language
  - a caption for every menu entry and every named key, a tool tip for every toolbar button, a text
    for every entry of a button's menu, and every numbered message text, as the program's own tables
    name them
  - access keys that differ within each menu
  - the arguments %1, %2 ... of a message text in every language, and the program's built-in words of
    an error as those of the English file; no error that brings words of its own

  tools/check-language.py        names each fault, and fails
"""

import pathlib
import re
import sys

from language_codes import language_codes

ROOT = pathlib.Path(__file__).resolve().parent.parent
LONGEST_VALUE = 255

MENU_ROW = re.compile(r'\b(Title|Submenu|Entry|SubmenuEntry|Reporting|Operation|Separator)\('
                      r'\s*\w+,\s*"(\w+)"')
KEY_ROW = re.compile(r'KeyRow\{\s*[\w:]+,\s*"(\w+)"')
TOOLBAR_ROW = re.compile(r'ToolbarRow\{\s*"([^"]+)",\s*ToolbarButtonStyle::(\w+)')
BUTTON_MENU_ROW = re.compile(r'ButtonMenuRow\{\s*"([^"]+)",\s*"([^"]+)"')
INFO_NUMBER = re.compile(r"std::int32_t \w+ = (\d+);")
INFO_NAME = re.compile(r"std::int32_t (\w+) = (\d+);")
ERROR_TEXT = re.compile(r'ErrorText \w+\{\s*InfoTextNumber::(\w+),\s*((?:"(?:[^"\\]|\\.)*"\s*)+)\}')
OWN_WORDS = re.compile(r'RuntimeError(?: \w+)?[({]\s*[^,;"]*,\s*"')
ROOMS = ("app", "common", "library", "mainwindow", "platform", "solidworks", "support")
LITERAL = re.compile(r'"((?:[^"\\]|\\.)*)"')
ARGUMENT = re.compile(r"%[1-9]")
ACCESS_KEY = re.compile(r"&([^&])")


def language_file(code):
    return ROOT / "resources" / "language" / f"tntlng_{code}.ini"


def parse(content):
    """Entries {(section, key): value} and the faults of the file's form."""
    entries, faults, section = {}, [], None
    for number, line in enumerate(content.split(b"\r\n"), 1):
        if b"\r" in line or b"\n" in line:
            faults.append(f"line {number}: a line end that is not CR LF")
        text = line.decode("cp1252", errors="replace")
        if not text or text.startswith(";"):
            continue
        if text.startswith("["):
            section = text.strip("[]")
            continue
        key, _, value = text.partition("=")
        if not value or len(line) - len(key) - 1 > LONGEST_VALUE:
            faults.append(f"{section} {key}: no value, or one over {LONGEST_VALUE} bytes")
        if (section, key) in entries:
            faults.append(f"{section} {key}: stands there twice")
        entries[section, key] = value
    return entries, faults


def menus(table):
    """Names of the entries that are seen together, title bar first."""
    levels, current = {"the menu bar": []}, None
    for kind, name in MENU_ROW.findall(table):
        if kind == "Title":
            current = name
            levels["the menu bar"].append(name)
            levels[name] = []
        elif kind == "SubmenuEntry":
            levels.setdefault(current + " submenu", []).append(name)
        elif kind != "Separator":
            levels[current].append(name)
    return levels


def required_keys(table, info_numbers):
    keys = {("frmMain", f"{name}.Caption") for kind, name in MENU_ROW.findall(table)
            if kind != "Separator"}
    keys |= {("frmMain", f"{name}.Caption") for name in KEY_ROW.findall(table)}
    keys |= {("frmMain", f"tlbarMain.{key}.ToolTipText")
             for key, style in TOOLBAR_ROW.findall(table) if style != "Separator"}
    keys |= {("frmMain", f"tlbarMain.{button}.{key}.Text")
             for button, key in BUTTON_MENU_ROW.findall(table)}
    return keys | {("Info", f"Text.{number}") for number in INFO_NUMBER.findall(info_numbers)}


def unread_tables(table):
    """A table that is written in another way would be checked no more."""
    for name, row in (("menus", MENU_ROW), ("keys", KEY_ROW), ("toolbar", TOOLBAR_ROW),
                      ("menus of buttons", BUTTON_MENU_ROW)):
        if not row.search(table):
            yield f"the program's table of the {name} was not found"


def access_key_faults(entries, table):
    for menu, names in menus(table).items():
        taken = {}
        for name in names:
            caption = entries.get(("frmMain", f"{name}.Caption"), "")
            found = ACCESS_KEY.search(caption)
            if not found:
                yield f"{menu}: {name} has no access key"
                continue
            other = taken.setdefault(found.group(1).lower(), name)
            if other != name:
                yield f"{menu}: {name} and {other} share the access key {found.group(1)}"


def built_in_faults(entries, error_texts, info_numbers):
    """The program's own words of an error are what the English file says."""
    numbers = dict(INFO_NAME.findall(info_numbers))
    for name, literals in ERROR_TEXT.findall(error_texts):
        words = "".join(LITERAL.findall(literals)).replace('\\"', '"')
        key = f"Text.{numbers.get(name)}"
        if entries.get(("Info", key)) != words:
            yield f"Info {key}: not the built-in words of {name}"


def own_words_faults(name, source):
    """An error that brings its words along speaks English in every language."""
    for found in OWN_WORDS.finditer(source):
        line = source.count("\n", 0, found.start()) + 1
        yield f"{name}:{line}: words of an error that no language file has"


def key_faults(code, entries, english):
    for section, key in sorted(entries.keys() ^ english.keys()):
        where = code if (section, key) in entries else "English"
        yield f"{section} {key}: only in one language ({where})"


def argument_faults(code, entries, english):
    for key in sorted(entries.keys() & english.keys()):
        if sorted(ARGUMENT.findall(entries[key])) != sorted(ARGUMENT.findall(english[key])):
            yield f"{key[0]} {key[1]}: other arguments than in English ({code})"


def faults_of(content, table, info_numbers):
    entries, faults = parse(content)
    missing = sorted(required_keys(table, info_numbers) - entries.keys())
    faults += [f"{section} {key}: missing" for section, key in missing]
    return faults + list(access_key_faults(entries, table))


def main():
    table = "".join((ROOT / "mainwindow" / file).read_text(encoding="utf-8")
                    for file in ("CommandTable.h", "CommandTable.cpp", "ToolbarTable.h"))
    info_numbers = (ROOT / "common" / "InfoTextNumber.h").read_text(encoding="utf-8")
    codes = language_codes()
    contents = {code: language_file(code).read_bytes() for code in codes.values()}
    faults = [f"{language_file(code).name}: {fault}" for code, content in contents.items()
              for fault in faults_of(content, table, info_numbers)]
    error_texts = (ROOT / "common" / "ErrorText.h").read_text(encoding="utf-8")
    english = parse(contents.pop(codes["English"]))[0]
    for code, content in contents.items():
        entries = parse(content)[0]
        faults += [*key_faults(code, entries, english), *argument_faults(code, entries, english)]
    faults += list(unread_tables(table))
    faults += list(built_in_faults(english, error_texts, info_numbers))
    for source in sorted(file for room in ROOMS for file in (ROOT / room).rglob("*.*")
                         if file.suffix in (".cpp", ".h")):
        faults += own_words_faults(source.relative_to(ROOT), source.read_text(encoding="utf-8"))
    print("\n".join(faults), end="\n" if faults else "")
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
