#include "install/InstallResult.h"

namespace vypx {

std::string_view InstallMessage(std::int16_t result)
{
    switch (result) {
    case InstallResult::Queued:
        return {};
    case InstallResult::AlreadyWaiting:
        return "Error! An iconset with this filename is already waiting to be hotsynced.";
    case InstallResult::WrongUser:
        return "Error! The Palm User ID does not appear to be correct.\n"
               "Please check the Palm User ID in the Program Options screen.";
    case InstallResult::FileMissing:
        return "Error! The install tool was unable to locate the file.";
    default:
        return "Error! Unknown error while trying to send the iconset to the Palm Install tool.";
    }
}

} // namespace vypx
