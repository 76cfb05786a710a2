// reportparts_test.cpp -- widths of report parts, and the lists of old files.
#include "boring/reportparts.h"

#include "testing.h"

#include "boring/boringboxes.h"
#include "boring/boringdata.h"

TEST_CASE("items of a fixed width have it whatever is typed")
{
    const std::pair<const char*, float> items[] = {
        {"elevation scale", 0.4f},
        {"Formations", 0.25f},
        {"sample box-graphic", 0.3f},
        {"blow count", 0.2f},
        {"blow count graph", 0.6f},
        {"blow count graph-wide", 1.0f},
        {"lab number", 0.6f},
        {"P12G", 1.0f},
        {"p34g", 1.0f},
        {"P1-4G", 2.0f},
        {"GPG7", 0.6f},
        {"SGW", 1.0f},
        {"well diagram-small", 1.0f},
        {"cuttings", 0.9f},
        {"cuttings-graph", 0.9f},
        {"water level", 0.2f},
    };
    for (const auto& [item, width] : items) {
        CHECK(findpartwidth(item, "9") == width);
        CHECK(findpartwidth(item, "-") == width);
    }
}

TEST_CASE("other items are as wide as typed")
{
    for (const char* const item : {"depth scale", "USCS", "graphic", "descriptions", "P1", "P1G",
                                   "well construction info", "WCON", "GP3", "remarks", "MPG1-2-3"}) {
        CHECK(findpartwidth(item, "1.25") == 1.25f);
        CHECK(findpartwidth(item, "") == 0.0f);
    }
    CHECK(findpartwidth("MPG1-2-3", "1") == 1.0f);
}

TEST_CASE("an unknown item has no width")
{
    for (const char* const item : {"", "GRAPHIC LOG", "USCS2", "REMARKS2", "blow", "well", " P1"})
        CHECK(findpartwidth(item, "2") == 0.0f);
}

TEST_CASE("the well diagram grows by 0.18 for each well beyond the second")
{
    Grid& wells = frmBorinput::SSGenWellInfo;
    CHECK(findpartwidth("well diagram", "") == 1.6f);
    wells.Cell(1, 1) = "W1";
    wells.Cell(2, 1) = "W2";
    wells.Cell(3, 1) = "  ";
    CHECK(findpartwidth("GW", "") == 1.6f);
    wells.Cell(4, 1) = "W4";
    CHECK(findpartwidth("well diagram", "") == 1.78f);
    wells.Cell(3, 1) = "W3";
    CHECK(findpartwidth("well diagram", "") == 1.96f);
    CHECK(findpartwidth("well diagram-small", "") == 1.0f);
}

static std::vector<Text> Converted(const Text& list)
{
    BoringData = BoringRecord();
    convertrepparts(list);
    std::vector<Text> parts;
    for (int row = 1; row <= BoringData.RepPartCount; ++row)
        parts.push_back(BoringData.RepParts[row].Item + "|" + BoringData.RepParts[row].Width);
    return parts;
}
using Parts = std::vector<Text>;

TEST_CASE("an old list becomes report parts, with the map file in upper case")
{
    CHECK(Converted("DEP,SDES,USCS,MAPsite.bmp") == Parts{"depth scale|", "descriptions|2", "USCS|", "graphic|"});
    CHECK(BoringData.MapFile == "SITE.BMP");
    CHECK(BoringData.RepParts[5].Item == "");
}

TEST_CASE("every old name has its new one, others stay in upper case")
{
    CHECK(Converted("elev,form,blows,blowg,lab#,gw,sgw,wcon,cutt,graphic,samp,samp2,samp3,samp4,samp5,p1,xyz") ==
          Parts{"elevation scale|", "formations|", "blow count|", "blow count graph|", "lab number|", "well diagram|",
                "well diagram-small|", "well const. info|", "cuttings|", "graphic|", "sample box-numbered|",
                "sample box-numbered|", "sample box-numbered|", "sample box-graphic|", "sample box-graphic|", "P1|",
                "XYZ|"});
}

TEST_CASE("widths stand behind -W, at its first place, also inside a word")
{
    CHECK(Converted("P1-W.5, P2-W1-W2 ,blow count graph-wide,WCON-W2") ==
          Parts{"P1|.5", "P2|1-W2", "BLOW COUNT GRAPH|IDE", "well const. info|2"});
}

TEST_CASE("the description's width is told by its first letter and overrules a typed one")
{
    CHECK(Converted("SDES,MDES,DES,LDES-W9,DESCRIPTIONS") ==
          Parts{"descriptions|2", "descriptions|2.5", "descriptions|3", "descriptions|3", "descriptions|3"});
}

TEST_CASE("a small multi-parameter graph loses its S")
{
    CHECK(Converted("SMPG1-2,MPG1-2") == Parts{"MPG1-2|.8", "MPG1-2|"});
}

TEST_CASE("only the first map is taken out, only the first USCS gets a graphic")
{
    CHECK(Converted("MAP a.bmp,USCS,MAPb.bmp,USCS") == Parts{"USCS|", "graphic|", "MAPB.BMP|", "USCS|"});
    CHECK(BoringData.MapFile == "A.BMP");
}

TEST_CASE("pieces are trimmed, an empty list is one empty piece, and a last empty piece counts")
{
    CHECK(Converted("") == Parts{"|"});
    CHECK(Converted(" P1 ,") == Parts{"P1|", "|"});
}

TEST_CASE("the slot behind the last row is cleared")
{
    BoringData.RepParts[2] = {"old", "1"};
    BoringData.RepParts[3] = {"old", "1"};
    convertrepparts("P1");
    CHECK(BoringData.RepParts[2].Item == "");
    CHECK(BoringData.RepParts[3].Item == "old");
}

TEST_CASE("thirty pieces are taken, a thirty-first is error 9")
{
    Text list = "P1";
    for (int i = 2; i <= 30; ++i)
        list += ",P" + PlainNumber(i);
    CHECK(Converted(list).size() == 30);
    CHECK(Messages.empty());
    convertrepparts(list + ",P31");
    REQUIRE(Messages.size() == 1);
    CHECK(Messages[0].words == "Error 9 in convertrepparts.  Please contact Norvane");
}

TEST_CASE("a graphic that has no slot is error 9")
{
    Text list = "USCS";
    for (int i = 2; i <= 30; ++i)
        list += ",P" + PlainNumber(i);
    convertrepparts(list);
    REQUIRE(Messages.size() == 1);
    CHECK(Messages[0].words == "Error 9 in convertrepparts.  Please contact Norvane");
    CHECK(BoringData.RepPartCount == 30);
}
