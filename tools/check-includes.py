#!/usr/bin/env python3
"""Checks the rules of the house for every source file.

Windows headers stand only in the Windows half: the toolkit, the forms, the entry point, the
server around the stand-in and the tests that need a window; those of Linux in what the console
program asks it for.  Everything else includes the project's own headers and those of the C++
standard library.

Includes run down the house only; see ROOMS_BELOW and CLOSED_HEADERS.  No files include each other
in a circle.

  tools/check-includes.py [FOLDER]     names each include that breaks a rule, and fails
"""

import pathlib
import re
import sys

from include_circles import circles

SOURCE_ENDINGS = (".cpp", ".h", ".rc")
INCLUDE = re.compile(r'^\s*#\s*include\s*(?:<([^>]+)>|"([^"]+)")')

# A room inside another one stands before it.
ROOMS = ("app", "mainwindow/panes", "mainwindow", "support/language", "support/settings",
         "support/windows", "platform", "library", "palettes", "convert", "converter/windows",
         "converter/linux", "converter", "shading", "solidworks", "common", "standin/model",
         "standin/com", "resources", "tests")

# The rooms that a room may include, itself aside: those that it needs, no others.
ROOMS_BELOW = {
    "common": (),
    "platform": ("common",),
    "library": ("common",),
    "palettes": ("common",),
    "convert": ("common", "library", "palettes"),
    "converter": ("common", "library", "palettes", "convert"),
    "converter/windows": ("platform", "converter"),
    "converter/linux": ("common", "converter"),
    "shading": ("common",),
    "solidworks": ("common",),
    "support/language": ("common", "resources"),
    "support/settings": ("common", "support/language", "resources"),
    "support/windows": ("common", "platform", "support/language", "support/settings",
                        "resources"),
    "mainwindow": ("common", "library", "palettes", "convert", "solidworks", "support/language", "support/settings",
                   "support/windows", "resources"),
    "mainwindow/panes": ("common", "platform", "library", "shading", "mainwindow", "resources"),
    "app": ("common", "platform", "library", "solidworks", "support/language", "support/settings",
            "support/windows", "mainwindow"),
    "standin/model": ("common",),
    "standin/com": ("common", "platform", "shading", "standin/model", "resources"),
    "resources": (),
    "tests": tuple(room for room in ROOMS if room != "tests"),
}
# The form joins its panes and the toolkit.
ROOMS_OF_FILES = {"mainwindow/frmMain": ("platform", "mainwindow/panes"),
                  "mainwindow/frmFind": ("platform", "mainwindow/panes"),
                  "mainwindow/frmLevels": ("platform", "mainwindow/panes"),
                  "mainwindow/frmRecover": ("platform",)}
# What a room must not know of the rooms that it may include.  The library asks nobody and shows
# nothing: it takes what it needs and gives results.
CLOSED_HEADERS = {
    "library": re.compile(r"common/(ports/(Prompts|InfoTexts|ProgressView|EventPump|Clipboard)|"
                          r"InfoTextNumber|ShownProgress|Settings)\.h$"),
}
# The objects of SolidWorks know each other both ways, a document its features and a feature its
# document, and so do those that play them.  Their headers do not.
SOURCES_IN_CIRCLES = re.compile(r"standin/model/.*\.cpp$")

WINDOWS_HALF = re.compile(
    r"platform/|mainwindow/(frm|panes/)|"
    r"support/windows/(frm(About|TxtView|Progress)|BannerPictures\.|FormOnDemand\.)|"
    r"app/main\.cpp$|standin/com/|converter/windows/|"
    r"tests/(platform|ui|e2e|faults)/|tests/bench/(Groups|List|Preview|Start|Walk|Sort)Bench\.cpp$|"
    r"tests/bench/library/(BenchPlatformWindows|HeapUse)\.cpp$|"
    r"resources/(?!controls\.h$)")

# What the console program asks Linux for.
LINUX_HALF = re.compile(r"converter/linux/|tests/converter/linux/")
LINUX_HEADERS = frozenset("fcntl.h iconv.h sys/stat.h unistd.h".split())
# The one file that knows the library that reads a command line.
COMMAND_LINE = "converter/ConverterArguments.cpp"
COMMAND_LINE_HEADER = "CLI/CLI.hpp"

STANDARD_HEADERS = frozenset("""
algorithm any array atomic barrier bit bitset cassert cctype cerrno cfenv cfloat charconv chrono
cinttypes climits clocale cmath codecvt compare complex concepts condition_variable coroutine
csetjmp csignal cstdarg cstddef cstdint cstdio cstdlib cstring ctime cuchar cwchar cwctype deque
exception execution filesystem forward_list fstream functional future initializer_list iomanip ios
iosfwd iostream istream iterator latch limits list locale map memory memory_resource mutex new
numbers numeric optional ostream queue random ranges ratio regex scoped_allocator semaphore set
shared_mutex source_location span sstream stack stdexcept stop_token streambuf string string_view
syncstream system_error thread tuple type_traits typeindex typeinfo unordered_map unordered_set
utility valarray variant vector version
""".split())
TEST_HEADERS = re.compile(r"(gtest|gmock|benchmark|fuzzer)/")


def room_of(path):
    for room in ROOMS:
        if path.startswith(room + "/"):
            return room
    return None


def rooms_below(path, room):
    of_file = ROOMS_OF_FILES.get(path.rpartition(".")[0], ())
    return ROOMS_BELOW[room] + of_file


def fault_of_system_header(path, header):
    if WINDOWS_HALF.match(path) or header in STANDARD_HEADERS:
        return None
    if path.startswith("tests/") and TEST_HEADERS.match(header):
        return None
    if LINUX_HALF.match(path) and header in LINUX_HEADERS:
        return None
    if (path, header) == (COMMAND_LINE, COMMAND_LINE_HEADER):
        return None
    return "not a header of the C++ standard library, in the portable half"


def fault_of_own_header(path, header):
    own_room, other_room = room_of(path), room_of(header)
    if other_room is None:
        return "not written as a path from the project's root"
    if other_room != own_room and other_room not in rooms_below(path, own_room):
        return f"{own_room} must not know {other_room}"
    if own_room in CLOSED_HEADERS and CLOSED_HEADERS[own_room].match(header):
        return f"{own_room} asks nobody and shows nothing"
    if WINDOWS_HALF.match(header) and not WINDOWS_HALF.match(path):
        return "a header of the Windows half, in the portable half"
    if LINUX_HALF.match(header) and not LINUX_HALF.match(path):
        return "a header of the Linux half, in the portable half"
    return None


def faults_of_file(path, text):
    """Faults of one file; path is relative to the root, with forward slashes."""
    for number, line in enumerate(text.splitlines(), 1):
        found = INCLUDE.match(line)
        if not found:
            continue
        system_header, own_header = found.groups()
        fault = (fault_of_system_header(path, system_header) if system_header
                 else fault_of_own_header(path, own_header))
        if fault:
            yield f"{path}:{number}: {system_header or own_header}: {fault}"


def own_headers(path, text):
    if SOURCES_IN_CIRCLES.match(path):
        return []
    found = map(INCLUDE.match, text.splitlines())
    return [match[2] for match in found if match and match[2]]


def circle_faults(texts):
    """Faults of all files together; texts: {path: text}."""
    for circle in circles({path: own_headers(path, text) for path, text in texts.items()}):
        yield "files include each other: " + " > ".join((*circle, circle[0]))


def source_files(root):
    folders = {room.split("/")[0] for room in ROOMS}
    for folder in sorted(folders):
        for file in sorted((root / folder).rglob("*")):
            if file.suffix in SOURCE_ENDINGS and room_of(file.relative_to(root).as_posix()):
                yield file


def main():
    root = pathlib.Path(sys.argv[1] if len(sys.argv) > 1 else __file__).resolve()
    root = root if root.is_dir() else root.parent.parent
    texts = {file.relative_to(root).as_posix(): file.read_text(encoding="utf-8")
             for file in source_files(root)}
    faults = [fault for path, text in texts.items() for fault in faults_of_file(path, text)]
    faults += circle_faults(texts)
    print("\n".join(faults), end="\n" if faults else "")
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
