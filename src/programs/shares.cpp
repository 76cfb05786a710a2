// shares.cpp -- the processes of a run and their reports.
#include "programs/shares.h"

#include "session/failure.h"
#include "session/files.h"
#include "session/machine.h"

#include <algorithm>
#include <filesystem>
#include <system_error>

// ---- The report: a line for each event, its fields between tabs

static Text ReportFile(const Text& folder)
{
    return JoinPath(folder, "report");
}

static std::string Escaped(const Text& text)
{
    std::string escaped;
    for (const char letter : text) {
        const size_t at = std::string_view("\\\t\r\n").find(letter);
        if (at == std::string_view::npos)
            escaped += letter;
        else
            (escaped += '\\') += "\\trn"[at];
    }
    return escaped;
}

static Text Unescaped(std::string_view field)
{
    Text text;
    for (size_t i = 0; i < field.size(); ++i) {
        const size_t at =
            field[i] == '\\' && i + 1 < field.size() ? std::string_view("\\trn").find(field[i + 1]) : std::string::npos;
        if (at == std::string::npos)
            text += field[i];
        else {
            text += "\\\t\r\n"[at];
            ++i;
        }
    }
    return text;
}

ShareReport::ShareReport(const Text& folder) : out(NativePath(ReportFile(folder)), std::ios::binary)
{
    if (!out)
        throw RunTimeError{PathAccess};
}

void ShareReport::Tell(const ShareEvent& event)
{
    out << char(event.What) << '\t' << event.Number << '\t' << Escaped(event.File) << '\t' << Escaped(event.Words)
        << '\n';
    if (!out.flush())
        throw RunTimeError{DiskFull};
}

static ShareEvent EventOf(std::string_view line)
{
    std::string_view fields[4];
    for (std::string_view& field : fields) {
        const size_t end = std::min(line.find('\t'), line.size());
        field = line.substr(0, end);
        line.remove_prefix(std::min(end + 1, line.size()));
    }
    const char kind = fields[0].empty() ? char(ShareEvent::Unsettled) : fields[0][0];
    return {ShareEvent::Kind(kind), int(TextNumber(fields[1])), Unescaped(fields[2]), Unescaped(fields[3])};
}

std::vector<ShareEvent> ReadShareReport(const Text& folder)
{
    std::vector<ShareEvent> events;
    if (!FileExists(ReportFile(folder)))
        return events;
    const std::string bytes = ReadWholeFile(ReportFile(folder));
    for (size_t at = 0, end; (end = bytes.find('\n', at)) != std::string::npos; at = end + 1)
        events.push_back(EventOf(std::string_view(bytes).substr(at, end - at)));
    return events;
}

// ---- Shares

ShareOfFiles FilesOfShare(size_t files, int share, int of)
{
    return {files * size_t(share - 1) / size_t(of), files * size_t(share) / size_t(of)};
}

std::string Renumbered(const std::string& listing, int pages, int drawn)
{
    static constexpr std::string_view head = "{\"page\": ";
    std::string lines;
    int page = 0;
    for (size_t at = 0; at < listing.size();) {
        const size_t end = std::min(listing.find('\n', at), listing.size() - 1) + 1;
        const std::string_view line = std::string_view(listing).substr(at, end - at);
        at = end;
        if (!line.starts_with(head)) {
            lines += line;
            continue;
        }
        if (++page > pages)
            break;
        lines += head;
        lines += std::to_string(drawn + page);
        lines += line.substr(std::min(line.find(','), line.size()));
    }
    return lines;
}

// ---- The processes

Text ShareProcesses::Folder(const Text& folder, int share)
{
    return JoinPath(folder, PlainNumber(share));
}

// The option goes right behind the job, where no "--" can be before it.
ShareProcesses::ShareProcesses(const std::vector<std::string>& words, int shares, const Text& folder)
{
    for (int share = 1; share <= shares && started; ++share) {
        const std::string own = NativePath(Folder(folder, share));
        std::error_code failed;
        std::filesystem::create_directory(own, failed);
        Machine::KeepPrivate(own); // the library that paints counts on it
        std::vector<std::string> all = words;
        all.insert(all.begin() + 1, {"--share", std::to_string(share) + "/" + std::to_string(shares) + ":" + own});
        int error = failed.value();
        const int process = error == 0 ? Machine::StartWorker(all, error) : -1;
        started = error == 0;
        if (started)
            running.push_back(process);
    }
}

ShareProcesses::~ShareProcesses()
{
    for (const int process : running)
        Machine::KillWorker(process);
}

bool ShareProcesses::Await()
{
    while (started && !running.empty()) {
        int status = 0;
        const int ended = Machine::AwaitWorker(running, status);
        if (ended < 0)
            throw Interrupt{};
        std::erase(running, ended);
        if (status == UnsettledStatus)
            return false;
    }
    return started;
}
