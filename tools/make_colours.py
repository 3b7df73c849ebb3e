#!/usr/bin/env python3
"""Build data/all.col, the colour schemes offered in the Options dialog.

all.col is plain text with CR LF line ends.  It holds any number of schemes one
after another.  A scheme is a header line "<name>.col" followed by exactly
thirteen lines "red;green;blue" (decimal, 0..255), entries 0 to 12:

     0  window background
     1  panel and button face
     2  board background and empty-square fill
     3  (derived) lighter board: raised edges and hint-square highlight
     4  grid lines, square frames and edge labels
     5  (derived) darker grid: sunken edge shading
     6  defender block (colour mode)
     7  attacker block (colour mode)
     8  Home corner block (colour mode)
     9  King block (colour mode)
    10  last-move mark
    11  reachable-square highlight
    12  event-log and list background

Entries 3 and 5 are written for completeness only: the program always computes
entry 3 as entry 2 lightened by 32 and entry 5 as entry 4 darkened by 32, and
this script writes exactly those values.  The first scheme must be "xp.col";
the program falls back to it.

Usage:  python3 tools/make_colours.py [--check] [--preview DIR]

    --check        compare with data/all.col, exit status 1 if it differs
    --preview DIR  also write DIR/<name>.png, a small board drawn in each scheme
"""

import os
import struct
import sys
import zlib

HERE = os.path.dirname(os.path.abspath(__file__))
OUT = os.path.normpath(os.path.join(HERE, "..", "data", "all.col"))

ENTRY_NAMES = [
    "window background",
    "panel and button face",
    "board background",
    "lighter board (derived)",
    "grid, frames and labels",
    "darker grid (derived)",
    "defender block",
    "attacker block",
    "Home corner block",
    "King block",
    "last-move mark",
    "reachable-square highlight",
    "event-log background",
]

# Entries 3 and 5 are None here: they are derived below.
SCHEMES = [
    ("xp", [  # the familiar desktop look: warm grey panels, cool blue board
        (236, 233, 216), (241, 239, 226), (190, 206, 223), None,
        (44, 84, 160), None,
        (52, 150, 60), (196, 48, 36), (150, 128, 96), (238, 190, 40),
        (232, 96, 0), (150, 214, 140), (255, 255, 255)]),
    ("wood", [  # classic: oak board with walnut lines
        (222, 206, 176), (234, 220, 192), (196, 150, 96), None,
        (84, 54, 34), None,
        (58, 128, 52), (170, 36, 30), (120, 96, 70), (226, 178, 40),
        (255, 228, 96), (222, 196, 128), (250, 243, 228)]),
    ("slate", [  # night: slate-blue board, dark ink
        (198, 204, 212), (214, 219, 226), (118, 132, 150), None,
        (36, 42, 54), None,
        (96, 190, 110), (226, 84, 72), (90, 96, 110), (244, 206, 70),
        (255, 170, 60), (150, 200, 230), (236, 240, 245)]),
    ("birch", [  # nordic: pale birch, charcoal bark lines, pine and lingonberry
        (238, 236, 228), (246, 244, 238), (222, 212, 186), None,
        (60, 62, 58), None,
        (70, 140, 90), (178, 54, 48), (112, 120, 128), (214, 164, 48),
        (40, 110, 170), (176, 206, 170), (252, 251, 247)]),
    ("sea", [  # sea: foam board, deep navy lines, coral attackers
        (214, 228, 236), (228, 238, 244), (160, 196, 212), None,
        (34, 66, 98), None,
        (40, 150, 110), (206, 64, 60), (94, 110, 120), (240, 196, 60),
        (226, 80, 30), (214, 236, 170), (246, 250, 252)]),
    ("contrast", [  # high contrast: plain greys, strong pure colours
        (240, 240, 240), (255, 255, 255), (208, 208, 208), None,
        (40, 40, 40), None,
        (0, 160, 0), (220, 0, 0), (96, 96, 96), (255, 200, 0),
        (0, 0, 255), (255, 255, 128), (255, 255, 255)]),
]


def clamp(v):
    return max(0, min(255, v))


def complete(entries):
    out = list(entries)
    r, g, b = out[2]
    out[3] = (clamp(r + 32), clamp(g + 32), clamp(b + 32))
    r, g, b = out[4]
    out[5] = (clamp(r - 32), clamp(g - 32), clamp(b - 32))
    return out


def luminance(c):
    def lin(v):
        v /= 255.0
        return v / 12.92 if v <= 0.03928 else ((v + 0.055) / 1.055) ** 2.4
    r, g, b = c
    return 0.2126 * lin(r) + 0.7152 * lin(g) + 0.0722 * lin(b)


def contrast(a, b):
    la, lb = luminance(a), luminance(b)
    hi, lo = max(la, lb), min(la, lb)
    return (hi + 0.05) / (lo + 0.05)


def validate(name, entries):
    problems = []
    if len(entries) != 13:
        problems.append(f"{len(entries)} entries instead of 13")
    for i, c in enumerate(entries):
        if c is None and i not in (3, 5):
            problems.append(f"entry {i} missing")
        elif c is not None and (len(c) != 3 or any(not (0 <= v <= 255) for v in c)):
            problems.append(f"entry {i} out of range: {c}")
    if problems:
        return problems, []
    full = complete(entries)
    notes = []
    if max(full[2]) > 223:
        notes.append("board is so light that the derived lighter board is clipped")
    if min(full[4]) < 32:
        notes.append("grid is so dark that the derived darker grid is clipped")
    for a, b, what, need in [
        (4, 2, "grid on board", 3.0),
        (4, 0, "labels on window", 3.0),
        (10, 2, "last-move mark on board", 1.5),
        (6, 7, "defender against attacker", 1.2),
    ]:
        ratio = contrast(full[a], full[b])
        if ratio < need:
            notes.append(f"weak contrast {what}: {ratio:.2f}")
    return problems, notes


def render():
    lines = []
    for name, entries in SCHEMES:
        lines.append(f"{name}.col")
        for c in complete(entries):
            lines.append(f"{c[0]};{c[1]};{c[2]}")
    return ("\r\n".join(lines) + "\r\n").encode("ascii")


def write_png(path, width, height, rows):
    """rows: list of bytes objects, RGB, width*3 each."""
    raw = b"".join(b"\x00" + r for r in rows)

    def chunk(tag, data):
        return (struct.pack(">I", len(data)) + tag + data
                + struct.pack(">I", zlib.crc32(tag + data) & 0xFFFFFFFF))

    png = (b"\x89PNG\r\n\x1a\n"
           + chunk(b"IHDR", struct.pack(">IIBBBBB", width, height, 8, 2, 0, 0, 0))
           + chunk(b"IDAT", zlib.compress(raw, 9))
           + chunk(b"IEND", b""))
    with open(path, "wb") as fh:
        fh.write(png)


def preview(name, entries, directory):
    """A 7x7 board in the scheme: a rough idea, not the program's drawing."""
    c = complete(entries)
    cell, n, margin = 24, 7, 20
    size = margin * 2 + cell * n
    panel_w = 90
    width = size + panel_w
    px = [[c[0]] * width for _ in range(size)]

    def rect(x0, y0, x1, y1, col):
        for y in range(max(0, y0), min(size, y1)):
            row = px[y]
            for x in range(max(0, x0), min(width, x1)):
                row[x] = col

    layout = {(0, 0): 8, (0, 6): 8, (6, 0): 8, (6, 6): 8, (3, 3): 9,
              (2, 3): 6, (4, 3): 6, (3, 2): 6, (3, 4): 6,
              (0, 3): 7, (1, 3): 7, (5, 3): 7, (6, 3): 7, (3, 0): 7, (3, 1): 7,
              (3, 5): 7, (3, 6): 7}
    rect(margin - 3, margin - 3, margin + n * cell + 3, margin + n * cell + 3, c[5])
    rect(margin - 3, margin - 3, margin + n * cell, margin + n * cell, c[3])
    for col in range(n):
        for row in range(n):
            x0, y0 = margin + row * cell, margin + col * cell
            rect(x0, y0, x0 + cell, y0 + cell, c[4])
            fill = c[2]
            if (col, row) in [(2, 1), (2, 0)]:
                fill = c[11]
            if (col, row) == (1, 1):
                fill = c[3]
            rect(x0 + 1, y0 + 1, x0 + cell - 1, y0 + cell - 1, fill)
            if (col, row) == (2, 2):
                rect(x0 + 2, y0 + 2, x0 + cell - 2, y0 + 5, c[10])
            if (col, row) in layout:
                rect(x0 + 4, y0 + 4, x0 + cell - 4, y0 + cell - 4, c[layout[(col, row)]])
    rect(size, 0, width, size, c[1])
    rect(size + 8, 10, width - 8, size - 10, c[12])
    rect(size + 14, 20, width - 14, 23, c[4])
    rect(size + 14, 30, width - 24, 33, c[4])
    rows = [bytes(v for p in r for v in p) for r in px]
    write_png(os.path.join(directory, f"{name}.png"), width, size, rows)
    return rows


def main(argv):
    failed = False
    if not SCHEMES or SCHEMES[0][0] != "xp":
        print("the first scheme must be xp")
        return 1
    for name, entries in SCHEMES:
        problems, notes = validate(name, entries)
        for p in problems:
            print(f"{name}.col: ERROR {p}")
            failed = True
        for n in notes:
            print(f"{name}.col: note: {n}")
    if failed:
        return 1
    data = render()
    if "--check" in argv:
        try:
            with open(OUT, "rb") as fh:
                same = fh.read() == data
        except OSError:
            same = False
        print("all.col is up to date" if same else "all.col DIFFERS")
        return 0 if same else 1
    with open(OUT, "wb") as fh:
        fh.write(data)
    print(f"wrote {OUT}: {len(SCHEMES)} schemes")
    if "--preview" in argv:
        directory = argv[argv.index("--preview") + 1]
        os.makedirs(directory, exist_ok=True)
        sheets = [preview(name, entries, directory) for name, entries in SCHEMES]
        # all schemes side by side, three to a row
        per_row, gap = 3, 6
        h = len(sheets[0])
        w = len(sheets[0][0]) // 3
        blank = bytes([128, 128, 128])
        sheet_rows = []
        for start in range(0, len(sheets), per_row):
            group = sheets[start:start + per_row]
            for y in range(h):
                line = (blank * gap).join(g[y] for g in group)
                line += blank * ((w + gap) * (per_row - len(group)))
                sheet_rows.append(line)
            sheet_rows.extend([blank * (len(sheet_rows[-1]) // 3)] * gap)
        write_png(os.path.join(directory, "all.png"), len(sheet_rows[0]) // 3,
                  len(sheet_rows), sheet_rows)
        print(f"previews in {directory}")
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
