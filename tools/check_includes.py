#!/usr/bin/env python3
"""Holds every include of src/ and tools/ against the tables of docs/architecture.md.

check_includes.py SOURCE_FOLDER: reports each include that runs against an arrow, or that brings a
library's header into a room where it does not stand, and then ends with status 1.
"""

import fnmatch
import pathlib
import re
import sys

INCLUDE = re.compile(r'\s*#\s*include\s*(["<])([^">]+)[">]')


def rows_of_table(text, first_column):
    """The cells of each row of the table whose head begins with `first_column`."""
    table = re.search(rf"^\| {first_column} .*\n\|[-|]+\|\n((?:\|.*\n)+)", text, re.MULTILINE)
    if not table:
        sys.exit(f"docs/architecture.md has no table of the column {first_column}.")
    return [[cell.strip() for cell in row.strip("|").split("|")] for row in table[1].splitlines()]


def names(cell):
    return [name.strip() for name in cell.split(",") if name.strip()]


def circle_among(arrows):
    """A room that its own arrows lead back to, if any."""
    for start in arrows:
        ahead, seen = list(arrows[start]), set()
        while ahead:
            room = ahead.pop()
            if room == start:
                return room
            if room not in seen:
                seen.add(room)
                ahead += arrows.get(room, [])
    return None


def fault_of(room, quote, header, arrows, libraries, roots):
    """What is wrong with one include, if anything."""
    if quote == '"':
        target = header.split("/")[0]
        if not any((root / header).is_file() for root in roots):
            return "is not named by its room"
        if target != room and target not in arrows[room]:
            return f"runs against the arrows: {room} may not use {target}"
    for library, patterns, rooms in libraries:
        if any(fnmatch.fnmatchcase(header, pattern) for pattern in names(patterns)):
            if room not in names(rooms):
                return f"brings {library} into {room}"
    return None


def main():
    source = pathlib.Path(sys.argv[1])
    text = (source / "docs/architecture.md").read_text()
    arrows = {room: names(below) for room, below in rows_of_table(text, "room")}
    libraries = rows_of_table(text, "library")
    roots = [source / "src", source / "tools"]

    faults = []
    circle = circle_among(arrows)
    if circle:
        faults.append(f"docs/architecture.md: the arrows lead from {circle} back to it")
    checked = 0
    files = [path for root in roots for path in root.rglob("*") if path.suffix in (".h", ".cpp")]
    for path in sorted(files):
        place = path.relative_to(source)
        room = place.parts[1]
        if room not in arrows:
            faults.append(f"{place}: the room {room} is not in the table")
            continue
        for number, line in enumerate(path.read_text().splitlines(), 1):
            include = INCLUDE.match(line)
            fault = include and fault_of(room, *include.groups(), arrows, libraries, roots)
            if fault:
                faults.append(f"{place}:{number}: {include[2]} {fault}")
            checked += bool(include)
    for fault in faults:
        print(fault)
    print(f"{checked} includes checked, {len(faults)} faults")
    return 1 if faults or checked == 0 else 0


if __name__ == "__main__":
    sys.exit(main())
