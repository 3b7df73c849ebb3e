#!/usr/bin/env python3
"""Build the opening layout files shipped in data/.

Each layout is drawn below as an ASCII diagram exactly as JarlsVakt shows the
board: one text line per Col (Col 1 at the top, Col running DOWN the screen),
and within a line one character per Row (Row 1 at the left, Row running
ACROSS).  Characters in a diagram:

    H  Home corner         .  empty square
    0  defender            1  attacker
    K  the King (written to the file as "0"; its place goes into the header)

Spaces inside a diagram line are ignored, so the diagrams may be spaced out
for reading.

A layout file holds a single line, ended by CR LF:

    WWHHCCRR<W*H letters>

    WW  board width (number of Cols), two digits
    HH  board height (number of Rows), two digits
    CC  the King's Col, two digits (1..W)
    RR  the King's Row, two digits (1..H)

followed by one letter per square in column-major order: Col 1 Row 1..H, then
Col 2 Row 1..H, and so on.  Letters: H Home corner, E empty, 0 defender (the
King's square too), 1 attacker.

Usage:  python3 tools/make_layouts.py [--check] [--show]

    --check  only validate the diagrams and compare with the files on disk;
             exit status 1 if a file is missing or differs.
    --show   print every layout as the program would draw it.
"""

import os
import sys

HERE = os.path.dirname(os.path.abspath(__file__))
DATA = os.path.normpath(os.path.join(HERE, "..", "data"))

MAX_SIDE = 14

# name of file, game name, diagram
LAYOUTS = [
    ("patf.txt", "Hnefatafl 11x11 (Copenhagen opening)", """
        H . . 1 1 1 1 1 . . H
        . . . . . 1 . . . . .
        . . . . . . . . . . .
        1 . . . . 0 . . . . 1
        1 . . . 0 0 0 . . . 1
        1 1 . 0 0 K 0 0 . 1 1
        1 . . . 0 0 0 . . . 1
        1 . . . . 0 . . . . 1
        . . . . . . . . . . .
        . . . . . 1 . . . . .
        H . . 1 1 1 1 1 . . H
    """),
    ("pattern1.txt", "Brandubh 7x7", """
        H . . 1 . . H
        . . . 1 . . .
        . . . 0 . . .
        1 1 0 K 0 1 1
        . . . 0 . . .
        . . . 1 . . .
        H . . 1 . . H
    """),
    ("pattern2.txt", "Tablut 9x9 (Linnaeus)", """
        H . . 1 1 1 . . H
        . . . . 1 . . . .
        . . . . 0 . . . .
        1 . . . 0 . . . 1
        1 1 0 0 K 0 0 1 1
        1 . . . 0 . . . 1
        . . . . 0 . . . .
        . . . . 1 . . . .
        H . . 1 1 1 . . H
    """),
    ("pattern3.txt", "Tawlbwrdd 11x11 (R. C. Bell)", """
        H . . . 1 1 1 . . . H
        . . . . 1 . 1 . . . .
        . . . . . 1 . . . . .
        . . . . . 0 . . . . .
        1 1 . . 0 0 0 . . 1 1
        1 . 1 0 0 K 0 0 1 . 1
        1 1 . . 0 0 0 . . 1 1
        . . . . . 0 . . . . .
        . . . . . 1 . . . . .
        . . . . 1 . 1 . . . .
        H . . . 1 1 1 . . . H
    """),
    ("pattern4.txt", "Historical Hnefatafl 13x13", """
        H . . . 1 1 1 1 1 . . . H
        . . . . . 1 . 1 . . . . .
        . . . . . . 1 . . . . . .
        . . . . . . 0 . . . . . .
        1 . . . 0 . . . 0 . . . 1
        1 1 . . . 0 0 0 . . . 1 1
        1 . 1 0 . 0 K 0 . 0 1 . 1
        1 1 . . . 0 0 0 . . . 1 1
        1 . . . 0 . . . 0 . . . 1
        . . . . . . 0 . . . . . .
        . . . . . . 1 . . . . . .
        . . . . . 1 . 1 . . . . .
        H . . . 1 1 1 1 1 . . . H
    """),
    ("pattern5.txt", "Tawlbwrdd 11x11 (Lewis, cross)", """
        H . . . 1 1 1 . . . H
        . . . . 1 1 1 . . . .
        . . . . . 0 . . . . .
        . . . . . 0 . . . . .
        1 1 . . . 0 . . . 1 1
        1 1 0 0 0 K 0 0 0 1 1
        1 1 . . . 0 . . . 1 1
        . . . . . 0 . . . . .
        . . . . . 0 . . . . .
        . . . . 1 1 1 . . . .
        H . . . 1 1 1 . . . H
    """),
]

# expected (attackers, defenders without the King) for each file
EXPECTED = {
    "patf.txt": (24, 12),
    "pattern1.txt": (8, 4),
    "pattern2.txt": (16, 8),
    "pattern3.txt": (24, 12),
    "pattern4.txt": (32, 16),
    "pattern5.txt": (24, 12),
}


class LayoutError(Exception):
    pass


def parse_diagram(diagram):
    """Return the list of Col strings (each H characters long)."""
    cols = []
    for raw in diagram.strip("\n").splitlines():
        line = raw.replace(" ", "").replace("\t", "")
        if line:
            cols.append(line)
    return cols


def build_line(name, diagram):
    cols = parse_diagram(diagram)
    width = len(cols)
    if width == 0:
        raise LayoutError(f"{name}: empty diagram")
    height = len(cols[0])
    if any(len(c) != height for c in cols):
        raise LayoutError(f"{name}: diagram lines differ in length")
    if not (2 <= width <= MAX_SIDE and 2 <= height <= MAX_SIDE):
        raise LayoutError(f"{name}: board {width}x{height} is outside 2..{MAX_SIDE}")

    king = None
    letters = []
    for c_index, col in enumerate(cols, start=1):
        for r_index, ch in enumerate(col, start=1):
            if ch == "K":
                if king is not None:
                    raise LayoutError(f"{name}: more than one King")
                king = (c_index, r_index)
                letters.append("0")
            elif ch == ".":
                letters.append("E")
            elif ch in "H01":
                letters.append(ch)
            else:
                raise LayoutError(f"{name}: unknown character {ch!r} at Col {c_index} Row {r_index}")
    if king is None:
        raise LayoutError(f"{name}: no King in the diagram")
    header = f"{width:02d}{height:02d}{king[0]:02d}{king[1]:02d}"
    return header + "".join(letters)


def decode(line):
    """Split a layout line into (width, height, king_col, king_row, grid).

    grid[col-1][row-1] is the letter of square (col, row)."""
    if len(line) < 8 or not line[:8].isdigit():
        raise LayoutError("header is not eight digits")
    width, height = int(line[0:2]), int(line[2:4])
    kc, kr = int(line[4:6]), int(line[6:8])
    body = line[8:]
    if len(body) != width * height:
        raise LayoutError(f"expected {8 + width * height} characters, found {len(line)}")
    grid = [body[c * height:(c + 1) * height] for c in range(width)]
    return width, height, kc, kr, grid


def validate(name, line, expected=None):
    width, height, kc, kr, grid = decode(line)
    if not (2 <= width <= MAX_SIDE and 2 <= height <= MAX_SIDE):
        raise LayoutError(f"{name}: board {width}x{height} is outside 2..{MAX_SIDE}")
    if set(line[8:]) - set("HE01"):
        raise LayoutError(f"{name}: letters other than H, E, 0, 1")
    corners = [(1, 1), (width, 1), (1, height), (width, height)]
    for c, r in corners:
        if grid[c - 1][r - 1] != "H":
            raise LayoutError(f"{name}: corner ({c},{r}) is not H")
    homes = line[8:].count("H")
    if homes != 4:
        raise LayoutError(f"{name}: {homes} Home squares, expected the 4 corners only")
    if not (1 <= kc <= width and 1 <= kr <= height):
        raise LayoutError(f"{name}: King square ({kc},{kr}) is off the board")
    if grid[kc - 1][kr - 1] != "0":
        raise LayoutError(f"{name}: the King's square ({kc},{kr}) does not hold 0")
    centre = (width // 2 + 1, height // 2 + 1)
    if (kc, kr) != centre:
        raise LayoutError(f"{name}: King at ({kc},{kr}), the centre is {centre}")
    attackers = line[8:].count("1")
    defenders = line[8:].count("0") - 1
    if expected is not None and (attackers, defenders) != expected:
        raise LayoutError(f"{name}: {attackers} attackers and {defenders} defenders, "
                          f"expected {expected[0]} and {expected[1]}")
    return width, height, attackers, defenders


def show(line):
    width, height, kc, kr, grid = decode(line)
    out = ["    " + " ".join(f"{r:>2}" for r in range(1, height + 1))]
    for c in range(1, width + 1):
        cells = []
        for r in range(1, height + 1):
            ch = grid[c - 1][r - 1]
            if (c, r) == (kc, kr):
                ch = "K"
            cells.append({"E": ".", "0": "o", "1": "x"}.get(ch, ch))
        out.append(f" {chr(ord('A') + c - 1)}  " + " ".join(f"{ch:>2}" for ch in cells))
    return "\n".join(out)


def main(argv):
    check_only = "--check" in argv
    show_all = "--show" in argv
    failed = False
    for name, game, diagram in LAYOUTS:
        line = build_line(name, diagram)
        width, height, att, dfn = validate(name, line, EXPECTED.get(name))
        path = os.path.join(DATA, name)
        data = (line + "\r\n").encode("ascii")
        status = "ok"
        if check_only:
            try:
                with open(path, "rb") as fh:
                    current = fh.read()
            except OSError:
                current = None
            if current != data:
                status = "DIFFERS" if current is not None else "MISSING"
                failed = True
        else:
            os.makedirs(DATA, exist_ok=True)
            with open(path, "wb") as fh:
                fh.write(data)
            status = "written"
        print(f"{name:14s} {width:2d}x{height:<2d} {att:2d} attackers {dfn:2d} defenders + King"
              f"  {len(line):3d} chars  {game}  [{status}]")
        if show_all:
            print(show(line))
            print()
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
