#!/usr/bin/python3
"""Draw the printer once, in space, and write it as printer.svg: one group a picture layer.

    model.py            write printer.svg
    model.py --check    exit status 1 unless printer.svg is what this program draws

The printer's axes: x to the right along its front, y from front to back, z upwards; the front's
lower left corner is the origin. The option trays hang below it, at z less than 0. One unit is about
one pixel of the 320 x 200 pictures. Seen from behind, the back stands where the front was, so x, y
and z mean the same places of the picture in both views.
"""
import math
import os
import sys

HERE = os.path.dirname(os.path.abspath(__file__))

# A parallel projection: where a unit of x, y and z goes in the picture, and the origin's place.
AXIS_X, AXIS_Y, AXIS_Z = (0.92, 0.095), (0.38, -0.34), (0.0, -1.0)
ORIGIN = (43.0, 134.5)

WIDTH, DEPTH, HEIGHT = 200, 110, 64
TRAY = 14                       # height of tray 1 within the printer and of each option tray
PANEL = 52                      # from here upwards the front is the control panel
COVER = (16, 50)                # the front cover's lower and upper edge
DISPLAY = (124, 160, 55, 61)    # x and z

COLOURS = {
    "black": "#000000", "white": "#ffffff",
    "ink": "#24282e", "dark": "#545a62", "mid": "#80868e", "soft": "#a8aeb6", "light": "#ccd1d7",
    "pale": "#e8ebef",
    "here": "#f06000", "tint": "#ffd096",
    "cyan": "#00a0e0", "magenta": "#e0007c", "yellow": "#ffd800",
    "honey": "#a85c14", "green": "#20a048", "red": "#d01020",
}


def at(x, y, z):
    return (ORIGIN[0] + AXIS_X[0] * x + AXIS_Y[0] * y + AXIS_Z[0] * z,
            ORIGIN[1] + AXIS_X[1] * x + AXIS_Y[1] * y + AXIS_Z[1] * z)


# ---- Lines and faces, each a line of SVG ---------------------------------------------------------

def attributes(fill, line, width):
    text = ' class="%s%s"' % (fill, " l-" + line if line else "")
    return text + (' stroke-width="%g"' % width if line and width != 1 else "")


def numbers(points):
    return " ".join("%.1f,%.1f" % p for p in points)


def flat(points, fill, line="ink", width=1.1):
    """A polygon of places of the picture."""
    return '<polygon%s points="%s"/>' % (attributes(fill, line, width), numbers(points))


def stroke(points, line="mid", width=0.9, dash=None):
    extra = ' stroke-dasharray="%s"' % dash if dash else ""
    return '<polyline%s%s points="%s"/>' % (attributes("hollow", line, width), extra,
                                            numbers(points))


def poly(points, fill, line="ink", width=1.1):
    return flat([at(*p) for p in points], fill, line, width)


def line(points, colour="mid", width=0.9, dash=None):
    return stroke([at(*p) for p in points], colour, width, dash)


def corners(a0, a1, b0, b1, radius):
    """A rectangle with round corners in a plane of two axes."""
    if not radius:
        return [(a0, b0), (a1, b0), (a1, b1), (a0, b1)]
    points = []
    for a, b, first in ((a1 - radius, b0 + radius, -90), (a1 - radius, b1 - radius, 0),
                        (a0 + radius, b1 - radius, 90), (a0 + radius, b0 + radius, 180)):
        for step in range(4):
            angle = math.radians(first + 30 * step)
            points.append((a + radius * math.cos(angle), b + radius * math.sin(angle)))
    return points


def front(x0, x1, z0, z1, fill, edge="mid", width=0.9, y=0, radius=0):
    return poly([(x, y, z) for x, z in corners(x0, x1, z0, z1, radius)], fill, edge, width)


def side(y0, y1, z0, z1, fill, edge="mid", width=0.9, x=WIDTH, radius=0):
    return poly([(x, y, z) for y, z in corners(y0, y1, z0, z1, radius)], fill, edge, width)


def top(x0, x1, y0, y1, fill, edge="mid", width=0.9, z=HEIGHT, radius=0):
    return poly([(x, y, z) for x, y in corners(x0, x1, y0, y1, radius)], fill, edge, width)


def box(x0, x1, y0, y1, z0, z1, fills=("pale", "light", "white"), edge="ink", width=1.1):
    """The front, right and top face of a box; its outline is darker than its inner edges."""
    lit, shaded, upper = fills
    inner = "mid" if edge == "ink" else edge
    outline = [(x0, y0, z0), (x1, y0, z0), (x1, y1, z0), (x1, y1, z1), (x0, y1, z1), (x0, y0, z1)]
    return [front(x0, x1, z0, z1, lit, None, y=y0), side(y0, y1, z0, z1, shaded, None, x=x1),
            top(x0, x1, y0, y1, upper, None, z=z1),
            line([(x0, y0, z1), (x1, y0, z1), (x1, y1, z1)], inner),
            line([(x1, y0, z0), (x1, y0, z1)], inner),
            poly(outline, "hollow", edge, width)]


def ring(axis, centre, radius, along, start=0, end=360, step=15):
    """Points of a circle around an axis, 'x', 'y' or 'z', at a place along it."""
    points = []
    for k in range(int((end - start) / step) + 1):
        angle = math.radians(start + k * step)
        a, b = centre[0] + radius * math.cos(angle), centre[1] + radius * math.sin(angle)
        points.append({"x": (along, a, b), "y": (a, along, b), "z": (a, b, along)}[axis])
    return points


def hull(points):
    """The convex outline of places of the picture."""
    points = sorted(set(points))
    chains = []
    for run in (points, points[::-1]):
        chain = []
        for p in run:
            while len(chain) > 1 and ((chain[-1][0] - chain[-2][0]) * (p[1] - chain[-2][1]) -
                                      (chain[-1][1] - chain[-2][1]) * (p[0] - chain[-2][0])) <= 0:
                chain.pop()
            chain.append(p)
        chains.append(chain[:-1])
    return chains[0] + chains[1]


def roller(x0, x1, y, z, radius, body="soft", gleam="white", shade="mid", cap="light", edge="ink",
           width=1.0):
    """A cylinder along x: body, a shaded and a gleaming strip, the cap at its right end."""
    def strip(first, last, colour):
        a = ring("x", (y, z), radius * 0.97, x0, first, last)
        b = ring("x", (y, z), radius * 0.97, x1, first, last)
        return poly(a + b[::-1], colour, None)
    ends = [at(*p) for x in (x0, x1) for p in ring("x", (y, z), radius, x)]
    return [flat(hull(ends), body, None), strip(195, 255, shade), strip(105, 150, gleam),
            flat(hull(ends), "hollow", edge, width),
            poly(ring("x", (y, z), radius, x1), cap, edge, width)]


def within(points, window):
    """The part of a polygon that lies in a convex one, both places of the picture."""
    for k, (ax, ay) in enumerate(window):
        bx, by = window[(k + 1) % len(window)]

        def depth(p):
            return (bx - ax) * (p[1] - ay) - (by - ay) * (p[0] - ax)
        kept = []
        for p, q in zip(points, points[1:] + points[:1]):
            a, b = depth(p), depth(q)
            if a >= 0:
                kept.append(p)
            if a * b < 0:
                kept.append((p[0] + (q[0] - p[0]) * a / (a - b), p[1] + (q[1] - p[1]) * a / (a - b)))
        points = kept
    return points


# ---- Signs -----------------------------------------------------------------------------------------

SHAFT, HEAD, HEAD_LENGTH = 6.0, 13.0, 8.5   # of every arrow


def arrow(points, both=False, fill="here", edge="ink", scale=1):
    """An arrow along places of the picture, with a head at its end or at both ends."""
    def trim(run, length):
        run = list(run)
        while len(run) > 2 and math.dist(run[-1], run[-2]) < length:
            length -= math.dist(run[-1], run[-2])
            run.pop()
        (ax, ay), (bx, by) = run[-2], run[-1]
        share = (math.dist(run[-2], run[-1]) - length) / math.dist(run[-2], run[-1])
        run[-1] = (ax + (bx - ax) * share, ay + (by - ay) * share)
        return run
    tip, tail = points[-1], points[0]
    run = trim(points, HEAD_LENGTH * scale)
    if both:
        run = trim(run[::-1], HEAD_LENGTH * scale)[::-1]

    def offset(k, distance):
        a, b = run[max(k - 1, 0)], run[min(k + 1, len(run) - 1)]
        length = math.dist(a, b)
        return (run[k][0] - (b[1] - a[1]) / length * distance,
                run[k][1] + (b[0] - a[0]) / length * distance)
    last = len(run) - 1
    half, head = SHAFT / 2 * scale, HEAD / 2 * scale
    left = [offset(k, half) for k in range(last + 1)]
    right = [offset(k, -half) for k in range(last + 1)]
    shape = left + [offset(last, head), tip, offset(last, -head)] + right[::-1]
    if both:
        shape += [offset(0, -head), tail, offset(0, head)]
    return flat(shape, fill, edge, 1.1)


def way(a, b, both=False):
    """A straight arrow between two places of the printer."""
    return arrow([at(*a), at(*b)], both)


def zigzag(places, width=2.4):
    return [stroke(places, "red", width)]


def letter(name, x, z, size, y, colour, width=1.6):
    """A letter or digit on a plane that faces the viewer, as strokes; x and z are its middle."""
    strokes = {
        "C": [[(.5 + .52 * math.cos(math.radians(a)), .5 + .52 * math.sin(math.radians(a)))
               for a in range(48, 320, 24)]],
        "M": [[(0, 0), (0, 1), (.5, .4), (1, 1), (1, 0)]],
        "Y": [[(0, 1), (.5, .5), (1, 1)], [(.5, .5), (.5, 0)]],
        "K": [[(0, 0), (0, 1)], [(1, 1), (0, .42)], [(.25, .58), (1, 0)]],
        "1": [[(.2, .75), (.55, 1), (.55, 0)]],
        "2": [[(0, .75), (.25, 1), (.75, 1), (1, .75), (1, .6), (0, 0), (1, 0)]],
        "3": [[(0, .85), (.25, 1), (.75, 1), (1, .78), (.75, .54), (.4, .54)],
              [(.75, .54), (1, .28), (.75, 0), (.25, 0), (0, .15)]],
    }[name]
    wide, high = size * 0.8, size
    return [line([(x + (a - .5) * wide, y, z + (b - .5) * high) for a, b in s], colour, width)
            for s in strokes]


# ---- The printer from the front ----------------------------------------------------------------------

def feet(z):
    return [box(x, x + 12, y, y + 8, z - 2.5, z, ("ink", "ink", "ink"), "ink", 0)
            for x, y in ((8, 6), (WIDTH - 22, 6), (WIDTH - 14, DEPTH - 16))]


def shadow(z):
    """On the ground to the right of the box that stands there with its bottom at z."""
    z -= 2
    return [poly([(WIDTH - 6, 0, z), (WIDTH + 12, 4, z), (WIDTH + 26, DEPTH - 6, z),
                  (WIDTH + 10, DEPTH + 4, z), (WIDTH, DEPTH, z)], "pale", None),
            poly([(WIDTH - 6, 0, z), (WIDTH + 6, 4, z), (WIDTH + 15, DEPTH - 6, z),
                  (WIDTH, DEPTH, z)], "light", None)]


def cleared(z):
    """White over the feet and the shadow of what stands on top of z."""
    return [poly([(2, 0, z), (2, 0, z - 6), (WIDTH + 2, -4, z - 6), (WIDTH + 32, 0, z - 6),
                  (WIDTH + 32, DEPTH + 8, z), (WIDTH, DEPTH + 8, z), (WIDTH, 0, z)],
                 "white", None)]


def tray_front(z, number):
    return [front(4, WIDTH - 4, z + 2, z + TRAY - 2, "white", "mid", radius=2),
            front(78, 122, z + 4.6, z + 9.4, "dark", None, radius=1.5),
            letter(number, 184, z + 7, 6, 0, "dark", 1.2)]


def unit_body(z):
    outline = [(0, 0, z + TRAY), (0, 0, z), (WIDTH, 0, z), (WIDTH, DEPTH, z),
               (WIDTH, DEPTH, z + TRAY), (WIDTH, 0, z + TRAY)]
    return [front(0, WIDTH, z, z + TRAY, "pale", None), side(0, DEPTH, z, z + TRAY, "light", None),
            side(0, DEPTH, z, z + 6, "soft", None), line([(WIDTH, 0, z), (WIDTH, 0, z + TRAY)]),
            poly(outline, "hollow", "ink", 1.2)]


def output_tray(front_edge, back_edge, deep):
    """The hollow in the top, deep at the slot where sheets come out."""
    a, b, x0, x1 = front_edge, back_edge, 16, WIDTH - 16
    low = HEIGHT - deep
    rim = [at(*p) for p in ((x0, a, HEIGHT), (x0, b, HEIGHT), (x1, b, HEIGHT), (x1, a, HEIGHT))]

    def inside(points, fill):
        return flat(within([at(*p) for p in points], rim), fill, None)
    middle = ((a + b) / 2, HEIGHT - deep / 2)
    return [flat(rim, "mid", None),
            inside([(x0, a, HEIGHT), (x1, a, HEIGHT), (x1, b, low), (x0, b, low)], "light"),
            inside([(x0, a, HEIGHT), (x1, a, HEIGHT), (x1, *middle), (x0, *middle)], "pale"),
            inside([(x0, b, HEIGHT), (x1, b, HEIGHT), (x1, b, low), (x0, b, low)], "dark"),
            inside([(x0 + 12, b, HEIGHT - 3), (x1 - 14, b, HEIGHT - 3), (x1 - 14, b, low + 3),
                    (x0 + 12, b, low + 3)], "ink"),
            flat(rim, "hollow", "mid", .9)]


def printed_sheet():
    return [poly([(46, 30, HEIGHT), (146, 30, HEIGHT), (146, 92, HEIGHT - 9), (46, 92, HEIGHT - 9)],
                 "white", "dark", 0.9)] + [
            line([(60, y, HEIGHT - 9 * (y - 30) / 62), (x, y, HEIGHT - 9 * (y - 30) / 62)], "soft",
                 1.2)
            for y, x in ((43, 132), (56, 104), (72, 132))]


def panel(lit="green", screen="cyan"):
    x0, x1, z0, z1 = DISPLAY
    return [front(0, WIDTH, PANEL, HEIGHT, "dark", None),
            front(x0, x1, z0, z1, screen, "ink", radius=1),
            line([(x0 + 4, 0, z1 - 2), (x0 + 24, 0, z1 - 2)], "white", 1.2),
            line([(x0 + 4, 0, z0 + 2), (x0 + 16, 0, z0 + 2)], "white", 1.2),
            poly(ring("y", (x1 + 8, 58), 2.4, 0), lit, "ink", 0.8)] + [
            front(x, x + 5, 55.5, 60.5, "light", "ink", 0.7, radius=1) for x in (173, 181, 189)]


def alarm():
    """The display and the lamp while there is an error."""
    x0, x1, z0, z1 = DISPLAY
    middle = (x0 + x1) / 2
    return [front(x0, x1, z0, z1, "red", "ink", radius=1),
            line([(middle, 0, z1 - 0.8), (middle, 0, z0 + 2.6)], "white", 1.6),
            line([(middle, 0, z0 + 1.4), (middle, 0, z0 + 1.2)], "white", 1.6),
            poly(ring("y", (x1 + 8, 58), 2.4, 0), "red", "ink", 0.8)]


def front_cover():
    z0, z1 = COVER
    emblem = [front(14 + 8 * k, 20 + 8 * k, z0 + 5, z0 + 11, c, None)
              for k, c in enumerate(("cyan", "magenta", "yellow", "black"))]
    return [front(4, WIDTH - 4, z0, z1, "white", "mid", radius=3),
            front(5, WIDTH - 5, z0 + 1, z0 + 12, "pale", None, radius=2.4),
            front(80, 120, z1 - 7, z1 - 2, "soft", "mid", radius=2)] + emblem


def closed_front():
    """The front as it is closed; whatever was drawn before it there is hidden."""
    return [front(1, WIDTH - 1, TRAY - 1, PANEL, "pale", None), front_cover()]


def vents():
    return [line([(WIDTH, 36, z), (WIDTH, 80, z)], "mid", 1.8) for z in (36, 42, 48)]


def printer_front():
    return [box(0, WIDTH, 0, DEPTH, 0, HEIGHT),
            side(1, DEPTH - 1, 0.6, 18, "soft", None), vents(),
            line([(WIDTH, 0, TRAY + 1), (WIDTH, DEPTH, TRAY + 1)], "mid"),
            output_tray(18, 94, 13), printed_sheet(),
            panel(), front_cover(), tray_front(0, "1"),
            poly([(0, 0, 0), (WIDTH, 0, 0), (WIDTH, DEPTH, 0), (WIDTH, DEPTH, HEIGHT),
                  (0, DEPTH, HEIGHT), (0, 0, HEIGHT)], "hollow", "ink", 1.2)]


def unit_front(z, number):
    return [unit_body(z), tray_front(z, number)]


# ---- Parts and what they say, from the front ----------------------------------------------------------

def drawer(z, number):
    """A tray drawn out, empty, with paper on its way into it."""
    out = 36
    x0, x1 = 5, WIDTH - 5
    low, high = z + 2, z + TRAY - 2
    bed = low + 1
    paper = (60, 140, -33, -3)
    a, b, c, d = paper
    hover = z + 31
    return [front(x0 - 1, x1 + 1, low, high, "ink", "ink"),
            poly([(x0, -out, bed), (x1, -out, bed), (x1, 0, bed), (x0, 0, bed)], "mid", None),
            poly([(x0, -out, bed), (x1, -out, bed), (x1, -14, bed), (x0, -14, bed)], "soft", None),
            line([(a, c, bed), (b, c, bed), (b, d, bed), (a, d, bed), (a, c, bed)], "white", 1.2,
                 "4 2.5"),
            poly([(x0, -out, bed), (x0, 0, bed), (x0, 0, high), (x0, -out, high)], "light", "dark",
                 .9),
            poly([(x1, -out, low), (x1, 0, low), (x1, 0, high), (x1, -out, high)], "soft", "ink"),
            box(x0 - 2, x1 + 2, -out - 5, -out, low - 1, high, ("here", "here", "here")),
            front(x0 + 1, x1 - 1, low + 1.5, high - 2.5, "tint", None, y=-out - 5, radius=1),
            front(78, 122, low + 2, low + 6.5, "mid", "dark", y=-out - 5, radius=1.5),
            letter(number, 184, low + 4.3, 5.6, -out - 5, "ink", 1.2),
            box(a, b, c, d, hover, hover + 8, ("white", "light", "white")),
            [line([(a, c, hover + k), (b, c, hover + k), (b, d, hover + k)], "soft", .8)
             for k in (2.7, 5.4)],
            way((100, -26, hover - 2), (100, -26, bed + 4))]


SLOTS = (("C", "cyan", 9), ("M", "magenta", 45), ("Y", "yellow", 81), ("K", "black", 117))
SLOT_WIDTH = 26
BAY = (156, 190)     # of the waste toner bottle
INSIDE = (18, 49)    # z of the slots


def behind_front_cover():
    z0, z1 = COVER
    parts = [front(4, WIDTH - 4, z0, z1, "dark", "ink", radius=2),
             front(5, WIDTH - 5, z1 - 4, z1 - 0.5, "ink", None)]
    for name, colour, x in SLOTS:
        ink = "ink" if name == "Y" else "white"
        parts += [front(x, x + SLOT_WIDTH, *INSIDE, "soft", "ink", radius=2),
                  front(x + 3, x + SLOT_WIDTH - 3, INSIDE[0] + 3, INSIDE[0] + 14, colour, "ink",
                        .8, radius=1),
                  letter(name, x + SLOT_WIDTH / 2, INSIDE[0] + 8.5, 7, 0, ink, 1.3),
                  front(x + 5, x + SLOT_WIDTH - 5, INSIDE[1] - 11, INSIDE[1] - 6, "light", "mid",
                        .8, radius=1)]
    return parts + [front(*BAY, *INSIDE, "soft", "ink", radius=2),
                    front(BAY[0] + 6, BAY[1] - 6, INSIDE[0] + 2, INSIDE[1] - 8, "mid", "dark",
                          radius=2),
                    front(BAY[0] + 13, BAY[1] - 13, INSIDE[1] - 8, INSIDE[1] - 4, "mid", "dark")]


def lowered_cover(fills, inner):
    z = COVER[0]
    return [box(4, WIDTH - 4, -36, -2, z - 4, z, fills),
            top(12, WIDTH - 12, -31, -7, inner, "soft", z=z, radius=4)]


def open_front(fills=("light", "soft", "pale"), inner="white"):
    return [behind_front_cover(), lowered_cover(fills, inner)]


def empty_slot(x0, x1, z0, z1):
    """An opening that a part belongs into, framed."""
    return [front(x0, x1, z0, z1, "ink", "here", 2.6, radius=2),
            front(x0 + 3, x1 - 1.5, z0 + 1.5, z1 - 3, "dark", None),
            front(x0 + 5, x1 - 1.5, z0 + 1.5, z1 - 6, "ink", None)]


def cartridge(name, colour, x):
    """An empty slot and its cartridge taken out of it, with the last of the toner in its window."""
    x0, x1 = x + 1, x + SLOT_WIDTH - 3
    near, far, low, high = -50, -16, 0, 27
    letters = "ink" if name == "Y" else "white"
    shade = {"C": "cyan", "M": "magenta", "Y": "yellow", "K": "ink"}[name]
    return [empty_slot(x, x + SLOT_WIDTH, *INSIDE),
            box(x0, x1, near, far, low, high, (colour, shade, "light")),
            poly([(x1, near, low), (x1, far, low), (x1, far, high), (x1, near, high)],
                 "dark" if name == "K" else shade, "ink"),
            poly([(x0 + 4, near + 5, high), (x1 - 4, near + 5, high), (x1 - 4, far - 5, high),
                  (x0 + 4, far - 5, high)], "white", "mid", .8),
            side(near + 8, far - 8, low + 4, high - 4, "white", "ink", .8, x=x1, radius=1.5),
            side(near + 9, far - 9, low + 5, low + 8, colour, None, x=x1),
            letter(name, (x0 + x1) / 2, (low + high) / 2 + 1, 13, near, letters, 2.4),
            way((x0 + 10, near - 4, 5), (x0 + 10, near - 54, 5), both=True)]


def toner(k):
    return cartridge(*SLOTS[k])


def waste_bottle():
    x0, x1, near, far, low, high = BAY[0] + 3, BAY[1] - 5, -54, -28, 0, 26
    middle = (x0 + x1) / 2
    specks = [front(x0 + dx, x0 + dx + 2.6, low + dz, low + dz + 2.6, c, None, y=near)
              for dx, dz, c in ((4, 6, "cyan"), (10, 12, "magenta"), (17, 5, "yellow"),
                                (20, 14, "cyan"), (5, 17, "yellow"), (13, 18, "magenta"),
                                (12, 4, "soft"), (21, 20, "soft"))]
    return [empty_slot(*BAY, *INSIDE),
            box(x0, x1, near, far, low, high, ("white", "light", "white")),
            front(x0 + 1.6, x1 - 1.6, low + 1.6, high - 1.5, "dark", None, y=near, radius=1),
            side(near + 1.6, far - 1.6, low + 1.6, high - 1.5, "mid", None, x=x1),
            specks,
            box(middle - 5, middle + 5, (near + far) / 2 - 5, (near + far) / 2 + 5, high, high + 5,
                ("soft", "mid", "light")),
            way((middle, near - 4, 8), (middle, near - 50, 8))]


def closing_front_cover():
    x, reach = -14, 38
    arc = ring("x", (0, COVER[0]), reach, x, 172, 112, -6)
    return arrow([at(*p) for p in arc])


RIM = (8, WIDTH - 8, 14, 102)   # x and y of the opening below the top cover
LID = 26                        # how far the top cover stands up


def inside_from_above():
    x0, x1, y0, y1 = RIM
    z = HEIGHT - 9
    rim = [at(*p) for p in ((x0, y0, HEIGHT), (x0, y1, HEIGHT), (x1, y1, HEIGHT), (x1, y0, HEIGHT))]

    def inside(points, fill):
        return flat(within([at(*p) for p in points], rim), fill, None)
    return [flat(rim, "dark", None),
            inside([(x0, y1, HEIGHT), (x1, y1, HEIGHT), (x1, y1, z), (x0, y1, z)], "ink"),
            inside([(x0, y0, HEIGHT), (x0, y1, HEIGHT), (x0, y1, z), (x0, y0, z)], "mid"),
            flat(rim, "hollow", "ink", 1)]


def fuser(z=HEIGHT - 5):
    """The two rollers that fix the toner, at the back."""
    return [roller(24, 174, 92, z, 6, "mid", "soft", "dark", "soft", width=.8),
            roller(24, 174, 80, z, 6, "soft", "pale", "mid", "light", width=.8)]


DRUM = (26, 138, 30, 54)        # x and y of the drum unit's cradle
OIL = (152, 182, 30, 56)        # x and y of the oil bottle's place


def drum_in_place():
    x0, x1, y0, y1 = DRUM
    return [box(x0, x1, y0, y1, HEIGHT - 9, HEIGHT - 2, ("mid", "dark", "soft"), width=.9),
            top(x0 + 40, x1 - 40, y0 + 9, y1 - 9, "mid", "dark", z=HEIGHT - 2, radius=3)]


def bottle_in_place():
    x0, x1, y0, y1 = OIL
    return [box(x0 + 3, x1 - 3, y0 + 2, y1 - 2, HEIGHT - 9, HEIGHT - 2, ("mid", "dark", "soft"),
                width=.9),
            poly(ring("z", ((x0 + x1) / 2, (y0 + y1) / 2), 6, HEIGHT - 2), "mid", "dark", .8)]


def raised_lid(fill, inner, edge="ink"):
    """The top cover standing up at its hinge along the back."""
    y0, y1 = DEPTH - 6, DEPTH + 2
    x0, x1 = 6, WIDTH - 6
    z0, z1 = HEIGHT, HEIGHT + LID

    def inset(a):
        share = a / LID
        return [(x0 + a, y0 + (y1 - y0) * share, z0 + a),
                (x1 - a, y0 + (y1 - y0) * share, z0 + a),
                (x1 - a, y1 - (y1 - y0) * share, z1 - a), (x0 + a, y1 - (y1 - y0) * share, z1 - a)]
    return [poly([(x1, y0, z0), (x1, y0 + 7, z0), (x1, y1 + 7, z1), (x1, y1, z1)], fill, edge),
            poly([(x0, y1, z1), (x1, y1, z1), (x1, y1 + 7, z1), (x0, y1 + 7, z1)], fill, edge),
            poly(inset(0), fill, edge), poly(inset(4), inner, "mid", .9),
            [line([(x, y0 + 2, z0 + 6), (x, y1 - 2, z1 - 6)], "soft", 1.2)
             for x in range(36, 180, 16)]]


def open_top(fill="light", inner="pale"):
    return [raised_lid(fill, inner), inside_from_above(), fuser(), drum_in_place(),
            bottle_in_place()]


def heat(places, y, z):
    """Waves of heat above the fuser."""
    def wave(x):
        return [(x + 3.4 * math.sin(k * math.pi / 4), y, z + k * 1.4) for k in range(9)]
    return [[line(wave(x), "white", 4), line(wave(x), "red", 2)] for x in places]


def framed_place(x0, x1, y0, y1):
    z = HEIGHT - 2
    return [top(x0, x1, y0, y1, "ink", "here", 2.4, z=z, radius=2),
            top(x0 + 4, x1 - 3, y0 + 6, y1 - 2, "dark", None, z=z - 2)]


def drum_unit():
    """The drum unit above its cradle: housing with a handle and the green drum along it."""
    x0, x1, y0, y1 = DRUM
    z = HEIGHT + 15
    middle = (x0 + x1) / 2
    grip = [(-24, 8), (-24, 17), (24, 17), (24, 8), (18, 8), (18, 12.5), (-18, 12.5), (-18, 8)]
    return [framed_place(x0, x1, y0, y1),
            box(x0, x1, y0 + 6, y1, z, z + 9, ("dark", "ink", "mid")),
            roller(x0 + 3, x1 - 5, y0 + 2, z, 8, "green", "white", "dark", "green"),
            box(x0 - 3, x0 + 3, y0 - 6, y1, z - 8, z + 10, ("dark", "ink", "mid")),
            box(x1 - 5, x1, y0 - 6, y1, z - 8, z + 10, ("dark", "ink", "mid")),
            roller(x1, x1 + 5, y0 + 2, z, 5, "soft", "white", "mid", "light", width=.8),
            poly([(middle + dx, 44, z + dz) for dx, dz in grip], "here", "ink"),
            way((168, 40, HEIGHT - 3), (168, 40, HEIGHT + 36), both=True)]


def oil_bottle():
    """The oil bottle above its place, with the last of the oil at its bottom."""
    x0, x1, y0, y1 = OIL[0] + 2, OIL[1] - 2, OIL[2] + 4, OIL[3] - 4
    z, rest, high = HEIGHT + 3, 5, 24
    cx, cy = (x0 + x1) / 2, (y0 + y1) / 2
    drop = [(cx + 5.2 * math.sin(math.radians(a)) * (1 - (a == 180)), y0,
             z + 12 - 5.2 * math.cos(math.radians(a)) + (6 if a == 180 else 0))
            for a in range(0, 360, 20) if not 125 < a < 180 and not 180 < a < 235]
    hot = [roller(24, 146, 92, HEIGHT - 5, 6, "mid", "soft", "dark", "soft", width=.8),
           roller(24, 146, 80, HEIGHT - 5, 6, "red", "tint", "honey", "tint", width=.8),
           heat((40, 74, 108), 80, HEIGHT + 3)]
    return [hot, framed_place(*OIL),
            box(x0, x1, y0, y1, z, z + high, ("pale", "light", "tint")),
            front(x0 + .7, x1 - .7, z + .7, z + rest, "honey", None, y=y0),
            side(y0 + .7, y1 - .7, z + .7, z + rest, "honey", None, x=x1),
            poly(drop, "honey", "ink", .9),
            box(cx - 7, cx + 7, cy - 5, cy + 5, z + high, z + high + 4, ("honey", "honey", "tint")),
            box(cx - 5, cx + 5, cy - 4, cy + 4, z + high + 4, z + high + 9,
                ("honey", "honey", "honey")),
            way((136, 44, HEIGHT - 3), (136, 44, HEIGHT + 36), both=True)]


def cleaner():
    """The fuser's hot rollers and, above them, the brush that cleans them."""
    z = HEIGHT + 19
    x0, x1 = 22, 172
    hairs = [line([(x, 84, z), (x, 84, z - 8)], "honey", 2) for x in range(x0 + 6, x1 - 2, 6)]
    return [top(14, 182, 62, 101, "ink", "here", 2.6, z=HEIGHT - 1, radius=2),
            roller(22, 170, 92, HEIGHT - 6, 7, "mid", "soft", "dark", "soft", width=.8),
            roller(22, 170, 74, HEIGHT - 5, 8, "red", "tint", "honey", "tint", width=.9),
            heat((34, 74, 114, 154), 78, HEIGHT + 4),
            poly([(x0 + 3, 84, z), (x1 - 3, 84, z), (x1 - 3, 84, z - 8), (x0 + 3, 84, z - 8)],
                 "tint", "ink", 1), hairs,
            box(x0, x1, 82, 92, z, z + 6, ("mid", "dark", "soft")),
            poly([(76, 87, z + 6), (76, 87, z + 14), (120, 87, z + 14), (120, 87, z + 6),
                  (114, 87, z + 6), (114, 87, z + 10), (82, 87, z + 10), (82, 87, z + 6)],
                 "here", "ink"),
            way((194, 84, HEIGHT - 2), (194, 84, HEIGHT + 36), both=True)]


def full_output():
    """A heap of sheets far above the brim of the output tray."""
    x0, x1, y0, y1 = 34, 152, 26, 94
    count, low, high = 9, HEIGHT - 1, HEIGHT + 27
    shifts = (0, 2, -1, 3, -2, 1, -3, 2, 0)
    each = (high - low) / count
    frame = [at(x, y, z) for x in (x0 - 6, x1 + 6) for y in (y0 - 4, y1 + 4)
             for z in (low - 1, high + 2)]
    return [flat(hull(frame), "here", "ink"),
            [box(x0 + shifts[k], x1 + shifts[k], y0, y1, low + each * k, low + each * (k + 1),
                 ("white", "light", "white"), "dark", .8) for k in range(count)],
            [line([(x0 + 16, y, high), (x, y, high)], "soft") for y, x in
             ((38, 138), (46, 138), (54, 104), (70, 132), (78, 120))],
            way((182, 66, HEIGHT - 2), (182, 66, HEIGHT + 36))]


def wrench(x, y, scale, fill="here", edge="ink"):
    """A wrench with open jaws, standing at 45 degrees."""
    head = [(-4.6, 6.5), (-11.5, 13), (-11.5, 24), (-5.5, 32), (-5.5, 19.5), (0, 16), (5.5, 19.5),
            (5.5, 32), (11.5, 24), (11.5, 13), (4.6, 6.5)]
    tail = [(4.6, -24)] + [(4.6 * math.cos(math.radians(a)), -24 - 4.6 * math.sin(math.radians(a)))
                           for a in range(20, 180, 20)] + [(-4.6, -24)]
    turn = math.radians(45)
    return flat([(x + scale * (a * math.cos(turn) + b * math.sin(turn)),
                  y + scale * (a * math.sin(turn) - b * math.cos(turn))) for a, b in head + tail],
                fill, edge, 1.2)


def circle(x, y, radius, fill, edge="ink", width=1.2):
    return '<circle%s cx="%.1f" cy="%.1f" r="%g"/>' % (attributes(fill, edge, width), x, y, radius)


def service():
    x, y = at(100, 0, 34)
    return [circle(x, y, 41, "ink", None), circle(x, y, 40, "here", None),
            circle(x, y, 35, "white"), wrench(x - 2.5, y + 2.5, 1.04)]


def caution():
    (ax, ay), (bx, by) = at(100, 0, 62), at(100, 0, 14)
    return [flat([(ax, ay - 24), (bx + 46, by + 4), (bx - 46, by + 4)], "yellow", "ink", 5),
            flat([(ax - 6, ay + 4), (ax + 6, ay + 4), (ax + 3, by - 15), (ax - 3, by - 15)], "ink",
                 None),
            circle(bx, by - 6, 5, "ink", None)]


def no_power():
    """The mains plug out of its socket, and a dark display."""
    x0, x1, z0, z1 = DISPLAY
    y = -6
    start, end = at(WIDTH, 80, 4), at(216, y, 1)
    hang = [(start[0] - 4 * math.sin(math.pi * k / 12) + (end[0] - start[0]) * k / 12,
             start[1] + 16 * math.sin(math.pi * k / 12) + (end[1] - start[1]) * k / 12)
            for k in range(13)]
    return [front(x0, x1, z0, z1, "ink", "ink", radius=1),
            poly(ring("y", (x1 + 8, 58), 2.4, 0), "ink", "ink", .8),
            stroke(hang, "ink", 4), stroke(hang, "dark", 1.6),
            box(236, 249, y, y + 3, 5, 8, ("soft", "mid", "light"), width=.9),
            box(236, 249, y, y + 3, -6, -3, ("soft", "mid", "light"), width=.9),
            roller(214, 222, y, 1, 5, "here", "tint", "honey", "here"),
            roller(221, 237, y, 1, 9, "here", "tint", "honey", "here"),
            front(262, 290, -16, 22, "white", "ink", 1.1, y=y, radius=3),
            poly(ring("y", (276, 3), 10.5, y), "light", "ink", 1),
            [poly(ring("y", (276, 3 + dz), 2, y), "ink", None) for dz in (-4, 4)]]


# ---- The printer from behind ------------------------------------------------------------------------

BACK_COVER = (24, 144, 22, 59)
TRAY_COVER = (30, 138)
LOW_TRAY_COVER = (108, 190)   # of tray 3, where no door of the duplex unit hides it


def cable():
    """The mains cable from its inlet to the right; it hangs freely whatever stands below."""
    x, y = at(175, -12, 10)
    points = []
    for k in range(13):
        t = k / 12
        points.append((x + (313 - x) * t, y + 15 * math.sin(math.pi * t) ** .7 - 2 * t))
    return [stroke(points, "ink", 2.8), stroke(points, "mid", .9),
            box(168, 182, -12, -1, 6, 15, ("dark", "ink", "mid"), width=.9)]


def turned_sign():
    """A small printer with an arrow round it: this is the view from behind."""
    global ORIGIN, AXIS_X, AXIS_Y, AXIS_Z
    saved = ORIGIN, AXIS_X, AXIS_Y, AXIS_Z
    scale = 0.13
    ORIGIN = (16.5, 23.0)
    AXIS_X, AXIS_Y, AXIS_Z = [(a * scale, b * scale) for a, b in (AXIS_X, AXIS_Y, AXIS_Z)]
    small = box(0, WIDTH, 0, DEPTH, 0, HEIGHT + 30, ("light", "soft", "white"), width=.9)
    orbit = [at(*p) for p in ring("z", (100, 55), 165, 10, -215, 65, 10)]
    ORIGIN, AXIS_X, AXIS_Y, AXIS_Z = saved
    return [stroke(orbit[:9], "dark", 2.4), small, arrow(orbit[7:], fill="dark", edge=None,
                                                         scale=.62)]


def sockets():
    return [front(156, 190, 4, 58, "light", "mid", radius=2),
            front(166, 184, 5.5, 19, "ink", "ink", radius=1.5),
            front(162, 184, 42, 52, "ink", "ink", radius=1), front(164, 182, 44, 48, "soft", None),
            front(162, 172, 26, 36, "ink", "ink", .8, radius=1),
            front(176, 184, 27, 34, "ink", "ink", .8, radius=1)]


def back_cover():
    x0, x1, z0, z1 = BACK_COVER
    return [front(x0, x1, z0, z1, "white", "mid", radius=3),
            front(x0 + 1, x1 - 1, z0 + 1, z0 + 14, "pale", None, radius=2.4),
            front(70, 98, z1 - 7, z1 - 2.5, "soft", "mid", radius=2)]


def printer_back():
    outline = [(0, 0, 0), (WIDTH, 0, 0), (WIDTH, DEPTH, 0), (WIDTH, DEPTH, HEIGHT),
               (0, DEPTH, HEIGHT), (0, 0, HEIGHT)]
    x0, x1, a, b = 16, WIDTH - 16, 16, 92
    return [box(0, WIDTH, 0, DEPTH, 0, HEIGHT, ("pale", "light", "white")),
            side(1, DEPTH - 1, 0.6, 18, "soft", None), vents(),
            top(x0, x1, a, b, "light", "mid"),
            poly([(x0, a, HEIGHT), (x0 + 5, a + 26, HEIGHT - 4), (x0 + 2, b, HEIGHT), (x0, b, HEIGHT)],
                 "mid", None),
            poly([(x0 + 5, a + 26, HEIGHT - 4), (x1, a + 26, HEIGHT - 4), (x1, b, HEIGHT),
                  (x0 + 2, b, HEIGHT)], "pale", None),
            poly([(54, a, HEIGHT), (154, a, HEIGHT), (154, 76, HEIGHT), (54, 76, HEIGHT)], "white",
                 "dark", .9),
            [line([(66, y, HEIGHT), (x, y, HEIGHT)], "soft") for y, x in
             ((66, 142), (58, 142), (50, 120), (34, 142))],
            [line([(6, 0, z), (18, 0, z)], "mid", 1.2) for z in range(22, 56, 4)],
            back_cover(), sockets(),
            poly(outline, "hollow", "ink", 1.2)]


def unit_back(z, cover):
    x0, x1 = cover
    middle = (x0 + x1) / 2
    return [unit_body(z), front(x0, x1, z + 2.5, z + TRAY - 2.5, "white", "mid", radius=2),
            front(middle - 8, middle + 8, z + 8, z + 10.5, "soft", "mid", .7, radius=1)]


def open_back_cover():
    x0, x1, z0, z1 = BACK_COVER
    return [front(x0, x1, z0, z1, "dark", "here", 2.6, radius=2),
            front(x0 + 2, x1 - 2, z1 - 12, z1 - 2, "ink", None),
            roller(x0 + 8, x1 - 10, 2, z0 + 29, 3.4, "mid", "soft", "dark", "soft", width=.8),
            roller(x0 + 6, x1 - 8, 0, z0 + 15, 6.5, "soft", "white", "mid", "light", width=.9),
            box(x0, x1, -34, -2, z0 - 4.5, z0 - 1, ("here", "here", "tint")),
            top(x0 + 8, x1 - 8, -30, -7, "white", "soft", z=z0 - 1, radius=4),
            [line([(x, -27, z0 - 1), (x, -10, z0 - 1)], "light", 1.2) for x in range(48, 130, 14)]]


def jammed(x0, x1, folds):
    """A sheet in folds, along places (y, z) from where it is stuck."""
    parts = []
    for k, (a, b) in enumerate(zip(folds, folds[1:])):
        lean = (2.5, -2.5)[k % 2]
        parts.append(poly([(x0 - lean, *a), (x1 - lean, *a), (x1 + lean, *b), (x0 + lean, *b)],
                          ("white", "pale")[k % 2], "ink", 1))
    return parts


def flash(points):
    """The red zigzag of a jam, with a white rim."""
    return [stroke(points, "white", 5), stroke(points, "red", 2.8)]


def back_jam():
    folds = [(0, 40), (-10, 46), (-TRAY, 33), (-26, 37), (-2 * TRAY, 24), (-42, 27)]
    a, b = at(56, -4, 40), at(106, -34, 22)
    w = [at(58 + 8 * k, -24, 30 + (5 if k % 2 else -5)) for k in range(7)]
    return [open_back_cover(), jammed(52, 112, folds), flash(w),
            way((31, -28, 42), (31, -92, 42))]


DUPLEX = (18, 160, -30, 0, -15, 57)
UPPER = (22, 114, 34, 54)
LOWER = (22, 114, -12, 32)


def turning(x, z, size, y):
    """The sign of two-sided printing: a sheet and two turning arrows."""
    def arc(first, last):
        return [at(x + size * .95 * math.cos(math.radians(a)), y,
                   z + size * .95 * math.sin(math.radians(a)))
                for a in range(first, last, 10 if last > first else -10)]

    def bow(points):
        (ax, ay), (bx, by) = points[-2], points[-1]
        length = math.dist(points[-2], points[-1])
        ux, uy = (bx - ax) / length, (by - ay) / length
        return [stroke(points, "ink", 2.4),
                flat([(bx + 5 * ux, by + 5 * uy), (bx - 4 * uy, by + 4 * ux),
                      (bx + 4 * uy, by - 4 * ux)], "ink", None)]
    w, h = size * .46, size * .66
    return [front(x - w, x + w, z - h, z + h, "white", "ink", 1, y=y),
            [line([(x - w + 2, y, z + dz), (x + w - 2, y, z + dz)], "mid", .8)
             for dz in (-h * .5, 0, h * .5)],
            bow(arc(150, 40)), bow(arc(330, 220))]


def duplex_unit():
    x0, x1, y0, y1, z0, z1 = DUPLEX
    return [box(*DUPLEX, ("light", "soft", "pale")),
            front(UPPER[0], UPPER[1], UPPER[2], UPPER[3], "pale", "mid", y=y0, radius=2),
            front(60, 86, UPPER[3] - 6, UPPER[3] - 2.5, "soft", "mid", y=y0, radius=1.5),
            front(LOWER[0], LOWER[1], LOWER[2], LOWER[3], "pale", "mid", y=y0, radius=2),
            front(60, 86, LOWER[3] - 6, LOWER[3] - 2.5, "soft", "mid", y=y0, radius=1.5),
            front(118, 157, -12, 54, "white", "mid", y=y0, radius=2),
            turning(137.5, 21, 18, y0)]


def printer_duplex():
    return [printer_back(), unit_back(-TRAY, TRAY_COVER), duplex_unit(), cable()]


def open_upper():
    x0, x1, z0, z1 = UPPER
    y = DUPLEX[2]
    sheet = [(y, z0 - 1), (y - 8, z0 - 7), (y - 2, z0 - 14), (y - 10, z0 - 20),
             (y - 4, z0 - 28)]
    w = [at(45 + 8 * k, y - 6, z0 - 14 + (4 if k % 2 else -4)) for k in range(7)]
    return [front(x0, x1, z0 - 1.5, z1, "ink", None, y=y),
            line([(x0, y, z0 - 1.5), (x0, y, z1), (x1, y, z1), (x1, y, z0 - 1.5)], "here", 2.6),
            roller(x0 + 6, x1 - 8, y, z0 + 10, 4, "soft", "white", "mid", "light", width=.8),
            poly([(x0, y, z1), (x1, y, z1), (x1, y - 16, z1 + 12), (x0, y - 16, z1 + 12)], "here"),
            poly([(x0 + 4, y - 2, z1 + 2), (x1 - 4, y - 2, z1 + 2), (x1 - 4, y - 14, z1 + 10),
                  (x0 + 4, y - 14, z1 + 10)], "tint", "mid", .9),
            jammed(40, 96, sheet), flash(w),
            way((68, y - 8, z0 - 31), (68, y - 50, z0 - 31))]


def open_lower():
    x0, x1, z0, z1 = LOWER
    y = DUPLEX[2]
    return [front(x0, x1, z0, z1, "dark", "here", 2.6, y=y, radius=2),
            front(x0 + 2, x1 - 2, z1 - 12, z1 - 2, "ink", None, y=y),
            roller(x0 + 7, x1 - 9, y, z0 + 29, 3.4, "mid", "soft", "dark", "soft", width=.8),
            roller(x0 + 7, x1 - 9, y, z0 + 14, 5, "soft", "white", "mid", "light", width=.9),
            box(x0, x1, y - 38, y - 2, z0 - 5, z0 - 1, ("here", "here", "tint")),
            top(x0 + 8, x1 - 8, y - 33, y - 8, "white", "soft", z=z0 - 1, radius=4)]


def open_side():
    """The slot at the side of the duplex unit, and the way out of it."""
    x, y0, y1, z0, z1 = DUPLEX[1], DUPLEX[2] + 5, -4, 6, 44
    return [side(y0, y1, z0, z1, "ink", "here", 2.4, x=x, radius=1),
            way((x + 5, -15, 25), (x + 48, -15, 25))]


def raised_lid_behind(fill="here", inner="tint"):
    x0, x1, z0, z1 = 6, WIDTH - 6, HEIGHT, HEIGHT + LID
    return [poly([(x1, 4, z0), (x1, 10, z0), (x1, 10, z1), (x1, 4, z1)], fill),
            poly([(x0, 4, z1), (x1, 4, z1), (x1, 10, z1), (x0, 10, z1)], fill),
            front(x0, x1, z0, z1, fill, "ink", 1.1, y=4),
            front(x0 + 5, x1 - 5, z0 + 4, z1 - 4, inner, "mid", y=4, radius=3)]


def top_jam():
    sheet = [(8, HEIGHT + 24), (14, HEIGHT + 34), (6, HEIGHT + 40), (14, HEIGHT + 50)]
    w = [at(64 + 8 * k, 8, HEIGHT + 38 + (4 if k % 2 else -4)) for k in range(7)]
    return [jammed(58, 120, sheet), flash(w), raised_lid_behind(),
            way((150, 10, HEIGHT + 24), (150, 10, HEIGHT + 56))]


def tray_back_open(z, cover, beside):
    """A tray's rear cover folded down; where there is room `beside` it, the way to close it."""
    x0, x1 = cover
    low, high = z + 2.5, z + TRAY - 2.5
    closing = beside and arrow([at(*p) for p in ring("x", (0, low), 26, beside, 175, 112, -7)])
    return [front(x0, x1, low, high, "ink", "here", 2.4, radius=2),
            roller(x0 + 6, x1 - 8, 1, low + 5, 2.6, "soft", "white", "mid", "light", width=.8),
            box(x0, x1, -24, -2, low - 4, low - .5, ("here", "here", "tint")),
            closing or []]



# Every layer: its group, what lies below it wherever it is drawn (its edges blend with that), and
# what draws it.
def layers():
    t2, t3 = -TRAY, -2 * TRAY
    closing = [open_front(("here", "here", "tint"), "white"), closing_front_cover()]
    front_unit3 = [cleared(t2), shadow(t3), feet(t3), unit_front(t3, "3")]
    yield "P_BASE", "", [shadow(0), feet(0), printer_front()]
    yield "BASE2", "P_BASE", [cleared(0), shadow(t2), feet(t2), unit_front(t2, "2")]
    yield "BASE3", "P_BASE BASE2", front_unit3
    yield "P_TRAY1", "P_BASE", [alarm(), closed_front(), drawer(0, "1")]
    yield "P_TRAY2", "P_BASE BASE2", [alarm(), drawer(t2, "2")]
    yield "P_TRAY3", "P_BASE BASE2", front_unit3 + [alarm(), drawer(t3, "3")]
    yield "TONER_F", "P_BASE", [alarm(), open_front()]
    for k, (name, _, _) in enumerate(SLOTS):
        yield "TONER_E" + name, "P_BASE TONER_F", toner(k)
    yield "WASTONER", "P_BASE TONER_F", waste_bottle()
    yield "F_COVER", "P_BASE", [alarm(), closing]
    yield "COVER_O", "P_BASE", [alarm(), open_top()]
    yield "K_UNIT", "P_BASE COVER_O", drum_unit()
    yield "O_BOTTLE", "P_BASE COVER_O", oil_bottle()
    yield "C_ROLLER", "P_BASE COVER_O", cleaner()
    yield "T_COVER", "P_BASE", [alarm(), open_top("here", "tint")]
    yield "HAISHI", "P_BASE", [alarm(), full_output()]
    yield "SERVICE", "P_BASE", [alarm(), service()]
    yield "POWEROFF", "P_BASE", no_power()
    yield "CAUTION", "P_BASE", [alarm(), caution()]
    yield "P_B_BASE1", "", [turned_sign(), shadow(0), feet(0), printer_back(), cable()]
    yield "B_BASE2", "P_B_BASE1", [cleared(0), shadow(t2), feet(t2), unit_back(t2, TRAY_COVER), cable()]
    yield "B_BASE3", "P_B_BASE1 B_BASE2", [cleared(t2), shadow(t3), feet(t3), unit_back(t3, LOW_TRAY_COVER), cable()]
    yield "B_COVER", "P_B_BASE1", open_back_cover()
    yield "BT_COVER", "P_B_BASE1 B_COVER", back_jam()
    yield "B_COVER2", "P_B_BASE1 B_BASE2", tray_back_open(t2, TRAY_COVER, 20)
    yield "B_COVER3", "P_B_BASE1 B_BASE2 B_BASE3", tray_back_open(t3, LOW_TRAY_COVER, None)
    yield "P_DUP_BACK", "", [turned_sign(), shadow(t2), feet(t2), printer_duplex()]
    yield "DUP_BACK2", "", [turned_sign(), printer_duplex()]
    yield "DT_CVR", "DUP_BACK2", top_jam()
    yield "DUP_U1", "DUP_BACK2", open_upper()
    yield "DUP_U2", "DUP_BACK2", open_lower()
    yield "DUP_U3", "DUP_BACK2", open_side()


def lines(parts):
    for part in parts:
        if isinstance(part, str):
            yield part
        else:
            yield from lines(part)


def document():
    text = ['<?xml version="1.0" encoding="UTF-8"?>',
            '<svg xmlns="http://www.w3.org/2000/svg" width="320" height="200" '
            'viewBox="0 0 320 200">',
            "  <title>The printer, one group a picture layer; data-on names what lies below</title>",
            "  <style>",
            "    polygon, polyline, circle { stroke-linejoin: round; stroke-linecap: round; }",
            "    .hollow { fill: none; }"]
    text += ["    .%s { fill: %s; } .l-%s { stroke: %s; }" % (n, c, n, c)
             for n, c in COLOURS.items()]
    text.append("  </style>")
    for name, below, parts in layers():
        text.append('  <g id="%s" data-on="%s">' % (name, below))
        text += ["    " + part for part in lines(parts)]
        text.append("  </g>")
    return "\n".join(text + ["</svg>", ""])


def main():
    path = os.path.join(HERE, "printer.svg")
    if sys.argv[1:] == ["--check"]:
        with open(path, encoding="utf-8") as f:
            if f.read() == document():
                return 0
        print("differs: printer.svg")
        return 1
    if sys.argv[1:]:
        sys.exit("usage: model.py [--check]")
    with open(path, "w", encoding="utf-8") as f:
        f.write(document())
    return 0


if __name__ == "__main__":
    sys.exit(main())
