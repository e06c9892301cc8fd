#!/usr/bin/env python3
"""Reads from the built programs what protects them and their user, and tells what is missing.

  tools/check-hardening.py [--objects ARCHIVE.a] [--forbid TEXT] PROGRAM.exe ...

  --objects   a library of the project's own code, which must use the stack protector
  --forbid    a text that no program may hold, such as the folder of the build
"""

import argparse
import pathlib
import re
import struct
import subprocess
import sys

NM = "x86_64-w64-mingw32-nm"

MACHINE_AMD64 = 0x8664
MAGIC_PE32_PLUS = 0x20B
RELOCATIONS_STRIPPED = 0x0001
SECTION_EXECUTABLE, SECTION_WRITABLE = 0x20000000, 0x80000000
DIRECTORY_IMPORT, DIRECTORY_RESOURCE, DIRECTORY_RELOCATION = 1, 2, 5
RESOURCE_MANIFEST = 24
SUBSYSTEM_CONSOLE = 3

CHARACTERISTICS = {
    0x0020: "addresses of 64 bits are not used (HIGH_ENTROPY_VA)",
    0x0040: "the program is always at the same address (DYNAMIC_BASE)",
    0x0100: "data can be executed (NX_COMPAT)",
}

# What Windows takes from its own folder whatever lies beside a program ("known DLLs"), and the
# common controls, which the manifest binds to the system's own copy.  Anything else is asked for at
# run time, by SystemFunction.
ALLOWED_IMPORTS = frozenset("""
advapi32.dll comdlg32.dll gdi32.dll kernel32.dll msvcrt.dll ole32.dll oleaut32.dll shell32.dll
user32.dll comctl32.dll
""".split())
BOUND_BY_MANIFEST = {"comctl32.dll": b"Microsoft.Windows.Common-Controls"}


class Image:
    """A 64-bit Windows program as the loader sees it."""

    def __init__(self, data):
        self.data = data
        start = self.number("<I", 0x3C)
        if data[:2] != b"MZ" or data[start:start + 4] != b"PE\0\0":
            raise ValueError("not a Windows program")
        self.machine, count, _, _, _, optional_size, self.flags = struct.unpack_from(
            "<HHIIIHH", data, start + 4)
        self.optional = start + 24
        self.magic = self.number("<H", self.optional)
        self.subsystem = self.number("<H", self.optional + 68)
        self.dll_flags = self.number("<H", self.optional + 70)
        table = self.optional + optional_size
        self.sections = [self.section(table + 40 * i) for i in range(count)]

    def number(self, form, offset):
        return struct.unpack_from(form, self.data, offset)[0]

    def section(self, offset):
        name, size, address, raw_size, raw = struct.unpack_from("<8sIIII", self.data, offset)
        return {"name": name.rstrip(b"\0").decode(), "address": address,
                "size": max(size, raw_size), "raw": raw, "flags": self.number("<I", offset + 36)}

    def directory(self, index):
        """Address and size of one of the loader's tables."""
        return struct.unpack_from("<II", self.data, self.optional + 112 + 8 * index)

    def offset(self, address):
        for section in self.sections:
            if section["address"] <= address < section["address"] + section["size"]:
                return section["raw"] + address - section["address"]
        raise ValueError(f"no section at {address:#x}")

    def text(self, offset):
        return self.data[offset:self.data.index(b"\0", offset)].decode("ascii")

    def imports(self):
        address, _ = self.directory(DIRECTORY_IMPORT)
        if not address:
            return []
        names, row = [], self.offset(address)
        while self.number("<I", row + 12):
            names.append(self.text(self.offset(self.number("<I", row + 12))))
            row += 20
        return names

    def resources(self, kind):
        """The bytes of every resource of a kind."""
        address, _ = self.directory(DIRECTORY_RESOURCE)
        if not address:
            return []
        base = self.offset(address)
        found = [entry for number, entry in self.resource_entries(base, base) if number == kind]
        return [self.resource_data(base, leaf) for leaf in self.leaves(base, found)]

    def resource_entries(self, base, table):
        named, numbered = struct.unpack_from("<HH", self.data, table + 12)
        for i in range(named + numbered):
            number, target = struct.unpack_from("<II", self.data, table + 16 + 8 * i)
            yield number, target

    def leaves(self, base, entries):
        for target in entries:
            if target & 0x80000000:
                below = self.resource_entries(base, base + (target & 0x7FFFFFFF))
                yield from self.leaves(base, [entry for _, entry in below])
            else:
                yield target

    def resource_data(self, base, entry):
        address, size = struct.unpack_from("<II", self.data, base + entry)
        start = self.offset(address)
        return self.data[start:start + size]


def faults_of_header(image):
    if (image.machine, image.magic) != (MACHINE_AMD64, MAGIC_PE32_PLUS):
        yield "not a 64-bit program"
    for flag, fault in CHARACTERISTICS.items():
        if not image.dll_flags & flag:
            yield fault
    if image.flags & RELOCATIONS_STRIPPED or not image.directory(DIRECTORY_RELOCATION)[1]:
        yield "the program cannot be moved: it has no relocations"


def faults_of_sections(image):
    for section in image.sections:
        if section["flags"] & SECTION_EXECUTABLE and section["flags"] & SECTION_WRITABLE:
            yield f"section {section['name']} can be written and executed"


def faults_of_imports(image, manifest):
    for name in image.imports():
        if name.lower() not in ALLOWED_IMPORTS:
            yield f"{name} is loaded with the program, from its own folder first"
        if name.lower() == "user32.dll" and image.subsystem == SUBSYSTEM_CONSOLE:
            yield "a console program that loads the window system"
        bound = BOUND_BY_MANIFEST.get(name.lower())
        if bound and bound not in manifest:
            yield f"{name} is not bound to the system's copy by the manifest"


def faults_of_manifest(manifest):
    level = re.search(rb'requestedExecutionLevel\s+level="(\w+)"\s+uiAccess="(\w+)"', manifest)
    if not level or level.groups() != (b"asInvoker", b"false"):
        yield "the manifest does not say that the program asks for no rights (asInvoker)"


def faults_of_content(data, forbidden):
    if b"SetDefaultDllDirectories\0" not in data:
        yield "the folders in which libraries are looked for are not set"
    if b"*** stack smashing detected ***" not in data:
        yield "the stack protector is not linked"
    for text in forbidden:
        if text.encode() in data or text.encode("utf-16-le") in data:
            yield f"holds the text {text}"


def faults_of_program(data, forbidden=()):
    image = Image(data)
    manifest = b"".join(image.resources(RESOURCE_MANIFEST))
    yield from faults_of_header(image)
    yield from faults_of_sections(image)
    yield from faults_of_imports(image, manifest)
    yield from faults_of_manifest(manifest)
    yield from faults_of_content(data, forbidden)


def uses_stack_protector(archive):
    """True when code of the archive calls the stack protector."""
    symbols = subprocess.run([NM, "-u", str(archive)], check=True, stdout=subprocess.PIPE,
                             text=True).stdout
    return re.search(r"\b__stack_chk_fail$", symbols, re.MULTILINE) is not None


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("programs", nargs="+", type=pathlib.Path)
    parser.add_argument("--objects", action="append", default=[], type=pathlib.Path)
    parser.add_argument("--forbid", action="append", default=[])
    arguments = parser.parse_args()
    faults = [f"{program.name}: {fault}" for program in arguments.programs
              for fault in faults_of_program(program.read_bytes(), arguments.forbid)]
    faults += [f"{archive.name}: compiled without the stack protector"
               for archive in arguments.objects if not uses_stack_protector(archive)]
    print("\n".join(faults), end="\n" if faults else "")
    print(f"{len(arguments.programs)} programs, {len(arguments.objects)} libraries, "
          f"{len(faults)} faults")
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
