// main.cpp -- makefills: writes the stock fills into a folder, or all of them on one sheet to look at.
//
//     makefills OUTDIR
//     makefills --sheet FILE.bmp [OUTDIR]
//
// Exit status: 0 all written, 1 a file could not be written, 2 a wrong command line. Files that are there are
// replaced; the cached screen form ("F21_sc.BMP") of a replaced fill is removed, since it may show the old one.
#include "makefills.h"

#include <filesystem>
#include <fstream>
#include <iostream>
#include <stdexcept>

// Writes the bytes to a file, by a temporary file beside it. Throws when that fails.
static void WriteFile(const std::filesystem::path& name, const std::string& bytes)
{
    std::filesystem::path part = name;
    part += ".part";
    std::ofstream out(part, std::ios::binary);
    out.write(bytes.data(), std::streamsize(bytes.size()));
    out.close();
    if (!out)
        throw std::runtime_error("cannot write " + name.string());
    std::filesystem::rename(part, name);
}

static void WriteFills(const std::filesystem::path& folder)
{
    std::filesystem::create_directories(folder);
    for (const StockFill& fill : StockFills()) {
        Tile tile;
        fill.draw(tile);
        const std::filesystem::path name = folder / FillFileName(fill.number);
        WriteFile(name, TileAsBitmap(tile));
        std::filesystem::remove(folder / (name.stem().string() + "_sc.BMP"));
    }
}

int main(int argc, char** argv)
try {
    const std::vector<std::string> words(argv + 1, argv + argc);
    const bool sheet = words.size() >= 2 && words[0] == "--sheet";
    const std::size_t folderAt = sheet ? 2 : 0;
    if (words.size() > folderAt + 1 || (!sheet && words.size() != 1) || (!sheet && words[0].starts_with("-"))) {
        std::cerr << "makefills OUTDIR\nmakefills --sheet FILE.bmp [OUTDIR]\n";
        return 2;
    }
    if (sheet)
        WriteFile(words[1], ContactSheet(StockFills()));
    if (words.size() > folderAt)
        WriteFills(words[folderAt]);
    return 0;
} catch (const std::exception& failure) {
    std::cerr << "makefills: " << failure.what() << '\n';
    return 1;
}
