// machine_posix.cpp -- the calls of a POSIX system.
#include "session/machine.h"

#include "session/shared.h"

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <dirent.h>
#include <fcntl.h>
#include <filesystem>
#include <spawn.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace
{
// An open file, closed on every way out.
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

char Machine::Separator()
{
    return '/';
}

bool Machine::HasDriveLetters()
{
    return false;
}

bool Machine::Exists(const std::string& path)
{
    struct stat status;
    return ::stat(path.c_str(), &status) == 0;
}

bool Machine::IsFolder(const std::string& path)
{
    struct stat status;
    return ::stat(path.c_str(), &status) == 0 && S_ISDIR(status.st_mode);
}

bool Machine::Readable(const std::string& path)
{
    return ::access(path.c_str(), R_OK) == 0;
}

bool Machine::Writable(const std::string& path)
{
    return ::access(path.c_str(), W_OK) == 0;
}

bool Machine::SameFile(const std::string& a, const std::string& b)
{
    struct stat one, other;
    return ::stat(a.c_str(), &one) == 0 && ::stat(b.c_str(), &other) == 0 && one.st_dev == other.st_dev &&
           one.st_ino == other.st_ino;
}

static constexpr int64_t Second = 1'000'000'000;

static int64_t Nanoseconds(const timespec& time)
{
    return time.tv_sec * Second + time.tv_nsec;
}

FileState Machine::StateOf(const std::string& path)
{
    struct stat status;
    if (::stat(path.c_str(), &status) != 0)
        return {};
    return {status.st_size, Nanoseconds(status.st_mtim), static_cast<int64_t>(status.st_ino)};
}

int64_t Machine::FolderStamp(const std::string& folder)
{
    struct stat status;
    if (::stat(folder.c_str(), &status) != 0 || !S_ISDIR(status.st_mode))
        return 0;
    const int64_t changed = Nanoseconds(status.st_mtim);
    timespec clock;
    ::clock_gettime(CLOCK_REALTIME, &clock);
    return changed > Nanoseconds(clock) - Second ? 0 : changed ^ static_cast<int64_t>(status.st_ino);
}

std::vector<std::string> Machine::Entries(const std::string& folder)
{
    std::vector<std::string> names;
    DIR* const open = ::opendir(folder.c_str());
    if (!open)
        return names;
    while (const dirent* entry = ::readdir(open))
        names.emplace_back(entry->d_name);
    ::closedir(open);
    return names;
}

std::string Machine::BehindLinks(const std::string& path)
{
    char* real = ::realpath(path.c_str(), nullptr);
    if (!real)
        return path;
    const std::string target = real;
    std::free(real);
    return target;
}

int Machine::Read(const std::string& path, std::string& bytes)
{
    const File file(::open(path.c_str(), O_RDONLY | O_CLOEXEC));
    if (file.handle < 0)
        return errno;
    struct stat status;
    if (::fstat(file.handle, &status) == 0) {
        if (S_ISDIR(status.st_mode))
            return EACCES;
        bytes.reserve(static_cast<size_t>(std::max<off_t>(status.st_size, 0)) + 1);
    }
    char buffer[65536];
    for (;;) {
        const ssize_t count = ::read(file.handle, buffer, sizeof buffer);
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0)
            return errno;
        if (count == 0)
            return 0;
        bytes.append(buffer, static_cast<size_t>(count));
    }
}

int Machine::WriteNew(const std::string& path, std::string_view bytes, const std::string& like, bool flushed)
{
    File file(::open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666));
    if (file.handle < 0)
        return errno;
    int error = 0;
    struct stat old;
    if (!like.empty() && ::stat(like.c_str(), &old) == 0 && ::fchmod(file.handle, old.st_mode & 07777) != 0)
        error = errno;
    while (!bytes.empty() && error == 0) {
        const ssize_t count = ::write(file.handle, bytes.data(), bytes.size());
        if (count >= 0)
            bytes.remove_prefix(static_cast<size_t>(count));
        else if (errno != EINTR)
            error = errno;
    }
    if (error == 0 && flushed && ::fsync(file.handle) != 0)
        error = errno;
    const int handle = file.handle;
    file.handle = -1;
    if (::close(handle) != 0 && error == 0)
        error = errno;
    if (error != 0)
        ::unlink(path.c_str());
    return error;
}

int Machine::Replace(const std::string& from, const std::string& to, bool flushed)
{
    if (::rename(from.c_str(), to.c_str()) != 0)
        return errno;
    if (flushed) {
        // A folder that cannot be flushed is no failure of the save.
        const size_t at = to.rfind('/');
        const std::string folder = at == std::string::npos ? "." : at == 0 ? "/" : to.substr(0, at);
        const File open(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
        if (open.handle >= 0)
            ::fsync(open.handle);
    }
    return 0;
}

int Machine::Flush(int handle)
{
    return ::fsync(handle) == 0 ? 0 : errno;
}

void Machine::Remove(const std::string& path)
{
    ::unlink(path.c_str());
}

bool Machine::ProbeFolder(const std::string& folder)
{
    if (!IsFolder(folder))
        return false;
    const std::string probe = folder + "/testzzz.who";
    const File file(::open(probe.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0666));
    if (file.handle < 0)
        return false;
    const bool written = ::write(file.handle, "test\r\n", 6) == 6;
    return ::unlink(probe.c_str()) == 0 && written;
}

void Machine::KeepPrivate(const std::string& folder)
{
    // A disk that knows no rights has none to set.
    [[maybe_unused]] const int ignored = ::chmod(folder.c_str(), 0700);
}

int Machine::Lock(const std::string& path, bool make)
{
    const int handle = ::open(path.c_str(), (make ? O_CREAT : 0) | O_RDWR | O_CLOEXEC, 0600);
    if (handle >= 0 && ::flock(handle, LOCK_EX | LOCK_NB) != 0) {
        ::close(handle);
        return -1;
    }
    return handle;
}

void Machine::Unlock(int lock)
{
    ::close(lock);
}

int Machine::ProcessNumber()
{
    return ::getpid();
}

std::string Machine::CurrentFolder()
{
    char buffer[4096];
    return ::getcwd(buffer, sizeof buffer) ? buffer : "";
}

std::string Machine::ProgramFolder()
{
    std::error_code ignored;
    return std::filesystem::read_symlink("/proc/self/exe", ignored).parent_path().string();
}

std::string Machine::MakePrivateFolder(int& error)
{
    std::string name = std::filesystem::temp_directory_path().string() + "/stratavue-XXXXXX";
    error = ::mkdtemp(name.data()) ? 0 : errno;
    return error == 0 ? name : "";
}

int Machine::StartWorker(const std::vector<std::string>& words, int& error)
{
    std::string name = "stratavue-batch";
    std::vector<std::string> copies = words;
    std::vector<char*> pointers = {name.data()};
    for (std::string& word : copies)
        pointers.push_back(word.data());
    pointers.push_back(nullptr);
    pid_t process = -1;
    // The link leads to the very program that runs, also where another one has been installed in its place.
    error = ::posix_spawn(&process, "/proc/self/exe", nullptr, nullptr, pointers.data(), environ);
    return error == 0 ? process : -1;
}

static std::sig_atomic_t interruptNoted = 0; // the number of the signal

static const SharedRecord shared[] = {
    {"interruptNoted", Kind::Machine, interruptNoted},
};

// The note as a signal may write it at any moment.
static volatile std::sig_atomic_t& InterruptNoted()
{
    return interruptNoted;
}

int Machine::AwaitWorker(const std::vector<int>& processes, int& status)
{
    // In small steps, so that no interrupt falls between a look at the note and the wait.
    while (!Interrupted()) {
        for (const int process : processes) {
            int told = 0;
            if (::waitpid(process, &told, WNOHANG) == process) {
                status = WIFEXITED(told) ? WEXITSTATUS(told) : -1;
                return process;
            }
        }
        const timespec step = {0, 2'000'000};
        ::nanosleep(&step, nullptr);
    }
    return -1;
}

void Machine::KillWorker(int process)
{
    ::kill(process, SIGKILL);
    while (::waitpid(process, nullptr, 0) < 0 && errno == EINTR) {
    }
}

int Machine::StartedBy()
{
    return ::getppid();
}

static void NoteSignal(int number)
{
    InterruptNoted() = number;
}

void Machine::NoteInterrupts(bool on)
{
    struct sigaction action = {};
    action.sa_handler = on ? NoteSignal : SIG_DFL;
    ::sigemptyset(&action.sa_mask);
    for (const int number : {SIGINT, SIGTERM, SIGHUP}) {
        struct sigaction before = {};
        // One that is ignored (under nohup) stays so.
        if (::sigaction(number, nullptr, &before) == 0 && before.sa_handler != SIG_IGN)
            ::sigaction(number, &action, nullptr);
    }
}

bool Machine::Interrupted()
{
    return InterruptNoted() != 0;
}

void Machine::EndAsInterrupted()
{
    const int number = Interrupted() ? InterruptNoted() : SIGTERM;
    ::signal(number, SIG_DFL);
    ::raise(number);
}
