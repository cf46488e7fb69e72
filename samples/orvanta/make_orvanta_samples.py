#!/usr/bin/env python3
"""Writes the XML label samples (*.qmtx) beside this script.

Run it without arguments after a change; the labels are committed, so that nobody needs
it to try the importer. Needs nothing but Python 3. Places and sizes are given in points
from the label's corner, and written in the pixels of the old canvas.
"""

import base64
import math
import os
import struct
import zlib
from xml.sax.saxutils import escape

POINTS_PER_PIXEL = 0.75
CANVAS_MARGIN = 200

BLACK = (0, 0, 0)
WHITE = (255, 255, 255)
RED = (196, 30, 36)
YELLOW = (255, 204, 0)
BLUE = (22, 74, 140)
GREEN = (46, 110, 62)
GREY = (110, 110, 110)
CREAM = (253, 246, 227)

# Codes of the old program's barcode list.
EAN_13 = 10
ISBN = 13
CODE_128 = 20
QR_CODE = 58
DATA_MATRIX = 71
PDF_417 = 55

LEFT, CENTRE, RIGHT = 0, 1, 2
BOLD, ITALIC, UNDERLINE = 1, 2, 4
DATE, SHORT_DATE, DATE_AND_TIME, TIME = 1, 2, 3, 4


# ---- pictures ---------------------------------------------------------------------------

class Raster:
    """A small picture that is drawn by asking a function for the colour of every point."""

    def __init__(self, width, height, colour_at, samples=3):
        self.width, self.height = width, height
        self.rows = []
        for y in range(height):
            row = bytearray()
            for x in range(width):
                total = [0, 0, 0]
                for j in range(samples):
                    for i in range(samples):
                        point = colour_at(x + (i + 0.5) / samples, y + (j + 0.5) / samples)
                        total = [t + c for t, c in zip(total, point)]
                row += bytes(round(t / samples ** 2) for t in total)
            self.rows.append(bytes(row))

    def png(self):
        def chunk(kind, data):
            body = kind + data
            return struct.pack(">I", len(data)) + body + struct.pack(">I", zlib.crc32(body))

        header = struct.pack(">IIBBBBB", self.width, self.height, 8, 2, 0, 0, 0)
        above = bytes(3 * self.width)
        lines = bytearray()
        for row in self.rows:
            lines += b"\x02" + bytes((a - b) & 0xFF for a, b in zip(row, above))
            above = row
        return (b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", header)
                + chunk(b"IDAT", zlib.compress(bytes(lines), 9)) + chunk(b"IEND", b""))


def mix(a, b, share):
    return tuple(round(p + (q - p) * share) for p, q in zip(a, b))


def mountain_logo():
    """Two peaks with snow in front of a sun, on white."""
    def colour_at(x, y):
        if (x - 76) ** 2 + (y - 20) ** 2 < 12 ** 2:
            return YELLOW
        for peak_x, peak_y, colour in ((42, 16, BLUE), (66, 34, mix(BLUE, BLACK, 0.35))):
            depth = y - peak_y
            if depth > 0 and abs(x - peak_x) < depth * 0.62 and y < 78:
                snow = 12 + 4 * math.sin(x * 0.9)
                return WHITE if depth < snow else colour
        if 80 <= y < 86 and 3 <= x < 93:
            return GREEN
        return WHITE
    return Raster(96, 90, colour_at)


def gear_logo():
    """A gear with twelve teeth."""
    def colour_at(x, y):
        dx, dy = x - 40, y - 40
        distance = math.hypot(dx, dy)
        tooth = 38 if math.cos(12 * math.atan2(dy, dx)) > 0 else 31
        return BLUE if 13 < distance < tooth else WHITE
    return Raster(80, 80, colour_at)


def kraft_paper():
    """A label of paper with a double frame and a leaf in each corner."""
    width, height = 288, 216

    def leaf(x, y):
        corner_x = x if x < width / 2 else width - x
        corner_y = y if y < height / 2 else height - y
        along, across = (corner_x + corner_y - 44) / 1.414, (corner_x - corner_y) / 1.414
        if not -22 < along < 22:
            return None
        if abs(across) < 0.9:
            return CREAM
        return GREEN if abs(across) < 9 * (1 - (along / 22) ** 2) else None

    def colour_at(x, y):
        edge = min(x, y, width - x, height - y)
        if 5 <= edge < 7 or 9 <= edge < 10:
            return GREEN
        band = (int(y) // 24) % 2
        return leaf(x, y) or mix(CREAM, (232, 214, 178), 0.55 if band else 0.4)
    return Raster(width, height, colour_at, samples=2)


def svg(width, height, body):
    """An SVG as the old program wrote it: with a prefix of its serialiser's."""
    return (f'<svg xmlns="http://www.w3.org/2000/svg" d1p1:version="1.1" width="{width}" '
            f'height="{height}">{body}</svg>').encode()


GLASS = svg(48, 72, '<path d="M6 4 H42 L36 34 Q34 42 27 43 V60 H38 V68 H10 V60 H21 V43 '
                    'Q14 42 12 34 Z M24 4 L18 16 L27 22 L21 34" fill="none" '
                    'stroke="#000000" stroke-width="4" stroke-linejoin="round"/>')

THIS_SIDE_UP = svg(60, 72, '<path d="M18 4 L34 26 H24 V56 H12 V26 H2 Z" fill="#000000"/>'
                           '<path d="M42 4 L58 26 H48 V56 H36 V26 H26 Z" fill="#000000"/>'
                           '<rect x="2" y="62" width="56" height="6" fill="#000000"/>')

LIGHTNING = svg(48, 72, '<path d="M30 2 L8 40 H22 L14 70 L42 28 H27 L38 2 Z" fill="#000000"/>')

LEAF = svg(64, 64, '<path d="M6 58 Q2 22 30 10 Q46 4 60 4 Q60 34 46 48 Q32 60 14 52 Z" '
                   'fill="#2e6e3e"/><path d="M6 60 Q22 30 50 14" fill="none" '
                   'stroke="#fdf6e3" stroke-width="2.5"/>')

VIAL_FRAME = svg(252, 90, '<rect x="2" y="2" width="248" height="86" rx="10" fill="#ffffff" '
                          'stroke="#164a8c" stroke-width="2.5"/>'
                          '<path d="M2 24 H250" stroke="#164a8c" stroke-width="2"/>'
                          '<path d="M227 6 H232 V10.5 H236.5 V15.5 H232 V20 H227 V15.5 H222.5 V10.5 H227 Z" '
                          'fill="#c41e24"/>')


# ---- elements ---------------------------------------------------------------------------

def element(tag, *content):
    return f"<{tag}>{''.join(content)}</{tag}>" if content else f"<{tag} />"


def value(tag, content):
    if isinstance(content, bool):
        return element(tag, "true" if content else "false")
    return element(tag, escape(f"{content:g}" if isinstance(content, float) else str(content)))


def argb(colour):
    """The signed number that the old program stored for an opaque colour."""
    red, green, blue = colour
    return (0xFF << 24 | red << 16 | green << 8 | blue) - (1 << 32)


def pixels(points):
    return float(points) / POINTS_PER_PIXEL


def bounds(x, y, w, h):
    return element("bounds", value("x", CANVAS_MARGIN + pixels(x)),
                   value("y", CANVAS_MARGIN + pixels(y)), value("w", pixels(w)),
                   value("h", pixels(h)))


def printable(place, text="", fore=BLACK, back=WHITE, transparent=True, negative=False,
              family="Liberation Sans", size=12, style=0):
    return element("printable_control", value("text", text), value("transparency", transparent),
                   value("negative", negative), value("fore_color", argb(fore)),
                   value("back_color", argb(back)), bounds(*place),
                   element("font", value("family", family), value("size", size),
                           value("style", style)))


def turned(rotation=0, flip_horizontally=False, flip_vertically=False):
    return (value("flip_horizontally", flip_horizontally)
            + value("flip_vertically", flip_vertically) + value("rotation", rotation))


def strings(tag, entry, texts):
    return element(tag, *(value(entry, text) for text in texts)) if texts else ""


def label(place, text, alignment=LEFT, rotation=0, items=(), scaleable=False, tag=None, **look):
    kind = tag or ("swap_text_box" if items else "transparent_label")
    return element(kind, printable(place, text, **look), turned(rotation),
                   value("scaleable", scaleable), value("alignment", alignment),
                   strings("items", "string", items))


def shape(place, index=0, sides=0, line_width=1, turn=None, **look):
    kind = "transparent_polygon" if sides else "transparent_shape"
    look.setdefault("transparent", index % 2 == 0)
    return element(kind, printable(place, **look), turned(**(turn or {})),
                   value("shape_index", index), value("line_width", line_width),
                   value("sides", sides))


def box(place, colour, line_width=1):
    """A rectangle filled with one colour: also what the old program drew lines with."""
    return shape(place, index=1, line_width=line_width, fore=colour, back=colour)


def barcode(place, kind, texts, **look):
    return element("barcode", printable(place, **look), strings("ArrayOfString", "string", texts),
                   value("barcode_type", kind))


def content(data):
    return element("content", base64.b64encode(data).decode())


def picture(place, data, turn=None, **look):
    return element("picture_box", printable(place, **look), turned(**(turn or {})),
                   element("image", content(data)))


def list_box(place, entries, **look):
    return element("combo_box", printable(place, entries[0], **look),
                   strings("ArrayOfAnyType", "anyType", entries))


def clock(place, form, **look):
    return element("date_time_picker", printable(place, **look), value("format", form))


def counter(place, minimum, maximum, step=1, read_only=False, **look):
    return element("numeric_up_down", printable(place, str(minimum), **look),
                   value("read_only", read_only), value("minimum", minimum),
                   value("maximum", maximum), value("incrememnt", step))


def document(width, height, *objects, background=None):
    page = element("printable_control",
                   element("bounds", value("x", CANVAS_MARGIN), value("y", CANVAS_MARGIN),
                           value("w", pixels(width)), value("h", pixels(height))))
    picture_part = element("pre_printed_image", content(background)) if background else ""
    return element("qmtx", page, picture_part, element("controls", *objects))


# ---- labels -----------------------------------------------------------------------------

def shelf_label():
    return document(
        252, 108,
        box((0, 0, 252, 24), BLUE),
        label((8, 3, 176, 18), "Mountain honey 500 g", fore=WHITE, size=13, style=BOLD),
        label((184, 3, 62, 18), "BIO", RIGHT, fore=YELLOW, size=13, style=BOLD | ITALIC),
        label((8, 30, 110, 40), "7.49", fore=BLACK, size=34, style=BOLD),
        label((8, 72, 110, 14), "1 kg = 14.98", fore=GREY, size=9),
        clock((8, 89, 90, 12), SHORT_DATE, fore=GREY),
        barcode((132, 32, 110, 66), EAN_13, ["4006381333931", "4006381333948"], size=8))


def parcel_label():
    return document(
        288, 432,
        shape((6, 6, 276, 420), index=0, line_width=2),
        label((14, 12, 180, 14), "From: Corner Mill, Dyke Road 4, Northport", size=8),
        picture((236, 12, 38, 36), mountain_logo().png()),
        box((6, 56, 276, 2), BLACK),
        label((14, 62, 60, 14), "TO", size=10, style=BOLD, fore=GREY),
        label((14, 78, 260, 76), "Ms Ada Example\nTower Street 12\n20459 Harbour City", size=18),
        box((6, 162, 276, 2), BLACK),
        label((6, 164, 276, 36), "PRIORITY", CENTRE, size=24, style=BOLD, negative=True,
              transparent=False),
        barcode((34, 212, 220, 64), CODE_128, ["00340123450000000018", "00340123450000000025"],
                size=9),
        box((6, 288, 276, 2), BLACK),
        barcode((16, 300, 84, 84), QR_CODE, ["https://example.com/t/0034012345"]),
        picture((120, 300, 52, 78), GLASS),
        picture((192, 300, 65, 78), THIS_SIDE_UP),
        label((120, 382, 52, 14), "FRAGILE", CENTRE, size=8, style=BOLD),
        label((186, 382, 78, 14), "THIS SIDE UP", CENTRE, size=8, style=BOLD),
        label((16, 402, 90, 14), "Parcel no.", size=9, fore=GREY),
        counter((76, 402, 60, 14), 1, 40),
        clock((180, 402, 94, 14), DATE))


def asset_tag():
    return document(
        198, 81,
        shape((3, 3, 192, 75), index=0, line_width=1, fore=BLUE),
        picture((10, 9, 30, 30), gear_logo().png()),
        label((46, 10, 100, 14), "PROPERTY OF", size=8, fore=GREY),
        label((46, 22, 104, 18), "Weaver Tools", size=13, style=BOLD, fore=BLUE),
        label((10, 50, 46, 16), "Asset no.", size=9, fore=GREY),
        counter((58, 50, 74, 20), 10001, 10999, read_only=True),
        barcode((146, 17, 46, 46), DATA_MATRIX, ["WT-10001", "WT-10002", "WT-10003"]))


def warning_sign():
    return document(
        360, 252,
        box((0, 0, 360, 252), YELLOW),
        box((0, 0, 360, 58), BLACK),
        label((10, 8, 340, 42), "DANGER", CENTRE, size=34, style=BOLD, fore=YELLOW),
        shape((22, 76, 108, 96), sides=3, index=1, line_width=6, fore=BLACK, back=YELLOW),
        picture((63, 108, 26, 48), LIGHTNING),
        label((146, 82, 200, 30), "High voltage", size=22, style=BOLD),
        label((146, 114, 200, 50), "Switch off and lock\nbefore opening.", size=14),
        box((22, 186, 316, 2), BLACK),
        shape((28, 198, 42, 42), sides=8, index=1, line_width=2, fore=WHITE, back=RED,
              turn={"rotation": 22}),
        label((28, 210, 42, 18), "STOP", CENTRE, size=10, style=BOLD, fore=WHITE),
        label((82, 196, 256, 46), "Authorised staff only", LEFT, size=16,
              style=BOLD | UNDERLINE,
              items=["Authorised staff only", "Call the control room first", "Two keys needed"]))


def jar_label():
    return document(
        288, 216,
        picture((118, 24, 52, 52), LEAF),
        label((44, 80, 200, 34), "Wild Garden", CENTRE, size=24, style=BOLD | ITALIC, fore=GREEN,
              family="Liberation Serif"),
        label((54, 116, 180, 24), "Strawberry", CENTRE, size=16, fore=BLACK,
              items=["Strawberry", "Blackcurrant", "Rhubarb & ginger"], family="Liberation Serif"),
        shape((94, 144, 100, 1), index=1, line_width=1, fore=GREEN, back=GREEN),
        label((54, 150, 180, 16), "Extra jam, 65 % fruit, 340 g", CENTRE, size=10, fore=GREY),
        label((58, 176, 60, 14), "Cooked on", size=9, fore=GREY),
        clock((120, 176, 80, 14), DATE, fore=BLACK),
        background=kraft_paper().png())


def book_label():
    return document(
        216, 288,
        label((20, 16, 176, 22), "Town library", CENTRE, size=16, style=BOLD,
              family="Liberation Serif"),
        box((20, 42, 176, 1), BLACK),
        label((20, 50, 60, 14), "Shelf", size=10, fore=GREY),
        list_box((80, 50, 116, 18), ["Fiction", "History", "Natural science", ""]),
        label((20, 74, 60, 14), "Volume", size=10, fore=GREY),
        counter((80, 74, 60, 18), 1, 12),
        barcode((40, 102, 140, 76), ISBN, ["9783161484100", "9781402894626"], size=9),
        barcode((24, 196, 168, 44), PDF_417, ["Town library, reading room 2"]),
        label((-14, 140, 60, 16), "OPEN STACK", CENTRE, rotation=-90, size=9, fore=RED),
        label((24, 250, 168, 22), "Please return within four weeks", CENTRE, size=10, style=ITALIC,
              negative=True, transparent=False, fore=BLUE, back=WHITE))


def vial_label():
    return document(
        252, 90,
        label((10, 5, 150, 16), "BLOOD SAMPLE", size=11, style=BOLD, fore=BLUE),
        label((10, 30, 130, 16), "Patient: E. Sample", size=10),
        label((10, 46, 130, 14), "born 12-03-1961", size=9, fore=GREY),
        clock((10, 66, 110, 14), DATE_AND_TIME, fore=BLACK),
        barcode((156, 30, 46, 46), DATA_MATRIX, ["S-204817"]),
        list_box((206, 34, 38, 14), ["EDTA", "Serum", "Citrate"], fore=RED),
        clock((206, 56, 40, 14), TIME, fore=GREY),
        background=VIAL_FRAME)


def shapes_sheet():
    columns, rows = 5, 4
    cell_w, cell_h = 72, 66
    caption = {"size": 7, "fore": GREY}
    figures = [
        ("rectangle", {"index": 0}), ("filled", {"index": 1, "back": YELLOW}),
        ("ellipse", {"index": 2}), ("filled", {"index": 3, "back": GREEN}),
        ("triangle", {"index": 4}),
        ("filled", {"index": 5, "back": RED}), ("diamond", {"sides": 4, "index": 1, "back": BLUE}),
        ("pentagon", {"sides": 5, "index": 0, "line_width": 3}),
        ("hexagon", {"sides": 6, "index": 1, "back": YELLOW}),
        ("octagon", {"sides": 8, "index": 1, "back": RED}),
        ("turned 30", {"index": 1, "back": CREAM, "turn": {"rotation": 30}}),
        ("hexagon + 15", {"sides": 6, "index": 0, "turn": {"rotation": 15}}),
        ("flipped h", {"index": 5, "back": BLUE, "turn": {"flip_horizontally": True}}),
        ("flipped v", {"index": 5, "back": BLUE, "turn": {"flip_vertically": True}}),
        ("negative", {"index": 3, "fore": RED, "back": YELLOW, "negative": True,
                      "transparent": False}),
        ("thick", {"index": 0, "line_width": 6}), ("thin", {"index": 2, "line_width": 0}),
        ("seven sides", {"sides": 7, "index": 0}),
        ("transparent", {"index": 1, "transparent": True, "back": RED}),
    ]
    objects = []
    for number, (name, look) in enumerate(figures):
        x = 10 + number % columns * cell_w
        y = 8 + number // columns * cell_h
        place = (x + 16, y + 10, 32, 28) if "turned" in name else (x + 10, y + 4, 44, 40)
        objects.append(shape(place, **look))
        objects.append(label((x, y + 50, 64, 12), name, CENTRE, **caption))
    logo = mountain_logo().png()
    x, y = 10 + 4 * cell_w, 8 + 3 * cell_h
    objects.append(picture((x + 12, y + 4, 42, 40), logo,
                           {"rotation": 180, "flip_horizontally": True}))
    objects.append(label((x, y + 50, 64, 12), "picture, turned", CENTRE, **caption))
    return document(columns * cell_w + 12, rows * cell_h + 12, *objects)


LABELS = {
    # name: (label, encoding, line end)
    "shelf_label": (shelf_label, "utf-8", "\r\n"),
    "parcel_label": (parcel_label, "utf-8-sig", "\r\n"),
    "asset_tag": (asset_tag, "utf-8", "\r\n"),
    "warning_sign": (warning_sign, "utf-8", "\r\n"),
    "jar_label": (jar_label, "utf-8", "\r\n"),
    # Two-byte text must have no carriage returns: reading in text mode would tear it apart.
    "book_label": (book_label, "utf-16", "\n"),
    "vial_label": (vial_label, "utf-8", "\n"),
    "shapes_sheet": (shapes_sheet, "utf-8", "\r\n"),
}


def laid_out(xml):
    """One object to a line."""
    for tag in ("qmtx", "controls", "pre_printed_image"):
        xml = xml.replace(f"<{tag}>", f"<{tag}>\n").replace(f"</{tag}>", f"</{tag}>\n")
    for tag in ("barcode", "combo_box", "date_time_picker", "numeric_up_down", "picture_box",
                "swap_text_box", "transparent_label", "transparent_shape", "transparent_polygon"):
        xml = xml.replace(f"</{tag}>", f"</{tag}>\n")
    return xml


def main():
    folder = os.path.dirname(os.path.abspath(__file__))
    for name, (make, encoding, line_end) in LABELS.items():
        declared = "utf-16" if encoding == "utf-16" else "utf-8"
        text = f'<?xml version="1.0" encoding="{declared}"?>\n' + laid_out(make())
        # Line feeds inside texts are part of the text and get the same line end.
        data = text.replace("\n", line_end).encode(encoding)
        with open(os.path.join(folder, name + ".qmtx"), "wb") as out:
            out.write(data)


if __name__ == "__main__":
    main()
