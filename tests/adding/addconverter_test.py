"""addconverter_test.py -- adds a converter as docs/tour.md tells, and starts it as a job of stratavue-batch.

    python3 addconverter_test.py SOURCE_DIR BUILD_DIR
"""
import os
import subprocess
import sys
import tempfile

from adding import changed, compiled, linked, objects_of, written

source, build = os.path.abspath(sys.argv[1]), os.path.abspath(sys.argv[2])

HEADER = """\
// fieldbook.h -- field books, each into a boring file beside it.
#pragma once

void ConvertFieldBook(); // runFiles 1 to runFileCount
"""

CONVERTER = """\
// fieldbook.cpp -- field books: the name of the boring, then "depth;description" of each layer.
#include "convert/fieldbook.h"

#include "boring/boringdata.h"
#include "convert/convertedboring.h"
#include "convert/tablefile.h"
#include "session/failure.h"
#include "session/files.h"
#include "session/platform.h"

static void ReadFieldBook(const Text& name)
{
    LineReader in(name);
    BoringData.Name = in.Line();
    while (!in.AtEnd()) {
        const Text line = in.Line();
        BoringData.Lith[++BoringData.LithCount][1] = Before(line, ';');
        BoringData.Des[++BoringData.DesCount] = Text(Behind(line, ';')) + ParagraphMark;
    }
}

static void ConvertOne(const Text& name)
{
    ClearForConversion();
    ReadFieldBook(name);
    WriteBesideSource(name, "2", "0");
}

void ConvertFieldBook()
try {
    ConvertRunFiles(ConvertOne);
    MsgBox("All Field Books Converted", OkOnly, Announcement);
} catch (...) {
    ReportFailure(__func__);
}
"""

with tempfile.TemporaryDirectory() as folder:
    include = os.path.join(folder, "src")
    # The reader.
    written(os.path.join(include, "convert/fieldbook.h"), HEADER)
    reader = written(os.path.join(include, "convert/fieldbook.cpp"), CONVERTER)
    # The number of its job: one more than there were.
    changed(source, folder, "run/batchrun.h", (r"\bMaxJobs = \w+", " + 1"))
    # The words of its dialog.
    dialog = changed(source, folder, "run/batchrun.cpp",
                     (r'^    \{"Select WinLog .*\n', '    {"Select Field Books to Convert", "*.FLD", "Field Books:"},\n'))
    # What the job starts.
    table = changed(source, folder, "programs/jobtable.cpp",
                    (r'^#include "convert/gtgstext.h"\n', '#include "convert/fieldbook.h"\n'),
                    (r"^ +JobTable\[.*ConvertWinLog;\n", "    JobTable[MaxJobs] = ConvertFieldBook;\n"))
    # The batch job.
    words = changed(source, folder, "programs/commandline.cpp",
                    (r'^#include "programs/commandline.h"\n', '#include "run/batchrun.h"\n'),
                    (r"^static constexpr BatchJob Jobs\[\] = \{\n",
                     '    {"convert-fieldbook", MaxJobs, 0, "--home DIR", "FILE.FLD...",\n'
                     '     "converts field books, each to a boring file beside it", BatchWork::Converts},\n'))
    program = os.path.join(source, "src/programs/stratavue-batch.cpp")
    apart = written(os.path.join(include, "programs/stratavue-batch.cpp"), open(program).read())
    objects = [compiled(build, "src/convert/winlog.cpp", reader, include),
               compiled(build, "src/run/batchrun.cpp", dialog, include),
               compiled(build, "src/programs/jobtable.cpp", table, include),
               compiled(build, "src/programs/commandline.cpp", words, include),
               compiled(build, "src/programs/stratavue-batch.cpp", apart, include)]
    rest = [name for name in objects_of(build, "CMakeFiles/stratavue-batch.dir", but="stratavue-batch")
            if not os.path.basename(name).startswith("commandline")]
    batch = linked(build, os.path.join(folder, "batch"), "src/programs/stratavue-batch.cpp",
                   [*objects, *rest, os.path.join(build, "libstratavue_painter.a"),
                    os.path.join(build, "libstratavue_logic.a"), "-lQt6Gui", "-lQt6Core"])
    told = subprocess.run([batch, "--help"], capture_output=True, text=True, check=True)
    assert "convert-fieldbook" in told.stdout, told.stdout
    book = written(os.path.join(folder, "books", "FB-1.FLD"), "FB-1\n4.5;Sand, fine\n12;Clay\n")
    done = subprocess.run([batch, "convert-fieldbook", "--home", build, book], capture_output=True, text=True)
    assert done.returncode == 0, done.stdout + done.stderr
    assert "All Field Books Converted" in done.stderr, done.stderr
    with open(os.path.join(folder, "books", "FB-1.bor"), "rb") as boring:
        lines = boring.read().decode("latin-1").split("\r\n")
    for line in ("FB-1", "4.5", "12", "Sand, fine\xb6", "Clay\xb6"):
        assert line in lines, "the boring lacks the line " + line
print("1 passed, 0 failed")
