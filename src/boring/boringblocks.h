// boringblocks.h -- the blocks that every form of the boring file is made of: lines, tables, and both behind a count.
#pragma once

#include "boring/boringdata.h"
#include "session/files.h"

#include <algorithm>

// Lines of a row of each table, and of the two parameter set-ups together, which have no count.
constexpr int SampleCells = 5 + SampleParams, LithCells = 4, LayerCells = 5, CuttingCells = 4;
constexpr int SetupLines = 9 * SampleParams + 8 * GenParams;
// Returns the lines of a row of general parameters, its depth among them; the first form had eight parameters.
inline int ParamCells(const Text& version)
{
    return version == "5.0" ? 9 : 1 + GenParams;
}

// The form that is written.
inline constexpr char BoringVersion[] = "5.0.12";

// Returns whether client lines and the style stand behind the notes: form 5.0 has them from release 12 on ("5.0.12").
// The release stands behind one character, whatever that is.
inline bool HasClient(const Text& version)
{
    return version.starts_with("5.0") && version.size() > 4 && TextNumber(version.substr(4)) >= 12;
}

// Reads so many lines into the slots, a line each.
template <int Rows>
void ReadLines(LineReader& in, Slots<Text, Rows>& lines, int count = Rows)
{
    for (int row = 1; row <= count; ++row)
        lines[row] = in.Line();
}

// Reads so many rows of a table, a line for each cell.
template <int Rows, int Columns>
void ReadCells(LineReader& in, TextTable<Rows, Columns>& table, int count = Rows, int columns = Columns)
{
    for (int row = 1; row <= count; ++row)
        for (int column = 1; column <= columns; ++column)
            table[row][column] = in.Line();
}

// Reads a count line and returns what it says. What is left in the record is at most its bound, although the rows are
// read as far as the file says: the first one over the bound has no slot and ends the reading.
inline int ReadCount(LineReader& in, int32_t& count, int bound)
{
    const int told = in.Count();
    count = std::min(told, bound);
    return told;
}

// Passes over a block that has so many lines a row. It has no bound.
inline void SkipBlock(LineReader& in, int linesOfRow)
{
    for (int rows = in.Count(); rows > 0; --rows)
        in.Skip(linesOfRow);
}

// Reads a block of lines behind its count.
template <int Rows>
void ReadBlock(LineReader& in, Slots<Text, Rows>& lines, int32_t& count)
{
    const int told = ReadCount(in, count, Rows);
    for (int row = 1; row <= count; ++row)
        lines[row].clear(); // so that rows missing at an early end of the file are empty
    ReadLines(in, lines, told);
}

// Reads a table behind its count, so many columns of it.
template <int Rows, int Columns>
void ReadBlock(LineReader& in, TextTable<Rows, Columns>& table, int32_t& count, int columns = Columns)
{
    const int told = ReadCount(in, count, Rows);
    for (int row = 1; row <= count; ++row)
        for (int column = 1; column <= columns; ++column)
            table[row][column].clear();
    ReadCells(in, table, told, columns);
}
