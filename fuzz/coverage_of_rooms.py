#!/usr/bin/env python3
"""Prints the executed lines and regions of each room as a Markdown table.

usage: coverage_of_rooms.py COVERAGE.json ROOT

COVERAGE.json is the output of "llvm-cov export -summary-only". A room is a folder of library/,
hosts/workbench/ or tools/. Headers count in their room. Sources that no fuzz target links, and
rooms without executed lines, are not listed.
"""

import collections
import json
import pathlib
import sys


def room_of(path):
    parts = path.parts
    if parts[0] in ("library", "tools"):
        return "/".join(parts[:2])
    if parts[:2] == ("hosts", "workbench"):
        return "/".join(parts[:3])
    return None


def main():
    report = json.loads(pathlib.Path(sys.argv[1]).read_text(encoding="utf-8"))
    root = pathlib.Path(sys.argv[2]).resolve()
    rooms = collections.defaultdict(collections.Counter)
    for file in report["data"][0]["files"]:
        path = pathlib.Path(file["filename"]).resolve()
        if not path.is_relative_to(root):
            continue
        room = room_of(path.relative_to(root))
        if room is None:
            continue
        for kind in ("lines", "regions"):
            rooms[room][kind] += file["summary"][kind]["count"]
            rooms[room][kind + " executed"] += file["summary"][kind]["covered"]
    print("| room | lines | executed | regions executed |")
    print("|---|---|---|---|")
    for room, counts in sorted(rooms.items()):
        if counts["lines executed"] == 0:
            continue
        lines = 100.0 * counts["lines executed"] / counts["lines"]
        regions = 100.0 * counts["regions executed"] / max(counts["regions"], 1)
        print(f"| `{room}` | {counts['lines']} | {lines:.1f} % | {regions:.1f} % |")


if __name__ == "__main__":
    main()
