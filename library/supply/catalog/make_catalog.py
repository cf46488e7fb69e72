#!/usr/bin/env python3
"""Writes the sample tables LabelType.csv and RibbonType.csv.

Old labels name the label and the ribbon they were designed for by row number. A build for
labels of a real supplier takes that supplier's tables (CMake variable LABELPORT_SUPPLY_DIR).
This script makes the tables of every other build: a systematic grid of plain supplies, in the
columns and with the number of rows that old labels expect. The palette color1.csv is fixed and
not made here.

    make_catalog.py [FOLDER]    writes the two files (default: the folder of this script)
    make_catalog.py --check     only checks that the files are up to date
"""

import itertools
import pathlib
import sys

LABEL_HEADER = (
    "SKU", "Name", "Printer", "Color Index", "Background File", "Format", "Orientation",
    "Roll Width (inches)", "Label Length (inches)", "Stripe Color Index",
    "Stripe Width (inches)", "Material", "Flat Width")
RIBBON_HEADER = ("SKU", "Name", "Printer", "Color")

LABEL_ROWS = 412
RIBBON_ROWS = 11

EVERY_PRINTER = "FFFFFFFF"
CUSTOM, SOLID, STRIPED, BLACKMARK = range(4)

# Name of a color, its code in part numbers, its index in color1.csv.
COLORS = {
    "White": ("WH", 1), "Black": ("BK", 2), "Clear": ("CL", 3), "Silver": ("SI", 83),
    "Gray": ("GY", 84), "Blue": ("BL", 6), "Green": ("GN", 7), "Yellow": ("YE", 8),
    "Orange": ("OR", 9), "Red": ("RD", 10), "Purple": ("PU", 11), "Brown": ("BR", 12),
    "Pink": ("PK", 13), "Light Blue": ("LB", 61), "Beige": ("BE", 25)}

# Name of a material, its code in part numbers, its code in the table.
MATERIALS = {"Vinyl": ("V", 1), "Polyester": ("P", 2), "Paper": ("A", 3)}

SOLID_WIDTHS = (0.5, 0.75, 1.0, 1.5, 2.0, 2.5, 3.0, 4.0)
STRIPED_WIDTHS = (1.0, 2.0, 3.0, 4.0)
# Ground color, stripe color.
STRIPES = (
    ("White", "Red"), ("White", "Blue"), ("White", "Green"), ("White", "Orange"),
    ("Yellow", "Black"), ("Red", "White"))
DIE_CUT_SIZES = (
    (0.5, 1.0), (0.75, 1.5), (1.0, 1.0), (1.0, 2.0), (1.0, 3.0), (2.0, 1.0), (2.0, 3.0),
    (3.0, 2.0), (4.0, 3.0), (4.0, 6.0))
DIE_CUT_COLORS = ("White", "Silver", "Yellow", "Clear")

RIBBONS = (
    ("Black", "BK", "#000000"), ("White", "WH", "#FFFFFF"), ("Red", "RD", "#DC0B0B"),
    ("Blue", "BL", "#164473"), ("Green", "GN", "#248D4F"), ("Yellow", "YE", "#FCD116"),
    ("Orange", "OR", "#FF5800"), ("Purple", "PU", "#56008C"), ("Brown", "BR", "#4A3C31"),
    ("Silver", "SI", "#919693"), ("Gold", "GO", "#CB8D2C"))


def number(inches):
    return f"{inches:g}"


def hundredths(inches):
    return f"{round(inches * 100):03d}"


def label(sku, name, color, form, width, length, material, stripe=0, stripe_width=0.0):
    return (sku, name, EVERY_PRINTER, str(color), "", str(form), "0", number(width),
            number(length), str(stripe), number(stripe_width), str(material), number(width))


def generic_labels():
    names = ("Custom", "Continuous Solid", "Continuous Striped", "Blackmark Sensed")
    for form, name in enumerate(names):
        yield label("", name, COLORS["White"][1], form, 0.0, 0.0, 0)


def solid_labels():
    for (material, (mcode, mnumber)), width, (color, (ccode, cindex)) in itertools.product(
            list(MATERIALS.items())[:2], SOLID_WIDTHS, COLORS.items()):
        yield label(f"S{hundredths(width)}-{ccode}-{mcode}",
                    f'{number(width)}" {color} {material}', cindex, SOLID, width, 0.0, mnumber)


def striped_labels():
    for (material, (mcode, mnumber)), width, (ground, stripe) in itertools.product(
            list(MATERIALS.items())[:2], STRIPED_WIDTHS, STRIPES):
        yield label(f"T{hundredths(width)}-{COLORS[ground][0]}{COLORS[stripe][0]}-{mcode}",
                    f'{number(width)}" {ground} {material}, {stripe} Stripe', COLORS[ground][1],
                    STRIPED, width, 0.0, mnumber, COLORS[stripe][1], width / 4)


def die_cut_labels():
    for (material, (mcode, mnumber)), (width, length), color in itertools.product(
            MATERIALS.items(), DIE_CUT_SIZES, DIE_CUT_COLORS):
        yield label(f"D{hundredths(width)}{hundredths(length)}-{COLORS[color][0]}-{mcode}",
                    f'{number(width)}" x {number(length)}" {color} {material}',
                    COLORS[color][1], BLACKMARK, width, length, mnumber)


def ribbons():
    for name, code, color in RIBBONS:
        yield f"R-{code}", f"{name} Ribbon", "0", color


def csv_field(text):
    if '"' in text or "," in text:
        return '"' + text.replace('"', '""') + '"'
    return text


def csv_table(header, rows, expected_rows):
    rows = list(rows)
    if len(rows) != expected_rows:
        sys.exit(f"{len(rows)} rows instead of {expected_rows}")
    skus = [row[0] for row in rows if row[0]]
    if len(set(skus)) != len(skus):
        sys.exit("a part number occurs twice")
    lines = [",".join(map(csv_field, row)) + "\r\n" for row in [header, *rows]]
    return "".join(lines).encode("latin-1")


def tables():
    labels = itertools.chain(generic_labels(), solid_labels(), striped_labels(), die_cut_labels())
    return {"LabelType.csv": csv_table(LABEL_HEADER, labels, LABEL_ROWS),
            "RibbonType.csv": csv_table(RIBBON_HEADER, ribbons(), RIBBON_ROWS)}


def main(arguments):
    here = pathlib.Path(__file__).resolve().parent
    if arguments == ["--check"]:
        stale = [name for name, content in tables().items()
                 if (here / name).read_bytes() != content]
        if stale:
            sys.exit(f"not up to date; run make_catalog.py: {', '.join(stale)}")
        return
    folder = pathlib.Path(arguments[0]) if arguments else here
    for name, content in tables().items():
        (folder / name).write_bytes(content)


if __name__ == "__main__":
    main(sys.argv[1:])
