#!/usr/bin/python3
"""Reads DXF drawings back with other programs and holds them against the listings of their pages.

    checkdxf.py --fills DIR [--make PROGRAM] [--batch PROGRAM --samples DIR] DIR

Every NAME.dxf of DIR has its page listing beside it, NAME.jsonl (one page); with --make the program writes them there
first (PROGRAM FILLS DIR). For each: ezdxf reads it strictly and its auditor finds nothing, the entities are those of
the listing by kind, layer and place, the texts are the same, what a pattern hatch shows is drawn out behind it, no
layer hides anything, and LibreCAD makes a PDF of it.

The page patterns.dxf has patterns alone; LibreCAD's PDF of it has the ink that their tiles have.

With --batch and --samples the pages of the samples are drawn too, with our own PDF of each: the ink of LibreCAD's PDF
is then at least three quarters of the ink of ours.
"""
import collections
import json
import math
import os
import re
import shutil
import struct
import subprocess
import sys

import ezdxf

SECONDS = 60  # for LibreCAD and one drawing
INK = 0.75  # of LibreCAD's PDF at least, as a part of ours
DOTS = 60  # to the inch, when ink is counted
TILE = 150  # units: the size of a pattern


def darkness(path):
    """The part of a pattern's bitmap that is ink."""
    with open(path, "rb") as file:
        data = file.read()
    start, head, width, height = struct.unpack_from("<IIii", data, 10)
    bits = struct.unpack_from("<H", data, 28)[0]
    stride = (width * bits + 31) // 32 * 4
    dark = [sum(data[14 + head + 4 * i: 17 + head + 4 * i]) < 384 for i in (0, 1)]
    ink = 0
    for row in range(abs(height)):
        line = data[start + row * stride: start + (row + 1) * stride]
        ink += sum(dark[line[x // 8] >> (7 - x % 8) & 1] if bits == 1 else sum(line[3 * x: 3 * x + 3]) < 384
                   for x in range(width))
    return ink / (width * abs(height))


def fill_file(folder, name):
    for entry in os.listdir(folder):
        if entry.lower() == name.lower():
            return os.path.join(folder, entry)
    return None


def flat(points):
    """Whether the points lie on one line."""
    points = [p for i, p in enumerate(points) if i == 0 or p != points[i - 1]]
    return all((points[1][0] - points[0][0]) * (p[1] - points[0][1]) ==
               (points[1][1] - points[0][1]) * (p[0] - points[0][0]) for p in points[2:])


def hatches(page_object, points, fills):
    """How many solid hatches and pattern hatches the fill of a polygon has."""
    brush = page_object["brush"]
    if brush["style"] == "hollow" or flat(points):
        return 0, 0
    if brush["style"] == "solid":
        return 1, 0
    name = re.sub("_sc.bmp$", ".bmp", brush.get("of", brush.get("fill", brush["picture"])), flags=re.I)
    path = fill_file(fills, name)
    return int("of" in brush), int(path is not None and darkness(path) > 0)


def expected(listing, fills):
    """The entities of a page: (type, layer) counted, texts counted, lines by their ends."""
    kinds, texts, lines = collections.Counter(), collections.Counter(), collections.Counter()
    page, objects = listing[0], listing[1:]
    for one in objects:
        kind = one["kind"]
        if kind == "text":
            texts[one["text"]] += 1
            kinds["TEXT", "TEXTS"] += 1
        elif kind == "line":
            kinds["LINE", "LINES"] += 1
            lines[one["x1"], page["height"] - one["y1"], one["x2"], page["height"] - one["y2"]] += 1
        elif kind == "picture":
            kinds["IMAGE", "PICTURES"] += 1
        elif kind == "arc":
            kinds["LINE" if one["points"][0] == one["points"][1] else "ARC", "ARCS"] += 1
        elif kind == "ellipse":
            width, height = abs(one["x1"] - one["x2"]), abs(one["y1"] - one["y2"])
            if width == 0 or height == 0:
                kinds["LINE", "ELLIPSES"] += 1
                continue
            kinds["CIRCLE" if width == height else "ELLIPSE", "ELLIPSES"] += 1
            kinds["HATCH", "FILLS"] += one["brush"]["style"] == "solid"
        else:
            points = one.get("points", [[one.get("x1"), one.get("y1")], [one.get("x2"), one.get("y1")],
                                        [one.get("x2"), one.get("y2")], [one.get("x1"), one.get("y2")]])
            solid, pattern = hatches(one, points, fills)
            kinds["HATCH", "FILLS"] += solid
            kinds["HATCH", "PATTERNS"] += pattern
            kinds["LWPOLYLINE", "RECTANGLES" if kind == "rectangle" else "OUTLINES"] += bool(points)
    return +kinds, texts, lines


def extent(points):
    """The corners of the box about points."""
    points = list(points)
    return [min(p[0] for p in points), min(p[1] for p in points), max(p[0] for p in points), max(p[1] for p in points)]


def drawn_out(document, page, fills):
    """What is wrong with the strokes behind the pattern hatches; each hatch has its own."""
    faults = []
    entities = list(document.modelspace())
    for hatch, insert in zip(entities, entities[1:] + [None]):
        if hatch.dxftype() == "INSERT" and hatch.dxf.layer != "STROKES":
            faults.append("an insert on layer " + hatch.dxf.layer)
        if hatch.dxftype() != "HATCH" or hatch.dxf.layer != "PATTERNS" or hatch.dxf.solid_fill:
            continue
        area = [tuple(v[:2]) for v in hatch.paths[0].vertices]
        left, bottom, right, top = extent(area)
        left, bottom = max(left, 0), max(bottom, 0)
        right, top = min(right, page["width"]), min(top, page["height"])
        large = surface(area) > 4 * TILE * TILE and right - left > 2 * TILE and top - bottom > 2 * TILE
        if insert is None or insert.dxftype() != "INSERT":
            if large:
                faults.append(f"no strokes behind the hatch {hatch.dxf.pattern_name} at {left}, {bottom}")
            continue
        length = 0
        move = insert.dxf.insert
        for stroke in document.blocks[insert.dxf.name]:
            if stroke.dxf.invisible or stroke.dxf.layer != "0":
                faults.append("a hidden stroke")
            points = ([(end.x, end.y) for end in (stroke.dxf.start, stroke.dxf.end)] if stroke.dxftype() == "LINE" else
                      list(stroke.get_points("xy")))
            box = extent((x + move.x, y + move.y) for x, y in points)
            if box[0] < left - 1 or box[1] < bottom - 1 or box[2] > right + 1 or box[3] > top + 1:
                faults.append(f"a stroke beyond its area: {box}")
            length += sum(math.dist(p, q) for p, q in zip(points, points[1:]))
        if length == 0:
            faults.append("a block without strokes")
        path = fill_file(fills, hatch.dxf.pattern_name + ".BMP")
        if large and len(area) == 4 and path:
            # The pen of a hatch is its line weight, in 1/100 mm.
            pen = hatch.dxf.lineweight / 2540 * page["unitsPerInch"]
            part = length * pen / ((right - left) * (top - bottom)) / darkness(path)
            if not 0.5 < part < 2 and square(area):
                faults.append(f"strokes of {hatch.dxf.pattern_name} have {part:.2f} of its ink")
    return faults


def surface(area):
    """The size of an area, whichever way its border runs."""
    return abs(sum(p[0] * q[1] - q[0] * p[1] for p, q in zip(area, area[1:] + area[:1]))) / 2


def square(area):
    """Whether an area is an upright rectangle."""
    left, bottom, right, top = extent(area)
    return all(x in (left, right) and y in (bottom, top) for x, y in area)


def hiding_layers(document):
    used = {"0"} | {entity.dxf.layer for entity in document.modelspace()}
    faults = ["layer " + layer.dxf.name + " hides what is on it" for layer in document.layers
              if layer.dxf.name in used and (layer.is_frozen() or layer.is_off() or layer.is_locked() or not layer.dxf.plot)]
    return faults + ["a hidden " + entity.dxftype() for entity in document.modelspace() if entity.dxf.invisible]


def words(value):
    """A text as it shows: the codes of the caret, the percent sign and of Unicode taken back."""
    value = re.sub(r"\^(.)", lambda m: "^" if m.group(1) == " " else chr(ord(m.group(1)) - 64), value)
    value = value.replace("%%%", "%")
    return re.sub(r"\\U\+([0-9A-F]{4})", lambda m: chr(int(m.group(1), 16)), value)


def check(path, fills):
    faults = []
    with open(path[:-4] + ".jsonl", encoding="utf-8") as file:
        listing = [json.loads(line) for line in file]
    document = ezdxf.readfile(path, errors="strict")
    auditor = document.audit()
    faults += ["audit error: " + e.message for e in auditor.errors]
    faults += ["audit fix: " + e.message for e in auditor.fixes]
    kinds, texts, lines = collections.Counter(), collections.Counter(), collections.Counter()
    layers = {layer.dxf.name for layer in document.layers}
    for entity in document.modelspace():
        if entity.dxftype() != "INSERT":  # those are told with their hatches
            kinds[entity.dxftype(), entity.dxf.layer] += 1
        if entity.dxf.layer not in layers:
            faults.append("no layer " + entity.dxf.layer)
        if entity.dxftype() == "TEXT":
            texts[words(entity.dxf.text)] += 1
            if entity.dxf.style not in document.styles:
                faults.append("no style " + entity.dxf.style)
        if entity.dxftype() == "LINE" and entity.dxf.layer == "LINES":
            lines[tuple(round(v) for v in (*entity.dxf.start.vec2, *entity.dxf.end.vec2))] += 1
        if entity.dxftype() == "HATCH" and not entity.dxf.solid_fill and not entity.pattern.lines:
            faults.append("a pattern hatch without lines")
    wanted = expected(listing, fills)
    for name, found, told in zip(("entities", "texts", "lines"), (kinds, texts, lines), wanted):
        if found != told:
            faults.append(f"{name}: only in the drawing {dict(found - told)}, only in the listing {dict(told - found)}")
    page = listing[0]
    if tuple(document.header["$LIMMAX"]) != (page["width"], page["height"]):
        faults.append("limits " + str(document.header["$LIMMAX"]))
    faults += drawn_out(document, page, fills) + hiding_layers(document)
    if document.dxfversion != "AC1018" or document.header["$DWGCODEPAGE"] != "ANSI_1252":
        faults.append("not the version or code page told")
    return faults + librecad(path)


def librecad(path):
    pdf = path[:-4] + ".pdf"
    if os.path.exists(pdf):
        os.remove(pdf)
    environment = dict(os.environ, QT_QPA_PLATFORM="offscreen")
    try:
        subprocess.run(["librecad", "dxf2pdf", "-a", "-c", "-o", pdf, path], env=environment, timeout=SECONDS,
                       stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, check=False)
    except (OSError, subprocess.TimeoutExpired) as failure:
        return [f"LibreCAD: {failure}"]
    if not os.path.exists(pdf):
        return ["LibreCAD made no PDF"]
    with open(pdf, "rb") as file:
        return [] if file.read(5) == b"%PDF-" else ["LibreCAD made something else than a PDF"]


def ink(pdf, page):
    """The ink of a page: the darkness of its dots, summed."""
    done = subprocess.run(["pdftoppm", "-r", str(DOTS), "-gray", "-f", str(page), "-l", str(page), pdf],
                          capture_output=True, check=True)
    dots = done.stdout.split(b"\n", 3)[3]
    return 255 * len(dots) - sum(dots)


def pattern_ink(listing, fills):
    """The ink of the patterned areas of a page, by the darkness of their tiles."""
    total = 0
    for one in listing[1:]:
        left, bottom, right, top = extent(one["points"])
        part = darkness(fill_file(fills, one["brush"]["fill"]))
        total += part * (right - left) * (top - bottom) * 255 * (DOTS / listing[0]["unitsPerInch"]) ** 2
    return total


def draw_samples(batch, samples, folder):
    """Draws every sample with the program: its pages as DXF with their listings and our PDF. By name: the PDF, the page."""
    pages = {}
    for name in sorted(os.listdir(samples)):
        job = {".BOR": "log", ".CRO": "section", ".FEN": "fence", ".SOI": "soil"}.get(name[-4:])
        if not job:
            continue
        stem = os.path.join(folder, name.replace(".", "-"))
        os.makedirs(stem + "-dxf", exist_ok=True)
        subprocess.run([batch, job, "--dxf", stem + "-dxf", "--list", stem + ".list", "--pdf", stem + "-ours.pdf",
                        os.path.join(samples, name)], check=True, stdout=subprocess.DEVNULL)
        with open(stem + ".list", encoding="utf-8") as file:
            listings = ("\n" + file.read()).split('\n{"page"')[1:]
        drawings = sorted(os.listdir(stem + "-dxf"), key=lambda drawing: int(re.findall(r"-(\d+)\.dxf$", drawing)[0]))
        if len(drawings) != len(listings):
            raise SystemExit(f"{name}: {len(drawings)} drawings of {len(listings)} pages")
        for number, (drawing, listing) in enumerate(zip(drawings, listings), 1):
            page = f"{os.path.basename(stem)}-{number}.dxf"
            os.replace(os.path.join(stem + "-dxf", drawing), os.path.join(folder, page))
            with open(os.path.join(folder, page[:-4] + ".jsonl"), "w", encoding="utf-8") as file:
                file.write('{"page"' + listing)
            pages[page] = (stem + "-ours.pdf", number)
    return pages


def main(arguments):
    options = {}
    while arguments and arguments[0].startswith("--"):
        options[arguments[0]] = arguments[1]
        arguments = arguments[2:]
    folder = arguments[0]
    fills = options["--fills"]
    if "--make" in options:
        shutil.rmtree(folder, ignore_errors=True)
        os.makedirs(folder)
        subprocess.run([options["--make"], fills, folder], check=True)
    ours = draw_samples(options["--batch"], options["--samples"], folder) if "--batch" in options else {}
    names = sorted(name for name in os.listdir(folder) if name.endswith(".dxf"))
    faults, least = 0, None
    for name in names:
        path = os.path.join(folder, name)
        found = check(path, fills)
        if name in ours or name == "patterns.dxf":
            with open(path[:-4] + ".jsonl", encoding="utf-8") as file:
                listing = [json.loads(line) for line in file]
            wanted = ink(*ours[name]) if name in ours else pattern_ink(listing, fills)
            share = ink(path[:-4] + ".pdf", 1) / wanted
            least = min(least or (share, name), (share, name))
            if share < INK:
                found.append(f"LibreCAD's page has {share:.2f} of our ink")
        for fault in found:
            print(f"{name}: {fault}")
        faults += len(found)
    if least:
        print(f"the least ink: {least[0]:.2f} of ours, {least[1]}")
    print(f"{len(names)} drawings, {faults} faults")
    return 0 if names and faults == 0 else 1


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
