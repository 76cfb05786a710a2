// projectconfig.cpp -- project.cfg: read line by line, written by changing one line.
#include "session/projectconfig.h"

#include "session/failure.h"
#include "session/files.h"
#include "session/machine.h"
#include "session/platform.h"
#include "session/session.h"
#include "session/shared.h"

#include <algorithm>

static const char* const fileName = "project.cfg";

static Text OwnFile()
{
    return JoinPath(ProjectPath.empty() ? WorkingFolder : ProjectPath, fileName);
}

Text ProjectConfigFile()
{
    for (const Text& file : {OwnFile(), JoinPath(WorkingFolder, fileName)})
        if (FileExists(file))
            return file;
    return "";
}

// ---- Lines

namespace
{
// Where a line lies in the bytes of the file.
struct LinePlace {
    size_t begin, end; // without its line end
    size_t next;       // behind its line end
};
} // namespace

// The lines in front of byte 26, which ends a text file. CR LF, a lone CR and a lone LF each end a line.
static std::vector<LinePlace> LinesOf(const std::string& bytes)
{
    const size_t fileEnd = std::min(bytes.find('\x1A'), bytes.size());
    std::vector<LinePlace> lines;
    for (size_t at = 0; at < fileEnd;) {
        const size_t end = std::min(bytes.find_first_of("\r\n", at), fileEnd);
        size_t next = std::min(end + 1, fileEnd);
        if (end + 1 < fileEnd && bytes[end] == '\r' && bytes[end + 1] == '\n')
            next = end + 2;
        lines.push_back({at, end, next});
        at = next;
    }
    return lines;
}

// Blanks and tabs: the file is also written by hand.
static std::string_view Bare(std::string_view text)
{
    const size_t first = text.find_first_not_of(" \t");
    return first == std::string_view::npos ? std::string_view()
                                           : text.substr(first, text.find_last_not_of(" \t") - first + 1);
}

// True for "key = value". A comment may hold a "=" too.
static bool HasKey(std::string_view line, std::string_view key)
{
    return Holds(line, '=') && !Bare(line).starts_with('#') && SameText(Bare(Before(line, '=')), key);
}

static std::string_view LineText(const std::string& bytes, const LinePlace& line)
{
    return std::string_view(bytes).substr(line.begin, line.end - line.begin);
}

// The line of the key that counts; null for none.
static const LinePlace* FindKey(const std::string& bytes, const std::vector<LinePlace>& lines, const Text& key)
{
    const auto found = std::find_if(lines.rbegin(), lines.rend(),
                                    [&](const LinePlace& line) { return HasKey(LineText(bytes, line), key); });
    return found == lines.rend() ? nullptr : &*found;
}

// ---- Reading

namespace
{
// A file as it was when it was read.
struct FileRead {
    Text File;
    FileState State;
    std::string Bytes;
};
} // namespace

static FileRead lastRead;

static const SharedRecord shared[] = {
    {"lastRead", Kind::Machine, lastRead},
};

// The bytes of the file that was read last, as long as it is the same: settings are asked for at every page and at
// every pause of the typing.
static const std::string& BytesOf(const Text& file)
{
    const FileState state = Machine::StateOf(NativePath(file));
    if (file != lastRead.File || state != lastRead.State)
        lastRead = {file, state, ReadWholeFile(file)};
    return lastRead.Bytes;
}

Text ProjectSetting(const Text& key, const Text& fallback)
try {
    const Text file = ProjectConfigFile();
    if (file.empty())
        return fallback;
    const std::string& bytes = BytesOf(file);
    const std::vector<LinePlace> lines = LinesOf(bytes);
    const LinePlace* line = FindKey(bytes, lines, key);
    return line ? Text(Bare(Behind(LineText(bytes, *line), '='))) : fallback;
} catch (const RunTimeError&) { // a file that has gone meanwhile has no settings
    return fallback;
}

// ---- Writing

// A value of one line.
static Text OneLine(Text value)
{
    std::replace_if(
        value.begin(), value.end(), [](char c) { return c == '\r' || c == '\n' || c == '\x1A'; }, ' ');
    return Text(Bare(value));
}

static void PutLine(std::string& bytes, const Text& key, const Text& value)
{
    const Text told = value.empty() ? "" : " " + value;
    const std::vector<LinePlace> lines = LinesOf(bytes);
    if (const LinePlace* line = FindKey(bytes, lines, key)) {
        const size_t behind = bytes.find('=', line->begin) + 1;
        bytes.replace(behind, line->end - behind, told);
        return;
    }
    const size_t end = lines.empty() ? 0 : lines.back().next;
    const bool open = !lines.empty() && lines.back().end == lines.back().next; // the last line has no line end
    bytes.insert(end, (open ? CrLf : "") + key + " =" + told + CrLf);
}

bool SetProjectSetting(const Text& key, const Text& value)
try {
    const Text before = ProjectConfigFile();
    std::string bytes = before.empty() ? std::string() : ReadWholeFile(before);
    const std::string asRead = bytes;
    PutLine(bytes, key, OneLine(value));
    if (bytes != asRead || !FileExists(OwnFile()))
        WriteWholeFile(OwnFile(), bytes);
    return true;
} catch (const RunTimeError& error) {
    MsgBox("The settings of the project cannot be saved (error" + NumberText(error.Number) + "): " + OwnFile(), OkOnly,
           Exclamation);
    return false;
}

// ---- Lists

std::vector<Text> SettingList(const Text& value)
{
    std::vector<Text> parts;
    for (std::string_view rest = value; !rest.empty(); rest = Behind(rest, ','))
        if (const std::string_view part = Bare(Before(rest, ',')); !part.empty())
            parts.emplace_back(part);
    return parts;
}

Text ListSetting(const std::vector<Text>& parts)
{
    Text value;
    for (const Text& part : parts)
        value += (value.empty() ? "" : ", ") + part;
    return value;
}
