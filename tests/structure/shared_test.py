"""shared_test.py -- every variable of the logic is in the list of shared records, where it is defined, by its name.

    python3 shared_test.py SOURCE_DIR NM LIBRARY

The symbols of the library tell which variables there are; the sources, which of them are constants and which are in
the list.
"""
import os
import re
import subprocess
import sys

source, nm, library = os.path.join(os.path.abspath(sys.argv[1]), "src"), sys.argv[2], sys.argv[3]
writable = re.compile(r"\.(bss|data|data\.rel|data\.rel\.local)(\.(?!ro).*)?$")
failures = []
texts = {}  # file -> its text
for where, _, names in os.walk(source):
    for name in names:
        if name.endswith(".cpp"):
            with open(os.path.join(where, name), encoding="utf-8") as lines:
                texts.setdefault(name, []).append(lines.read())


def constant(variable, text):
    last = re.escape(re.split(r"::", variable)[-1])
    return re.search(r"\b(const|constexpr)\b[^;=()]*?\b" + last + r"\s*[;={\[(]|\bconst\b[^;]*[}\]],\s+" + last + r"\{"
                     r"|\b(const|constexpr) struct \{[^{}]*\} " + last + r"\b", text)


def listed(text):
    return [entry[0] for entry in re.findall(r'\{"([\w:]+)",\s*Kind::\w+,\s*([\w:]+)\}', text) if entry[0] == entry[1]]


symbols = subprocess.run([nm, "-f", "sysv", "-C", library], capture_output=True, text=True, check=True).stdout
file, variables = None, {}
for line in symbols.splitlines():
    opened = re.match(r"Symbols from .*\[(.*?)(\.cpp)?\.o\]:", line)
    if opened:
        file = opened.group(1) + ".cpp"
        continue
    fields = [field.strip() for field in line.split("|")]
    if len(fields) != 7 or fields[3] != "OBJECT" or not writable.match(fields[6]):
        continue
    name = re.sub(r"\[abi:\w+\]|\(anonymous namespace\)::", "", fields[0])
    if not re.match(r"guard variable|typeinfo|vtable|DW\.|__|\.L|std::", name) and not re.search(r"\bshared$", name):
        variables.setdefault(file, set()).add(name)

count = 0
for file in sorted(variables):
    text = "\n".join(texts.get(file, []))
    entered = listed(text)
    count += len(entered)
    for variable in sorted(variables[file]):
        if variable not in entered and not constant(variable, text):
            failures.append(f"{file}: {variable} is not in the list of shared records (session/shared.h)")
    failures += [f"{file}: {name} is twice in the list" for name in sorted(set(entered)) if entered.count(name) > 1]
    failures += [f"{file}: {name} is in the list and no variable" for name in entered if name not in variables[file]]
for file, versions in texts.items():
    written = re.findall(r'\{"[\w:]+",\s*Kind::\w+,\s*[\w:]+\}', "\n".join(versions))
    if len(written) != len(listed("\n".join(versions))):
        failures.append(f"{file}: a record has another name in the list")
if count < 100:
    failures.append("the records were not found")
for failure in failures:
    print(failure)
print("%d records, %d failures" % (count, len(failures)))
sys.exit(1 if failures else 0)
