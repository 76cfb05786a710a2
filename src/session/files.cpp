// files.cpp -- files of this machine under the program's names.
#include "session/files.h"

#include "session/failure.h"
#include "session/machine.h"
#include "session/session.h"
#include "session/shared.h"

#include <algorithm>

static bool Separator(char letter)
{
    return letter == '\\' || letter == '/';
}

// The entry of a folder that is the name in any case of its letters, the first in name order; "" if none.
static std::string MatchIn(const std::string& folder, const Text& name)
{
    std::string best;
    for (const std::string& entry : Machine::Entries(folder.empty() ? "." : folder))
        if (SameText(FromUtf8(entry), name) && (best.empty() || entry < best))
            best = entry;
    return best;
}

std::string NativePath(const Text& name)
{
    Text slashed = name;
    std::replace(slashed.begin(), slashed.end(), '\\', '/');
    if (!slashed.empty() && slashed[0] != '/')
        slashed = WorkingFolder + (EndsInSeparator(WorkingFolder) ? "" : "/") + slashed;
    std::replace(slashed.begin(), slashed.end(), '\\', '/');
    const std::string exact = ToUtf8(slashed);
    if (exact.empty() || exact.find('\0') != std::string::npos || Machine::Exists(exact))
        return exact;
    // Component by component, as far as something matches.
    std::string path = slashed[0] == '/' ? "/" : "";
    size_t start = 0;
    bool matching = true;
    while (start < slashed.size()) {
        const size_t end = std::min(slashed.find('/', start), slashed.size());
        const Text part = slashed.substr(start, end - start);
        start = end + 1;
        if (part.empty())
            continue;
        std::string native = ToUtf8(part);
        if (matching && !Machine::Exists(path + native)) {
            const std::string match = MatchIn(path, part);
            matching = !match.empty();
            if (matching)
                native = match;
        }
        path += native;
        if (start < slashed.size())
            path += '/';
    }
    return path;
}

bool EndsInSeparator(const Text& folder)
{
    return !folder.empty() && Separator(folder.back());
}

Text JoinPath(const Text& folder, const Text& name)
{
    return folder.empty() || EndsInSeparator(folder) ? folder + name : folder + "/" + name;
}

Text BaseName(const Text& name)
{
    const size_t at = name.find_last_of("\\/:");
    return at == Text::npos ? name : name.substr(at + 1);
}

Text FolderName(const Text& name)
{
    const size_t at = name.find_last_of("\\/");
    if (at == Text::npos)
        return "";
    return at == 0 ? name.substr(0, 1) : name.substr(0, at);
}

bool HasEnding(const Text& name)
{
    return Holds(BaseName(name), '.');
}

Text FullPath(const Text& name)
{
    if (!name.empty() && Separator(name[0]))
        return name;
    const Text folder = FromUtf8(Machine::CurrentFolder());
    if (folder.empty())
        return name;
    return name.empty() || name == "." ? folder : JoinPath(folder, name);
}

bool FileExists(const Text& name)
{
    if (name.empty())
        return false;
    const std::string path = NativePath(name);
    return path.find('\0') == std::string::npos && !Machine::IsFolder(path) && Machine::Readable(path);
}

bool SameFile(const Text& a, const Text& b)
{
    return Machine::SameFile(NativePath(a), NativePath(b));
}

bool FolderWritable(const Text& path)
{
    return !path.empty() && Machine::ProbeFolder(NativePath(path));
}

int64_t FolderStamp(const Text& folder)
{
    return Machine::FolderStamp(NativePath(folder.empty() ? Text(".") : folder));
}

std::vector<Text> FilesIn(const Text& folder, const Text& ending)
{
    std::vector<Text> names;
    const std::string path = NativePath(folder.empty() ? Text(".") : folder);
    for (const std::string& entry : Machine::Entries(path)) {
        const Text name = FromUtf8(entry);
        if (name.size() >= ending.size() && SameText(name.substr(name.size() - ending.size()), ending) &&
            !Machine::IsFolder(path + "/" + entry))
            names.push_back(name);
    }
    std::sort(names.begin(), names.end(), [](const Text& a, const Text& b) {
        const Text upperA = UpperCase(a), upperB = UpperCase(b);
        return upperA != upperB ? upperA < upperB : a < b;
    });
    return names;
}

[[noreturn]] static void RaiseFor(const std::string& path, int number)
{
    const size_t at = path.rfind('/');
    const bool folderThere = at == std::string::npos || at == 0 || Machine::IsFolder(path.substr(0, at));
    RaiseSystemError(number, folderThere);
}

std::string ReadWholeFile(const Text& name)
{
    if (name.empty())
        throw RunTimeError{PathAccess};
    const std::string path = NativePath(name);
    if (path.find('\0') != std::string::npos)
        throw RunTimeError{BadFileName};
    std::string bytes;
    if (const int error = Machine::Read(path, bytes))
        RaiseFor(path, error);
    return bytes;
}

static unsigned serial = 0; // of the last file written beside its place

static const SharedRecord shared[] = {
    {"serial", Kind::Machine, serial},
};

std::string TemporaryFor(const std::string& path)
{
    constexpr size_t room = 200;             // of the 255 bytes of a name
    const size_t base = path.rfind('/') + 1; // 0 where there is no folder
    return path.substr(0, base + std::min(path.size() - base, room)) + "." + std::to_string(Machine::ProcessNumber()) +
           "-" + std::to_string(++serial) + ".tmp~";
}

void WriteWholeFile(const Text& name, std::string_view bytes, Durability durability)
{
    if (name.empty())
        throw RunTimeError{PathAccess};
    const std::string named = NativePath(name);
    if (named.find('\0') != std::string::npos)
        throw RunTimeError{BadFileName};
    if (Machine::IsFolder(named))
        throw RunTimeError{PathAccess};
    const std::string path = Machine::BehindLinks(named);
    // The old file has to be one that may be written, although it is the folder that a rename changes.
    const bool replaces = Machine::Exists(path);
    if (replaces && !Machine::Writable(path))
        throw RunTimeError{PathAccess};
    const std::string temporary = TemporaryFor(path);
    const bool flushed = durability == Durability::Saved;
    int error = Machine::WriteNew(temporary, bytes, replaces ? path : "", flushed);
    if (error == 0) {
        error = Machine::Replace(temporary, path, flushed);
        if (error != 0)
            Machine::Remove(temporary);
    }
    if (error != 0)
        RaiseFor(path, error);
}

LineReader::LineReader(const Text& name) : bytes(ReadWholeFile(name))
{
    const size_t end = bytes.find('\x1A');
    if (end != std::string::npos)
        bytes.resize(end);
}

Text LineReader::Line()
{
    if (AtEnd())
        throw RunTimeError{InputPastEnd};
    const size_t end = std::min(bytes.find_first_of("\r\n", at), bytes.size());
    Text line = bytes.substr(at, end - at);
    at = end + 1;
    if (end + 1 < bytes.size() && bytes[end] == '\r' && bytes[end + 1] == '\n')
        at = end + 2;
    return line;
}

void LineReader::Skip(int lines)
{
    for (int i = 0; i < lines; ++i)
        Line();
}

bool LineReader::AtEnd() const
{
    return at >= bytes.size();
}

int32_t LineReader::Count()
{
    return std::max(RoundInt32(TextNumber(Line())), 0);
}

LineWriter::LineWriter(const Text& fileName, Durability fileDurability) : name(fileName), durability(fileDurability)
{
}

void LineWriter::Line(std::string_view text)
{
    bytes += text;
    bytes += "\r\n";
}

void LineWriter::Close()
{
    WriteWholeFile(name, bytes, durability);
}
