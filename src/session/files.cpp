// files.cpp -- files of this machine under the program's names.
#include "session/files.h"

#include "session/failure.h"
#include "session/session.h"
#include "session/shared.h"

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <ctime>
#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

static bool Separator(char letter)
{
    return letter == '\\' || letter == '/';
}

static bool Exists(const std::string& path)
{
    struct stat status;
    return ::stat(path.c_str(), &status) == 0;
}

static bool IsFolder(const std::string& path)
{
    struct stat status;
    return ::stat(path.c_str(), &status) == 0 && S_ISDIR(status.st_mode);
}

namespace
{
// An open folder, closed on every way out.
struct Folder {
    explicit Folder(const std::string& path) : handle(::opendir(path.c_str()))
    {
    }
    ~Folder()
    {
        if (handle)
            ::closedir(handle);
    }
    Folder(const Folder&) = delete;
    Folder& operator=(const Folder&) = delete;
    const dirent* Next()
    {
        return handle ? ::readdir(handle) : nullptr;
    }
    DIR* handle;
};

struct File {
    explicit File(int number) : handle(number)
    {
    }
    ~File()
    {
        if (handle >= 0)
            ::close(handle);
    }
    File(const File&) = delete;
    File& operator=(const File&) = delete;
    int handle;
};
} // namespace

// The entry of a folder that is the name in any case of its letters, the first in name order; "" if none.
static std::string MatchIn(const std::string& folder, const Text& name)
{
    std::string best;
    Folder entries(folder.empty() ? "." : folder);
    while (const dirent* entry = entries.Next())
        if (SameText(FromUtf8(entry->d_name), name) && (best.empty() || entry->d_name < best))
            best = entry->d_name;
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
    if (exact.empty() || exact.find('\0') != std::string::npos || Exists(exact))
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
        if (matching && !Exists(path + native)) {
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
    char buffer[4096];
    if (!::getcwd(buffer, sizeof buffer))
        return name;
    const Text folder = FromUtf8(buffer);
    return name.empty() || name == "." ? folder : JoinPath(folder, name);
}

bool FileExists(const Text& name)
{
    if (name.empty())
        return false;
    const std::string path = NativePath(name);
    return path.find('\0') == std::string::npos && !IsFolder(path) && ::access(path.c_str(), R_OK) == 0;
}

bool SameFile(const Text& a, const Text& b)
{
    struct stat one, other;
    return ::stat(NativePath(a).c_str(), &one) == 0 && ::stat(NativePath(b).c_str(), &other) == 0 &&
           one.st_dev == other.st_dev && one.st_ino == other.st_ino;
}

bool FolderWritable(const Text& path)
{
    if (path.empty())
        return false;
    const std::string folder = NativePath(path);
    if (!IsFolder(folder))
        return false;
    const std::string probe = folder + "/testzzz.who";
    const File file(::open(probe.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0666));
    if (file.handle < 0)
        return false;
    const bool written = ::write(file.handle, "test\r\n", 6) == 6;
    return ::unlink(probe.c_str()) == 0 && written;
}

static constexpr int64_t Second = 1'000'000'000;

static int64_t Nanoseconds(const timespec& time)
{
    return time.tv_sec * Second + time.tv_nsec;
}

FileState StateOf(const std::string& path)
{
    struct stat status;
    if (::stat(path.c_str(), &status) != 0)
        return {};
    return {status.st_size, Nanoseconds(status.st_mtim), static_cast<int64_t>(status.st_ino)};
}

int64_t FolderStamp(const Text& folder)
{
    struct stat status;
    if (::stat(NativePath(folder.empty() ? Text(".") : folder).c_str(), &status) != 0 || !S_ISDIR(status.st_mode))
        return 0;
    const int64_t changed = Nanoseconds(status.st_mtim);
    timespec clock;
    ::clock_gettime(CLOCK_REALTIME, &clock);
    return changed > Nanoseconds(clock) - Second ? 0 : changed ^ static_cast<int64_t>(status.st_ino);
}

std::vector<Text> FilesIn(const Text& folder, const Text& ending)
{
    std::vector<Text> names;
    const std::string path = NativePath(folder.empty() ? Text(".") : folder);
    Folder entries(path);
    while (const dirent* entry = entries.Next()) {
        const Text name = FromUtf8(entry->d_name);
        if (name.size() >= ending.size() && SameText(name.substr(name.size() - ending.size()), ending) &&
            !IsFolder(path + "/" + entry->d_name))
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
    const bool folderThere = at == std::string::npos || at == 0 || IsFolder(path.substr(0, at));
    RaiseSystemError(number, folderThere);
}

std::string ReadWholeFile(const Text& name)
{
    if (name.empty())
        throw RunTimeError{PathAccess};
    const std::string path = NativePath(name);
    if (path.find('\0') != std::string::npos)
        throw RunTimeError{BadFileName};
    const File file(::open(path.c_str(), O_RDONLY | O_CLOEXEC));
    if (file.handle < 0)
        RaiseFor(path, errno);
    std::string bytes;
    struct stat status;
    if (::fstat(file.handle, &status) == 0) {
        if (S_ISDIR(status.st_mode))
            throw RunTimeError{PathAccess};
        bytes.reserve(static_cast<size_t>(std::max<off_t>(status.st_size, 0)) + 1);
    }
    char buffer[65536];
    for (;;) {
        const ssize_t count = ::read(file.handle, buffer, sizeof buffer);
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0)
            RaiseFor(path, errno);
        if (count == 0)
            return bytes;
        bytes.append(buffer, static_cast<size_t>(count));
    }
}

// The file that a link stands for, so that a save goes through the link and does not replace it.
static std::string BehindLinks(const std::string& path)
{
    char* real = ::realpath(path.c_str(), nullptr);
    if (!real)
        return path;
    const std::string target = real;
    std::free(real);
    return target;
}

static unsigned serial = 0; // of the last file written beside its place

static const SharedRecord shared[] = {
    {"serial", Kind::Machine, serial},
};

std::string TemporaryFor(const std::string& path)
{
    constexpr size_t room = 200;             // of the 255 bytes of a name
    const size_t base = path.rfind('/') + 1; // 0 where there is no folder
    return path.substr(0, base + std::min(path.size() - base, room)) + "." + std::to_string(::getpid()) + "-" +
           std::to_string(++serial) + ".tmp~";
}

void WriteWholeFile(const Text& name, std::string_view bytes, Durability durability)
{
    if (name.empty())
        throw RunTimeError{PathAccess};
    const std::string named = NativePath(name);
    if (named.find('\0') != std::string::npos)
        throw RunTimeError{BadFileName};
    if (IsFolder(named))
        throw RunTimeError{PathAccess};
    const std::string path = BehindLinks(named);
    // The old file has to be one that may be written, although it is the folder that a rename changes.
    struct stat old;
    const bool replaces = ::stat(path.c_str(), &old) == 0;
    if (replaces && ::access(path.c_str(), W_OK) != 0)
        RaiseFor(path, errno);
    const std::string temporary = TemporaryFor(path);
    int failure = 0;
    {
        File file(::open(temporary.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666));
        if (file.handle < 0)
            RaiseFor(temporary, errno);
        if (replaces && ::fchmod(file.handle, old.st_mode & 07777) != 0)
            failure = errno;
        while (!bytes.empty() && failure == 0) {
            const ssize_t count = ::write(file.handle, bytes.data(), bytes.size());
            if (count >= 0)
                bytes.remove_prefix(static_cast<size_t>(count));
            else if (errno != EINTR)
                failure = errno;
        }
        if (failure == 0 && durability == Durability::Saved && ::fsync(file.handle) != 0)
            failure = errno;
        const int handle = file.handle;
        file.handle = -1;
        if (::close(handle) != 0 && failure == 0)
            failure = errno;
    }
    if (failure == 0 && ::rename(temporary.c_str(), path.c_str()) != 0)
        failure = errno;
    if (failure != 0) {
        ::unlink(temporary.c_str());
        RaiseFor(path, failure);
    }
    if (durability == Durability::Saved) {
        // The rename itself has to reach the disk too. A folder that cannot be flushed is no failure of the save.
        const size_t at = path.rfind('/');
        const File folder(::open(at == 0 ? "/" : path.substr(0, at).c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
        if (folder.handle >= 0)
            ::fsync(folder.handle);
    }
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
