#!/usr/bin/python3
"""Draws the program's pictures: the backdrop of the main menu, the background of all other
screens, and the icon.

    tools/draw_pictures.py [ROOT]

ROOT defaults to this script's parent folder. Written are program_folder/titleback.jpg,
program_folder/brindlepagebackground.jpg, packaging/brindlepage.svg and packaging/brindlepage.png.
The same versions of the packages always give the same bytes.

Needs the Debian packages python3-cairo, python3-pil and fonts-dejavu-core.
"""

import math
import random
import sys
from pathlib import Path

import cairo
from PIL import Image, ImageFilter

# The palette. The desktop's style sheet uses the same colours.
PAPER = "#faf6eb"        # sheets, and the ground of every screen
PAPER_SHADE = "#f1e7d6"  # the ground behind sheets
BRINDLE_PALE = "#e3d0b3"  # pale stripes, hairlines, borders
BRINDLE = "#b98d5e"      # dark stripes
INK = "#1f3a5f"          # text, titles, the main buttons
INK_SOFT = "#5f7ea3"     # secondary lines and icons
MIST = "#d6e0ea"         # pale blue: selections, quiet fills
ACCENT = "#d9603b"       # the one accent: what matters now

WIDTH, HEIGHT = 1600, 1000  # the drawing's own units
# 2304 by 1440 pixels: sharp on large screens, and twice what covers the usual window, so that the
# decoder halves them on its fastest way.
PIXELS_PER_UNIT = 1.44
LETTER_FONT = "DejaVu Sans"


def rgb(colour):
    return tuple(int(colour[i:i + 2], 16) / 255 for i in (1, 3, 5))


class Layer:
    """A transparent sheet of the picture's size to draw on, in the drawing's units."""

    def __init__(self):
        self.surface = cairo.ImageSurface(
            cairo.FORMAT_ARGB32, round(WIDTH * PIXELS_PER_UNIT), round(HEIGHT * PIXELS_PER_UNIT))
        self.pen = cairo.Context(self.surface)
        self.pen.scale(PIXELS_PER_UNIT, PIXELS_PER_UNIT)

    def image(self):
        size = (self.surface.get_width(), self.surface.get_height())
        return Image.frombuffer(
            "RGBa", size, bytes(self.surface.get_data()), "raw", "BGRa", 0, 1).convert("RGBA")


class Picture:
    """Layers put over one another, from the ground up."""

    def __init__(self):
        self.result = None

    def add(self, draw):
        layer = Layer()
        draw(layer.pen)
        image = layer.image()
        self.result = image if self.result is None else Image.alpha_composite(self.result, image)

    def add_with_shadow(self, draw, depth):
        """Puts down what draw draws, with the soft shadow of a thing lying depth units high."""
        layer = Layer()
        draw(layer.pen)
        image = layer.image()
        reach = depth * PIXELS_PER_UNIT
        shade = image.getchannel("A").filter(ImageFilter.GaussianBlur(reach))
        shade = shade.point([round(value * 0.30) for value in range(256)])
        shadow = Image.new("RGBA", image.size, (70, 52, 30, 0))
        shadow.putalpha(shade)
        moved = Image.new("RGBA", image.size, (70, 52, 30, 0))
        moved.paste(shadow, (round(reach * 0.25), round(reach * 0.6)))
        self.result = Image.alpha_composite(self.result, moved)
        self.result = Image.alpha_composite(self.result, image)

    def save_jpeg(self, path, quality):
        # Halved colours cost a third less time at every start, and nothing can be seen of it.
        self.result.convert("RGB").save(
            path, quality=quality, optimize=True, progressive=False, subsampling="4:2:0")


# Shapes


def rounded(pen, x, y, width, height, radius):
    pen.new_path()
    for corner_x, corner_y, start in (
            (x + width - radius, y + radius, -90), (x + width - radius, y + height - radius, 0),
            (x + radius, y + height - radius, 90), (x + radius, y + radius, 180)):
        pen.arc(corner_x, corner_y, radius, math.radians(start), math.radians(start + 90))
    pen.close_path()


def fill(pen, colour, alpha=1.0):
    pen.set_source_rgba(*rgb(colour), alpha)
    pen.fill()


def stroke(pen, colour, width, alpha=1.0):
    pen.set_source_rgba(*rgb(colour), alpha)
    pen.set_line_width(width)
    pen.set_line_cap(cairo.LINE_CAP_ROUND)
    pen.set_line_join(cairo.LINE_JOIN_ROUND)
    pen.stroke()


def letter(pen, text, x, y, size, colour, bold=True, alpha=1.0):
    """Writes text with its middle at x and the middle of a capital at y."""
    pen.select_font_face(
        LETTER_FONT, cairo.FONT_SLANT_NORMAL,
        cairo.FONT_WEIGHT_BOLD if bold else cairo.FONT_WEIGHT_NORMAL)
    pen.set_font_size(size)
    capital = pen.text_extents("H")
    extents = pen.text_extents(text)
    pen.move_to(x - extents.width / 2 - extents.x_bearing, y + capital.height / 2)
    pen.set_source_rgba(*rgb(colour), alpha)
    pen.show_text(text)


def streak(pen, x, y, length, thickness, bend):
    """A hair of the brindle coat: a spindle that runs from x, y to the right and bends."""
    end_y = y + bend
    half = thickness / 2
    pen.new_path()
    pen.move_to(x, y - half)
    pen.curve_to(x + length * 0.35, y - half * 1.4 - bend * 0.2,
                 x + length * 0.7, end_y - half * 0.8 - bend * 0.3, x + length, end_y)
    pen.curve_to(x + length * 0.65, end_y + half * 0.8 - bend * 0.1,
                 x + length * 0.3, y + half * 1.5 - bend * 0.1, x, y + half)
    pen.close_path()


def brindle(pen, chance, top, bottom, spacing, longest, thickest, alpha):
    """Streaks that grow from the line x = 0 to the right, as on the flank of a brindle coat."""
    y = top
    while y < bottom:
        long_one = chance.random() < 0.45
        length = longest * (chance.uniform(0.6, 1.0) if long_one else chance.uniform(0.2, 0.5))
        thickness = thickest * (chance.uniform(0.7, 1.0) if long_one else chance.uniform(0.3, 0.6))
        streak(pen, 0, y, length, thickness, chance.uniform(0.04, 0.16) * length)
        fill(pen, BRINDLE if long_one else BRINDLE_PALE, alpha)
        y += spacing * chance.uniform(0.6, 1.4)


def flat_ground(pen):
    pen.set_source_rgb(*rgb(PAPER))
    pen.paint()


# Things on the desk


PAGE_WIDTH, PAGE_HEIGHT, PAGE_FOLD = 400, 540, 70


def cool_circle(pen):
    """What the things stand out from."""
    pen.arc(1345, 470, 405, 0, 2 * math.pi)
    fill(pen, MIST, 0.55)


def onto_page(pen):
    pen.translate(1160, 150)
    pen.rotate(math.radians(5))


def sheet_behind(pen):
    pen.translate(1190, 160)
    pen.rotate(math.radians(10))
    rounded(pen, 0, 0, PAGE_WIDTH, PAGE_HEIGHT, 3)
    fill(pen, PAPER_SHADE)


def brindle_page(pen):
    """The sheet the program is named after: brindle stripes for a margin, one corner folded."""
    width, height, fold = PAGE_WIDTH, PAGE_HEIGHT, PAGE_FOLD
    onto_page(pen)
    pen.move_to(0, 0)
    pen.line_to(width - fold, 0)
    pen.line_to(width, fold)
    pen.line_to(width, height)
    pen.line_to(0, height)
    pen.close_path()
    pen.set_source_rgb(1, 1, 1)
    pen.fill_preserve()
    pen.save()
    pen.clip()
    brindle(pen, random.Random(23), 8, height, 17, 84, 11, 0.95)
    pen.restore()

    pen.move_to(width - fold, 0)
    pen.curve_to(width - fold + 4, fold * 0.4, width - fold + 4, fold * 0.7, width - fold + 2,
                 fold - 2)
    pen.curve_to(width - fold * 0.7, fold - 4, width - fold * 0.4, fold - 4, width, fold)
    pen.close_path()
    fill(pen, BRINDLE_PALE)


def word_search(pen):
    rows = ("KOTREEAMS", "BOOKMEALR", "LUPWISDNO", "ELINSTARU", "CRAYONPIE")
    onto_page(pen)
    pen.translate(118, 104)
    step = 29
    for row, letters in enumerate(rows):
        for column, text in enumerate(letters):
            letter(pen, text, column * step, row * step, 17.5, INK_SOFT, bold=False)
    ring(pen, 0, step, 3 * step, step)
    ring(pen, 4 * step, 3 * step, 7 * step, 3 * step)


def answer_lines(pen):
    onto_page(pen)
    for row in range(5):
        y = 292 + row * 40
        pen.arc(116, y - 4, 4, 0, 2 * math.pi)
        fill(pen, MIST)
        pen.move_to(136, y)
        pen.line_to((352, 318, 352, 296, 240)[row], y)
        stroke(pen, MIST, 4)


def ring(pen, x1, y1, x2, y2):
    """The loop that a pupil draws around a found word."""
    radius = 14.5
    rounded(pen, x1 - radius, y1 - radius, x2 - x1 + 2 * radius, y2 - y1 + 2 * radius, radius)
    stroke(pen, ACCENT, 2.8)


TILE = 58
TILE_STEP = 62


def crossword_origin(pen):
    pen.translate(1092, 640)
    pen.rotate(math.radians(-4))


def tile(text, column, row, marked):
    def draw(pen):
        crossword_origin(pen)
        x, y = column * TILE_STEP, row * TILE_STEP
        rounded(pen, x, y, TILE, TILE, 9)
        fill(pen, ACCENT if marked else INK)
        rounded(pen, x + 3, y + 3, TILE - 6, TILE - 9, 7)
        fill(pen, "#ffffff", 0.07)
        letter(pen, text, x + TILE / 2, y + TILE / 2, 34, PAPER)
    return draw


def pencil(pen):
    length, width = 220, 21
    pen.translate(1497, 420)
    pen.rotate(math.radians(124))
    half = width / 2
    bands = ((0, 26, ACCENT), (26, 20, BRINDLE_PALE), (46, length - 46, INK_SOFT))
    for x, band, colour in bands:
        if x == 0:
            rounded(pen, x, -half, band + 10, width, 9)
        else:
            pen.rectangle(x, -half, band, width)
        fill(pen, colour)
    pen.rectangle(46, -half, length - 46, width / 3)
    fill(pen, "#ffffff", 0.22)
    pen.rectangle(46, half - width / 3, length - 46, width / 3)
    fill(pen, INK, 0.22)
    for x in (32, 39):
        pen.move_to(x, -half)
        pen.line_to(x, half)
        stroke(pen, BRINDLE, 1.6)

    pen.move_to(length, -half)
    pen.line_to(length + 44, 0)
    pen.line_to(length, half)
    pen.curve_to(length - 8, half * 0.5, length + 6, half * 0.3, length, 0)
    pen.curve_to(length + 6, -half * 0.3, length - 8, -half * 0.5, length, -half)
    fill(pen, "#f0d9b8")
    pen.move_to(length + 29, -half * 0.34)
    pen.line_to(length + 44, 0)
    pen.line_to(length + 29, half * 0.34)
    pen.close_path()
    fill(pen, INK)


def title_backdrop():
    """The main menu's: everything happens on the right, since buttons cover the rest."""
    picture = Picture()
    picture.add(flat_ground)
    picture.add(lambda pen: edge_stripes(pen, 31, 0.28))
    picture.add(cool_circle)
    picture.add_with_shadow(sheet_behind, 9)
    picture.add_with_shadow(brindle_page, 11)
    picture.add(word_search)
    picture.add(answer_lines)
    picture.add_with_shadow(pencil, 6)
    for draw in crossing_tiles():
        picture.add_with_shadow(draw, 5)
    return picture


def crossing_tiles():
    """The program's name as a crossword: both words end in the same E."""
    across = [tile(text, column, 3, False) for column, text in enumerate("BRINDL")]
    down = [tile(text, 6, row, False) for row, text in enumerate("PAG")]
    return across + down + [tile("E", 6, 3, True)]


def edge_stripes(pen, seed, alpha):
    """Faint stripes along the left edge of the screen."""
    brindle(pen, random.Random(seed), -10, HEIGHT + 10, 21, 92, 12, alpha)


# The background of all other screens


def screen_background():
    """Light paper: dark text is readable everywhere on it, and only the edges say anything."""
    picture = Picture()
    picture.add(flat_ground)
    picture.add(lambda pen: edge_stripes(pen, 5, 0.22))
    picture.add(faint_squares)
    return picture


def faint_squares(pen):
    """A corner of a crossword, hardly there."""
    squares = [(column, 3) for column in range(6)] + [(6, row) for row in range(4)]
    step = 44
    for column, row in squares:
        rounded(pen, WIDTH - 390 + column * step, HEIGHT - 240 + row * step, 40, 40, 6)
        fill(pen, ACCENT if (column, row) == (6, 3) else INK_SOFT, 0.09)


# The icon: shapes of absolute path commands M, L, C and Z in a square of 64 units, each with its
# colour, so that the SVG file and the PNG file come from the same lines.

ICON = (
    # an ink blue ground
    (INK, "M 14 0 L 50 0 C 58 0 64 6 64 14 L 64 50 C 64 58 58 64 50 64 "
          "L 14 64 C 6 64 0 58 0 50 L 0 14 C 0 6 6 0 14 0 Z"),
    # the page, its corner folded
    ("#ffffff", "M 16 9 L 40 9 L 50 19 L 50 53 C 50 54.1 49.1 55 48 55 "
                "L 16 55 C 14.9 55 14 54.1 14 53 L 14 11 C 14 9.9 14.9 9 16 9 Z"),
    (BRINDLE_PALE, "M 40 9 L 50 19 L 42 19 C 40.9 19 40 18.1 40 17 Z"),
    # brindle stripes
    (BRINDLE, "M 14 14 C 21 13 27 16 33 17 C 27 19.5 20 19 14 18 Z"),
    (BRINDLE_PALE, "M 14 22 C 18 21.5 22 23 26 24 C 22 25.5 18 25.5 14 25 Z"),
    (BRINDLE, "M 14 29 C 22 27.5 30 31 37 32.5 C 30 35 21 34.5 14 33 Z"),
    (BRINDLE_PALE, "M 14 37 C 17 36.5 20 37.5 23 38.5 C 20 40 17 40 14 39.5 Z"),
    (BRINDLE, "M 14 44 C 19 43 24 45 29 46.5 C 24 49 19 49 14 48 Z"),
    # two squares of a crossword, set off from the page
    (INK, "M 43 25 L 57 25 L 59 27 L 59 57 L 57 59 L 43 59 L 41 57 L 41 27 Z"),
    (INK_SOFT, "M 45 27 L 55 27 C 56.1 27 57 27.9 57 29 L 57 39 C 57 40.1 56.1 41 55 41 "
               "L 45 41 C 43.9 41 43 40.1 43 39 L 43 29 C 43 27.9 43.9 27 45 27 Z"),
    (ACCENT, "M 45 43 L 55 43 C 56.1 43 57 43.9 57 45 L 57 55 C 57 56.1 56.1 57 55 57 "
             "L 45 57 C 43.9 57 43 56.1 43 55 L 43 45 C 43 43.9 43.9 43 45 43 Z"),
)
ICON_UNITS = 64
ICON_PIXELS = 256


def write_icon_svg(path):
    lines = [f'<svg xmlns="http://www.w3.org/2000/svg" width="{ICON_UNITS}" height="{ICON_UNITS}" '
             f'viewBox="0 0 {ICON_UNITS} {ICON_UNITS}">',
             "  <title>Brindlepage</title>"]
    lines += [f'  <path fill="{colour}" d="{data}"/>' for colour, data in ICON]
    path.write_text("\n".join(lines + ["</svg>"]) + "\n", encoding="utf-8")


def write_icon_png(path):
    surface = cairo.ImageSurface(cairo.FORMAT_ARGB32, ICON_PIXELS, ICON_PIXELS)
    pen = cairo.Context(surface)
    pen.scale(ICON_PIXELS / ICON_UNITS, ICON_PIXELS / ICON_UNITS)
    for colour, data in ICON:
        trace(pen, data)
        fill(pen, colour)
    surface.write_to_png(str(path))


def trace(pen, data):
    numbers = []
    commands = {"M": (2, pen.move_to), "L": (2, pen.line_to), "C": (6, pen.curve_to),
                "Z": (0, pen.close_path)}
    wanted, command = 0, None
    for word in data.split():
        if word in commands:
            wanted, command = commands[word]
        else:
            numbers.append(float(word))
        if len(numbers) == wanted:
            command(*numbers)
            numbers = []


def main():
    root = Path(sys.argv[1]) if len(sys.argv) > 1 else Path(__file__).resolve().parent.parent
    title_backdrop().save_jpeg(root / "program_folder" / "titleback.jpg", 86)
    screen_background().save_jpeg(root / "program_folder" / "brindlepagebackground.jpg", 88)
    write_icon_svg(root / "packaging" / "brindlepage.svg")
    write_icon_png(root / "packaging" / "brindlepage.png")


if __name__ == "__main__":
    main()
