"""state_test.py -- docs/state.md tells of the shared records that there are, of no others, and of each as what it is.

    python3 state_test.py SOURCE_DIR

A record stands in the first column of the table of its kind, by its name or by one that ends in "*" and has no row of
its own; a file in the second column holds it.
"""
import os
import re
import sys

source = os.path.abspath(sys.argv[1])
failures = []
kinds = {}  # record -> its kinds, one for each file that enters one of this name
for where, _, names in os.walk(os.path.join(source, "src")):
    for name in names:
        if name.endswith(".cpp"):
            with open(os.path.join(where, name), encoding="utf-8") as file:
                for record, kind in re.findall(r'\{"([\w:]+)",\s*Kind::(\w+),\s*[\w:]+\}', file.read()):
                    kinds.setdefault(record, []).append(kind)

with open(os.path.join(source, "src/session/shared.h"), encoding="utf-8") as file:
    known = re.findall(r"^    (\w+),? +//", re.search(r"enum class Kind \{(.*?)\};", file.read(), re.S)[1], re.M)

rows = []  # (kind, the names of the first column, the files of the second one)
kind = None
with open(os.path.join(source, "docs/state.md"), encoding="utf-8") as file:
    for line in file:
        if line.startswith("## "):
            kind = line[3:].strip()
        columns = line.split("|")
        if kind in known and len(columns) > 3 and not re.match(r" Record |-", columns[1]):
            rows.append((kind, [word for word in re.findall(r"`([^`]+)`", columns[1])],
                         re.findall(r"`(\w+/\w+\.(?:h|cpp))`", columns[2])))

told = {}  # record -> the kinds that it is told under
named = [word for _, words, _ in rows for word in words if not word.endswith("*")]
texts = {}
for kind, words, files in rows:
    for path in files:
        if not os.path.exists(os.path.join(source, "src", path)):
            failures.append(f"docs/state.md names a file that is not there: {path}")
            continue
        with open(os.path.join(source, "src", path), encoding="utf-8") as file:
            texts[path] = file.read()
    for word in words:
        group = [record for record in kinds if record.startswith(word[:-1]) and record not in named
                 ] if word.endswith("*") else [word]
        if not [record for record in group if record in kinds]:
            # A word that explains a row may be a record of another row, by its bare name.
            if not [record for record in kinds if record.endswith("::" + word)]:
                failures.append(f"docs/state.md tells of {word}, and there is no such record")
            continue
        for record in group:
            told.setdefault(record, []).append(kind)
            last = record.split("::")[-1]
            if not [path for path in files if re.search(r"\b" + last + r"\b", texts.get(path, ""))]:
                failures.append(f"docs/state.md looks for {record} in files that do not name it: {', '.join(files)}")

for record, entered in sorted(kinds.items()):
    if record not in told:
        failures.append(f"docs/state.md does not tell of {record}, a record of the kind {', '.join(entered)}")
    elif sorted(told[record]) != sorted(entered):
        failures.append(f"docs/state.md tells of {record} as {', '.join(told[record])}; it is {', '.join(entered)}")
if len(known) < 5 or len(kinds) < 100:
    failures.append("the records were not found")
for failure in failures:
    print(failure)
print("%d records, %d failures" % (len(kinds), len(failures)))
sys.exit(1 if failures else 0)
