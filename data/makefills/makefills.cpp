// makefills.cpp -- the list of all stock fills, their names, and the pictures made of them.
#include "makefills.h"

#include <algorithm>

std::vector<StockFill> StockFills()
{
    std::vector<StockFill> all;
    for (const auto family : {SystemFills(), SoilFills(), RockFills()})
        all.insert(all.end(), family.begin(), family.end());
    std::sort(all.begin(), all.end(), [](const StockFill& a, const StockFill& b) { return a.number < b.number; });
    return all;
}

Tile DrawFill(int number)
{
    Tile tile;
    for (const auto family : {SystemFills(), SoilFills(), RockFills()})
        for (const StockFill& fill : family)
            if (fill.number == number)
                fill.draw(tile);
    return tile;
}

std::string FillFileName(int number)
{
    const bool padded = number >= 1 && number <= 9;
    return std::string(padded ? "F0" : "F") + std::to_string(number) + ".BMP";
}

ScreenForm ReduceToScreen(const Tile& tile)
{
    ScreenForm form{};
    for (int y = 0; y < TileSize; ++y)
        for (int x = 0; x < TileSize; ++x)
            if (tile.ink(x, y))
                ++form[std::size_t(y / CellSize * ScreenSize + x / CellSize)];
    return form;
}

// ---- Windows bitmaps

// A number of so many bytes, the lowest first.
static void AddNumber(std::string& bytes, int size, unsigned long value)
{
    for (int i = 0; i < size; ++i, value >>= 8)
        bytes += char(value & 0xff);
}

// The two headers and a palette of even greys from black to white.
static std::string BitmapHeader(int width, int height, int bits)
{
    const unsigned long rowBytes = (static_cast<unsigned long>(width) * bits + 31) / 32 * 4;
    const unsigned long colors = 1ul << bits;
    const unsigned long start = 14 + 40 + 4 * colors;
    const unsigned long perMetre = static_cast<unsigned long>(PixelsPerInch / 0.0254 + 0.5);
    std::string bytes = "BM";
    AddNumber(bytes, 4, start + rowBytes * height);
    AddNumber(bytes, 4, 0);
    AddNumber(bytes, 4, start);
    AddNumber(bytes, 4, 40);
    AddNumber(bytes, 4, static_cast<unsigned long>(width));
    AddNumber(bytes, 4, static_cast<unsigned long>(height));
    AddNumber(bytes, 2, 1);
    AddNumber(bytes, 2, static_cast<unsigned long>(bits));
    AddNumber(bytes, 4, 0); // not compressed
    AddNumber(bytes, 4, rowBytes * height);
    AddNumber(bytes, 4, perMetre);
    AddNumber(bytes, 4, perMetre);
    AddNumber(bytes, 4, colors);
    AddNumber(bytes, 4, colors);
    for (unsigned long color = 0; color < colors; ++color)
        AddNumber(bytes, 4, color * 255 / (colors - 1) * 0x010101);
    return bytes;
}

std::string TileAsBitmap(const Tile& tile)
{
    constexpr int RowBytes = (TileSize + 31) / 32 * 4;
    std::string bytes = BitmapHeader(TileSize, TileSize, 1);
    for (int y = TileSize - 1; y >= 0; --y) { // the file begins with the bottom row
        std::string row(RowBytes, '\0');
        for (int x = 0; x < TileSize; ++x)
            if (!tile.ink(x, y))
                row[std::size_t(x / 8)] = char(row[std::size_t(x / 8)] | 0x80 >> x % 8);
        bytes += row;
    }
    return bytes;
}

// ---- the contact sheet

// A grey picture, white at the start.
struct Sheet {
    Sheet(int columns, int rows) : width(columns), height(rows), grey(std::size_t(columns * rows), '\xff')
    {
    }
    void put(int x, int y, int value)
    {
        grey[std::size_t(y * width + x)] = char(value);
    }
    int width, height;
    std::string grey;
};

// A number in figures of 3 by 5 squares.
static void DrawNumber(Sheet& sheet, int left, int top, int number)
{
    constexpr unsigned Shapes[] = {075557, 026227, 071747, 071717, 055711, 074717, 074757, 071222, 075757, 075717};
    constexpr int Square = 4;
    for (const char figure : std::to_string(number)) {
        for (int i = 0; i < 15; ++i)
            if (Shapes[figure - '0'] >> (14 - i) & 1)
                for (int dot = 0; dot < Square * Square; ++dot)
                    sheet.put(left + i % 3 * Square + dot % Square, top + i / 3 * Square + dot / Square, 0);
        left += 4 * Square;
    }
}

static void DrawScreenForm(Sheet& sheet, int left, int top, int size, int zoom, const ScreenForm& form)
{
    for (int y = 0; y < size; ++y)
        for (int x = 0; x < size; ++x) {
            const int cell = y / zoom % ScreenSize * ScreenSize + x / zoom % ScreenSize;
            sheet.put(left + x, top + y, 255 - form[std::size_t(cell)] * 255 / (CellSize * CellSize));
        }
}

std::string ContactSheet(std::span<const StockFill> fills)
{
    constexpr int Columns = 11, Label = 28, Twice = 2 * TileSize, Gap = 20;
    constexpr int CellWidth = Twice + Gap, CellHeight = Label + Twice + 10 + TileSize + Gap;
    const int rows = (int(fills.size()) + Columns - 1) / Columns;
    Sheet sheet(Columns * CellWidth + Gap, rows * CellHeight + Gap);
    for (int i = 0; i < int(fills.size()); ++i) {
        const int left = Gap + i % Columns * CellWidth, top = Gap + i / Columns * CellHeight;
        Tile tile;
        fills[std::size_t(i)].draw(tile);
        DrawNumber(sheet, left, top, fills[std::size_t(i)].number);
        for (int y = 0; y < Twice; ++y)
            for (int x = 0; x < Twice; ++x)
                sheet.put(left + x, top + Label + y, tile.ink(x, y) ? 0 : 255);
        const ScreenForm form = ReduceToScreen(tile);
        const int below = top + Label + Twice + 10;
        DrawScreenForm(sheet, left, below, 5 * ScreenSize, 1, form);
        DrawScreenForm(sheet, left + TileSize, below, 6 * ScreenSize, 3, form);
    }
    std::string bytes = BitmapHeader(sheet.width, sheet.height, 8);
    for (int y = sheet.height - 1; y >= 0; --y) {
        bytes.append(sheet.grey, std::size_t(y * sheet.width), std::size_t(sheet.width));
        bytes.append(std::size_t((4 - sheet.width % 4) % 4), '\0');
    }
    return bytes;
}
