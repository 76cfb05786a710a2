// failure.h -- run-time failures by number, and the one report that every procedure of the shared modules ends in.
#pragma once

// The numbers that the program uses; the user sees them in the report.
enum FailureNumber {
    InvalidCall = 5,
    Overflow = 6,
    OutOfMemory = 7,
    SubscriptOutOfRange = 9,
    DivisionByZero = 11,
    BadFileName = 52,
    FileNotFound = 53,
    DeviceError = 57,
    DiskFull = 61,
    InputPastEnd = 62,
    TooManyFiles = 67,
    PermissionDenied = 70,
    DiskNotReady = 71,
    PathAccess = 75,
    PathNotFound = 76,
    InvalidValue = 380,
    InvalidPicture = 481,
    PrinterError = 482
};

struct RunTimeError {
    int Number;
};

// Returns the number of the failure that is being handled; call it inside a catch block only. What the standard
// library throws has its number too, so that nothing passes unnamed.
int FailureInHand();

// Tells the failure that is being handled. Every procedure of the shared modules ends so, as a function-try-block:
//     catch (...) { ReportFailure(__func__); }
// The box says "Error" + number + " in " + procedure + ".  Please contact Norvane" (OK only, no icon). Behind it the
// caller goes on as if the procedure had succeeded.
void ReportFailure(const char* procedure);
extern int FailuresReported; // counts the reports that the user has seen: so a caller that must know learns of one

// Raises the failure that the operating system's error number stands for. folderThere tells, for a missing
// file, whether its folder exists.
[[noreturn]] void RaiseSystemError(int number, bool folderThere);
