// deviceconfig_test.cpp -- device.cfg at the start of the program.
#include "session/deviceconfig.h"

#include "testing.h"

#include "session/session.h"

static Text Fills()
{
    return Scratch("fills/");
}

TEST_CASE("without device.cfg one message comes, once, and the new file is complete")
{
    LoadDevice();
    REQUIRE(Messages.size() == 1);
    CHECK(Messages[0].words == "Couldn't Find DEVICE.CFG File, creating new");
    CHECK(Messages[0].buttons == OkOnly);
    CHECK(Messages[0].icon == Exclamation);
    const Text folder = ScratchFolder();
    CHECK(ReadScratch("device.cfg") == Lines({folder, "0,0", "Arial", " 0 ", " 0 ", " 0 ", " 0 ", " 0 ", "us.hdg",
                                              "svproj.lst", "desitem.txt", folder, folder, folder, Fills()}));
    CHECK(ProjectPath == folder);
    LoadDevice();
    CHECK(Messages.size() == 1);
}

TEST_CASE("device.cfg is rewritten whole at every start, and saving clears the flag")
{
    const Text file = Lines({ScratchFolder(), "1.5,-0.25", "Courier New", " 50 ", "-100 ", " 0 ", " 0 ", " 7 ", "a.hdg",
                             "b.lst", "c.txt", "d", "e", "f", "g"});
    WriteScratch("device.cfg", file);
    DeviceChanged = 1;
    LoadDevice();
    CHECK(Messages.empty());
    CHECK(ReadScratch("device.cfg") == file);
    CHECK(DeviceChanged == 0);
    CHECK(DeviceConfig.FontName == "Courier New");
    CHECK(DeviceConfig.MarginX == 1.5f);
    CHECK(DeviceConfig.MarginY == -0.25f);
    CHECK(DeviceConfig.TextAdjust[1] == 50);
    CHECK(DeviceConfig.TextAdjust[2] == -100);
    CHECK(DeviceConfig.TextAdjust[5] == 7);
    CHECK(DeviceConfig.SystemFiles[HeadingFile] == "a.hdg");
    CHECK(DeviceConfig.SystemFiles[FillFolder] == "g");
}

TEST_CASE("the set-up is found in any case of its name")
{
    WriteScratch("DEVICE.CFG", Lines({ScratchFolder(), "0,0", "Arial"}));
    LoadDevice();
    CHECK(Messages.empty());
    CHECK(ReadScratch("DEVICE.CFG").ends_with("\r\n" + Fills() + "\r\n"));
}

TEST_CASE("a project folder that cannot be written is silently the working folder")
{
    WriteScratch("device.cfg", Lines({Scratch("nowhere"), "0,0", "Arial"}));
    LoadDevice();
    CHECK(Messages.empty());
    CHECK(ProjectPath == ScratchFolder());
    CHECK(ReadScratch("device.cfg").starts_with(Text(ScratchFolder()) + "\r\n"));
}

TEST_CASE("a project folder that can be written stays")
{
    std::filesystem::create_directory(Scratch("job"));
    WriteScratch("device.cfg", Lines({Scratch("job"), "0,0", "Arial"}));
    LoadDevice();
    CHECK(ProjectPath == Scratch("job"));
}

TEST_CASE("margin offsets are clamped to 2 inches and the text stays as typed")
{
    WriteScratch("device.cfg", Lines({ScratchFolder(), "5,-7", "Arial"}));
    LoadDevice();
    CHECK(DeviceConfig.MarginX == 2.0f);
    CHECK(DeviceConfig.MarginY == -2.0f);
    CHECK(ReadScratch("device.cfg").find("\r\n5,-7\r\n") != Text::npos);
}

TEST_CASE("margin offsets without a comma are 0 and 0")
{
    DeviceConfig.MarginOffsets = "1.5";
    SplitMarginOffsets();
    CHECK(DeviceConfig.MarginX == 0.0f);
    CHECK(DeviceConfig.MarginY == 0.0f);
    DeviceConfig.MarginOffsets = ".5, 1,9";
    SplitMarginOffsets();
    CHECK(DeviceConfig.MarginX == 0.5f);
    CHECK(DeviceConfig.MarginY == 1.0f);
}

TEST_CASE("an older, shorter device.cfg grows: missing numbers are 0, empty files get their defaults")
{
    WriteScratch("device.cfg",
                 Lines({ScratchFolder(), "0,0", "Arial", " 25 ", "x", " 3 ", " 4 ", " 5 ", "own.hdg", ""}));
    LoadDevice();
    CHECK(DeviceConfig.TextAdjust[1] == 25);
    CHECK(DeviceConfig.TextAdjust[2] == 0);
    CHECK(DeviceConfig.SystemFiles[HeadingFile] == "own.hdg");
    CHECK(DeviceConfig.SystemFiles[ProjectListFile] == "svproj.lst");
    CHECK(DeviceConfig.SystemFiles[LayoutFolder] == ScratchFolder());
    CHECK(DeviceConfig.SystemFiles[FillFolder] == Fills());
}

TEST_CASE("a set-up that ends before its font leaves the font blank")
{
    WriteScratch("device.cfg", Lines({ScratchFolder(), "0,0"}));
    LoadDevice();
    CHECK(DeviceConfig.FontName == "");
    CHECK(Messages.empty());
}

TEST_CASE("an empty set-up file is no failure: the working folder, no offsets, the defaults")
{
    WriteScratch("device.cfg", "");
    LoadDevice();
    CHECK(Messages.empty());
    CHECK(ProjectPath == ScratchFolder());
    CHECK(DeviceConfig.MarginX == 0.0f);
    CHECK(DeviceConfig.SystemFiles[DescItemFile] == "desitem.txt");
}

TEST_CASE("a set-up that cannot be written is reported by name and the flag stays")
{
    std::filesystem::create_directory(Scratch("device.cfg"));
    DeviceChanged = 1;
    SaveDevice();
    REQUIRE(Messages.size() == 1);
    CHECK(Messages[0].words == "Error 75 in SaveDevice.  Please contact Norvane");
    CHECK(Messages[0].icon == NoIcon);
    CHECK(DeviceChanged == 1);
}

TEST_CASE("each margin offset is clamped on either side")
{
    WriteScratch("device.cfg", Lines({ScratchFolder(), "-5,7", "Arial"}));
    LoadDevice();
    CHECK(DeviceConfig.MarginX == -2.0f);
    CHECK(DeviceConfig.MarginY == 2.0f);
    WriteScratch("device.cfg", Lines({ScratchFolder(), "-1.5,1.75", "Arial"}));
    LoadDevice();
    CHECK(DeviceConfig.MarginX == -1.5f);
    CHECK(DeviceConfig.MarginY == 1.75f);
}
