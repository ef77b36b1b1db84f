#!/usr/bin/env python3
"""Draws resources/Res/SetupDef.bmp, the picture beside the text of the setup's dialog pages: an
evening sky over water, 8 bits a pixel. Run by hand after a change; the picture is kept as a file."""

import math
import struct
import sys

WIDTH, HEIGHT = 164, 314
HORIZON = 214
SUN = (112, 150, 24)  # x, y, radius

# Colours from top to bottom; the water mirrors the sky in darker ones.
SKY = [(24, 52, 96), (52, 104, 158), (132, 176, 206), (246, 214, 170)]
WATER = [(150, 160, 168), (62, 104, 142), (20, 44, 82)]
HILLS = [(70, 104, 126), (42, 76, 100)]
SUNLIGHT = (255, 244, 214)


def blend(colours, share):
    place = min(max(share, 0.0), 1.0) * (len(colours) - 1)
    low = min(int(place), len(colours) - 2)
    part = place - low
    return tuple(round(a + (b - a) * part) for a, b in zip(colours[low], colours[low + 1]))


def hill(x, number):
    if number == 0:
        return HORIZON - 26 - 14 * math.sin(x / 34 + 0.6)
    return HORIZON - 10 - 9 * math.sin(x / 21 + 2.4)


def colour(x, y):
    if y >= HORIZON:
        depth = (y - HORIZON) / (HEIGHT - HORIZON)
        # A path of light below the sun, wider towards the viewer, broken into strips.
        if abs(x - SUN[0]) < 8 + 26 * depth and (y - HORIZON) % 7 < 3:
            return blend([SUNLIGHT, blend(WATER, depth)], 0.35 + 0.5 * depth)
        return blend(WATER, depth)
    for number in (1, 0):
        if y >= hill(x, number):
            return HILLS[number]
    distance = math.hypot(x - SUN[0], y - SUN[1])
    if distance <= SUN[2]:
        return SUNLIGHT
    sky = blend(SKY, y / HORIZON)
    return blend([SUNLIGHT, sky], 0.55 + (distance - SUN[2]) / 60)


def reduced(wanted, limit=256):
    """A palette: the finest even grid on the colours in use that has no more than `limit` of them."""
    for step in range(1, 64):
        cells = {tuple(c // step for c in one) for one in wanted}
        if len(cells) <= limit:
            palette = sorted(cells)
            return {c: palette.index(tuple(v // step for v in c)) for c in wanted}, [
                tuple(min(255, v * step + step // 2) for v in cell) for cell in palette]


def main(path):
    rows = [[colour(x, y) for x in range(WIDTH)] for y in range(HEIGHT)]
    index, palette = reduced({c for row in rows for c in row})
    palette += [(0, 0, 0)] * (256 - len(palette))
    padding = b"\0" * (-WIDTH % 4)
    pixels = b"".join(bytes(index[c] for c in row) + padding for row in reversed(rows))
    colours = b"".join(struct.pack("<BBBB", b, g, r, 0) for r, g, b in palette)
    start = 14 + 40 + len(colours)
    header = struct.pack("<2sIHHI", b"BM", start + len(pixels), 0, 0, start)
    header += struct.pack("<IiiHHIIiiII", 40, WIDTH, HEIGHT, 1, 8, 0, len(pixels), 2835, 2835, 256, 0)
    with open(path, "wb") as file:
        file.write(header + colours + pixels)


if __name__ == "__main__":
    main(sys.argv[1] if len(sys.argv) > 1 else "resources/Res/SetupDef.bmp")
