#!/usr/bin/env python3
"""Finds out which source files may be compiled, or looked at, as if they were one.

Most of the time that a compiler needs goes into the headers that every file includes.  Files go
together when no name that one of them has for itself alone (in its unnamed namespace) stands in
another one or is a type in its headers, where it means something else.

  tools/sources_together.py MOST FILE ...    for each file the number of its group, which has MOST
                                             files at most, as a list for CMake
"""

import functools
import pathlib
import re
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
OWN_PART = re.compile(r"^namespace \{$(.*?)^\} // namespace$", re.MULTILINE | re.DOTALL)
OWN_NAME = re.compile(r"^(?:template <.*> )?(?:(?:class|struct|enum|enum class|using|namespace) (\w+)|"
                      r"[^\s/#}][^(={;]*?(\w+)\s*[(={;\[])", re.MULTILINE)
TYPE = re.compile(r"^(?:class|struct|enum|enum class|using) (\w+)", re.MULTILINE)
MAIN = re.compile(r"^int (?:\w+ )?(\w*[mM]ain)\(", re.MULTILINE)
INCLUDE = re.compile(r'^\s*#\s*include\s*([<"][^>"]+)', re.MULTILINE)
COMMENT = re.compile(r"//.*")
WORD = re.compile(r"\w+")
NO_NAMES = {"TEST", "TEST_F", "TEST_P", "INSTANTIATE_TEST_SUITE_P", "namespace"}


@functools.cache
def text_of(file):
    return file.read_text(encoding="utf-8")


def own_headers(file):
    """The project's headers that a file names."""
    headers = (ROOT / name[1:] for name in INCLUDE.findall(text_of(file)) if name[0] == '"')
    return [header for header in headers if header.is_file()]


def with_own_headers(file, seen):
    """Adds the file and every project header that it reaches to the set."""
    if file not in seen:
        seen.add(file)
        for header in own_headers(file):
            with_own_headers(header, seen)
    return seen


def own_names(text):
    """What a file declares for itself alone, or for its program."""
    return {first or second for part in OWN_PART.findall(text)
            for first, second in OWN_NAME.findall(part)} - NO_NAMES | set(MAIN.findall(text))


@functools.cache
def types_in(header):
    return frozenset(TYPE.findall(text_of(header)))


class Source:
    """A file as those beside it would see it."""

    def __init__(self, file):
        text = text_of(file)
        self.file, self.names, self.includes = file, own_names(text), set(INCLUDE.findall(text))
        self.words = set(WORD.findall(COMMENT.sub("", text))).union(
            *map(types_in, with_own_headers(file, set()) - {file}))


class Group:
    """Files that go together."""

    def __init__(self):
        self.files, self.names, self.words, self.includes = [], set(), set(), set()

    def takes(self, source):
        return not source.names & self.words and not source.words & self.names

    def add(self, source):
        self.files.append(source.file)
        self.names |= source.names
        self.words |= source.words
        self.includes |= source.includes


def groups(files, most):
    """The files in groups of so many at most; each beside those that include most of what it does."""
    found = [Group() for _ in range(-(-len(files) // most))]
    for source in map(Source, files):
        fitting = [group for group in found if len(group.files) < most and group.takes(source)]
        if not fitting:
            fitting = [Group()]
            found += fitting
        max(fitting, key=lambda group: (len(source.includes & group.includes),
                                        -len(group.files))).add(source)
    return [group.files for group in found if group.files]


def main():
    most, *names = sys.argv[1:]
    files = [pathlib.Path(name).resolve() for name in names]
    number = {file: index for index, group in enumerate(groups(files, int(most))) for file in group}
    print(";".join(str(number[file]) for file in files), end="")


if __name__ == "__main__":
    main()
