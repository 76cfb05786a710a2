// files.h -- text files line by line, and file names of this machine.
//
// The only place that turns a name into a path of this machine: "\" and "/" both separate, a relative name counts
// from WorkingFolder, and a component that does not exist as written is matched in any case of its letters.
#pragma once

#include "session/text.h"

#include <string>
#include <vector>

// Returns the path to use for a name, in the machine's own encoding; without a match it is the name as written.
std::string NativePath(const Text& name);

// Returns whether the name is that of a file that can be opened for input; "" and folders are none.
bool FileExists(const Text& name);
// Returns whether both files are there and are one file by two names, links followed.
bool SameFile(const Text& a, const Text& b);
// Returns whether a small file could be written there and deleted again. It is the only test that a folder exists.
bool FolderWritable(const Text& path);
// Returns the two with the machine's separator between them, unless folder ends in one.
Text JoinPath(const Text& folder, const Text& name);
bool EndsInSeparator(const Text& folder);
// Returns what stands behind the last "\", "/" or ":".
Text BaseName(const Text& name);
// Returns what stands before the last "\" or "/", without it; "" if there is none.
Text FolderName(const Text& name);
// Returns whether there is a "." in the base name.
bool HasEnding(const Text& name);
// Returns the absolute path, from the current folder of the process; links stay.
Text FullPath(const Text& name);
// Returns a number that changes whenever an entry of the folder is added, removed or renamed; 0 for no folder, or for
// one that has changed within the last second, when a further change might not show.
int64_t FolderStamp(const Text& folder);
// Returns the base names of the files in the folder that have the ending, in any case of its letters; sorted by name.
std::vector<Text> FilesIn(const Text& folder, const Text& ending);

// Returns a name beside a file of this machine, no longer than a name may be, and another one at each call: there the
// file's new form is written, to take its place by a rename when it is whole.
std::string TemporaryFor(const std::string& path);

// Returns the whole file as bytes; failures by number.
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
    Text Line(); // Returns the next line; past the end it is failure 62.
    void Skip(int lines);
    bool AtEnd() const;
    int32_t Count(); // Returns the next line as a count: rounded, and 0 where it is below.

private:
    std::string bytes;
    size_t at = 0;
};

// A text file that is being written, with CR LF behind each line. Nothing reaches the disk before Close.
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
