"""structure_test.py -- the lines between the folders: who may include Qt, and that no folder leads back to itself.

    python3 structure_test.py SOURCE_DIR
"""
import os
import re
import sys

source = os.path.join(os.path.abspath(sys.argv[1]), "src")
windows = re.compile(r"(^|/)(frm[A-Z]\w*\.(cpp|h)$|platform/qt/)")
failures = []
uses = {}  # of the logic: folder -> folders it includes
for where, _, names in os.walk(source):
    for name in names:
        path = os.path.relpath(os.path.join(where, name), source).replace(os.sep, "/")
        with open(os.path.join(where, name), encoding="utf-8") as lines:
            included = re.findall(r'^#include ([<"][^>"]+)', lines.read(), flags=re.M)
        qt = [word for word in included if re.match(r'<Q[A-Z]|<Qt|<qt', word)]
        if windows.search(path):
            continue
        if qt:
            failures.append(f"{path} includes Qt: {qt[0]}>")
        if path.startswith(("batch/", "platform/plain/")):
            continue  # programs on top of everything
        folder = path.split("/")[0]
        for word in included:
            target = word[1:].split("/")[0]
            if word.startswith('"') and target != folder and os.path.isdir(os.path.join(source, target)):
                uses.setdefault(folder, set()).add(target)
                if target == "platform":
                    failures.append(f"{path} reaches the machine past session/platform.h: {word[1:]}")


def reaches(start, goal, seen):
    for folder in uses.get(start, ()):
        if folder == goal or (folder not in seen and reaches(folder, goal, seen | {folder})):
            return True
    return False


if len(uses) < 4:
    failures.append("the folders were not found")
failures += [f"{folder}/ leads back to itself" for folder in sorted(uses) if reaches(folder, folder, {folder})]
for failure in failures:
    print(failure)
print("%d passed, %d failed" % (0 if failures else 1, len(failures)))
sys.exit(1 if failures else 0)
