#!/usr/bin/env python3
"""Writes the swatch files of tests/golden/palettes, without any of the program's code.

  tests/palettes/make-golden-palettes.py            writes them
  tests/palettes/make-golden-palettes.py --check    fails when they are not what this writes
"""

import pathlib
import struct
import sys

FOLDER = pathlib.Path(__file__).resolve().parent.parent / "golden" / "palettes"

# Name, group, red, green, blue.
GOLDEN = (("frei", None, 0, 127, 255), ("Gold", "Metalle", 255, 215, 0), ("", "Metalle", 1, 2, 3),
          ("Ωlivgrün", "Grüne 😀", 85, 107, 47))
GROUP_START, GROUP_END, COLOR = 0xC001, 0xC002, 0x0001
NORMAL = 2


def units(text):
    return (text + "\0").encode("utf-16-be")


def exchange_name(text):
    return struct.pack(">H", len(units(text)) // 2) + units(text)


def exchange_block(kind, content=b""):
    return struct.pack(">HI", kind, len(content)) + content


def exchange_color(name, model, *values):
    return exchange_block(COLOR, exchange_name(name) + model + struct.pack(f">{len(values)}f", *values)
                          + struct.pack(">H", NORMAL))


def exchange_file(blocks):
    return b"ASEF" + struct.pack(">HHI", 1, 0, len(blocks)) + b"".join(blocks)


def golden_exchange():
    blocks, open_group = [], None
    for name, group, *color in GOLDEN:
        if group != open_group:
            blocks += [exchange_block(GROUP_END)] * (open_group is not None)
            blocks.append(exchange_block(GROUP_START, exchange_name(group)))
            open_group = group
        # As single-precision numbers: the division of the program is one of those.
        blocks.append(exchange_color(name, b"RGB ", *(value / 255 for value in color)))
    return exchange_file(blocks + [exchange_block(GROUP_END)])


def models_exchange():
    return exchange_file([
        exchange_color("rgb", b"RGB ", 1, 0.5, 0),
        exchange_color("cmyk", b"CMYK", 0, 1, 0, 0.5),
        exchange_color("gray", b"Gray", 0.5),
        exchange_color("white", b"LAB ", 1, 0, 0),
    ])


def adobe_section(version, colors):
    section = struct.pack(">HH", version, len(colors))
    for name, words in colors:
        section += struct.pack(">5H", *words)
        if version == 2:
            section += struct.pack(">I", len(units(name)) // 2) + units(name)
    return section


def adobe_file(colors):
    return adobe_section(1, colors) + adobe_section(2, colors)


def golden_adobe():
    return adobe_file([(name, (0, *(value * 257 for value in color), 0))
                       for name, _, *color in GOLDEN])


def models_adobe():
    return adobe_file([
        ("rgb", (0, 65535, 32896, 0, 0)),
        ("cmyk", (2, 65535, 0, 65535, 32768)),  # 0 is full ink
        ("gray", (8, 5000, 0, 0, 0)),
        ("white", (7, 10000, 0, 0, 0)),
    ])


FILES = {"golden.ase": golden_exchange, "golden.aco": golden_adobe, "models.ase": models_exchange,
         "models.aco": models_adobe}


def main():
    if sys.argv[1:] == ["--check"]:
        wrong = [name for name, make in FILES.items()
                 if not (FOLDER / name).is_file() or (FOLDER / name).read_bytes() != make()]
        if wrong:
            print(f"Not what tests/palettes/make-golden-palettes.py writes: {' '.join(wrong)}")
        return 1 if wrong else 0
    FOLDER.mkdir(exist_ok=True)
    for name, make in FILES.items():
        (FOLDER / name).write_bytes(make())
    return 0


if __name__ == "__main__":
    sys.exit(main())
