#!/usr/bin/python3
"""Render the vector artwork into the committed bitmaps and icons.

    generate.py            write ../bitmaps/*.bmp, ../icons/*.ico and the two resource scripts
    generate.py --check    render into a temporary folder and compare with the committed files,
                           and the drawings at 320 x 200 with the shapes of their layers;
                           exit status 1 with a list of what differs

requirements (Debian packages): librsvg2-bin python3-pil

Every top-level group of printer.svg, icons.svg and paper.svg is one layer. A group whose id starts
with P_BASE, P_B_BASE or P_DUP is an opaque whole-printer base; any other group of the printer becomes a pair: the
image BMP_PR_x, pure black around its part, and the mask BMP_PB_x, black where the part is and white
elsewhere. The monitor paints a pair with AND and OR.

Each is drawn at four times its size and reduced to the palette, so that its edges are smooth: a
part's edge blends with what lies below it, which the group's data-on names.
"""
import filecmp
import io
import os
import struct
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as ET

from PIL import Image

sys.dont_write_bytecode = True
from model import COLOURS

HERE = os.path.dirname(os.path.abspath(__file__))
RESOURCES = os.path.dirname(HERE)
SVG = "http://www.w3.org/2000/svg"
ET.register_namespace("", SVG)
ET.register_namespace("xlink", "http://www.w3.org/1999/xlink")

# One palette for every picture and icon. Entry 0 is pure black and means "outside the part" in an
# image layer; entry 1 is pure white and means the same in a mask.
OUTSIDE, WHITE = 0, 1
PALETTE = tuple(tuple(int(c[k:k + 2], 16) for k in (1, 3, 5)) for c in COLOURS.values())

SCALE = 4           # how much larger the drawings are rendered than the pictures are
COVERED = 96 / 255  # a pixel belongs to a part from this share of it upwards
SAME_SHAPE = 0.97   # least overlap of a layer's mask and its drawing rendered at its size

# Layer names in the order of the part codes 1 to 67.
LAYERS = """
P_BASE P_B_BASE1 PR_BASE2 PR_B_BASE2 PR_P_TRAY1 PR_P_TRAY2 PR_WASTONER PR_K_UNIT PR_O_BOTTLE
PR_C_ROLLER PR_COVER_O PR_TONER_F PR_F_COVER PR_T_COVER PR_TONER_EK PR_TONER_EY PR_TONER_EM
PR_TONER_EC PR_B_COVER PR_BT_COVER PR_CAUTION PR_SERVICE PR_POWEROFF PB_P_TRAY1 PB_P_TRAY2
PB_WASTONER PB_K_UNIT PB_O_BOTTLE PB_C_ROLLER PB_COVER_O PB_TONER_F PB_F_COVER PB_T_COVER
PB_TONER_EK PB_TONER_EY PB_TONER_EM PB_TONER_EC PB_B_COVER PB_BT_COVER PB_CAUTION PB_SERVICE
PB_POWEROFF PB_BASE2 PB_B_BASE2 P_DUP_BACK PR_DT_CVR PR_DUP_U1 PR_DUP_U2 PR_DUP_U3 PB_DT_CVR
PB_DUP_U1 PB_DUP_U2 PB_DUP_U3 PR_BASE3 PB_BASE3 PR_B_BASE3 PB_B_BASE3 PR_P_TRAY3 PB_P_TRAY3
PR_B_COVER2 PB_B_COVER2 PR_B_COVER3 PB_B_COVER3 PR_HAISHI PB_HAISHI PR_DUP_BACK2 PB_DUP_BACK2
""".split()
PAPERS = ["PAPER_NORMAL", "PAPER_R"]
# The resource compiler numbers icon images in script order, so this order gives the ids 1 to 16.
ICONS = """
ONLINE OFFLINE WARMUP ERR_CAUTION ERR_CK_UNIT ERR_COVER ERR_SERVICE ERR_JAM ERR_PAPER ERR_TONER
ERR_WASTONER PAP_100 PAP_75 PAP_50 PAP_25 PAP_0
""".split()


def render(root, scale):
    try:
        png = subprocess.run(["rsvg-convert", "--format=png", "--zoom=%d" % scale],
                             input=ET.tostring(root), stdout=subprocess.PIPE, check=True).stdout
    except FileNotFoundError:
        sys.exit("rsvg-convert is missing: install the Debian package librsvg2-bin")
    return Image.open(io.BytesIO(png)).convert("RGBA")


def reduced(picture):
    return picture.resize((picture.width // SCALE, picture.height // SCALE), Image.BOX)


def render_groups(name):
    """Return {group id: Layer} for every top-level group of an SVG file."""
    root = ET.parse(os.path.join(HERE, name)).getroot()
    groups = {e.get("id"): e for e in root if e.tag == "{%s}g" % SVG}
    for group in groups.values():
        root.remove(group)
    drawn, plain = {}, {}
    for name, group in groups.items():
        root.append(group)
        drawn[name] = render(root, SCALE)
        plain[name] = render(root, 1)
        root.remove(group)
    layers = {}
    for name, group in groups.items():
        below = group.get("data-on")
        below = None if below is None else [drawn[b] for b in below.split()]
        layers[name] = Layer(drawn[name], below, plain[name])
    return layers


class Layer:
    """Palette indices of a drawing and which of its pixels it covers, top row first.

    `below` is a list of the drawings that it lies on, on white; None keeps its own colours to its
    very edge, for any ground.
    """

    def __init__(self, drawing, below, plain):
        self.plain = plain  # the drawing rendered at its own size
        share = reduced(drawing.getchannel("A"))
        self.size = share.size
        self.covered = [p >= COVERED * 255 for p in share.getdata()]
        if below is None:
            colours = reduced(drawing.convert("RGBa")).convert("RGBA")
        else:
            ground = Image.new("RGBA", drawing.size, "white")
            for picture in below + [drawing]:
                ground.alpha_composite(picture)
            colours = reduced(ground)
        self.indices = [nearest(p[:3]) for p in colours.getdata()]

    def rows(self, background):
        width, height = self.size
        flat = [p if c else background for p, c in zip(self.indices, self.covered)]
        return [flat[y * width:(y + 1) * width] for y in range(height)]

    def mask(self):
        width, height = self.size
        flat = [OUTSIDE if c else WHITE for c in self.covered]
        return [flat[y * width:(y + 1) * width] for y in range(height)]


def nearest(rgb, cache={}):
    """Index of the palette entry closest to a colour."""
    if rgb not in cache:
        cache[rgb] = min(range(16), key=lambda i: sum((a - b) ** 2 for a, b in zip(PALETTE[i], rgb)))
    return cache[rgb]


# What reading a step of run-length compression costs beside each byte of it, about.
STEP, PIXEL = 6, 0.5


def steps(row, bits):
    """The cheapest steps of a row: (first pixel, count, written one by one)."""
    width, most = len(row), 255
    period = 2 if bits == 4 else 1  # a run of RLE4 is of two indices in turn
    same = list(range(width, 0, -1))  # how far the row goes on in turn from each pixel
    for x in range(width - 1 - period, -1, -1):
        same[x] = same[x + 1] + 1 if row[x] == row[x + period] else period
    # Cheapest way to each pixel: (cost, the step that leads to it).
    best = [None] * (width + 1)
    best[0] = (0, None)

    def reach(x, count, plain, cost):
        cost += best[x][0]
        if best[x + count] is None or cost < best[x + count][0]:
            best[x + count] = (cost, (x, count, plain))
    for x in range(width):
        if best[x] is None:
            continue
        longest = min(same[x], most)
        for count in {longest, longest - 1, longest - 2} if longest > 4 else range(1, longest + 1):
            reach(x, count, False, STEP + 2)
        # Spans of four pixels and their multiples only: they are longer than two pixels, as the
        # format asks, and fill whole words, so no reader has to skip padding.
        for count in range(4, min(44, width - x) + 1, 4):
            reach(x, count, True, STEP + 2 + (count // 2 if bits == 4 else count) + count * PIXEL)
    found, x = [], width
    while x:
        found.append(best[x][1])
        x = found[-1][0]
    return found[::-1]


def rle(rows, bits):
    """Run-length compress rows (top first) as BI_RLE8 or BI_RLE4, bottom row first."""
    def byte(row, x):
        return row[x] << 4 | row[min(x + 1, len(row) - 1)] if bits == 4 else row[x]
    out, known = bytearray(), {}
    for row in reversed(rows):
        key = tuple(row)
        if key not in known:
            line = bytearray()
            for x, count, plain in steps(row, bits):
                if plain:
                    line += bytes((0, count))
                    line += bytes(byte(row, k) for k in range(x, x + count, 2 if bits == 4 else 1))
                else:
                    line += bytes((count, byte(row, x) if count > 1 else byte([row[x]] * 2, 0)))
            known[key] = line + bytes((0, 0))
        out += known[key]
    return bytes(out + bytes((0, 1)))


def palette_bytes():
    return b"".join(bytes((b, g, r, 0)) for r, g, b in PALETTE)


def bmp(rows, bits):
    data = rle(rows, bits)
    compression = {4: 2, 8: 1}[bits]
    # 2835 pixels per metre is 72 dpi.
    header = struct.pack("<IiiHHIIiiII", 40, len(rows[0]), len(rows), 1, bits, compression,
                         len(data), 2835, 2835, len(PALETTE), 0)
    offset = 14 + len(header) + 4 * len(PALETTE)
    return (struct.pack("<2sIHHI", b"BM", offset + len(data), 0, 0, offset) + header +
            palette_bytes() + data)


def ico(rows):
    """One 32 x 32 image of 4 bits per pixel and its 1-bit transparency mask, bottom row first."""
    size = len(rows)
    colour, clear = bytearray(), bytearray()
    for row in reversed(rows):
        colour.extend(a << 4 | b for a, b in zip(row[::2], row[1::2]))
        bits = "".join("1" if p == OUTSIDE else "0" for p in row)
        clear.extend(int(bits, 2).to_bytes(size // 8, "big"))
    image = struct.pack("<IiiHHIIiiII", 40, size, 2 * size, 1, 4, 0, len(colour) + len(clear),
                        0, 0, 0, 0) + palette_bytes() + bytes(colour) + bytes(clear)
    entry = struct.pack("<BBBBHHII", size, size, 16, 0, 1, 4, len(image), 6 + 16)
    return struct.pack("<HHH", 0, 1, 1) + entry + image


def script(kind, names, folder, prefix, suffix):
    # Pictures and icons are kept under the Japanese language only; look-ups by name find them
    # whatever the caller's language.
    lines = ["LANGUAGE 17, 1", ""]
    for n in names:
        lines.append('%s%s %s "%s/%s%s.%s"' % (prefix, n, kind, folder, prefix.lower(), n.lower(),
                                               suffix))
    return ("\n".join(lines) + "\n").encode("ascii")


def expect_groups(pictures, names):
    """Stop on a layer that is not drawn and on a drawing that no layer uses."""
    wrong = sorted(set(pictures) ^ set(names))
    if wrong:
        sys.exit("group without a layer, or layer without a group: " + ", ".join(wrong))


def expect_size(name, picture, size):
    if picture.size != size:
        sys.exit("%s is %d x %d pixels, not %d x %d" % ((name,) + picture.size + size))


def build():
    """Return {path relative to the resource folder: file contents}."""
    files = {}
    views = render_groups("printer.svg")
    groups = {n: n if n.startswith("P_") else n.split("_", 1)[1] for n in LAYERS}
    expect_groups(views, groups.values())
    for name in LAYERS:
        family = name.split("_", 1)[0]
        layer = views[groups[name]]
        expect_size(name, layer, (320, 200))
        rows = layer.mask() if family == "PB" else layer.rows(WHITE if family == "P" else OUTSIDE)
        files["bitmaps/bmp_%s.bmp" % name.lower()] = bmp(rows, 4)
    papers = render_groups("paper.svg")
    expect_groups(papers, PAPERS)
    for name in PAPERS:
        expect_size(name, papers[name], (12, 12))
        files["bitmaps/bmp_%s.bmp" % name.lower()] = bmp(papers[name].rows(WHITE), 8)
    icons = render_groups("icons.svg")
    expect_groups(icons, ICONS)
    for name in ICONS:
        expect_size(name, icons[name], (32, 32))
        files["icons/ico_%s.ico" % name.lower()] = ico(icons[name].rows(OUTSIDE))
    files["bitmaps.rc"] = script("BITMAP", LAYERS + PAPERS, "bitmaps", "BMP_", "bmp")
    files["icons.rc"] = script("ICON", ICONS, "icons", "ICO_", "ico")
    return files


def write(files, folder):
    for name, data in files.items():
        path = os.path.join(folder, name)
        os.makedirs(os.path.dirname(path), exist_ok=True)
        with open(path, "wb") as f:
            f.write(data)


def listing(folder):
    """Everything this program is responsible for below a resource folder."""
    names = {"bitmaps.rc", "icons.rc"}
    for sub in ("bitmaps", "icons"):
        path = os.path.join(folder, sub)
        if os.path.isdir(path):
            names.update(sub + "/" + n for n in os.listdir(path))
    return names


def shapes():
    """The drawings of the printer whose plain rendering is not the shape of their layer's mask."""
    bad = []
    for name, layer in render_groups("printer.svg").items():
        plain = [p >= 128 for p in layer.plain.getchannel("A").getdata()]
        both = sum(a and b for a, b in zip(plain, layer.covered))
        either = sum(a or b for a, b in zip(plain, layer.covered))
        if both < SAME_SHAPE * either:
            bad.append("another shape: %s, %.1f %%" % (name, 100 * both / either))
    return bad


def check():
    with tempfile.TemporaryDirectory() as fresh:
        write(build(), fresh)
        bad = []
        for name in sorted(listing(fresh) | listing(RESOURCES)):
            ours, theirs = os.path.join(RESOURCES, name), os.path.join(fresh, name)
            if not os.path.exists(ours):
                bad.append("missing: " + name)
            elif not os.path.exists(theirs):
                bad.append("not from the artwork: " + name)
            elif not filecmp.cmp(ours, theirs, shallow=False):
                bad.append("differs: " + name)
    bad += shapes()
    for line in bad:
        print(line)
    return 1 if bad else 0


def main():
    if sys.argv[1:] == ["--check"]:
        return check()
    if sys.argv[1:]:
        sys.exit("usage: generate.py [--check]")
    write(build(), RESOURCES)
    return 0


if __name__ == "__main__":
    sys.exit(main())
