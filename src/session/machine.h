// machine.h -- the calls of the machine's own system, behind one header: files, locks, folders, the process. One file
// for each system answers it (machine_posix.cpp), and no other file includes a system's header.
//
// Paths are the machine's own, in UTF-8, as NativePath returns them; "/" separates. An error is a number of <cerrno>,
// 0 for none, which RaiseSystemError turns into the program's failure.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

// What tells a file from what it was when it was read: its size, when it was written in nanoseconds, its number on the
// disk. A file that is not there has the start values.
struct FileState {
    int64_t Size = -1, Written = 0, Number = 0;
    bool operator==(const FileState&) const = default;
};

namespace Machine
{
char Separator();       // between the folders of a path, as users of this system write it
bool HasDriveLetters(); // disks are called "a:\\" and the like
bool Exists(const std::string& path);
bool IsFolder(const std::string& path);
// Return whether this user may read it, or write it; a folder too.
bool Readable(const std::string& path);
bool Writable(const std::string& path);
// Returns whether both are there and are one file, links followed.
bool SameFile(const std::string& a, const std::string& b);
FileState StateOf(const std::string& path);

// Returns a number that changes whenever an entry of the folder is added, removed or renamed; 0 for no folder, or for
// one that has changed within the last second, when a further change might not show.
int64_t FolderStamp(const std::string& folder);
// Returns the names of the files and folders in it, unsorted; none where the folder cannot be read.
std::vector<std::string> Entries(const std::string& folder);

// Returns the file that a link stands for, so that a save goes through the link and does not replace it; the path
// itself where nothing is there.
std::string BehindLinks(const std::string& path);

// Reads the whole file into bytes. For a folder the error is EACCES.
int Read(const std::string& path, std::string& bytes);
// Writes a file that is not there yet, and that is gone again after an error. It gets the rights of the file `like`, if
// that is not "". With flushed the bytes are on the disk when this returns.
int WriteNew(const std::string& path, std::string_view bytes, const std::string& like, bool flushed);
// Moves a file over another one in one step: at every moment the old or the new one is there. With flushed the move is
// on the disk too when this returns, where the system can tell.
int Replace(const std::string& from, const std::string& to, bool flushed);
int Flush(int handle); // Brings the bytes of an open file to the disk.
void Remove(const std::string& path);
// Returns whether a small file could be written there and removed: the only test of a folder that counts on every kind
// of disk.
bool ProbeFolder(const std::string& folder);
// Lets no other user into the folder from now on.
void KeepPrivate(const std::string& folder);

// Returns a lock on the file, which the system drops with the program, however it ends; -1 where the lock is held
// elsewhere or the file cannot be opened. With make the file is made where it is not there.
int Lock(const std::string& path, bool make);
void Unlock(int lock);

int ProcessNumber();
std::string CurrentFolder(); // Returns the current folder, "" where it cannot be told.
std::string ProgramFolder(); // Returns the folder of the program that runs, "" where it cannot be told.
// Makes a new folder for this user alone, for files of passing use. Returns its path, or "" with the error.
std::string MakePrivateFolder(int& error);

// Starts the program that runs once more, with these words behind its name, in the same folder and with the same
// standard files. Returns the number of the process, or -1 with the error.
int StartWorker(const std::vector<std::string>& words, int& error);
// Waits until one of these processes, which StartWorker has started, ends. Returns its number, with its exit status or
// -1 where it was killed; or -1 where the user has interrupted the wait.
int AwaitWorker(const std::vector<int>& processes, int& status);
void KillWorker(int process); // ends it at once; AwaitWorker has not returned it yet
int StartedBy();              // the number of the process that has started this one, or of its heir
// While on, a user's interrupt (Ctrl-C, or the request of the system to end) is noted and ends nothing.
void NoteInterrupts(bool on);
bool Interrupted();      // one has been noted
void EndAsInterrupted(); // ends the program as an interrupt would that is not noted
} // namespace Machine
