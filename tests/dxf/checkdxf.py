#!/usr/bin/python3
"""Reads DXF drawings back with other programs and holds them against the listings of their pages.

    checkdxf.py --fills DIR [--make PROGRAM] DIR

Every NAME.dxf of DIR has its page listing beside it, NAME.jsonl (one page); with --make the program writes them there
first (PROGRAM FILLS DIR). For each: ezdxf reads it strictly and its auditor finds nothing, the entities are those of
the listing by kind, layer and place, the texts are the same, and LibreCAD makes a PDF of it.
"""
import collections
import json
import os
import re
import struct
import subprocess
import sys

import ezdxf

SECONDS = 60  # for LibreCAD and one drawing


def has_ink(path):
    """Whether a Windows bitmap of 1 or 24 bits has a pixel darker than half."""
    with open(path, "rb") as file:
        data = file.read()
    start, head, width, height = struct.unpack_from("<IIii", data, 10)
    bits = struct.unpack_from("<H", data, 28)[0]
    stride = (width * bits + 31) // 32 * 4
    dark = [sum(data[14 + head + 4 * i: 17 + head + 4 * i]) < 384 for i in (0, 1)]
    for row in range(abs(height)):
        line = data[start + row * stride: start + (row + 1) * stride]
        for x in range(width):
            if bits == 1 and dark[line[x // 8] >> (7 - x % 8) & 1]:
                return True
            if bits == 24 and sum(line[3 * x: 3 * x + 3]) < 384:
                return True
    return False


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
    return int("of" in brush), int(path is not None and has_ink(path))


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


def main(arguments):
    options = {}
    while arguments and arguments[0].startswith("--"):
        options[arguments[0]] = arguments[1]
        arguments = arguments[2:]
    folder = arguments[0]
    fills = options["--fills"]
    if "--make" in options:
        os.makedirs(folder, exist_ok=True)
        subprocess.run([options["--make"], fills, folder], check=True)
    names = sorted(name for name in os.listdir(folder) if name.endswith(".dxf"))
    faults = 0
    for name in names:
        for fault in check(os.path.join(folder, name), fills):
            print(f"{name}: {fault}")
            faults += 1
    print(f"{len(names)} drawings, {faults} faults")
    return 0 if names and faults == 0 else 1


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
