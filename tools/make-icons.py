#!/usr/bin/env python3
"""Rasterises resources/icons/NAME.svg to NAME.ico, several sizes in one file.

Sizes up to 48 pixels are stored as 32-bit bitmaps, which every resource compiler and every
Windows takes; 256 pixels (applications only) as PNG, to keep the file small.  The icons are
committed, so that a build needs no rasteriser.

  tools/make-icons.py            writes the icons that are missing or not current
  tools/make-icons.py --check    writes nothing; names what is not current and fails
"""

import argparse
import pathlib
import struct
import sys
import zlib

from drawings import PNG_SIGNATURE, bgra, decode_png, encode_png, look_alike, rasterise

FOLDER = pathlib.Path(__file__).resolve().parent.parent / "resources" / "icons"
SIZES = (16, 20, 24, 32, 48)
APPLICATIONS = ("tnt4swx", "swx_standin")
PNG_SIZE = 256


def mask_line(row):
    """Bits of the pixels that are wholly transparent, padded to four bytes."""
    width = len(row) // 4
    bits = 0
    for x in range(width):
        bits = bits << 1 | (row[4 * x + 3] == 0)
    padded = (width + 31) // 32 * 32
    return (bits << (padded - width)).to_bytes(padded // 8, "big")


def encode_bitmap(rows):
    """Icon entry: header with twice the height, colors and mask, both bottom up."""
    size = len(rows)
    bottom_up = rows[::-1]
    pixels = b"".join(bgra(row) for row in bottom_up)
    mask = b"".join(mask_line(row) for row in bottom_up)
    header = struct.pack("<IiiHHIIiiII", 40, size, 2 * size, 1, 32, 0, len(pixels) + len(mask),
                         0, 0, 0, 0)
    return header + pixels + mask


def encode_icon(pictures):
    """The .ico file of pictures, each a list of rows."""
    entries = [encode_png(rows) if len(rows) >= PNG_SIZE else encode_bitmap(rows)
               for rows in pictures]
    offset = 6 + 16 * len(entries)
    directory = struct.pack("<HHH", 0, 1, len(entries))
    for rows, entry in zip(pictures, entries):
        size = len(rows) % 256  # 0 stands for 256
        directory += struct.pack("<BBBBHHII", size, size, 0, 0, 1, 32, len(entry), offset)
        offset += len(entry)
    return directory + b"".join(entries)


def decode_bitmap(entry):
    size = struct.unpack_from("<i", entry, 4)[0]
    rows = [entry[40 + 4 * size * y:40 + 4 * size * (y + 1)] for y in range(size)]
    return [bgra(row) for row in rows[::-1]]


def decode_icon(icon):
    pictures = []
    for number in range(struct.unpack_from("<H", icon, 4)[0]):
        length, offset = struct.unpack_from("<II", icon, 6 + 16 * number + 8)
        entry = icon[offset:offset + length]
        is_png = entry.startswith(PNG_SIGNATURE)
        pictures.append(decode_png(entry) if is_png else decode_bitmap(entry))
    return pictures


def draw(svg):
    sizes = SIZES + ((PNG_SIZE,) if svg.stem in APPLICATIONS else ())
    return [rasterise(svg, size, size) for size in sizes]


def is_current(icon_file, pictures):
    try:
        committed = decode_icon(icon_file.read_bytes())
    except (OSError, ValueError, struct.error, zlib.error):
        return False
    return len(committed) == len(pictures) and all(map(look_alike, committed, pictures))


def stale_icons(folder, write):
    """Names of the icons that are not current; writes them when asked to."""
    stale = []
    for svg in sorted(folder.glob("*.svg")):
        pictures = draw(svg)
        icon_file = svg.with_suffix(".ico")
        if not is_current(icon_file, pictures):
            stale.append(icon_file.name)
            if write:
                icon_file.write_bytes(encode_icon(pictures))
    drawn = {svg.stem for svg in folder.glob("*.svg")}
    return stale + [icon.name for icon in folder.glob("*.ico") if icon.stem not in drawn]


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--check", action="store_true", help="only tell what is not current")
    parser.add_argument("--folder", type=pathlib.Path, default=FOLDER, help=argparse.SUPPRESS)
    arguments = parser.parse_args()
    stale = stale_icons(arguments.folder, write=not arguments.check)
    for name in stale:
        print(f"{name}: {'not current' if arguments.check else 'written'}")
    return 1 if arguments.check and stale else 0


if __name__ == "__main__":
    sys.exit(main())
