"""addcolumn_test.py -- adds a column as docs/tour.md tells, and draws it: one file, one line in vlog.h, one line in the
table of columns.cpp. The sources stay as they are; the changed ones are compiled apart and linked before the library.

    python3 addcolumn_test.py SOURCE_DIR BUILD_DIR
"""
import os
import subprocess
import sys
import tempfile

from adding import changed, compiled, linked, objects_of, written

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


with tempfile.TemporaryDirectory() as folder:
    # The one file.
    moisture = written(os.path.join(folder, "src/logrender/moisture.cpp"), COLUMN)
    # The line in vlog.h.
    changed(source, folder, "logrender/vlog.h", (r"^void drawlabno\(\);\n", "void drawmoisture();\n"))
    # The line in the table.
    columns = changed(source, folder, "logrender/columns.cpp",
                      (r"^static const Column columns\[\] = \{\n",
                       '    {Equals, "MOISTURE", [](const Text&, float) { VLOG::drawmoisture(); }},\n'))
    # A sample boring whose first narrow column is the new one.
    case = os.path.join(folder, "case")
    os.mkdir(case)
    with open(os.path.join(source, "samples/TC-101.BOR"), "rb") as boring:
        text = boring.read()
    assert b"\r\nlab number\r\n" in text
    with open(os.path.join(case, "ADDED.BOR"), "wb") as out:
        out.write(text.replace(b"\r\nlab number\r\n", b"\r\nMoisture\r\n"))
    driver = written(os.path.join(folder, "driver.cpp"), DRIVER)
    include = os.path.join(folder, "src")
    objects = [compiled(build, "src/logrender/lithology.cpp", moisture, include),
               compiled(build, "src/logrender/columns.cpp", columns, include)]
    objects.append(compiled(build, "tests/pages/samples_test.cpp", driver, include, ['-DCASE_DIR="%s"' % case]))
    program = os.path.join(folder, "driver")
    built = objects_of(build, "tests/CMakeFiles/pagetests.dir", but="samples_test")
    linked(build, program, "tests/pages/samples_test.cpp",
           [*objects, *built, os.path.join(build, "libstratavue_logic.a")])
    done = subprocess.run([program], capture_output=True, text=True)
    assert done.returncode == 0, done.stdout + done.stderr
    assert '"text": "Moisture of the test"' in done.stdout, "the heading of the added column was not drawn"
print("1 passed, 0 failed")
