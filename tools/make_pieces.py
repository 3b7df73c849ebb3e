#!/usr/bin/env python3
"""Draw the piece pictures shipped in data/ and write them as .ico files.

Standard library only: the shapes are rasterised here with supersampling
(anti-aliasing), written as RGBA PNG images with zlib and struct, and packed
into .ico files whose entries are PNG-compressed (valid since Windows Vista,
and read by Qt's ICO plugin).  Every icon holds the sizes 64, 48, 32 and 24
pixels, largest first, each drawn from the shapes at its own size rather than
scaled down.

Pictures (file name: what it shows):

    set 0, carved shields
        player00.ico  defender: green round shield with a light boss
        player10.ico  attacker: red round shield, iron cross bands and boss
        home0.ico     Home corner: stone tower with battlements
        king0.ico     King: green shield in a gold rim, with a gold crown
    set 1, flat runic discs
        player01.ico  defender: pale green disc, rune Algiz (protection)
        player11.ico  attacker: dark red disc, rune Tiwaz (Tyr, war)
        home1.ico     Home corner: stone tile, rune Othala (home, estate)
        king1.ico     King: gold disc with a green crown

Usage:  python3 tools/make_pieces.py [--preview DIR]

    --preview DIR  also write every picture as DIR/<name>-<size>.png and a
                   contact sheet DIR/sheet.png (pictures on the board colours
                   of the shipped schemes, at every size).
"""

import math
import os
import struct
import sys
import zlib

HERE = os.path.dirname(os.path.abspath(__file__))
DATA = os.path.normpath(os.path.join(HERE, "..", "data"))

SIZES = [64, 48, 32, 24]


# --------------------------------------------------------------------------
# shapes: all coordinates in the unit square, x to the right, y downwards

class Shape:
    bbox = (0.0, 0.0, 1.0, 1.0)

    def inside(self, x, y):
        raise NotImplementedError


class Circle(Shape):
    def __init__(self, cx, cy, r):
        self.cx, self.cy, self.r, self.r2 = cx, cy, r, r * r
        self.bbox = (cx - r, cy - r, cx + r, cy + r)

    def inside(self, x, y):
        dx, dy = x - self.cx, y - self.cy
        return dx * dx + dy * dy <= self.r2


class Ring(Shape):
    def __init__(self, cx, cy, r_in, r_out):
        self.cx, self.cy = cx, cy
        self.a, self.b = r_in * r_in, r_out * r_out
        self.bbox = (cx - r_out, cy - r_out, cx + r_out, cy + r_out)

    def inside(self, x, y):
        dx, dy = x - self.cx, y - self.cy
        d = dx * dx + dy * dy
        return self.a <= d <= self.b


class Rect(Shape):
    def __init__(self, x0, y0, x1, y1, radius=0.0):
        self.x0, self.y0, self.x1, self.y1, self.rad = x0, y0, x1, y1, radius
        self.bbox = (x0, y0, x1, y1)

    def inside(self, x, y):
        if not (self.x0 <= x <= self.x1 and self.y0 <= y <= self.y1):
            return False
        r = self.rad
        if r <= 0:
            return True
        cx = min(max(x, self.x0 + r), self.x1 - r)
        cy = min(max(y, self.y0 + r), self.y1 - r)
        dx, dy = x - cx, y - cy
        return dx * dx + dy * dy <= r * r


class Polygon(Shape):
    def __init__(self, points):
        self.pts = points
        xs = [p[0] for p in points]
        ys = [p[1] for p in points]
        self.bbox = (min(xs), min(ys), max(xs), max(ys))

    def inside(self, x, y):
        pts = self.pts
        n = len(pts)
        c = False
        j = n - 1
        for i in range(n):
            xi, yi = pts[i]
            xj, yj = pts[j]
            if (yi > y) != (yj > y):
                if x < (xj - xi) * (y - yi) / (yj - yi) + xi:
                    c = not c
            j = i
        return c


class Stroke(Shape):
    """A polyline drawn with a round pen of the given width."""

    def __init__(self, points, width):
        self.segs = list(zip(points[:-1], points[1:]))
        self.h2 = (width / 2.0) ** 2
        h = width / 2.0
        xs = [p[0] for p in points]
        ys = [p[1] for p in points]
        self.bbox = (min(xs) - h, min(ys) - h, max(xs) + h, max(ys) + h)

    def inside(self, x, y):
        for (ax, ay), (bx, by) in self.segs:
            vx, vy = bx - ax, by - ay
            wx, wy = x - ax, y - ay
            ll = vx * vx + vy * vy
            t = 0.0 if ll == 0 else max(0.0, min(1.0, (wx * vx + wy * vy) / ll))
            dx, dy = wx - t * vx, wy - t * vy
            if dx * dx + dy * dy <= self.h2:
                return True
        return False


class Union(Shape):
    def __init__(self, *shapes):
        self.shapes = shapes
        self.bbox = (min(s.bbox[0] for s in shapes), min(s.bbox[1] for s in shapes),
                     max(s.bbox[2] for s in shapes), max(s.bbox[3] for s in shapes))

    def inside(self, x, y):
        return any(s.inside(x, y) for s in self.shapes)


class Shifted(Shape):
    def __init__(self, shape, dx, dy):
        self.s, self.dx, self.dy = shape, dx, dy
        b = shape.bbox
        self.bbox = (b[0] + dx, b[1] + dy, b[2] + dx, b[3] + dy)

    def inside(self, x, y):
        return self.s.inside(x - self.dx, y - self.dy)


class Minus(Shape):
    def __init__(self, a, b):
        self.a, self.b = a, b
        self.bbox = a.bbox

    def inside(self, x, y):
        return self.a.inside(x, y) and not self.b.inside(x, y)


# --------------------------------------------------------------------------
# paints: (x, y) -> (r, g, b, a) with components 0..1

def solid(rgb, alpha=1.0):
    c = (rgb[0] / 255.0, rgb[1] / 255.0, rgb[2] / 255.0, alpha)
    return lambda x, y: c


def radial(cx, cy, radius, inner, outer):
    """Gradient from inner colour at (cx, cy) to outer colour at radius."""
    a = [v / 255.0 for v in inner]
    b = [v / 255.0 for v in outer]

    def paint(x, y):
        t = min(1.0, math.hypot(x - cx, y - cy) / radius)
        t = t * t * (3 - 2 * t)
        return (a[0] + (b[0] - a[0]) * t, a[1] + (b[1] - a[1]) * t,
                a[2] + (b[2] - a[2]) * t, 1.0)
    return paint


def linear(y0, y1, top, bottom):
    a = [v / 255.0 for v in top]
    b = [v / 255.0 for v in bottom]

    def paint(x, y):
        t = min(1.0, max(0.0, (y - y0) / (y1 - y0)))
        return (a[0] + (b[0] - a[0]) * t, a[1] + (b[1] - a[1]) * t,
                a[2] + (b[2] - a[2]) * t, 1.0)
    return paint


def soft_shadow(cx, cy, r_full, r_zero, alpha):
    """Black, fully `alpha` inside r_full fading to nothing at r_zero."""
    def paint(x, y):
        d = math.hypot(x - cx, y - cy)
        if d <= r_full:
            a = alpha
        elif d >= r_zero:
            a = 0.0
        else:
            t = (d - r_full) / (r_zero - r_full)
            a = alpha * (1 - t) * (1 - t)
        return (0.0, 0.0, 0.0, a)
    return paint


# --------------------------------------------------------------------------
# rasteriser

def rasterise(layers, size):
    """layers: list of (Shape, paint).  Returns bytes, RGBA, straight alpha."""
    ss = 8 if size <= 24 else 6 if size <= 32 else 4
    n = ss * ss
    offs = [((i + 0.5) / ss, (j + 0.5) / ss) for j in range(ss) for i in range(ss)]
    inv = 1.0 / size
    out = bytearray(size * size * 4)
    for py in range(size):
        y0, y1 = py * inv, (py + 1) * inv
        row_layers = [l for l in layers if l[0].bbox[1] <= y1 and l[0].bbox[3] >= y0]
        for px in range(size):
            x0, x1 = px * inv, (px + 1) * inv
            here = [l for l in row_layers if l[0].bbox[0] <= x1 and l[0].bbox[2] >= x0]
            if not here:
                continue
            ar = ag = ab = aa = 0.0
            for ox, oy in offs:
                x = (px + ox) * inv
                y = (py + oy) * inv
                # source-over, premultiplied
                r = g = b = a = 0.0
                for shape, paint in here:
                    if shape.inside(x, y):
                        sr, sg, sb, sa = paint(x, y)
                        k = 1.0 - sa
                        r = sr * sa + r * k
                        g = sg * sa + g * k
                        b = sb * sa + b * k
                        a = sa + a * k
                ar += r
                ag += g
                ab += b
                aa += a
            if aa <= 0.0:
                continue
            i = (py * size + px) * 4
            out[i] = min(255, int(round(ar / aa * 255)))
            out[i + 1] = min(255, int(round(ag / aa * 255)))
            out[i + 2] = min(255, int(round(ab / aa * 255)))
            out[i + 3] = min(255, int(round(aa / n * 255)))
    return bytes(out)


# --------------------------------------------------------------------------
# PNG and ICO writers

def png_bytes(rgba, width, height):
    stride = width * 4
    raw = b"".join(b"\x00" + rgba[y * stride:(y + 1) * stride] for y in range(height))

    def chunk(tag, data):
        return (struct.pack(">I", len(data)) + tag + data
                + struct.pack(">I", zlib.crc32(tag + data) & 0xFFFFFFFF))

    return (b"\x89PNG\r\n\x1a\n"
            + chunk(b"IHDR", struct.pack(">IIBBBBB", width, height, 8, 6, 0, 0, 0))
            + chunk(b"IDAT", zlib.compress(raw, 9))
            + chunk(b"IEND", b""))


def ico_bytes(images):
    """images: list of (size, png bytes).  PNG-compressed ICO entries."""
    header = struct.pack("<HHH", 0, 1, len(images))
    offset = 6 + 16 * len(images)
    entries = b""
    blobs = b""
    for size, png in images:
        dim = 0 if size >= 256 else size
        entries += struct.pack("<BBBBHHII", dim, dim, 0, 0, 1, 32, len(png), offset)
        offset += len(png)
        blobs += png
    return header + entries + blobs


# --------------------------------------------------------------------------
# the pictures

DARK_GREEN = (18, 58, 26)
DARK_RED = (58, 10, 10)
IRON = (52, 44, 44)
GOLD_DARK = (92, 62, 8)


def shadow():
    return (Circle(0.53, 0.55, 0.49), soft_shadow(0.53, 0.55, 0.38, 0.49, 0.45))


def crown_points(cx, top, bottom, half):
    """Outline of a three-pointed crown, as a polygon."""
    w = half
    band = bottom - (bottom - top) * 0.32
    return [
        (cx - w, bottom), (cx + w, bottom), (cx + w, band),
        (cx + w * 1.12, top + (bottom - top) * 0.10),   # right point
        (cx + w * 0.50, band - (bottom - top) * 0.22),
        (cx, top),                                      # middle point
        (cx - w * 0.50, band - (bottom - top) * 0.22),
        (cx - w * 1.12, top + (bottom - top) * 0.10),   # left point
        (cx - w, band),
    ]


def defender0():
    return [
        shadow(),
        (Circle(0.5, 0.5, 0.45), solid(DARK_GREEN)),
        (Circle(0.5, 0.5, 0.40), radial(0.38, 0.32, 0.55, (168, 228, 140), (38, 128, 52))),
        (Ring(0.5, 0.5, 0.265, 0.305), solid((22, 86, 34), 0.85)),
        (Circle(0.5, 0.5, 0.135), solid(DARK_GREEN)),
        (Circle(0.5, 0.5, 0.105), radial(0.46, 0.45, 0.14, (250, 250, 232), (172, 196, 150))),
    ]


def attacker0():
    bands = Union(Rect(0.455, 0.08, 0.545, 0.92), Rect(0.08, 0.455, 0.92, 0.545))
    body = Circle(0.5, 0.5, 0.40)
    return [
        shadow(),
        (Circle(0.5, 0.5, 0.45), solid(DARK_RED)),
        (body, radial(0.38, 0.32, 0.55, (240, 110, 86), (128, 18, 18))),
        (Minus(Union(Rect(0.44, 0.08, 0.56, 0.92), Rect(0.08, 0.44, 0.92, 0.56)),
               Minus(Circle(0.5, 0.5, 0.45), body)), solid(DARK_RED, 0.9)),
        (Minus(bands, Minus(Circle(0.5, 0.5, 0.45), body)),
         linear(0.1, 0.9, (150, 140, 140), (70, 62, 62))),
        (Circle(0.5, 0.5, 0.15), solid(DARK_RED)),
        (Circle(0.5, 0.5, 0.12), radial(0.46, 0.45, 0.15, (190, 184, 180), (62, 54, 54))),
    ]


def king0():
    crown = crown_points(0.5, 0.24, 0.66, 0.21)
    return [
        shadow(),
        (Circle(0.5, 0.5, 0.465), solid(GOLD_DARK)),
        (Circle(0.5, 0.5, 0.43), radial(0.36, 0.30, 0.60, (255, 236, 150), (196, 140, 24))),
        (Circle(0.5, 0.5, 0.355), solid(DARK_GREEN)),
        (Circle(0.5, 0.5, 0.33), radial(0.38, 0.32, 0.48, (120, 196, 104), (28, 104, 42))),
        # crown: dark outline, gold body, jewels
        (Stroke(crown + [crown[0]], 0.075), solid(GOLD_DARK)),
        (Polygon(crown), linear(0.24, 0.66, (255, 240, 140), (214, 150, 20))),
        (Rect(0.33, 0.58, 0.67, 0.615), solid((170, 110, 12), 0.8)),
        (Circle(0.5, 0.52, 0.035), solid((200, 30, 30))),
        (Circle(0.375, 0.53, 0.025), solid((40, 110, 200))),
        (Circle(0.625, 0.53, 0.025), solid((40, 110, 200))),
    ]


def tower_parts(grow=0.0):
    g = grow
    return [
        Rect(0.24 - g, 0.34 - g, 0.76 + g, 0.88 + g),          # tower
        Rect(0.17 - g, 0.27 - g, 0.83 + g, 0.39 + g),          # parapet
        Rect(0.17 - g, 0.12 - g, 0.32 + g, 0.28 + g),          # merlons
        Rect(0.425 - g, 0.12 - g, 0.575 + g, 0.28 + g),
        Rect(0.68 - g, 0.12 - g, 0.83 + g, 0.28 + g),
    ]


def home0():
    door = Union(Rect(0.41, 0.66, 0.59, 0.88), Circle(0.5, 0.66, 0.09))
    return [
        (Shifted(Union(*tower_parts(0.045)), 0.035, 0.035), solid((0, 0, 0), 0.28)),
        (Union(*tower_parts(0.045)), solid((40, 34, 28))),
        (Union(*tower_parts()), linear(0.12, 0.88, (226, 216, 192), (142, 128, 108))),
        # stone courses
        (Rect(0.24, 0.52, 0.76, 0.535), solid((110, 98, 82), 0.55)),
        (Rect(0.24, 0.70, 0.41, 0.715), solid((110, 98, 82), 0.55)),
        (Rect(0.59, 0.70, 0.76, 0.715), solid((110, 98, 82), 0.55)),
        (Rect(0.17, 0.375, 0.83, 0.39), solid((110, 98, 82), 0.55)),
        (door, solid((40, 30, 22))),
        (Rect(0.47, 0.44, 0.53, 0.53, 0.02), solid((40, 30, 22))),   # arrow slit
    ]


# set 1: flat runic discs --------------------------------------------------

def rune_disc(rim, body, rune_colour, strokes, width=0.09):
    layers = [
        (Circle(0.5, 0.5, 0.46), solid(rim)),
        (Circle(0.5, 0.5, 0.39), solid(body)),
    ]
    for pts in strokes:
        layers.append((Stroke(pts, width), solid(rune_colour)))
    return layers


def defender1():
    # Algiz: a staff with two arms raised
    return rune_disc((30, 96, 44), (132, 206, 124), (22, 70, 32), [
        [(0.5, 0.24), (0.5, 0.77)],
        [(0.31, 0.28), (0.5, 0.49), (0.69, 0.28)],
    ])


def attacker1():
    # Tiwaz: an arrow pointing up
    return rune_disc((70, 8, 8), (162, 34, 30), (250, 226, 200), [
        [(0.5, 0.25), (0.5, 0.77)],
        [(0.30, 0.45), (0.5, 0.25), (0.70, 0.45)],
    ])


def king1():
    crown = crown_points(0.5, 0.27, 0.70, 0.22)
    return [
        (Circle(0.5, 0.5, 0.46), solid((30, 96, 44))),
        (Circle(0.5, 0.5, 0.39), solid((242, 196, 64))),
        (Polygon(crown), solid((30, 96, 44))),
        (Circle(0.5, 0.57, 0.04), solid((242, 196, 64))),
    ]


def home1():
    # Othala: a diamond standing on two legs
    w = 0.085
    return [
        (Rect(0.08, 0.08, 0.92, 0.92, 0.12), solid((58, 56, 54))),
        (Rect(0.145, 0.145, 0.855, 0.855, 0.07), solid((146, 140, 128))),
        (Stroke([(0.5, 0.22), (0.69, 0.44), (0.5, 0.63), (0.31, 0.44), (0.5, 0.22)], w),
         solid((246, 240, 222))),
        (Stroke([(0.5, 0.63), (0.70, 0.80)], w), solid((246, 240, 222))),
        (Stroke([(0.5, 0.63), (0.30, 0.80)], w), solid((246, 240, 222))),
    ]


PICTURES = [
    ("player00", defender0),
    ("player10", attacker0),
    ("home0", home0),
    ("king0", king0),
    ("player01", defender1),
    ("player11", attacker1),
    ("home1", home1),
    ("king1", king1),
]


# --------------------------------------------------------------------------

def composite_on(rgba, size, bg):
    """Flatten an RGBA picture onto a plain background; returns RGB rows."""
    rows = []
    for y in range(size):
        row = bytearray()
        for x in range(size):
            i = (y * size + x) * 4
            a = rgba[i + 3] / 255.0
            for k in range(3):
                row.append(int(round(rgba[i + k] * a + bg[k] * (1 - a))))
        rows.append(bytes(row))
    return rows


def write_sheet(path, rendered):
    """Every picture at every size on several board colours."""
    backgrounds = [(190, 206, 223), (196, 150, 96), (118, 132, 150),
                   (222, 212, 186), (160, 196, 212), (255, 255, 255)]
    pad = 6
    cell_w = sum(SIZES) + pad * (len(SIZES) + 1)
    cell_h = SIZES[0] + 2 * pad
    width = cell_w * len(backgrounds)
    height = cell_h * len(rendered)
    canvas = [bytearray(width * 3) for _ in range(height)]
    for bi, bg in enumerate(backgrounds):
        for pi, (name, images) in enumerate(rendered):
            x0, y0 = bi * cell_w, pi * cell_h
            for y in range(cell_h):
                canvas[y0 + y][x0 * 3:(x0 + cell_w) * 3] = bytes(bg) * cell_w
            x = x0 + pad
            for size in SIZES:
                rows = composite_on(images[size], size, bg)
                top = y0 + pad + (SIZES[0] - size) // 2
                for y, r in enumerate(rows):
                    canvas[top + y][x * 3:(x + size) * 3] = r
                x += size + pad
    raw = b"".join(b"\x00" + bytes(r) for r in canvas)

    def chunk(tag, data):
        return (struct.pack(">I", len(data)) + tag + data
                + struct.pack(">I", zlib.crc32(tag + data) & 0xFFFFFFFF))

    with open(path, "wb") as fh:
        fh.write(b"\x89PNG\r\n\x1a\n"
                 + chunk(b"IHDR", struct.pack(">IIBBBBB", width, height, 8, 2, 0, 0, 0))
                 + chunk(b"IDAT", zlib.compress(raw, 9)) + chunk(b"IEND", b""))


def main(argv):
    preview_dir = None
    if "--preview" in argv:
        preview_dir = argv[argv.index("--preview") + 1]
        os.makedirs(preview_dir, exist_ok=True)
    only = [a for a in argv if not a.startswith("--") and a != preview_dir]
    rendered = []
    os.makedirs(DATA, exist_ok=True)
    for name, build in PICTURES:
        if only and name not in only:
            continue
        layers = build()
        images = {}
        entries = []
        for size in SIZES:
            rgba = rasterise(layers, size)
            images[size] = rgba
            png = png_bytes(rgba, size, size)
            entries.append((size, png))
            if preview_dir:
                with open(os.path.join(preview_dir, f"{name}-{size}.png"), "wb") as fh:
                    fh.write(png)
        with open(os.path.join(DATA, name + ".ico"), "wb") as fh:
            fh.write(ico_bytes(entries))
        rendered.append((name, images))
        print(f"wrote data/{name}.ico ({', '.join(str(s) for s in SIZES)} px)")
    if preview_dir and rendered:
        write_sheet(os.path.join(preview_dir, "sheet.png"), rendered)
        print(f"previews in {preview_dir}")
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
