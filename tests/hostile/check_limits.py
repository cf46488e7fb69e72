#!/usr/bin/env python3
"""check_limits.py SOURCE

Compares the table of docs/limits.md with the code: every limit of the rooms is in the table with
its value, every row is an existing limit, and every test that a row names exists.
"""

import pathlib
import re
import sys

ROOMS = ("library", "hosts", "tools")
CONSTANT = re.compile(r"constexpr\s+[\w:]+\s+(k?[A-Z]\w*)\s*=\s*([^;]+);")
# A limit is named as one, or is in a header of limits.
LIMIT_NAME = re.compile(r"^k?(Maximum|Most|Largest|Longest)[A-Z]")
LIMIT_HEADERS = re.compile(r"^(\w+_)?(limits|bounds)\.h$")
# Other constants in these headers.
NO_LIMITS = {("library/orvanta/page_geometry.h", "PointsPerPixel"), ("library/orvanta/bounds.h", "CanvasMargin"),
             ("hosts/workbench/items/item_limits.h", "CoordinateNotGiven"),
             ("hosts/workbench/items/item_limits.h", "DefaultFontSize"),
             ("hosts/workbench/pictures/compact_image.cpp", "MostColors"),
             ("hosts/workbench/rendering/svg_groups.cpp", "LargestNumber"),
             ("hosts/workbench/pictures/png_encoder.cpp", "MaximumKeyCharacters")}
ROW = re.compile(r"^\| `(\w+)` \| `([\w/.]+)` \| `([^`]+)` \| (.+) \| `([\w.]+)` \|$")
TEST = re.compile(r"^TEST(?:_F|_P)?\(\s*(\w+),\s*(\w+)\)", re.MULTILINE)


def limits_of(source):
    """The limits of all rooms and their values, by file and name."""
    found = {}
    for room in ROOMS:
        for path in sorted((source / room).rglob("*")):
            if path.suffix not in (".h", ".cpp"):
                continue
            name = str(path.relative_to(source))
            for constant, value in CONSTANT.findall(path.read_text()):
                if LIMIT_NAME.match(constant) or LIMIT_HEADERS.match(path.name):
                    found[name, constant] = " ".join(value.split())
    return {key: value for key, value in found.items() if key not in NO_LIMITS}


def rows_of(table):
    rows = {}
    for line in table.read_text().splitlines():
        match = ROW.match(line)
        if match:
            constant, name, value, reason, test = match.groups()
            rows[name, constant] = (value, reason.strip(), test)
    return rows


def tests_of(source):
    return {f"{suite}.{name}" for path in (source / "tests").rglob("*.cpp")
            for suite, name in TEST.findall(path.read_text())}


def main():
    source = pathlib.Path(sys.argv[1])
    limits, rows, tests = limits_of(source), rows_of(source / "docs/limits.md"), tests_of(source)
    problems = [f"{key[0]}: {key[1]} = {limits[key]} is not in the table"
                  for key in sorted(limits.keys() - rows.keys())]
    problems += [f"{key[0]}: there is no limit {key[1]}"
                   for key in sorted(rows.keys() - limits.keys())]
    for key in sorted(limits.keys() & rows.keys()):
        value, reason, test = rows[key]
        if value != limits[key]:
            problems.append(f"{key[0]}: {key[1]} is {limits[key]}, not {value}")
        if test not in tests:
            problems.append(f"{key[0]}: {key[1]}: there is no test {test}")
        if not reason:
            problems.append(f"{key[0]}: {key[1]} has no reason")
    if len(limits) < 40:
        problems.append(f"only {len(limits)} limits were found: is {source} the source folder?")
    for complaint in problems:
        print(complaint)
    print(f"{len(limits)} limits, {len(problems)} problems")
    return 1 if problems else 0


if __name__ == "__main__":
    sys.exit(main())
