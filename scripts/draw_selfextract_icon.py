#!/usr/bin/env python3
"""Draws resources/Res/SelfExtract.ico, the icon of a self-extracting program whose project names none:
a carton with an arrow into the machine. Run by hand after a change; the icon is kept as a file."""

import struct
import sys
import zlib

BITMAP_SIDES = (16, 24, 32, 48)
PNG_SIDE = 256  # Windows reads this one since Vista
FINENESS = 6  # samples a pixel, each way

# Corners in a square of side 1, y downwards.
TOP = [(0.46, 0.04), (0.90, 0.22), (0.46, 0.40), (0.02, 0.22)]
LEFT = [(0.02, 0.22), (0.46, 0.40), (0.46, 0.94), (0.02, 0.74)]
RIGHT = [(0.46, 0.40), (0.90, 0.22), (0.90, 0.74), (0.46, 0.94)]
TAPE = [(0.19, 0.15), (0.29, 0.11), (0.73, 0.29), (0.63, 0.33)]
TAPE_END = [(0.63, 0.33), (0.73, 0.29), (0.73, 0.43), (0.63, 0.47)]
DISC = (0.71, 0.71)
RING_RADIUS, DISC_RADIUS = 0.28, 0.24
SHAFT = [(0.66, 0.55), (0.76, 0.55), (0.76, 0.71), (0.66, 0.71)]
POINT = [(0.57, 0.70), (0.85, 0.70), (0.71, 0.86)]

# From the front to the back.
WHITE, BLUE = (255, 255, 255), (28, 99, 184)
FACES = [(TAPE, (250, 232, 196)), (TAPE_END, (222, 190, 138)), (TOP, (232, 184, 116)),
         (LEFT, (206, 150, 80)), (RIGHT, (176, 120, 58))]


def is_inside(corners, x, y):
    """Whether the point is in a convex shape."""
    signs = set()
    for (ax, ay), (bx, by) in zip(corners, corners[1:] + corners[:1]):
        signs.add((bx - ax) * (y - ay) - (by - ay) * (x - ax) > 0)
    return len(signs) == 1


def colour(x, y):
    distance = ((x - DISC[0]) ** 2 + (y - DISC[1]) ** 2) ** 0.5
    if distance <= DISC_RADIUS:
        return WHITE if is_inside(SHAFT, x, y) or is_inside(POINT, x, y) else BLUE
    if distance <= RING_RADIUS:
        return WHITE
    return next((shade for corners, shade in FACES if is_inside(corners, x, y)), None)


def pixel(column, row, side):
    """Red, green, blue and how opaque: the mean of the samples."""
    samples = [colour((column + (i + 0.5) / FINENESS) / side, (row + (j + 0.5) / FINENESS) / side)
               for i in range(FINENESS) for j in range(FINENESS)]
    seen = [sample for sample in samples if sample]
    if not seen:
        return 0, 0, 0, 0
    mean = [round(sum(sample[i] for sample in seen) / len(seen)) for i in range(3)]
    return (*mean, round(255 * len(seen) / len(samples)))


def drawn(side):
    return [[pixel(column, row, side) for column in range(side)] for row in range(side)]


def bitmap(rows):
    side = len(rows)
    pixels = b"".join(struct.pack("<4B", b, g, r, a) for row in reversed(rows) for r, g, b, a in row)
    width = -(-side // 32) * 32
    mask = b"".join(int("".join("01"[a == 0] for *_, a in row).ljust(width, "0"), 2).to_bytes(width // 8, "big")
                    for row in reversed(rows))
    return struct.pack("<IiiHHIIiiII", 40, side, 2 * side, 1, 32, 0, len(pixels), 0, 0, 0, 0) + pixels + mask


def png(rows):
    def chunk(kind, data):
        return struct.pack(">I", len(data)) + kind + data + struct.pack(">I", zlib.crc32(kind + data))
    header = struct.pack(">IIBBBBB", len(rows), len(rows), 8, 6, 0, 0, 0)
    data = b"".join(b"\0" + b"".join(bytes(dot) for dot in row) for row in rows)
    return (b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", header) + chunk(b"IDAT", zlib.compress(data, 9))
            + chunk(b"IEND", b""))


def main(path):
    pictures = [(side, bitmap(drawn(side))) for side in BITMAP_SIDES] + [(PNG_SIDE, png(drawn(PNG_SIDE)))]
    position = 6 + 16 * len(pictures)
    header, body = struct.pack("<HHH", 0, 1, len(pictures)), b""
    for side, picture in pictures:
        header += struct.pack("<BBBBHHII", side % 256, side % 256, 0, 0, 1, 32, len(picture),
                              position + len(body))
        body += picture
    with open(path, "wb") as file:
        file.write(header + body)


if __name__ == "__main__":
    main(sys.argv[1] if len(sys.argv) > 1 else "resources/Res/SelfExtract.ico")
