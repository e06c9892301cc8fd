"""The program's languages, as its own table says them (support/language/Languages.h)."""

import pathlib
import re

ROOT = pathlib.Path(__file__).resolve().parent.parent
TABLE = ROOT / "support" / "language" / "Languages.h"
ROW = re.compile(r'Language\{\s*LanguageNumber::(\w+),\s*"(\w+)"')


def codes_in(table):
    """Codes in the names of files, by the name of the language, in the order of the table."""
    codes = dict(ROW.findall(table))
    if not codes:
        raise ValueError("the program's table of languages was not found")
    return codes


def language_codes():
    return codes_in(TABLE.read_text(encoding="utf-8"))
