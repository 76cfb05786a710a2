// logo_test.cpp -- the logo window without its widgets.
#include "report/logo.h"

#include "testing.h"

using frmLogo::Dialog;

TEST_CASE("the logo window shows logo.txt: three lines of text, the kind, the file and the resolution")
{
    WriteScratch("logo.txt", Lines({"one", "two", "three", "1", "LOGO.BMP", "300"}));
    frmLogo::Load();
    CHECK(Dialog.Text1 == "one\r\ntwo\r\nthree");
    CHECK(Dialog.graphic);
    CHECK(Dialog.fileText == "LOGO.BMP");
    CHECK(Dialog.resolutionText == "300");
    WriteScratch("logo.txt", Lines({"one", "two", "three", "0", "LOGO.BMP", "300"}));
    frmLogo::Load();
    CHECK_FALSE(Dialog.graphic);
}

TEST_CASE("logo.txt is shown as far as it has lines, and written with six")
{
    WriteScratch("logo.txt", Lines({"one", "two"}));
    frmLogo::Load();
    CHECK(Dialog.Text1 == "one\r\ntwo\r\n");
    CHECK_FALSE(Dialog.graphic);
    frmLogo::Command1();
    CHECK(ReadScratch("logo.txt") == Lines({"one", "two", "", "0", "", ""}));
}

TEST_CASE("OK of the logo window writes three lines of its text, the kind, the file and the resolution")
{
    WriteScratch("logo.txt", "");
    frmLogo::Load();
    Dialog = {"a\r\nb\r\nc\r\na fourth line is lost", true, "NEW.BMP", "150"};
    frmLogo::Command1();
    CHECK(ReadScratch("logo.txt") == Lines({"a", "b", "c", "1", "NEW.BMP", "150"}));
    Dialog.Text1 = "alone";
    Dialog.graphic = false;
    frmLogo::Command1();
    CHECK(ReadScratch("logo.txt") == Lines({"alone", "", "", "0", "NEW.BMP", "150"}));
}

TEST_CASE("a missing logo.txt makes the logo window fail at opening")
{
    CHECK(FailureOf(frmLogo::Load) == 53);
}

TEST_CASE("lines behind the sixth of logo.txt are passed over")
{
    WriteScratch("logo.txt", Lines({"one", "two", "three", "1", "LOGO.BMP", "300", "7", "8"}));
    frmLogo::Load();
    CHECK(Dialog.resolutionText == "300");
    frmLogo::Command1();
    CHECK(ReadScratch("logo.txt") == Lines({"one", "two", "three", "1", "LOGO.BMP", "300"}));
}
