#!/usr/bin/env python3
"""Reads the palettes that drawing programs bring along, and compares with a count of its own.

  tools/check-real-palettes.py [--program PROGRAM] [--folder FOLDER]

  --program   the tnt-convert that reads them (default build/native/tnt-convert)
  --folder    where the packages are unpacked (default build/palettes); those that are there are not
              fetched again

The packages are fetched with apt-get and not installed; nothing of them gets into the project.  Without a network this fails.
"""

import argparse
import pathlib
import re
import struct
import subprocess
import sys
import tarfile

ROOT = pathlib.Path(__file__).resolve().parent.parent
PACKAGES = ("gimp-data", "inkscape", "mypaint-data", "calligra-data")

GPL_COLOR = re.compile(r"\s*(\d+)\s+(\d+)\s+(\d+)(?:\s|$)")
GPL_HEADER = re.compile(r"(GIMP Palette|Name:|Columns:)")
ASE_COLOR = 1


class NoPackage(Exception):
    """A package cannot be fetched."""


def gpl_colors(data):
    """How many lines are colors, and how many are nothing that is known."""
    lines = [line for line in re.split(r"\r\n|\n", data.decode("utf-8-sig", errors="replace"))
             if line.strip() and not line.startswith("#") and not GPL_HEADER.match(line)]
    colors = [found for found in map(GPL_COLOR.match, lines)
              if found and all(int(number) <= 255 for number in found.groups())]
    return len(colors), len(lines) - len(colors)


def ase_colors(data):
    """The same for the blocks of a swatch exchange file: colors, and 0."""
    offset, count = 12, 0
    while offset + 6 <= len(data):
        kind, length = struct.unpack_from(">HI", data, offset)
        offset += 6 + length
        count += kind == ASE_COLOR
    return count, 0


def aco_colors(data):
    """The number that its first section says."""
    return struct.unpack_from(">H", data, 2)[0], 0


COUNTS = {".gpl": gpl_colors, ".ase": ase_colors, ".aco": aco_colors}


def fetched(package, folder):
    """The package's file."""
    result = subprocess.run(["apt-get", "-qq", "-o", "APT::Sandbox::User=root", "download", package],
                            cwd=folder, check=False)
    if result.returncode:
        raise NoPackage(f"the package {package} cannot be fetched: no network, or apt-get update "
                        "was never run")
    return next(folder.glob(f"{package}_*.deb"))


def is_palette(name):
    return pathlib.PurePath(name).suffix.lower() in COUNTS


def unpack(archive, target):
    """Puts the palettes of a package, and no other file of it, into a folder."""
    with subprocess.Popen(["dpkg-deb", "--fsys-tarfile", archive], stdout=subprocess.PIPE) as files:
        with tarfile.open(fileobj=files.stdout, mode="r|") as members:
            for member in members:
                if member.isfile() and is_palette(member.name):
                    path = target / member.name.replace("/", "__")
                    path.write_bytes(members.extractfile(member).read())


def palettes_of(package, folder):
    """Its palettes in a folder, each under its whole path."""
    target, unfinished = folder / package, folder / f"{package}.part"
    if not target.is_dir():
        unfinished.mkdir(parents=True, exist_ok=True)
        archive = fetched(package, folder)
        unpack(archive, unfinished)
        archive.unlink()
        unfinished.rename(target)
    return sorted(target.iterdir())


def told(program, palette):
    """Exit code of the program for a palette, and how many colors it has found."""
    result = subprocess.run([program, "--check", palette], stdout=subprocess.PIPE,
                            stderr=subprocess.DEVNULL, text=True, check=False)
    found = re.search(r"^colors: (\d+)$", result.stdout, re.MULTILINE)
    return result.returncode, int(found[1]) if found else 0


def fault_of(program, palette):
    """What differs; empty when nothing does."""
    colors, others = COUNTS[palette.suffix.lower()](palette.read_bytes())
    expected = (1 if others else 0, colors)
    found = told(program, palette)
    if found == expected:
        return ""
    return (f"exit code {found[0]} and {found[1]} colors instead of {expected[0]} and "
            f"{expected[1]}")


def check(package, program, folder):
    """Tells how the package's palettes are read; whether all is well."""
    palettes = palettes_of(package, folder)
    faults = {palette.name: fault_of(program, palette) for palette in palettes}
    bad = [f"  {name}: {fault}" for name, fault in faults.items() if fault]
    print("\n".join([f"{package}: {len(palettes)} palettes, {len(bad)} read otherwise", *bad]))
    return bool(palettes) and not bad


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--program", type=pathlib.Path,
                        default=ROOT / "build" / "native" / "tnt-convert")
    parser.add_argument("--folder", type=pathlib.Path, default=ROOT / "build" / "palettes")
    arguments = parser.parse_args()
    try:
        well = [check(package, arguments.program, arguments.folder) for package in PACKAGES]
    except NoPackage as error:
        print(f"check-real-palettes: {error}")
        return 1
    return 0 if all(well) else 1


if __name__ == "__main__":
    sys.exit(main())
