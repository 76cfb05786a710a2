// rowmoves_test.cpp -- where the rows of a grid have gone in a step.
#include "grid/rowmoves.h"
#include "testing.h"

// Rows of one cell, a letter each; "_" is a blank one. A second cell is the depth of the letter.
static RowList Rows(const char* letters)
{
    RowList rows(1);
    for (; *letters; ++letters) {
        if (*letters == '_')
            rows.push_back({"", ""});
        else
            rows.push_back({PlainNumber(*letters - 'A' + 1), Text(1, *letters)});
    }
    return rows;
}

static Text Went(const RowMoves& moves)
{
    Text text;
    for (size_t row = 1; row < moves.size(); ++row)
        text += (row > 1 ? " " : "") + PlainNumber(moves[row]);
    return text;
}

static Text Pasted(const char* before, const char* after)
{
    return Went(RowsPasted(Rows(before), Rows(after)));
}

TEST_CASE("rows put in and taken out move those below, and rows behind the list go along")
{
    const RowMoves in = RowInserted(4, 2), out = RowDeleted(4, 2);
    CHECK(Went(in) == "1 3 4 5");
    CHECK(Went(out) == "1 0 2 3");
    CHECK(MovedRow(in, 9) == 10);
    CHECK(MovedRow(out, 9) == 8);
    CHECK(Went(Inverse(in)) == "1 0 2 3 4");
    CHECK(Went(Inverse(out)) == "1 3 4");
    CHECK(MovedRow(Inverse(out), 9) == 10);
    CHECK(MovedRow({}, 9) == 9);
}

TEST_CASE("rows pasted in place, over one another, or as another table have moved nothing")
{
    CHECK(Pasted("ABCD__", "ABCD__") == "");
    CHECK(Pasted("ABCD__", "AXCD__") == "");
    CHECK(Pasted("ABCD__", "UVWXYZ") == "");
    CHECK(Pasted("ABCD__", "ABCDE_") == "");
    CHECK(Pasted("ABCDEF", "ABCEEF") == ""); // a copy over another row
    CHECK(Pasted("AAAA__", "AAAAAA") == "");
}

TEST_CASE("a table that comes back with rows put in, taken out and changed has its rows found again")
{
    CHECK(Pasted("ABCDE__", "ABXYCDE") == "1 2 5 6 7 0 0");
    CHECK(Pasted("ABCDE__", "ABDE___") == "1 2 0 3 4 5 6");
    CHECK(Pasted("ABCDEF_", "ABDEFF_") == "1 2 0 3 4 5 6"); // the last row is still there below the shorter table
    CHECK(Pasted("ABCDE__", "ABCCDE_") == "1 2 3 5 6 7 0"); // room made by a copy one row lower
}

TEST_CASE("a row whose words are changed is found by its depth, between rows that are known")
{
    const RowList before{{}, {"1", "CL"}, {"2", "SM"}, {"3", "GP"}, {"", ""}};
    const RowList after{{}, {"1", "CL"}, {"1.5", "ML"}, {"2.0", "SC"}, {"3", "gp "}};
    CHECK(Went(RowsPasted(before, after)) == "1 3 4 0");
}

TEST_CASE("rows that were cut out are where they were pasted, whatever they stand on now")
{
    CHECK(Went(RowsPasted(Rows("AB__E_"), Rows("AB_CDE"), 3, 4, 2)) == "1 2 4 5 6 0");
    CHECK(Went(RowsPasted(Rows("_BC_"), Rows("_BCA"), 1, 4, 1)) == "4 2 3 4");
    CHECK(Went(RowsPasted(Rows("AB_D"), Rows("AB_C"), 3, 4, 1)) == "1 2 4 0"); // D is overwritten
    CHECK(Went(RowsPasted(Rows("_B"), Rows("_A"), 1, 2, 1)) == "2 0");
}
