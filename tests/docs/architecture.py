#!/usr/bin/env python3
"""architecture.py ROOMS DOCUMENT [--update]

Compares the table of rooms in docs/architecture.md with the dependencies of the CMake targets, which
the build writes to ROOMS, one line "room: room room" for each. With --update, corrects the column
"uses" of the table instead; new rooms must be described by hand.
"""

import re
import sys

ROW = re.compile(r"^\| `([a-z/_]+)/` \| (.*?) \| (.*?) \|$")


def short(room):
    """The name of a room in the column: without "library/"."""
    return room.removeprefix("library/")


def main():
    rooms_file, document = sys.argv[1:3]
    with open(rooms_file, encoding="utf-8") as lines:
        rooms = {room: uses.split() for room, uses in (line.split(":") for line in lines)}
    with open(document, encoding="utf-8") as lines:
        text = lines.read().splitlines()
    faults = []
    described = set()
    for number, line in enumerate(text):
        row = ROW.match(line)
        if row is None:
            continue
        room, purpose, uses = row.groups()
        described.add(room)
        if room not in rooms:
            faults.append(f"{room} is described, but no target is built there")
            continue
        expected = ", ".join(f"`{short(each)}`" for each in rooms[room]) or "–"
        if uses != expected:
            faults.append(f"{room} uses {expected}, but the table has {uses}")
            text[number] = f"| `{room}/` | {purpose} | {expected} |"
    faults += [f"{room} is not described" for room in rooms if room not in described]
    if "--update" in sys.argv:
        with open(document, "w", encoding="utf-8") as out:
            out.write("\n".join(text) + "\n")
        return
    if faults:
        sys.exit("docs/architecture.md:\n  " + "\n  ".join(faults) +
                 f"\nRun: {sys.argv[0]} {rooms_file} {document} --update")


main()
