// files.h -- text files line by line, and file names of this machine.
//
// The only place that turns a name into a path of this machine: "\" and "/" both separate, a relative name counts
// from WorkingFolder, and a component that does not exist as written is matched in any case of its letters.
#pragma once

#include "session/text.h"

#include <string>
#include <vector>

// The path to use for a name, in the machine's own encoding. Without a match the name as written.
std::string NativePath(const Text& name);

bool FileExists(const Text& name);           // a file that can be opened for input; "" and folders are not
bool SameFile(const Text& a, const Text& b); // both are there, and are one file by two names, links followed
bool FolderWritable(const Text& path);       // writes and deletes a probe there; the only test that a folder exists
Text JoinPath(const Text& folder, const Text& name); // the machine's separator between, unless folder ends in one
bool EndsInSeparator(const Text& folder);
Text BaseName(const Text& name);   // behind the last "\", "/" or ":"
Text FolderName(const Text& name); // before the last "\" or "/", without it; "" if there is none
bool HasEnding(const Text& name);  // a "." in the base name
Text FullPath(const Text& name);   // absolute, from the current folder of the process; links stay
// Changes whenever an entry of the folder is added, removed or renamed; 0 for no folder, or for one that has changed
// within the last second, when a further change might not show.
int64_t FolderStamp(const Text& folder);
std::vector<Text> FilesIn(const Text& folder, const Text& ending); // base names, ending in any case, by name

// Beside a file of this machine, and no longer than a name may be: where its new form is written, to take its place by
// a rename when it is whole. Another one at each call.
std::string TemporaryFor(const std::string& path);

// The whole file as bytes; failures by number.
std::string ReadWholeFile(const Text& name);

// Replaces the file by these bytes: a temporary file beside it, flushed to disk and renamed, so that a crash or
// a full disk leaves the old file whole. Scratch files (run files, screen forms of patterns) skip the flush.
enum class Durability { Saved, Scratch };
void WriteWholeFile(const Text& name, std::string_view bytes, Durability durability = Durability::Saved);

// A text file, read line by line. CR LF, a lone CR and a lone LF each end a line; byte 26 ends the file.
class LineReader
{
public:
    explicit LineReader(const Text& name);
    Text Line(); // past the end: failure 62
    void Skip(int lines);
    bool AtEnd() const;
    int32_t Count(); // the next line as a count: rounded, below 0 as 0

private:
    std::string bytes;
    size_t at = 0;
};

// A text file under way, CR LF behind each line; nothing reaches the disk before Close.
class LineWriter
{
public:
    explicit LineWriter(const Text& fileName, Durability fileDurability = Durability::Saved);
    void Line(std::string_view text);
    void Close();

private:
    Text name;
    Durability durability;
    std::string bytes;
};
