"""structure_test.py -- the lines between the rooms of src/: their order, who may include Qt, and the picture of them.

    python3 structure_test.py SOURCE_DIR
"""
import os
import re
import sys

from rooms import ROOMS, arrows, includes, picture

source = os.path.abspath(sys.argv[1])
failures = []
files = includes(source)
for path, words in sorted(files.items()):
    room = path.split("/")[0]
    if room not in ROOMS:
        failures.append(f"{path} stands in no room")
        continue
    for word in words:
        if word.startswith("<"):
            if room not in ("painter", "windows", "programs"):
                failures.append(f"{path} includes Qt: {word}>")
            continue
        if ROOMS.index(word.split("/")[0]) > ROOMS.index(room):
            failures.append(f"{path} includes from a room above its own: {word}")
    if room not in ("plain", "painter", "windows", "programs"):
        failures += [f"{path} reaches the machine past session/platform.h: {word}" for word in words
                     if word.split("/")[0] in ("plain", "painter", "windows", "programs")]
    if not re.match(r"session/machine_\w+\.cpp$", path):
        with open(os.path.join(source, "src", path), encoding="utf-8") as lines:
            system = re.search(r"#include <(unistd|fcntl|dirent|sys/\w+|windows)\.h>|/proc/|\b_WIN32\b|\b__linux__\b", lines.read(), re.I)
        if system:
            failures.append(f"{path} calls the system past session/machine.h: {system.group(0)}")

# Widgets are a room's own: the painter has only what a page needs.
widgets = re.compile(r"<Q(Widget|Dialog|MainWindow|Menu|Action|Application|Dock\w+|\w*(Box|Button|Edit|View|Layout|Label))$")
failures += [f"{path} includes a widget: {word}>" for path, words in sorted(files.items()) for word in words
             if path.startswith("painter/") and widgets.match(word)]

names = [os.path.basename(path) for path in files]
failures += [f"two files are called {name}" for name in sorted(set(names)) if names.count(name) > 1]

with open(os.path.join(source, "docs", "rooms.svg"), encoding="utf-8") as kept:
    if kept.read() != picture(arrows(files)):
        failures.append("docs/rooms.svg shows other arrows: python3 tests/structure/rooms.py . --draw")
if len(files) < 200:
    failures.append("the files were not found")
for failure in failures:
    print(failure)
print("%d passed, %d failed" % (0 if failures else 1, len(failures)))
sys.exit(1 if failures else 0)
