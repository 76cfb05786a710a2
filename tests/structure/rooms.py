"""rooms.py -- the rooms of src/ in their order, and what leads from one to another by its includes.

    python3 rooms.py SOURCE_DIR            lists the arrows
    python3 rooms.py SOURCE_DIR --draw     draws them into docs/rooms.svg

A room includes only rooms before it in ROOMS; structure_test.py holds that, and that the picture is as the includes are.
"""
import os
import re
import sys

ROOMS = ["session", "grid", "canvas", "dxf", "run", "boring", "report", "logrender", "tools", "gis", "sections", "editors",
         "convert", "plain", "painter", "windows", "programs"]
WORDS = {
    "session": "start, set-up, texts, numbers, files, the machine",
    "grid": "grids and text boxes as records",
    "canvas": "the page: primitives, objects, patterns",
    "dxf": "the page as a drawing",
    "run": "runs of pages, the screen view",
    "boring": "one boring and its file",
    "report": "headings, layouts, prompts",
    "logrender": "boring logs",
    "tools": "what every tool's window shares",
    "gis": "the layers of a site",
    "sections": "sections, fences, soil tables",
    "editors": "the log tool",
    "convert": "foreign data in, tables out",
    "plain": "the seam without a machine, for tests",
    "painter": "pages by Qt Gui: PDF, pictures",
    "windows": "windows, by Qt Widgets",
    "programs": "the two programs, their jobs",
}


def includes(source):
    """file of src -> the files of src and the Qt headers (in <>) that it includes"""
    root = os.path.join(source, "src")
    files = {}
    for where, _, names in os.walk(root):
        for name in names:
            path = os.path.relpath(os.path.join(where, name), root).replace(os.sep, "/")
            with open(os.path.join(where, name), encoding="utf-8") as lines:
                files[path] = re.findall(r'^#include ("[^"]+|<Q\w+)', lines.read(), flags=re.M)
    return {path: [word.lstrip('"') for word in words if word[0] == "<" or word[1:] in files]
            for path, words in files.items()}


def arrows(files):
    """(room, room that it includes) -> the number of includes"""
    found = {}
    for path, words in files.items():
        for word in words:
            pair = path.split("/")[0], word.split("/")[0]
            if not word.startswith("<") and pair[0] != pair[1]:
                found[pair] = found.get(pair, 0) + 1
    return found


def picture(found):
    """The rooms one above the other, the last on top; an arrow for each pair."""
    step, left, wide, tall = 44, 460, 405, 28
    height = step * len(ROOMS) + 20
    y = {room: height - 10 - step * (i + 1) + 8 for i, room in enumerate(ROOMS)}
    out = [f'<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 880 {height}" font-family="sans-serif">',
           '<defs><marker id="tip" viewBox="0 0 8 8" refX="7" refY="4" markerWidth="8" markerHeight="8" '
           'markerUnits="userSpaceOnUse" orient="auto"><path d="M0 0L8 4L0 8z" fill="#446"/></marker></defs>',
           f'<rect width="880" height="{height}" fill="#fff"/>']
    for upper, lower in sorted(found):
        a, b = y[upper] + tall * 0.65, y[lower] + tall * 0.35
        bend = left - 24 - abs(ROOMS.index(upper) - ROOMS.index(lower)) * 27
        out.append(f'<path d="M{left} {a:.1f}C{bend} {a:.1f} {bend} {b:.1f} {left} {b:.1f}" fill="none" stroke="#446" '
                   'stroke-opacity="0.55" marker-end="url(#tip)"/>')
    for room in ROOMS:
        out.append(f'<rect x="{left}" y="{y[room]}" width="{wide}" height="{tall}" rx="4" fill="#eef" stroke="#446"/>')
        out.append(f'<text x="{left + 10}" y="{y[room] + 19}" font-size="14" font-weight="bold">{room}</text>')
        out.append(f'<text x="{left + 100}" y="{y[room] + 19}" font-size="12">{WORDS[room]}</text>')
    return "\n".join(out + ["</svg>", ""])


if __name__ == "__main__":
    folder = os.path.abspath(sys.argv[1])
    seen = arrows(includes(folder))
    if sys.argv[2:] == ["--draw"]:
        with open(os.path.join(folder, "docs", "rooms.svg"), "w", encoding="utf-8") as file:
            file.write(picture(seen))
    else:
        for pair, number in sorted(seen.items()):
            print(*pair, number)
