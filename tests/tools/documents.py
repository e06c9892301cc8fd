"""The texts that stand beside the program and the pages of the project, as the tests read them."""

import tool
from language_codes import language_codes

ROOT = tool.ROOT
DOCUMENTS = ROOT / "resources" / "documents"
ENTRIES = ("readme", "lizenz", "changes", "todo", "limitations")
LANGUAGES = tuple(language_codes().values())


def words(text):
    """The text on one line, so that it may be broken anywhere."""
    return " ".join(text.split())


def content(path):
    """A text or a source of the project."""
    return (ROOT / path).read_text(encoding="utf-8")


def document(entry, language):
    """A text beside the program, in lines."""
    text = (DOCUMENTS / f"{entry}_{language}.txt").read_bytes().decode("cp1252")
    return text.replace("\r\n", "\n")
