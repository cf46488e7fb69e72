#!/usr/bin/env python3
"""check_bounds.py SOURCE

Holds the table of docs/bounds.md against the code: every bound of the rooms stands in it with its
value, every row is a bound that there is, and every test that a row names exists.
"""

import pathlib
import re
import sys

ROOMS = ("library", "hosts", "tools")
CONSTANT = re.compile(r"constexpr\s+[\w:]+\s+(k?[A-Z]\w*)\s*=\s*([^;]+);")
# A bound is called one, or stands in a header of them.
BOUND_NAME = re.compile(r"^k?(Maximum|Most|Largest|Longest)[A-Z]")
BOUND_HEADERS = ("limits.h", "document_limits.h", "svg_limits.h", "bounds.h")
# What stands beside the bounds in their headers.
NO_BOUNDS = {("library/orvanta/page_geometry.h", "PointsPerPixel"), ("library/orvanta/bounds.h", "CanvasMargin"),
             ("hosts/workbench/items/bounds.h", "kCoordinateNotGiven"),
             ("hosts/workbench/items/bounds.h", "kDefaultFontSize"),
             ("hosts/workbench/rendering/frugal_image.cpp", "kMostColors")}
ROW = re.compile(r"^\| `(\w+)` \| `([\w/.]+)` \| `([^`]+)` \| (.+) \| `([\w.]+)` \|$")
TEST = re.compile(r"^TEST(?:_F|_P)?\(\s*(\w+),\s*(\w+)\)", re.MULTILINE)


def bounds_of(source):
    """The bounds of all rooms and their values, by file and name."""
    found = {}
    for room in ROOMS:
        for path in sorted((source / room).rglob("*")):
            if path.suffix not in (".h", ".cpp"):
                continue
            name = str(path.relative_to(source))
            for constant, value in CONSTANT.findall(path.read_text()):
                if BOUND_NAME.match(constant) or path.name in BOUND_HEADERS:
                    found[name, constant] = " ".join(value.split())
    return {key: value for key, value in found.items() if key not in NO_BOUNDS}


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
    bounds, rows, tests = bounds_of(source), rows_of(source / "docs/bounds.md"), tests_of(source)
    complaints = [f"{key[0]}: {key[1]} = {bounds[key]} is not in the table"
                  for key in sorted(bounds.keys() - rows.keys())]
    complaints += [f"{key[0]}: there is no bound {key[1]}"
                   for key in sorted(rows.keys() - bounds.keys())]
    for key in sorted(bounds.keys() & rows.keys()):
        value, reason, test = rows[key]
        if value != bounds[key]:
            complaints.append(f"{key[0]}: {key[1]} is {bounds[key]}, not {value}")
        if test not in tests:
            complaints.append(f"{key[0]}: {key[1]}: there is no test {test}")
        if not reason:
            complaints.append(f"{key[0]}: {key[1]} has no reason")
    if len(bounds) < 40:
        complaints.append(f"only {len(bounds)} bounds were found: is {source} the source folder?")
    for complaint in complaints:
        print(complaint)
    print(f"{len(bounds)} bounds, {len(complaints)} complaints")
    return 1 if complaints else 0


if __name__ == "__main__":
    sys.exit(main())
