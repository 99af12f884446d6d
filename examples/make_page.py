#!/usr/bin/env python3
"""Paints examples/page.png, the sample input of clean_page: a printed page as a hand-held camera sees it.

Paper with text, a heading, a ruled table and a gray wedge; the light falls off towards two corners, a soft shadow lies over
the lower part, and the sensor adds noise. Nothing is random from run to run.

    python3 make_page.py [page.png]        some seconds, standard library alone
"""

import math
import random
import struct
import sys
import zlib

WIDTH, HEIGHT = 720, 960
PAPER, INK = 0.86, 0.10
MARGIN = 64
SCALE = 2  # of the 5 x 7 letters

# 5 x 7 letters, one row of five bits per hexadecimal pair.
LETTERS = {
    "a": "00000E010F110F", "b": "10101E1111111E", "c": "00000E1010110E", "d": "01010F1111110F", "e": "00000E111F100E",
    "f": "0609081C080808", "g": "000F11110F010E", "h": "10101619111111", "i": "04000C0404040E", "j": "0200060202120C",
    "k": "10101214181412", "l": "0C04040404040E", "m": "00001A15151111", "n": "00001619111111", "o": "00000E1111110E",
    "p": "00001E111E1010", "q": "00000D130F0101", "r": "00001619101010", "s": "00000E100E011E", "t": "08081C0808090606",
    "u": "0000111111130D", "v": "00001111110A04", "w": "0000111115150A", "x": "0000110A040A11", "y": "000011110F010E",
    "z": "00001F0204081F", ".": "00000000000C0C", ",": "000000000C0408", "-": "0000001F000000", " ": "00000000000000",
    "0": "0E11131519110E", "1": "040C040404040E", "2": "0E11010204081F", "3": "1F02040201110E", "4": "02060A121F0202",
    "5": "1F101E0101110E", "6": "0608101E11110E", "7": "1F010204080808", "8": "0E11110E11110E", "9": "0E11110F01020C",
}

TEXT = """light on a page is never even. a lamp stands to one side, a hand holds the paper, the lens darkens the corners, and
what the eye calls white is one gray here and another there. a threshold that keeps the letters in the bright half drowns
them in the dark one.

the remedy is old and cheap. the paper itself is the best measure of the light. average it over a window that is large
against the letters, and what remains is the light alone. divide the picture by it, and the page is even again. a little
stretching makes the paper white and the ink black, and a small kernel brings the edges back.

the average over a large window need not be slow. the sum of a column of pixels loses the pixel above the window and gains
the one below it, the sum of a row of columns loses one at the left and gains one at the right. four additions a pixel,
whatever the window."""


def draw_text(ink, text, x, y, scale=SCALE):
    for letter in text:
        rows = bytes.fromhex(LETTERS.get(letter, LETTERS["-"])[:14])
        for j, row in enumerate(rows):
            for i in range(5):
                if row >> (4 - i) & 1:
                    fill(ink, x + i * scale, y + j * scale, scale, scale, 1.0)
        x += 6 * scale


def fill(ink, x, y, width, height, value):
    for row in ink[y:y + height]:
        row[x:x + width] = [value] * width


def draw_page():
    ink = [[0.0] * WIDTH for _ in range(HEIGHT)]
    draw_text(ink, "the light of a page", MARGIN, 56, 5)
    fill(ink, MARGIN, 104, WIDTH - 2 * MARGIN, 3, 1.0)
    y = 132
    columns = (WIDTH - 2 * MARGIN) // (6 * SCALE)
    for paragraph in TEXT.split("\n\n"):
        line = ""
        for word in paragraph.split() + [None]:
            if word is None or len(line) + len(word) >= columns:
                draw_text(ink, line, MARGIN, y)
                y += 11 * SCALE
                line = ""
            if word is not None:
                line += word + " "
        y += 8 * SCALE
    draw_table(ink, MARGIN, y + 8)
    return ink


def draw_table(ink, x, y):
    rows = [("window", "additions"), ("3 x 3", "4"), ("15 x 15", "4"), ("51 x 51", "4")]
    for i, cells in enumerate(rows):
        for j, cell in enumerate(cells):
            draw_text(ink, cell, x + 16 + 160 * j, y + 8 + 30 * i)
        fill(ink, x, y + 30 * i - 2, 330, 2, 1.0)
    fill(ink, x, y + 30 * len(rows) - 2, 330, 2, 1.0)
    for i in range(12):
        fill(ink, x + 370 + 18 * i, y, 18, 118, i / 11)


def light(x, y):
    u, v = x / WIDTH - 0.5, y / HEIGHT - 0.5
    lamp = 1.05 - 0.55 * ((u + 0.35) ** 2 + (v + 0.4) ** 2)
    edge = (v - 0.16 - 0.35 * u) * 6
    shadow = 1 - 0.42 / (1 + math.exp(-6 * edge))
    return lamp * shadow


def develop(ink):
    noise = random.Random(5)
    picture = []
    for y in range(HEIGHT):
        row = bytearray(WIDTH)
        above, here, below = ink[max(0, y - 1)], ink[y], ink[min(HEIGHT - 1, y + 1)]
        for x in range(WIDTH):
            left, right = max(0, x - 1), min(WIDTH - 1, x + 1)
            blurred = (4 * here[x] + here[left] + here[right] + above[x] + below[x]) / 8  # the lens
            value = (PAPER + (INK - PAPER) * blurred) * light(x, y)
            row[x] = max(0, min(255, int(value * 255 + noise.gauss(0, 2.5) + 0.5)))
        picture.append(bytes(row))
    return picture


def write_png(path, rows):
    def chunk(kind, data):
        return struct.pack(">I", len(data)) + kind + data + struct.pack(">I", zlib.crc32(kind + data))

    head = struct.pack(">IIBBBBB", WIDTH, HEIGHT, 8, 0, 0, 0, 0)
    differences = b"".join(b"\x01" + bytes((b - a) & 255 for a, b in zip(b"\0" + row[:-1], row)) for row in rows)
    with open(path, "wb") as file:
        file.write(b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", head) + chunk(b"IDAT", zlib.compress(differences, 9)) + chunk(b"IEND", b""))


if __name__ == "__main__":
    write_png(sys.argv[1] if len(sys.argv) > 1 else "page.png", develop(draw_page()))
