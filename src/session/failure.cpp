// failure.cpp -- failures by number, and their report.
#include "session/failure.h"

#include "session/platform.h"
#include "session/shared.h"
#include "session/text.h"

#include <cerrno>
#include <new>
#include <stdexcept>

int FailureInHand()
{
    try {
        throw;
    } catch (const RunTimeError& error) {
        return error.Number;
    } catch (const std::bad_alloc&) {
        return OutOfMemory;
    } catch (const std::length_error&) {
        return OutOfMemory;
    } catch (...) {
        return InvalidCall;
    }
}

int FailuresReported = 0;

static const SharedRecord shared[] = {
    {"FailuresReported", Kind::Document, FailuresReported},
};

void ReportFailure(const char* procedure)
{
    const int number = FailureInHand();
    ++FailuresReported;
    MsgBox("Error" + NumberText(number) + " in " + procedure + ".  Please contact Norvane", OkOnly, NoIcon);
}

void RaiseSystemError(int number, bool folderThere)
{
    switch (number) {
    case EINVAL:
    case ENAMETOOLONG:
        throw RunTimeError{BadFileName};
    case ENOENT:
    case ENOTDIR:
        throw RunTimeError{folderThere ? FileNotFound : PathNotFound};
    case EIO:
        throw RunTimeError{DeviceError};
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
        throw RunTimeError{DiskFull};
    case EMFILE:
    case ENFILE:
        throw RunTimeError{TooManyFiles};
    case EBUSY:
    case ETXTBSY:
        throw RunTimeError{PermissionDenied};
    case ENXIO:
        throw RunTimeError{DiskNotReady};
    case ENOMEM:
        throw RunTimeError{OutOfMemory};
    default:
        throw RunTimeError{PathAccess};
    }
}
