"""A reader of PNG pictures with 8 bits a channel, for looking at what was rendered."""

import struct
import zlib


def _unfiltered(kind, row, above, step):
    out = bytearray(row)
    for i, value in enumerate(row):
        left = out[i - step] if i >= step else 0
        up = above[i]
        corner = above[i - step] if i >= step else 0
        if kind == 1:
            value += left
        elif kind == 2:
            value += up
        elif kind == 3:
            value += (left + up) // 2
        elif kind == 4:
            estimate = left + up - corner
            distances = [abs(estimate - left), abs(estimate - up), abs(estimate - corner)]
            value += (left, up, corner)[distances.index(min(distances))]
        out[i] = value & 0xFF
    return out


def read_png(path):
    """(width, height, rows), each row a list of (red, green, blue, alpha)."""
    with open(path, "rb") as file:
        data = file.read()
    assert data.startswith(b"\x89PNG\r\n\x1a\n"), path
    position, packed = 8, b""
    while position < len(data):
        length, kind = struct.unpack_from(">I4s", data, position)
        body = data[position + 8 : position + 8 + length]
        if kind == b"IHDR":
            width, height, depth, colours, _, _, interlace = struct.unpack(">IIBBBBB", body)
            assert (depth, colours, interlace) == (8, 6, 0), path
        elif kind == b"IDAT":
            packed += body
        position += 12 + length
    raw = zlib.decompress(packed)
    rows, above = [], bytes(4 * width)
    for start in range(0, len(raw), 4 * width + 1):
        above = _unfiltered(raw[start], raw[start + 1 : start + 1 + 4 * width], above, 4)
        rows.append([tuple(above[i : i + 4]) for i in range(0, len(above), 4)])
    assert len(rows) == height, path
    return width, height, rows
