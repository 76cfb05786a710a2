// outputnames_test.cpp -- what the files of pages are called.
#include "programs/outputnames.h"

#include "testing.h"

TEST_CASE("the pages of a log are numbered behind its name, and those of other jobs behind the job's word")
{
    OutputNames logs("");
    CHECK(logs.Next("C:\\JOB\\B-1.BOR") == "B-1-1");
    CHECK(logs.Next("C:\\JOB\\B-1.BOR") == "B-1-2");
    CHECK(logs.Next("C:\\JOB\\B-2.BOR") == "B-2-1");
    for (const char* job : {"intro", "section", "fence", "soil"})
        CHECK(OutputNames(job).Next("JOB/X.CRO") == Text("X-") + job + "-1");
}

TEST_CASE("no name is given twice, whatever folder, ending or case of letters the file has")
{
    OutputNames names("");
    CHECK(names.Next("NORTH/B-1.BOR") == "B-1-1");
    CHECK(names.Next("SOUTH/B-1.BOR") == "B-1-2");
    CHECK(names.Next("NORTH/b-1.sv3") == "b-1-3");
    CHECK(names.Next("NORTH/B-1") == "B-1-4");
    CHECK(names.Next("NORTH/B.BOR") == "B-1");
    CHECK(names.Next("NORTH/B-1-1.BOR") == "B-1-1-1");
}

TEST_CASE("a page drawn alone has its own number, and a second file of the name one more behind it")
{
    OutputNames names("");
    CHECK(names.Next("NORTH/B-1.BOR", 2) == "B-1-2");
    CHECK(names.Next("SOUTH/b-1.BOR", 2) == "b-1-2-2");
    CHECK(names.Next("WEST/B-1.BOR", 2) == "B-1-2-3");
    CHECK(names.Next("WEST/B-1-2.BOR", 2) == "B-1-2-2-2"); // "B-1-2-2" is there already
}

TEST_CASE("a page without a file has a name even so")
{
    CHECK(OutputNames("").Next("") == "page-1");
    CHECK(OutputNames("").Next("v1.2\\B-1") == "B-1-1");
}
