// patterns.cpp -- fill patterns: codes, names, screen forms and tints.
#include "canvas/patterns.h"

#include "canvas/colors.h"
#include "canvas/metaugl.h"
#include "canvas/pageobjects.h"
#include "session/files.h"
#include "session/machine.h"
#include "session/platform.h"
#include "session/shared.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <map>
#include <unordered_set>

const Slots<Text, MaxUscsCodes> uscsCodes = {{"",   "GW", "GP", "GM", "GC", "SW", "SP", "SM", "SC", "ML", "MH",
                                              "CL", "CH", "PT", "AR", "LS", "LC", "DO", "SH", "CO", "SS", "MS",
                                              "SL", "CG", "BR", "MA", "MB", "GT", "VL", "GR", "ME", "QU"}};

const Slots<int16_t, 7> wellFillNumbers = {{0, 500, 1, 2, 3, 4, 5, 501}};

bool TintsInMemory = false;

static constexpr int firstUserFile = 20; // user pattern p is file p + 20
static constexpr int mostFile = 2000;
static constexpr int screenSize = 25, printSize = 150;

// ---- Codes in cells

int16_t getpch(const Text& cell)
{
    Text text = UpperCase(Trim(cell));
    if (text.empty() || text == "F0")
        return 0;
    if (text == "FB")
        return firstUserFile;
    if (text[0] == 'F')
        text.erase(0, 1);
    const double number = TextNumber(text);
    if (number == 0) {
        for (int i = 1; i <= MaxUscsCodes; ++i)
            if (text == uscsCodes[i])
                return static_cast<int16_t>(i + firstUserFile);
        return 0;
    }
    if (number >= 1 && number <= mostFile)
        return RoundInt16(number + firstUserFile);
    MsgBox("Fill pattern number is out of range: " + text, OkOnly, Exclamation);
    return 0;
}

int getpatt(const Text& code)
{
    if (code.size() < 2)
        throw RunTimeError{InvalidCall};
    double file = 0;
    if (static_cast<unsigned char>(code[1]) >= 65) {
        // Kept: the code as typed, so lower case is no match and is blank.
        for (int i = 0; i <= MaxUscsCodes; ++i)
            if (code == uscsCodes[i])
                file = i + firstUserFile;
    } else {
        // Kept: the first character goes, whatever it is, so "12" is pattern 2.
        const double number = TextNumber(Before(std::string_view(code).substr(1), ','));
        if (number != 0)
            file = std::nearbyint(number + firstUserFile);
        if (file > 300)
            file = 0;
    }
    return static_cast<int>(std::clamp(file, 0.0, double(mostFile)));
}

void setpatt(const Text& code)
{
    setfillfile(getpatt(code));
}

// ---- The fills folder

namespace
{
// What lies in the fills folder, so that a page of hundreds of fills does not ask the disk for each of them.
struct FillsFolder {
    Text Name;
    std::unordered_set<Text> Files; // in upper case
    int64_t Stamp = 0;
    bool Current = false;
    bool CannotWrite = false; // found out by a try; the forms are kept in memory from then on
};

// Tinted copy k: what it is made of. Its pictures are made when they are asked for, or written.
struct Tint {
    Text Of, Color;
    bool Written = false;
};
} // namespace

static FillsFolder fillsFolder;
static std::map<Text, Tint> tints;      // by the path without "_sc.bmp" or ".bmp", in upper case
static std::map<Text, Bitmap> pictures; // by the path in upper case

namespace
{
// A file that pictures in memory come from, as it was before it was read.
struct PictureFile {
    Text Name;
    FileState State;
};
} // namespace

// By the path of this machine; the screen forms are those that this program has written since its start, as it left
// them.
static std::map<std::string, PictureFile> pictureFiles;
static std::map<std::string, FileState> ownScreenForms;

int PatternPicturesEmptied = 0;

static const SharedRecord shared[] = {
    {"TintsInMemory", Kind::Session, TintsInMemory},
    {"fillsFolder", Kind::Machine, fillsFolder},
    {"tints", Kind::Machine, tints},
    {"pictures", Kind::Machine, pictures},
    {"pictureFiles", Kind::Machine, pictureFiles},
    {"ownScreenForms", Kind::Machine, ownScreenForms},
    {"PatternPicturesEmptied", Kind::Machine, PatternPicturesEmptied},
};

static void EmptyPictures()
{
    pictures.clear();
    pictureFiles.clear();
    ++PatternPicturesEmptied;
}

void ForgetPatternFiles()
{
    fillsFolder.Current = false;
}

void ForgetPatterns()
{
    fillsFolder = FillsFolder();
    tints.clear();
    ownScreenForms.clear();
    EmptyPictures();
}

static FillsFolder& CurrentFolder()
{
    FillsFolder& folder = fillsFolder;
    if (folder.Current && folder.Name == PageCanvas.fillsDir)
        return folder;
    const int64_t stamp = FolderStamp(PageCanvas.fillsDir);
    if (stamp == 0 || stamp != folder.Stamp || folder.Name != PageCanvas.fillsDir) {
        folder = FillsFolder();
        folder.Name = PageCanvas.fillsDir;
        folder.Stamp = stamp;
        for (const Text& file : FilesIn(folder.Name, ".bmp"))
            folder.Files.insert(UpperCase(file));
    }
    folder.Current = true;
    return folder;
}

static bool InFolder(const Text& name)
{
    const Text& fills = PageCanvas.fillsDir;
    if (fills.empty() || !name.starts_with(fills) || name.find_first_of("\\/", fills.size()) != Text::npos)
        return FileExists(name);
    return CurrentFolder().Files.contains(UpperCase(std::string_view(name).substr(fills.size())));
}

static bool IsScreenForm(const Text& upperName)
{
    return upperName.ends_with("_SC.BMP");
}

Text PrintForm(const Text& screenName)
{
    return screenName.size() > 7 ? screenName.substr(0, screenName.size() - 7) + ".bmp" : ".bmp";
}

bool PatternThere(const Text& fillFile)
{
    return InFolder(fillFile) || (IsScreenForm(UpperCase(fillFile)) && InFolder(PrintForm(fillFile)));
}

// ---- Pictures

// The key of tints that a form of a tinted copy has.
static Text TintKey(const Text& upperName)
{
    return upperName.substr(0, upperName.size() - std::min<size_t>(upperName.size(), IsScreenForm(upperName) ? 7 : 4));
}

static bool IsBlankPattern(const Text& upperName)
{
    const Text base = BaseName(upperName);
    return base == "F0.BMP" || base == "F0_SC.BMP";
}

static uint32_t RgbOf(const Text& color)
{
    const uint32_t drawn = static_cast<uint32_t>(ParseColor(color)); // red in its low byte
    return (drawn & 255) << 16 | (drawn & 0xFF00) | (drawn >> 16 & 255);
}

// To be called before the file is read. What the first picture of it saw counts until all are emptied.
static void Watch(const Text& name)
{
    const std::string path = NativePath(name);
    pictureFiles.try_emplace(path, PictureFile{name, Machine::StateOf(path)});
}

static void NoteOwn(const Text& screenName)
{
    const std::string path = NativePath(screenName);
    ownScreenForms[path] = Machine::StateOf(path);
    pictureFiles.erase(path);
    Watch(screenName);
}

// The screen form of a print form that has changed shows the pattern as it was. It goes if this program has made it;
// one that was there may be the user's own.
static void DropScreenForm(const PictureFile& print)
{
    if (IsScreenForm(UpperCase(print.Name)))
        return;
    const std::string screen = NativePath(print.Name.substr(0, print.Name.size() - 4) + "_sc.bmp");
    const auto own = ownScreenForms.find(screen);
    if (own == ownScreenForms.end())
        return;
    if (Machine::StateOf(screen) == own->second)
        std::remove(screen.c_str());
    ownScreenForms.erase(own);
}

void ForgetChangedPictures()
{
    Platform.DropChangedPictures();
    bool changed = false;
    for (const auto& [path, file] : pictureFiles) {
        if (Machine::StateOf(path) == file.State)
            continue;
        changed = true;
        DropScreenForm(file);
    }
    if (!changed)
        return;
    // All of them: tints and screen forms are made of others.
    EmptyPictures();
    for (auto& [key, tint] : tints)
        tint.Written = false;
}

static Bitmap MakePicture(const Text& name, const Text& upperName)
{
    const auto tint = tints.find(TintKey(upperName));
    if (tint != tints.end()) {
        const Text& of = tint->second.Of;
        return Tinted(PatternPicture(IsScreenForm(upperName) ? of : PrintForm(of)), RgbOf(tint->second.Color));
    }
    Watch(name);
    if (IsScreenForm(upperName))
        Watch(PrintForm(name));
    if (FileExists(name))
        return LoadBitmap(name);
    if (IsScreenForm(upperName) && FileExists(PrintForm(name)))
        return Shrunk(PatternPicture(PrintForm(name)), screenSize, screenSize);
    if (!IsBlankPattern(upperName))
        throw RunTimeError{FileNotFound};
    Bitmap blank;
    blank.Width = blank.Height = IsScreenForm(upperName) ? screenSize : printSize;
    blank.Pixels.assign(size_t(blank.Width) * size_t(blank.Height), 0xFFFFFF);
    return blank;
}

const Bitmap& PatternPicture(const Text& name)
{
    const Text upperName = UpperCase(name);
    const auto known = pictures.find(upperName);
    if (known != pictures.end())
        return known->second;
    Bitmap picture = MakePicture(name, upperName);
    return pictures[upperName] = std::move(picture);
}

bool PictureThere(const Text& name)
{
    const Text upperName = UpperCase(name);
    return tints.contains(TintKey(upperName)) || IsBlankPattern(upperName) || InFolder(name) ||
           (IsScreenForm(upperName) && InFolder(PrintForm(name)));
}

// Writes a picture that PatternPicture can make beside the patterns. A folder that cannot be written is no failure:
// the picture stays in memory, and the folder is not tried again before it changes.
static bool Keep(const Text& name)
{
    FillsFolder& folder = CurrentFolder();
    if (folder.CannotWrite)
        return false;
    const std::string bytes = EncodeBitmap(PatternPicture(name));
    try {
        WriteWholeFile(name, bytes, Durability::Scratch);
    } catch (const RunTimeError&) {
        folder.CannotWrite = true;
        return false;
    }
    folder.Files.insert(UpperCase(BaseName(name)));
    return true;
}

// ---- The current pattern

Text PatternName(int number)
{
    return (number >= 1 && number <= 9 ? "F0" : "F") + PlainNumber(number) + ".BMP";
}

void setfillfile(int number)
{
    PageCanvas.fillFile = PageCanvas.fillsDir + PatternName(std::clamp(number, 0, mostFile));
    if (!InFolder(PageCanvas.fillFile))
        return;
    const Text screen = PageCanvas.fillFile.substr(0, PageCanvas.fillFile.size() - 4) + "_sc.BMP";
    if (!InFolder(screen) && Keep(screen))
        NoteOwn(screen);
    PageCanvas.fillFile = screen;
}

void createcoloredFP(const Text& color, int k)
{
    const Text stem = PageCanvas.fillsDir + "T" + PlainNumber(k);
    const Text key = UpperCase(stem);
    Tint& tint = tints[key];
    if (tint.Of != PageCanvas.fillFile || tint.Color != color) {
        tint = {PageCanvas.fillFile, color, false};
        pictures.erase(key + "_SC.BMP");
        pictures.erase(key + ".BMP");
    }
    // A copy that was already written so stays: pages of one run use the same tints over and over.
    if (!TintsInMemory && !tint.Written)
        tint.Written = Keep(stem + "_sc.bmp") && Keep(stem + ".bmp");
}
