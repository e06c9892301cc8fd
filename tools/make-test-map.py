#!/usr/bin/env python3
"""Makes tests/RULES.md: which test holds which rule.

Every file of tests says in one line near its start to which subject its rules belong,

    // Rules: Library files

and the name of each test says its rule.  The page puts these together, one section for each subject.

  tools/make-test-map.py            writes the page
  tools/make-test-map.py --check    fails when the page is not what the tests say
"""

import pathlib
import re
import sys

TESTS = pathlib.Path(__file__).resolve().parent.parent / "tests"
PAGE = TESTS / "RULES.md"

SUBJECTS = (
    "Start-up and shut-down", "Settings store", "Language files and control texts",
    "Window positions", "Options", "Auxiliary windows", "The program as a whole",
    "Library model", "Library files", "File commands", "Undo and redo", "Recovery",
    "Tree and list views", "Empty list", "Names for screen readers",
    "Active-color editor", "Editing commands", "Layout, bars and views", "SolidWorks session",
    "Color from and to the selection", "Clearing colors", "Standard color table",
    "Which color is seen", "Color mathematics", "Foreign palettes", "Console program",
    "Finding colors",
    "Stand-in for SolidWorks", "Toolkit", "Tools and packages",
)
SUBJECT = re.compile(r"^(?://|#) Rules: (.+)$", re.MULTILINE)
CPP_TEST = re.compile(r"^TEST(?:_F|_P)?\(\s*(\w+),\s*(\w+)\s*\)", re.MULTILINE)
PYTHON_TEST = re.compile(r"^    def test_(\w+)\(self", re.MULTILINE)
WORD = re.compile(r"[A-Z]+(?=[A-Z][a-z])|[A-Z]?[a-z]+|[A-Z]+|\d+")
NAMES = {"Solid Works": "SolidWorks", "Stand In": "stand-in", "F 1": "F1", "F 2": "F2",
         "F 6": "F6", "F 10": "F10", "Utf 8": "UTF-8", "Utf 16": "UTF-16", "Com": "COM",
         "Dpi": "DPI", "Wine": "Wine", "German": "German", "English": "English",
         "Windows": "windows", "Ctrl": "Ctrl", "Escape": "Escape"}

HEAD = """# Which test holds which rule

Made by `tools/make-test-map.py` from the tests themselves; [README.md](README.md) tells what they work on.
"""


def sentence(name):
    """The rule that the name of a test in C++ says."""
    text = " ".join(WORD.findall(name))
    for spelled, meant in NAMES.items():
        text = re.sub(rf"\b{spelled}\b", meant, text)
    kept = set(" ".join(NAMES.values()).split())
    words = [word if word in kept or (len(word) > 1 and word.isupper()) else word.lower()
             for word in text.split()]
    return words[0][:1].upper() + " ".join(words)[1:]


def rules_of(path, text):
    if path.suffix == ".py":
        return [name.replace("_", " ").capitalize() for name in PYTHON_TEST.findall(text)]
    return [sentence(name) for _, name in CPP_TEST.findall(text)]


def test_files():
    """Each file with tests, with its text."""
    for path in sorted(TESTS.rglob("*")):
        if path.suffix in (".cpp", ".py"):
            text = path.read_text(encoding="utf-8")
            if rules_of(path, text):
                yield path, text


def page(files):
    """The page, or SystemExit with the files that do not say their subject."""
    sections = {subject: [] for subject in SUBJECTS}
    faults = []
    for path, text in files:
        name = path.relative_to(TESTS).as_posix()
        found = SUBJECT.search(text)
        if not found or found.group(1) not in sections:
            faults.append(f"tests/{name}: no line \"Rules: SUBJECT\" with one of the subjects")
            continue
        sections[found.group(1)] += [f"\n`{name}`\n\n",
                                     *(f"- {rule}\n" for rule in rules_of(path, text))]
    if faults:
        raise SystemExit("\n".join(faults))
    return HEAD + "".join(f"\n## {subject}\n{''.join(lines)}"
                          for subject, lines in sections.items() if lines)


def main():
    made = page(test_files())
    if sys.argv[1:] == ["--check"]:
        if not PAGE.is_file() or PAGE.read_text(encoding="utf-8") != made:
            print("tests/RULES.md is not what the tests say: run tools/make-test-map.py")
            return 1
        return 0
    PAGE.write_text(made, encoding="utf-8", newline="\n")
    return 0


if __name__ == "__main__":
    sys.exit(main())
