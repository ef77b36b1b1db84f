#!/usr/bin/env python3
"""Draws resources/Res/tab1.bmp to tab6.bmp, the pictures of the main window's tabs, from the drawings
in src/ui/icons: 48 pixels a side (three times what a plain screen shows), 32 bits a pixel with
transparency, in tones that are told from a light and from a dark window. Run by hand after a change;
the pictures are kept as files."""

import math
import os
import re
import struct
import sys
import xml.etree.ElementTree as ElementTree

DRAWINGS = ["tab-files", "tab-design", "tab-dialogs", "tab-registry", "tab-ini", "tab-components"]
SIDE, GRID = 48, 24
SAMPLES = 4  # per pixel and direction
TONES = {"#3b4252": (0x78, 0x82, 0x92), "#1f7ae0": (0x2f, 0x86, 0xe6)}


def arc(start, end, radius, large, sweep):
    """Points of a circle's arc between two points."""
    (x1, y1), (x2, y2) = start, end
    half = math.hypot(x2 - x1, y2 - y1) / 2
    radius = max(radius, half)
    height = math.sqrt(radius * radius - half * half) * (1 if large != sweep else -1)
    cx = (x1 + x2) / 2 + height * (y1 - y2) / (2 * half)
    cy = (y1 + y2) / 2 + height * (x2 - x1) / (2 * half)
    first, last = math.atan2(y1 - cy, x1 - cx), math.atan2(y2 - cy, x2 - cx)
    if sweep and last < first:
        last += 2 * math.pi
    if not sweep and last > first:
        last -= 2 * math.pi
    return [(cx + radius * math.cos(first + (last - first) * i / 16),
             cy + radius * math.sin(first + (last - first) * i / 16)) for i in range(1, 17)]


def lines_of_path(text):
    """The path's lines as lists of points. It knows straight lines and arcs of circles."""
    words = re.findall(r"[A-Za-z]|-?(?:\d+\.?\d*|\.\d+)", text)
    lines, at, order, place = [], (0.0, 0.0), "M", 0
    counts = {"M": 2, "L": 2, "H": 1, "V": 1, "A": 7, "Z": 0}
    while place < len(words):
        if words[place].isalpha():
            order, place = words[place], place + 1
        values = [float(v) for v in words[place:place + counts[order.upper()]]]
        place += len(values)
        dx, dy = at if order.islower() else (0.0, 0.0)
        kind = order.upper()
        if kind == "M":
            at = (values[0] + dx, values[1] + dy)
            lines.append([at])
            order = "l" if order == "m" else "L"
            continue
        if kind == "Z":
            at = lines[-1][0]
            lines[-1].append(at)
            continue
        if kind == "H":
            end = (values[0] + dx, at[1])
        elif kind == "V":
            end = (at[0], values[0] + dy)
        else:
            end = (values[-2] + dx, values[-1] + dy)
        lines[-1] += arc(at, end, values[0], values[3] != 0, values[4] != 0) if kind == "A" else [end]
        at = end
    return lines


def lines_of_circle(shape):
    x, y, radius = (float(shape.get(name)) for name in ("cx", "cy", "r"))
    return [[(x + radius * math.cos(i * math.pi / 16), y + radius * math.sin(i * math.pi / 16))
             for i in range(33)]]


def layers(file):
    """What is drawn, from below: colour, share of it, whether it is filled, lines."""
    for group in ElementTree.parse(file).getroot():
        filled = group.get("fill") != "none"
        tone = TONES[group.get("fill" if filled else "stroke")]
        lines = []
        for shape in group:
            lines += lines_of_circle(shape) if shape.tag.endswith("circle") else lines_of_path(shape.get("d"))
        yield tone, float(group.get("fill-opacity", 1)), filled, lines


def is_near(lines, x, y):
    """Within a line of width 2 with round ends."""
    for line in lines:
        for (x1, y1), (x2, y2) in zip(line, line[1:]):
            length = (x2 - x1) ** 2 + (y2 - y1) ** 2
            share = ((x - x1) * (x2 - x1) + (y - y1) * (y2 - y1)) / length if length else 0
            share = min(max(share, 0), 1)
            if (x1 + share * (x2 - x1) - x) ** 2 + (y1 + share * (y2 - y1) - y) ** 2 <= 1:
                return True
    return False


def is_inside(lines, x, y):
    inside = False
    for line in lines:
        for (x1, y1), (x2, y2) in zip(line, line[1:] + line[:1]):
            if (y1 > y) != (y2 > y) and x < x1 + (y - y1) * (x2 - x1) / (y2 - y1):
                inside = not inside
    return inside


def pixel(drawing, column, row, side, grid):
    colour, alpha = (0.0, 0.0, 0.0), 0.0
    for tone, share, filled, lines in drawing:
        hit = is_inside if filled else is_near
        hits = sum(hit(lines, (column + (i + .5) / SAMPLES) * grid / side,
                       (row + (j + .5) / SAMPLES) * grid / side)
                   for i in range(SAMPLES) for j in range(SAMPLES))
        coverage = share * hits / SAMPLES ** 2
        over = coverage + alpha * (1 - coverage)
        if over:
            colour = tuple((t * coverage + c * alpha * (1 - coverage)) / over for t, c in zip(tone, colour))
        alpha = over
    red, green, blue = (round(c) for c in colour)
    return struct.pack("<BBBB", blue, green, red, round(alpha * 255))


def write(drawing, path, side=SIDE, grid=GRID):
    pixels = b"".join(pixel(drawing, column, row, side, grid) for row in reversed(range(side))
                      for column in range(side))
    start = 14 + 108
    header = struct.pack("<2sIHHI", b"BM", start + len(pixels), 0, 0, start)
    header += struct.pack("<IiiHHIIiiII", 108, side, side, 1, 32, 3, len(pixels), 2835, 2835, 0, 0)
    header += struct.pack("<IIII", 0xff0000, 0xff00, 0xff, 0xff000000)
    header += b"BGRs" + b"\0" * 48
    with open(path, "wb") as file:
        file.write(header + pixels)


def main(root):
    for number, name in enumerate(DRAWINGS, 1):
        drawing = list(layers(os.path.join(root, "src/ui/icons", name + ".svg")))
        write(drawing, os.path.join(root, "resources/Res", f"tab{number}.bmp"))


if __name__ == "__main__":
    main(sys.argv[1] if len(sys.argv) > 1 else ".")
