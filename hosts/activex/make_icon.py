#!/usr/bin/env python3
"""Writes vorlex.ico: a grey bar holding three coloured blocks, 16 and 32 pixels."""
import struct
import sys

BLOCKS = [(0x20, 0x60, 0xE0), (0x20, 0xB0, 0x40), (0xE0, 0x40, 0x30)]  # RGB


def pixels(size):
    """Rows top first, each pixel (r, g, b, a)."""
    rows = []
    top, bottom = size // 4, size - size // 4
    for y in range(size):
        row = []
        for x in range(size):
            if not (top <= y < bottom):
                row.append((0, 0, 0, 0))
            elif y in (top, bottom - 1) or x in (0, size - 1):
                row.append((0x40, 0x40, 0x40, 255))  # the bar's border
            else:
                inner = size - 2
                block = (x - 1) * 4 // inner  # three blocks and one empty quarter
                gap = (x - 1) % (inner // 4) == 0 and x > 1
                if block < 3 and not gap and top + 2 <= y < bottom - 2:
                    row.append(BLOCKS[block] + (255,))
                else:
                    row.append((0xC0, 0xC0, 0xC0, 255))
        rows.append(row)
    return rows


def image(size):
    rows = pixels(size)
    header = struct.pack("<IiiHHIIiiII", 40, size, size * 2, 1, 32, 0, 0, 0, 0, 0, 0)
    xor = b"".join(bytes((b, g, r, a)) for row in reversed(rows) for (r, g, b, a) in row)
    stride = ((size + 31) // 32) * 4
    mask = bytearray()
    for row in reversed(rows):
        bits = bytearray(stride)
        for x, (_, _, _, a) in enumerate(row):
            if a == 0:
                bits[x // 8] |= 0x80 >> (x % 8)
        mask += bits
    return header + xor + bytes(mask)


def main(path):
    images = [(size, image(size)) for size in (16, 32)]
    out = struct.pack("<HHH", 0, 1, len(images))
    offset = 6 + 16 * len(images)
    for size, data in images:
        out += struct.pack("<BBBBHHII", size, size, 0, 0, 1, 32, len(data), offset)
        offset += len(data)
    out += b"".join(data for _, data in images)
    with open(path, "wb") as f:
        f.write(out)


if __name__ == "__main__":
    main(sys.argv[1] if len(sys.argv) > 1 else "vorlex.ico")
