#!/usr/bin/env python3
"""Makes the packages of the built program: a portable archive and an installer.

  tools/make-packages.py [--build FOLDER] [--output FOLDER]

  --build    folder of the built programs (default build/windows/bin)
  --output   where the packages go (default build/packages), together with the list of what is in
             them and SHA256SUMS

The same programs give the same bytes: files stand in their order, every time in the archive is that
of the commit, or SOURCE_DATE_EPOCH when that is set, and none comes from a clock.
"""

import argparse
import hashlib
import os
import pathlib
import re
import shutil
import subprocess
import sys
import time
import zipfile

from contents_list import contents_list, linked_libraries
from language_codes import language_codes

ROOT = pathlib.Path(__file__).resolve().parent.parent
NAME = "tnt4swx"
PROGRAMS = ("tnt4swx.exe", "swx_standin.exe", "tnt-convert.exe")
SAMPLES = "samples"
LEGAL_TEXTS = {"LICENSE.txt": "LICENSE", "NOTICES.txt": "packaging/notices.txt"}
OLDEST_ZIP_TIME = 315532800  # 1980-01-01; for sources that are in no repository


def version():
    text = (ROOT / "CMakeLists.txt").read_text(encoding="utf-8")
    return re.search(r"project\(tnt4swx VERSION (\d+\.\d+\.\d+)", text).group(1)


def commit_time():
    """Seconds since 1970."""
    if "SOURCE_DATE_EPOCH" in os.environ:
        return int(os.environ["SOURCE_DATE_EPOCH"])
    result = subprocess.run(["git", "log", "-1", "--format=%ct"], cwd=ROOT, text=True,
                            stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, check=False)
    return int(result.stdout) if result.returncode == 0 else OLDEST_ZIP_TIME


def windows_text(source, encoding):
    """A text with the line ends and the mark that Windows' editor and makensis know as UTF-8."""
    text = source.read_bytes().decode(encoding).replace("\r\n", "\n")
    return text.replace("\n", "\r\n").encode("utf-8-sig")


def stage_program(build, folder):
    """Lays out the program as it is installed: nothing else that may lie in the build's folder."""
    folder.mkdir(parents=True)
    for program in PROGRAMS:
        shutil.copyfile(build / program, folder / program)
    for name, source in LEGAL_TEXTS.items():
        (folder / name).write_bytes(windows_text(ROOT / source, "utf-8"))
    subprocess.run(["cmake", f"-DSOURCE={ROOT / 'resources'}", f"-DTARGET={folder}",
                    "-P", ROOT / "cmake" / "CopyProgramData.cmake"], check=True)


def files_below(folder):
    """Names relative to the folder, with forward slashes, in one order on every machine."""
    return sorted(file.relative_to(folder).as_posix()
                  for file in folder.rglob("*") if file.is_file())


def zip_entry(name, moment):
    whole = max(moment, OLDEST_ZIP_TIME) // 2 * 2  # an archive keeps every other second
    entry = zipfile.ZipInfo(name, time.gmtime(whole)[:6])
    entry.create_system = 3  # the mode bits below mean something
    entry.external_attr = (0o100755 if name.endswith(".exe") else 0o100644) << 16
    entry.compress_type = zipfile.ZIP_DEFLATED
    return entry


def make_zip(program, archive, top, moment):
    contents = {name: (program / name).read_bytes() for name in files_below(program)}
    contents["how-to.txt"] = windows_text(ROOT / "packaging" / "how-to.txt", "utf-8")
    with zipfile.ZipFile(archive, "w") as target:
        for name in sorted(contents):
            target.writestr(zip_entry(f"{top}/{name}", moment), contents[name], compresslevel=9)


def install_line(name):
    folder, _, file = name.rpartition("/")
    if folder == SAMPLES:
        return [f'!insertmacro InstallSample "{folder}" "{file}"']
    return [f'SetOutPath "$INSTDIR\\{folder}"'.replace('\\"', '"'),
            f'File "${{STAGE}}\\{name}"'.replace("/", "\\")]


def remove_line(name):
    folder, _, file = name.rpartition("/")
    if folder == SAMPLES:
        return [f'!insertmacro RemoveSample "{folder}" "{file}"']
    return [f'Delete "$INSTDIR\\{name}"'.replace("/", "\\")]


def installer_lists(names):
    """The two macros that put each file and take it away again; folders go when they are empty."""
    folders = sorted({name.rpartition("/")[0] for name in names} - {""}, reverse=True)
    lines = ["!macro InstallFiles", *(line for name in names for line in install_line(name)),
             "!macroend", "!macro RemoveFiles",
             *(line for name in names for line in remove_line(name)),
             'SetOutPath "$TEMP"', *(f'RMDir "$INSTDIR\\{folder}"' for folder in folders),
             "!macroend", ""]
    return "\n".join(lines)


def make_installer(program, stage, installer):
    """Runs makensis; what it reads beside the program's files is added to the stage."""
    names = files_below(program)
    shutil.copytree(program, stage)
    (stage / "lists.nsh").write_text(installer_lists(names), encoding="utf-8")
    shutil.copyfile(ROOT / "resources" / "icons" / "tnt4swx.ico", stage / "tnt4swx.ico")
    for language in language_codes().values():
        terms = ROOT / "resources" / "documents" / f"lizenz_{language}.txt"
        (stage / f"terms_{language}.txt").write_bytes(windows_text(terms, "cp1252"))
    subprocess.run(["makensis", "-WX", "-V2", "-INPUTCHARSET", "UTF8", f"-DVERSION={version()}",
                    f"-DSTAGE={stage}", f"-DOUTPUT={installer}",
                    ROOT / "packaging" / "tnt4swx.nsi"], check=True, stdin=subprocess.DEVNULL)


def make_packages(build, output):
    """The packages, in their order in SHA256SUMS."""
    work = output / "work"
    shutil.rmtree(output, ignore_errors=True)
    program = work / "program"
    stage_program(build, program)
    top = f"{NAME}-{version()}"
    archive, installer = output / f"{top}-portable.zip", output / f"{top}-setup.exe"
    make_zip(program, archive, top, commit_time())
    make_installer(program, work / "installer", installer)
    contents = {name: (program / name).read_bytes() for name in files_below(program)}
    listed = output / f"{top}.spdx.json"
    listed.write_text(contents_list(NAME, version(), contents, linked_libraries(), commit_time()),
                      encoding="utf-8")
    shutil.rmtree(work)
    packages = [archive, installer, listed]
    (output / "SHA256SUMS").write_text("".join(
        f"{hashlib.sha256(package.read_bytes()).hexdigest()}  {package.name}\n"
        for package in packages))
    return packages


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--build", type=pathlib.Path, default=ROOT / "build" / "windows" / "bin")
    parser.add_argument("--output", type=pathlib.Path, default=ROOT / "build" / "packages")
    arguments = parser.parse_args()
    for package in make_packages(arguments.build.resolve(), arguments.output.resolve()):
        print(f"{package}  {package.stat().st_size:,} bytes")
    return 0


if __name__ == "__main__":
    sys.exit(main())
