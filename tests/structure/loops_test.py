"""loops_test.py -- no file of a library leads back to itself by the symbols that it uses.

    python3 loops_test.py NM LIBRARY...
"""
import re
import subprocess
import sys

nm, libraries = sys.argv[1], sys.argv[2:]
defined, used = {}, {}  # symbol -> its file; file -> the symbols that it uses
for library in libraries:
    lines = subprocess.run([nm, "-P", "-A", library], capture_output=True, text=True, check=True).stdout.splitlines()
    for line in lines:
        fields = re.match(r".*\[(.*)\.cpp\.o\]: (\S+) (\w)", line)
        if not fields:
            continue
        file, symbol, kind = fields.groups()
        if kind == "U":
            used.setdefault(file, set()).add(symbol)
        elif kind in "TDBR":
            defined[symbol] = file
leads = {file: {defined[symbol] for symbol in symbols if symbol in defined} - {file} for file, symbols in used.items()}


def reached(start):
    seen, waiting = set(), [start]
    while waiting:
        for other in leads.get(waiting.pop(), ()):
            if other not in seen:
                seen.add(other)
                waiting.append(other)
    return seen


reach = {file: reached(file) for file in leads}
failures = []
for file in sorted(reach):
    loop = sorted(other for other in reach[file] if file in reach.get(other, ()))
    if file in reach[file] and loop[0] == file:
        failures.append("these files lead back to one another: " + ", ".join(loop))
        for a in loop:
            for b in sorted(leads[a] & set(loop)):
                symbols = sorted(symbol for symbol in used[a] if defined.get(symbol) == b)
                words = subprocess.run(["c++filt"] + symbols[:3], capture_output=True, text=True, check=True).stdout
                failures.append("    " + a + " -> " + b + ": " + ", ".join(words.split("\n")[:-1]))
if len(reach) < 100:
    failures.append("the files were not found")
for failure in failures:
    print(failure)
print("%d files, %d failures" % (len(reach), len(failures)))
sys.exit(1 if failures else 0)
