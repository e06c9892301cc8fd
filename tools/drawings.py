"""Drawings (SVG) as pixels, for the scripts that make icons and banners from them."""

import struct
import subprocess
import zlib

PNG_SIGNATURE = b"\x89PNG\r\n\x1a\n"
# Other releases of the rasteriser may round an edge pixel differently; that is no stale picture.
TOLERANCE = 3


def rasterise(svg, width, height):
    """The drawing at this size, as rows of RGBA bytes, top down."""
    command = ["rsvg-convert", "-w", str(width), "-h", str(height), str(svg)]
    return decode_png(subprocess.run(command, check=True, stdout=subprocess.PIPE).stdout)


def png_chunks(png):
    at = len(PNG_SIGNATURE)
    while at < len(png):
        length, kind = struct.unpack_from(">I4s", png, at)
        yield kind, png[at + 8:at + 8 + length]
        at += length + 12


def paeth(left, up, corner):
    guess = left + up - corner
    distances = (abs(guess - left), abs(guess - up), abs(guess - corner))
    return (left, up, corner)[distances.index(min(distances))]


def unfilter(kind, line, above, step):
    """One pixel row, step bytes a pixel, freed of its PNG filter."""
    row = bytearray(line)
    for i, byte in enumerate(row):
        left, corner = (row[i - step], above[i - step]) if i >= step else (0, 0)
        up = above[i]
        prediction = (0, left, up, (left + up) // 2, paeth(left, up, corner))[kind]
        row[i] = (byte + prediction) & 0xFF
    return bytes(row)


def with_opacity(row):
    """A row of RGB pixels as RGBA ones."""
    opaque = bytearray(b"\xff" * (len(row) // 3 * 4))
    for channel in range(3):
        opaque[channel::4] = row[channel::3]
    return bytes(opaque)


def decode_png(png):
    """Rows of RGBA bytes, top down."""
    if not png.startswith(PNG_SIGNATURE):
        raise ValueError("not a PNG picture")
    width, height, depth, color, _, _, interlace = struct.unpack(">IIBBBBB", png[16:29])
    if depth != 8 or color not in (2, 6) or interlace:
        raise ValueError("a PNG picture of another kind than 8-bit RGB or RGBA")
    step = 4 if color == 6 else 3
    data = zlib.decompress(b"".join(body for kind, body in png_chunks(png) if kind == b"IDAT"))
    rows, above, stride = [], bytes(step * width), step * width + 1
    for y in range(height):
        line = data[y * stride:(y + 1) * stride]
        above = unfilter(line[0], line[1:], above, step)
        rows.append(above)
    return rows if step == 4 else [with_opacity(row) for row in rows]


def png_chunk(kind, body):
    return struct.pack(">I", len(body)) + kind + body + struct.pack(">I", zlib.crc32(kind + body))


def encode_png(rows):
    header = struct.pack(">IIBBBBB", len(rows[0]) // 4, len(rows), 8, 6, 0, 0, 0)
    data = zlib.compress(b"".join(b"\0" + row for row in rows), 9)
    chunks = ((b"IHDR", header), (b"IDAT", data), (b"IEND", b""))
    return PNG_SIGNATURE + b"".join(png_chunk(kind, body) for kind, body in chunks)


def bgra(row):
    swapped = bytearray(row)
    swapped[0::4], swapped[2::4] = row[2::4], row[0::4]
    return bytes(swapped)


def look_alike(one, other):
    """Whether two pictures (rows of bytes) have the same size and all but the same pixels."""
    if [len(row) for row in one] != [len(row) for row in other]:
        return False
    return all(abs(a - b) <= TOLERANCE for a, b in zip(b"".join(one), b"".join(other)))
