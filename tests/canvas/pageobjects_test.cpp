// pageobjects_test.cpp -- the bound of a page.
#include "canvas/pageobjects.h"

#include "testing.h"

#include "session/failure.h"

TEST_CASE("a page takes 500,000 objects, and one more is failure 7")
{
    for (size_t i = 0; i < MaxPageObjects; ++i)
        AddObject(ObjectKind::Line, 0, 0, 1, 1);
    CHECK(PageList.Objects.size() == 500000);
    CHECK(FailureOf([] { AddObject(ObjectKind::Line, 0, 0, 1, 1); }) == OutOfMemory);
    CHECK(PageList.Objects.size() == 500000);
    ClearPage(1, 1);
    AddObject(ObjectKind::Line, 0, 0, 1, 1);
    CHECK(PageList.Objects.size() == 1);
}
