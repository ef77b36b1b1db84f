#!/usr/bin/env python3
"""Draws resources/Res/BtDesRTF.bmp and BtDesPix.bmp, which stand on the design screen for the text of
the RTF box and for the changing pictures: twice the pixels that a plain screen shows, 32 bits a pixel
with transparency, on paper of their own so that they are seen on every ground. Run by hand after a
change; the pictures are kept as files."""

import os
import sys

sys.dont_write_bytecode = True  # no compiled copy of the other script

from draw_tabs import lines_of_circle, lines_of_path, write

SIDE, GRID = 96, 48
SLATE, BLUE = (0x5c, 0x66, 0x78), (0x2f, 0x86, 0xe6)
PAPER, SHADE = (0xff, 0xff, 0xff), (0xe3, 0xe8, 0xef)
SKY, HILL, SUN = (0xcf, 0xe4, 0xfb), (0x7d, 0xb4, 0xf0), (0xf4, 0xb9, 0x42)


def filled(tone, path):
    return tone, 1, True, lines_of_path(path)


def line(tone, path):
    return tone, 1, False, lines_of_path(path)


def disc(tone, x, y, radius):
    return tone, 1, True, lines_of_circle({"cx": x, "cy": y, "r": radius})


# A sheet with a turned corner, a large letter and lines of text.
SHEET = [
    filled(PAPER, "M8 3h21l11 11v31H8z"),
    filled(SHADE, "M29 3v11h11z"),
    line(SLATE, "M8 3h21l11 11v31H8zM29 3v11h11"),
    line(BLUE, "M14 27l5.5-15 5.5 15M16 22h7"),
    line(SLATE, "M30 21h4M30 27h4M14 33h20M14 39h13"),
]

# A photograph that lies on another one.
PHOTOGRAPHS = [
    filled(SHADE, "M13 6h32v25H13z"),
    line(SLATE, "M13 6h32v25H13z"),
    filled(PAPER, "M3 15h34v27H3z"),
    filled(SKY, "M7 19h26v19H7z"),
    disc(SUN, 26, 25, 3),
    filled(HILL, "M15 38l9-9 9 8v1z"),
    filled(BLUE, "M7 34l8-8 12 12H7z"),
    line(SLATE, "M3 15h34v27H3z"),
]


def main(folder):
    for drawing, name in ((SHEET, "BtDesRTF.bmp"), (PHOTOGRAPHS, "BtDesPix.bmp")):
        write(drawing, os.path.join(folder, name), SIDE, GRID)


if __name__ == "__main__":
    main(sys.argv[1] if len(sys.argv) > 1 else "resources/Res")
