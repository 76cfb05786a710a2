"""addcolumn_test.py -- adds a column as docs/tour.md tells, and draws it: one file, one line in vlog.h, one line in the
table of columns.cpp. The sources stay as they are; the changed ones are compiled apart and linked before the library.

    python3 addcolumn_test.py SOURCE_DIR BUILD_DIR
"""
import json
import os
import re
import shlex
import subprocess
import sys
import tempfile

source, build = os.path.abspath(sys.argv[1]), os.path.abspath(sys.argv[2])

COLUMN = """\
// moisture.cpp -- the column of the test: the boring's sample count, 0.5 wide.
#include "canvas/metaugl.h"
#include "logrender/logdata.h"
#include "logrender/vlog.h"

void VLOG::drawmoisture()
{
    turnedheading(0.25, "Moisture of the test");
    narrowcolumn(0.5);
    endcolumn(0.5);
}
"""

DRIVER = """\
// driver.cpp -- draws a boring with the added column and lists its page.
#include "pages/pages.h"
#include "testing.h"
#include <cstdio>

TEST_CASE("the added column is drawn")
{
    const std::string listing = DrawLogs(CASE_DIR, {"ADDED.BOR"});
    for (const PlainMessage& message : Messages)
        FAIL_CHECK(message.words);
    std::puts(listing.c_str());
}
"""


def compile_command(file):
    """The command of the build for a file of it, with room for another file and object."""
    with open(os.path.join(build, "compile_commands.json")) as commands:
        for entry in json.load(commands):
            if entry["file"].endswith(file):
                words = shlex.split(entry["command"])
                return [word for word in words if word not in (entry["file"], "-c")]
    raise SystemExit("no such file in the build: " + file)


def objects_of(folder, but):
    """The objects that the build makes in a folder of its own: not what an earlier one has left there."""
    with open(os.path.join(build, "compile_commands.json")) as commands:
        words = [shlex.split(entry["command"]) for entry in json.load(commands)]
    outputs = [line[line.index("-o") + 1] for line in words if "-o" in line]
    return [os.path.join(build, name) for name in outputs
            if name.startswith(folder) and not os.path.basename(name).startswith(but)]


def compiled(model, file, include, extra=()):
    """Compiles a file like the model of the build, the changed headers before the others."""
    words = compile_command(model)
    out = words.index("-o")
    del words[out:out + 2]
    first = next(i for i, word in enumerate(words) if word.startswith("-"))
    target = os.path.splitext(file)[0] + ".o"
    subprocess.run([*words[:first], "-I" + include, *words[first:], *extra, "-o", target, "-c", file], check=True)
    return target


def replaced(text, pattern, line):
    changed, count = re.subn(pattern, lambda found: found.group(0) + line, text, count=1, flags=re.M)
    assert count == 1, "the place for the line was not found: " + pattern
    return changed


with tempfile.TemporaryDirectory() as folder:
    logrender = os.path.join(folder, "src", "logrender")
    os.makedirs(logrender)
    # The one file.
    moisture = os.path.join(logrender, "moisture.cpp")
    with open(moisture, "w") as out:
        out.write(COLUMN)
    # The line in vlog.h.
    with open(os.path.join(source, "src/logrender/vlog.h")) as header:
        text = replaced(header.read(), r"^void drawlabno\(\);\n", "void drawmoisture();\n")
    with open(os.path.join(logrender, "vlog.h"), "w") as out:
        out.write(text)
    # The line in the table.
    with open(os.path.join(source, "src/logrender/columns.cpp")) as table:
        text = replaced(table.read(), r"^static const Column columns\[\] = \{\n",
                        '    {Equals, "MOISTURE", [](const Text&, float) { VLOG::drawmoisture(); }},\n')
    columns = os.path.join(logrender, "columns.cpp")
    with open(columns, "w") as out:
        out.write(text)
    # A sample boring whose first narrow column is the new one.
    case = os.path.join(folder, "case")
    os.mkdir(case)
    with open(os.path.join(source, "samples/TC-101.BOR"), "rb") as boring:
        text = boring.read()
    assert b"\r\nlab number\r\n" in text
    with open(os.path.join(case, "ADDED.BOR"), "wb") as out:
        out.write(text.replace(b"\r\nlab number\r\n", b"\r\nMoisture\r\n"))
    driver = os.path.join(folder, "driver.cpp")
    with open(driver, "w") as out:
        out.write(DRIVER)
    include = os.path.join(folder, "src")
    objects = [compiled("src/logrender/lithology.cpp", moisture, include),
               compiled("src/logrender/columns.cpp", columns, include)]
    objects.append(compiled("tests/pages/samples_test.cpp", driver, include, ['-DCASE_DIR="%s"' % case]))
    program = os.path.join(folder, "driver")
    built = objects_of("tests/CMakeFiles/pagetests.dir", but="samples_test")
    flags = [word for word in compile_command("tests/pages/samples_test.cpp") if word.startswith("-fsanitize")]
    subprocess.run(["c++", *flags, "-o", program, *objects, *built, os.path.join(build, "libstratavue_logic.a")],
                   check=True)
    done = subprocess.run([program], capture_output=True, text=True)
    assert done.returncode == 0, done.stdout + done.stderr
    assert '"text": "Moisture of the test"' in done.stdout, "the heading of the added column was not drawn"
print("1 passed, 0 failed")
