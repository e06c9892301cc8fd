#!/usr/bin/env python3
"""Runs clang-tidy over the sources of a configured build, as many at a time as there are cores.

  tools/check-tidy.py native     the portable half
  tools/check-tidy.py windows    the Windows half: what the native build does not compile
  tools/check-tidy.py --paths HALF    also what follows the paths through the code (clang-analyzer):
                                 four fifths of the time, so for the long run

A file that was clean is not looked at again until it, a project header that it includes, the
options or the checks change; what is known lies below build/tidy.

Most of the time of clang-tidy goes into the headers that every file includes, so several files are
looked at as if they were one, where they go together (sources_together.py).  When
something is found there, or the files do not go together, halves of them are looked at, down to single
files, and what is found then is what is told.

Tests are left out: the test
framework's macros raise checks that say nothing about the program.
"""

import argparse
import concurrent.futures
import hashlib
import json
import os
import pathlib
import re
import shlex
import subprocess
import sys
import tempfile

from sources_together import groups, with_own_headers

ROOT = pathlib.Path(__file__).resolve().parent.parent
BUILD = ROOT / "build"
KNOWN = BUILD / "tidy"
ROOMS = ("app", "common", "convert", "converter", "library", "mainwindow", "palettes", "platform",
         "shading", "solidworks", "standin", "support")
TOGETHER = 24  # files that are looked at as one, at most
INCLUDE = re.compile(r"\s*#\s*include\s+(\S+)")
WITHOUT_PATHS = "--checks=-clang-analyzer-*"
MINGW = "x86_64-w64-mingw32"


def mingw_options():
    """What clang must be told to compile for Windows with the headers of the cross compiler."""
    compiler = f"{MINGW}-g++-posix"
    library = subprocess.run([compiler, "-print-libgcc-file-name"], check=True,
                             stdout=subprocess.PIPE, text=True).stdout.strip()
    headers = pathlib.Path(library).parent / "include" / "c++"
    folders = (headers, headers / MINGW, headers / "backward")
    return [f"--target={MINGW}", "-nostdinc++"] + [f"-isystem{folder}" for folder in folders]


def kept_options(command):
    """Defines, include folders and language of a compile command; the warnings are the compiler's."""
    arguments = shlex.split(command)[1:]
    kept = [argument for argument in arguments if argument.startswith(("-D", "-I", "-std="))]
    for option, value in zip(arguments, arguments[1:]):
        if option == "-isystem":
            kept += [option, value]
    return kept


def sources_of(compiled):
    """The files that are compiled as one in this file of the build, or the file itself."""
    if compiled.parent.name != "Unity":
        return [compiled.resolve()]
    lines = compiled.read_text(encoding="utf-8").splitlines()
    return [pathlib.Path(match[1].strip('"')).resolve() for match in map(INCLUDE.match, lines) if match]


def read_commands(preset):
    """Options by source file, for the project's own files."""
    entries = json.loads((BUILD / preset / "compile_commands.json").read_text(encoding="utf-8"))
    commands = {}
    for entry in entries:
        for file in sources_of(pathlib.Path(entry["directory"]) / entry["file"]):
            if file.is_relative_to(ROOT) and file.relative_to(ROOT).parts[0] in ROOMS:
                commands[file] = kept_options(entry["command"])
    return commands


def portable_commands():
    return read_commands("native")


def windows_commands():
    portable, extra = read_commands("native"), mingw_options()
    return {file: extra + options for file, options in read_commands("windows").items()
            if file not in portable}


def fingerprint(file, options, tool):
    digest = hashlib.sha256("\0".join([tool, str(file), *options]).encode())
    for path in sorted(with_own_headers(file, set())):
        digest.update(path.as_posix().encode() + b"\0" + path.read_bytes())
    return digest.hexdigest()


def tool_fingerprint():
    version = subprocess.run(["clang-tidy", "--version"], check=True, stdout=subprocess.PIPE,
                             text=True).stdout
    return version + (ROOT / ".clang-tidy").read_text(encoding="utf-8")


def findings(file, options):
    """What clang-tidy says about one file; empty when it is clean."""
    compiler_options = [option for option in options if option != WITHOUT_PATHS]
    command = ["clang-tidy", "--quiet", f"--config-file={ROOT / '.clang-tidy'}",
               *([WITHOUT_PATHS] if WITHOUT_PATHS in options else []), str(file), "--",
               *compiler_options]
    result = subprocess.run(command, stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True)
    if result.returncode == 0:
        return ""
    return result.stdout.replace(f"{ROOT}/", "") or result.stderr


def joined(files):
    """The text of several files as one, without what an earlier one has included already; every line
    keeps its own number."""
    lines, included = [], set()
    for file in files:
        lines.append(f'#line 1 "{file}"')
        for line in file.read_text(encoding="utf-8").splitlines():
            include = INCLUDE.match(line)
            if include and include[1] in included:
                line = ""
            elif include:
                included.add(include[1])
            lines.append(line)
    return "\n".join(lines) + "\n"


def are_clean_together(files, options):
    with tempfile.NamedTemporaryFile("w", suffix=".cpp", dir=KNOWN, encoding="utf-8") as text:
        text.write(joined(files))
        text.flush()
        return not findings(text.name, options)


def findings_of_each(files, options):
    if len(files) == 1:
        return [findings(files[0], options)]
    if are_clean_together(files, options):
        return [""] * len(files)
    half = len(files) // 2
    return findings_of_each(files[:half], options) + findings_of_each(files[half:], options)


def check(files, options, tool):
    """What is found in files that share their options, a text for each."""
    found = findings_of_each(files, options)
    for file, text in zip(files, found):
        if not text:
            (KNOWN / fingerprint(file, options, tool)).touch()
    return found


def batches(commands, tool):
    """The files that nothing is known of, with their options, as many together as go together."""
    unknown = {}
    for file, options in sorted(commands.items()):
        if not (KNOWN / fingerprint(file, options, tool)).exists():
            unknown.setdefault((tuple(options), "standin" in file.parts), []).append(file)
    # The stand-in and the program call different things by the same names.
    return [(files, options) for (options, _), members in unknown.items()
            for files in groups(members, TOGETHER)]


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("half", choices=("native", "windows"))
    parser.add_argument("--paths", action="store_true")
    chosen = parser.parse_args()
    KNOWN.mkdir(parents=True, exist_ok=True)
    commands = portable_commands() if chosen.half == "native" else windows_commands()
    if not chosen.paths:
        commands = {file: [*options, WITHOUT_PATHS] for file, options in commands.items()}
    tool = tool_fingerprint()
    with concurrent.futures.ThreadPoolExecutor(max_workers=os.cpu_count()) as pool:
        results = pool.map(lambda batch: check(*batch, tool), batches(commands, tool))
        found = [text for texts in results for text in texts]
    # A finding in a header shows up in every file that includes it: tell it once.
    print("\n".join(dict.fromkeys(text for text in found if text)))
    print(f"{len(commands)} files, {len(found)} looked at, {sum(map(bool, found))} not clean")
    return 1 if any(found) or not commands else 0


if __name__ == "__main__":
    sys.exit(main())
