#!/usr/bin/env python3
"""Draws the pictures of the example's setup screen.

    examples/sailing/draw_pictures.py FOLDER

Nothing but Python itself is needed. The same bytes come out each time.
"""
import math
import struct
import sys
from pathlib import Path

KEY = (255, 0, 255)  # magenta, which the project names as the transparent colour


def mix(a, b, part):
    part = min(max(part, 0.0), 1.0)
    return tuple(x + (y - x) * part for x, y in zip(a, b))


def write_bitmap(path, width, height, colour):
    """24 bits a pixel; `colour(x, y)` is asked from the top left."""
    rows = []
    for y in range(height - 1, -1, -1):
        row = bytearray()
        for x in range(width):
            red, green, blue = colour(x, y)
            row += bytes((round(blue), round(green), round(red)))
        row += bytes(-len(row) % 4)
        rows.append(bytes(row))
    pixels = b"".join(rows)
    header = struct.pack("<2sIIIIiiHHIIiiII", b"BM", 54 + len(pixels), 0, 54, 40, width, height, 1,
                         24, 0, len(pixels), 2835, 2835, 0, 0)
    path.write_bytes(header + pixels)


def smooth(colour, steps=3):
    """Takes the mean of several points in each pixel."""
    places = [(i + 0.5) / steps for i in range(steps)]

    def of_pixel(x, y):
        total = [0.0, 0.0, 0.0]
        for down in places:
            for across in places:
                for i, part in enumerate(colour(x + across, y + down)):
                    total[i] += part
        return tuple(part / steps**2 for part in total)

    return of_pixel


def inside(point, polygon):
    x, y = point
    result = False
    for (x0, y0), (x1, y1) in zip(polygon, polygon[1:] + polygon[:1]):
        if (y0 > y) != (y1 > y) and x < (x1 - x0) * (y - y0) / (y1 - y0) + x0:
            result = not result
    return result


# The evening sea: islands on the horizon, a low sun and its road on the water.
WIDTH, HEIGHT = 640, 480
HORIZON = 318
SUN = (452, 286, 36)


def island(x):
    far = 9 * math.sin(x / 61 + 1) + 6 * math.sin(x / 23) + 2 * math.sin(x / 7)
    return HORIZON - max(far - 2, 0)


def sky(x, y):
    height = y / HORIZON
    colour = mix((9, 22, 58), (66, 74, 128), height / 0.6)
    if height > 0.6:
        colour = mix(colour, (250, 168, 92), (height - 0.6) / 0.4)
    distance = math.hypot(x - SUN[0], y - SUN[1])
    colour = mix(colour, (255, 214, 140), 0.75 * math.exp(-distance / 62))
    return mix((255, 246, 214), colour, (distance - SUN[2]) / 1.5)


def sea(x, y):
    depth = (y - HORIZON) / (HEIGHT - HORIZON)
    colour = mix((186, 112, 84), (24, 52, 92), depth / 0.35)
    colour = mix(colour, (6, 20, 46), (depth - 0.2) / 0.8)
    wave = math.sin(x / (9 + 40 * depth) + 6 * math.sin(y / 5.3)) * math.sin(y / (1.2 + 3 * depth))
    colour = mix(colour, (120, 150, 190), 0.10 * wave)
    road = abs(x - SUN[0]) / (12 + 95 * depth)
    glint = max(1 - road, 0) * (0.55 + 0.45 * math.sin(y * 1.7 + 3 * math.sin(x / 11)))
    return mix(colour, (255, 206, 140), glint * (1 - 0.6 * depth))


def evening(x, y):
    if y >= HORIZON:
        return sea(x, y)
    return mix(sky(x, y), (28, 34, 66), y + 0.5 - island(x))


# The boat is cut out by its edges; they are smoothed when the screen scales it.
HULL = [(18, 176), (196, 176), (172, 206), (48, 206)]
STRIPE = [(18, 176), (196, 176), (191, 183), (24, 183)]
MAINSAIL = [(104, 8), (104, 164), (24, 164), (52, 112), (82, 54)]
FORESAIL = [(112, 24), (190, 164), (112, 164)]
MAST = [(105, 2), (110, 2), (110, 176), (105, 176)]
FLAG = [(110, 4), (134, 10), (110, 17)]


def boat(x, y):
    point = (x + 0.5, y + 0.5)
    if inside(point, FLAG):
        return (255, 205, 0) if abs(y - 10) < 2 or 115 <= x < 119 else (0, 86, 160)
    if inside(point, MAST):
        return (96, 66, 40)
    if inside(point, MAINSAIL):
        seam = 0.12 if y % 26 == 0 else 0
        return mix(mix((255, 252, 240), (214, 196, 176), (104 - x) / 80), (120, 110, 110), seam)
    if inside(point, FORESAIL):
        return mix((242, 232, 214), (206, 172, 148), (x - 112) / 78)
    if inside(point, STRIPE):
        return (250, 248, 240)
    if inside(point, HULL):
        return mix((164, 32, 40), (84, 12, 24), (y - 180) / 26)
    return KEY


def framed(colour, width, height):
    def with_frame(x, y):
        edge = min(x, y, width - x, height - y)
        return (250, 246, 234) if edge < 4 else colour(x, y)

    return with_frame


def chart(x, y):
    coast = 62 + 20 * math.sin(y / 17) + 9 * math.sin(y / 6.1 + 1)
    distance = x - coast
    if distance < 0:
        return (232, 208, 140) if distance < -1.5 else (120, 96, 50)
    colour = (208, 230, 242) if distance > 26 else (172, 208, 232)
    if abs(distance - 26) < 0.8 or abs(distance - 54) < 0.8:
        colour = (96, 140, 176)
    route = 104 - y * 0.2 + 14 * math.sin(y / 24)
    if abs(x - route) < 1.3 and y % 12 < 7:
        colour = (196, 30, 60)
    return colour


def compass(x, y):
    across, down = x - 80, y - 55
    distance = math.hypot(across, down)
    angle = math.atan2(down, across)
    colour = mix((24, 48, 88), (12, 24, 52), y / 110)
    if abs(distance - 44) < 1.5 or abs(distance - 38) < 0.6:
        return (226, 206, 150)
    if 38 < distance < 44 and abs(math.sin(angle * 16)) < 0.18:
        return (226, 206, 150)
    for count, length, light, dark in ((2, 36, (250, 246, 234), (176, 160, 124)),
                                       (4, 22, (206, 190, 150), (140, 124, 92))):
        turn = 0 if count == 2 else math.pi / 4
        near = (angle - turn + math.pi / 4) % (math.pi / 2) - math.pi / 4
        if distance * math.cos(near) + 3.2 * abs(distance * math.sin(near)) < length:
            north = count == 2 and down < 0 and abs(across) < -down
            tone = light if near > 0 else dark
            return mix(tone, (200, 30, 50), 0.75) if north else tone
    return colour


def weather(x, y):
    colour = mix((64, 116, 176), (156, 196, 226), y / 110)
    for left, top, size in ((34, 46, 15), (54, 36, 20), (76, 44, 16), (104, 62, 12), (120, 56, 15)):
        if math.hypot(x - left, y - top) < size:
            colour = mix((255, 255, 255), (206, 218, 232), (y - top) / size)
    for number, (strength, left) in enumerate(((18, 26), (30, 52), (44, 78), (36, 104), (24, 130))):
        if left - 8 < x < left + 8 and 100 - strength * 0.6 < y < 100:
            colour = mix((255, 214, 90), (230, 110, 50), number / 4)
    return colour


# A wave and a sail in a plate.
def emblem(x, y):
    across = max(abs(x - 62) - 48, 0)
    down = max(abs(y - 22) - 8, 0)
    corner = math.hypot(across, down)
    if corner > 13:
        return KEY
    if corner > 11:
        return (240, 226, 190)
    if inside((x, y), [(60, 8), (60, 29), (42, 29)]) or inside((x, y), [(63, 12), (78, 29), (63, 29)]):
        return (255, 255, 255)
    if abs(y - 34 - 1.6 * math.sin(x / 4.5)) < 1.5 and 18 < x < 106:
        return (255, 190, 90)
    return (16, 44, 84)


def main():
    folder = Path(sys.argv[1])
    folder.mkdir(parents=True, exist_ok=True)
    write_bitmap(folder / "Kväll.bmp", WIDTH, HEIGHT, evening)
    write_bitmap(folder / "Båt.bmp", 214, 208, boat)
    for name, colour in (("Sjökort.bmp", chart), ("Kompass.bmp", compass), ("Väder.bmp", weather)):
        write_bitmap(folder / name, 160, 110, smooth(framed(colour, 160, 110)))
    write_bitmap(folder / "Märke.bmp", 124, 44, emblem)


main()
