#!/usr/bin/env python3
"""Rasterises resources/banners/NAME.svg to NAME.bmp, 240 by 48 pixels, 24 bits a pixel.

  tools/make-banners.py            writes the pictures that are missing or not current
  tools/make-banners.py --check    writes nothing; names what is not current and fails
"""

import argparse
import pathlib
import struct
import sys

from drawings import bgra, look_alike, rasterise

FOLDER = pathlib.Path(__file__).resolve().parent.parent / "resources" / "banners"
WIDTH, HEIGHT = 240, 48
HEADER_SIZE = 54


def bgr(row):
    """Without opacity: a banner fills its box."""
    line = bytearray(len(row) // 4 * 3)
    swapped = bgra(row)
    for channel in range(3):
        line[channel::3] = swapped[channel::4]
    return bytes(line)


def encode_bmp(lines):
    """Lines of three bytes a pixel, top down; a line of this width needs no padding."""
    pixels = b"".join(reversed(lines))
    file_header = struct.pack("<2sIHHI", b"BM", HEADER_SIZE + len(pixels), 0, 0, HEADER_SIZE)
    info_header = struct.pack("<IiiHHIIiiII", 40, WIDTH, HEIGHT, 1, 24, 0, len(pixels),
                              3780, 3780, 0, 0)
    return file_header + info_header + pixels


def decode_bmp(content):
    stride = 3 * WIDTH
    lines = [content[at:at + stride] for at in range(HEADER_SIZE, len(content), stride)]
    return lines[::-1]


def is_current(file, lines):
    return (file.is_file() and file.read_bytes()[:HEADER_SIZE] == encode_bmp(lines)[:HEADER_SIZE]
            and look_alike(decode_bmp(file.read_bytes()), lines))


def stale_banners(write):
    stale = []
    for svg in sorted(FOLDER.glob("*.svg")):
        lines = [bgr(row) for row in rasterise(svg, WIDTH, HEIGHT)]
        file = svg.with_suffix(".bmp")
        if not is_current(file, lines):
            stale.append(file.name)
            if write:
                file.write_bytes(encode_bmp(lines))
    return stale


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--check", action="store_true", help="only tell what is not current")
    check = parser.parse_args().check
    stale = stale_banners(write=not check)
    for name in stale:
        print(f"{name}: {'not current' if check else 'written'}")
    return 1 if check and stale else 0


if __name__ == "__main__":
    sys.exit(main())
