#!/usr/bin/env python3
"""Draws the picture a form designer shows for the control in its toolbox: 16 by 16 pixels, 16 colours.

Usage: draw_toolbox_bitmap.py FILE.bmp
"""

import struct
import sys

# A text field with its drop button; below it the list with a header, three rows and the middle one selected.
# Designers take the colour of the lower left corner for transparent.
PICTURE = """
................
################
#wwwwwwww#ccccc#
#wbbbbbww#ckkkc#
#wwwwwwww#cckcc#
#wwwwwwww#ccccc#
################
.#cccccc#ccccc#.
.#gggggggggggg#.
.#wkkkkw#wkkkw#.
.#wwwwww#wwwww#.
.#bbbbbb#bbbbb#.
.#byyyyb#byyyb#.
.#bbbbbb#bbbbb#.
.#wkkkww#wkkww#.
.##############.
"""

# The platform's sixteen standard colours that are used here, by their place in the palette.
COLOURS = {".": 7, "#": 8, "k": 0, "b": 4, "g": 8, "c": 7, "w": 15, "y": 15}
PALETTE = [
    (0, 0, 0), (128, 0, 0), (0, 128, 0), (128, 128, 0), (0, 0, 128), (128, 0, 128), (0, 128, 128), (192, 192, 192),
    (128, 128, 128), (255, 0, 0), (0, 255, 0), (255, 255, 0), (0, 0, 255), (255, 0, 255), (0, 255, 255),
    (255, 255, 255),
]
FILE_HEADER_SIZE = 14
INFO_HEADER_SIZE = 40
BITS_PER_PIXEL = 4


def pixels(rows: list[str]) -> bytes:
    """Two pixels a byte, the lowest row first; a row of 16 pixels is 8 bytes and needs no filling up."""
    data = bytearray()
    for row in reversed(rows):
        indexes = [COLOURS[letter] for letter in row]
        data.extend(left << BITS_PER_PIXEL | right for left, right in zip(indexes[::2], indexes[1::2]))
    return bytes(data)


def bitmap(picture: str) -> bytes:
    rows = picture.split()
    width, height = len(rows[0]), len(rows)
    palette = b"".join(struct.pack("<4B", blue, green, red, 0) for red, green, blue in PALETTE)
    data = pixels(rows)
    offset = FILE_HEADER_SIZE + INFO_HEADER_SIZE + len(palette)
    file_header = struct.pack("<2sIHHI", b"BM", offset + len(data), 0, 0, offset)
    info_header = struct.pack("<IiiHHIIiiII", INFO_HEADER_SIZE, width, height, 1, BITS_PER_PIXEL, 0, len(data),
                              0, 0, len(PALETTE), 0)
    return file_header + info_header + palette + data


def main() -> None:
    with open(sys.argv[1], "wb") as file:
        file.write(bitmap(PICTURE))


if __name__ == "__main__":
    main()
