#pragma once

#include "forms/common/ProgramName.h"
#include "platform/Platform.h"

namespace vypx {

/// What a start tells that can't have a folder to work in.
inline QString FolderFailureText(const std::filesystem::filesystem_error& error)
{
    const platform::FolderFailure failure = platform::ExplainFolderFailure(error);
    if (failure.path.empty())
        return QString("%1 can't start: there is no folder for your files.").arg(ProgramTitle);
    return QString("%1 can't start: its folder \"%2\" can't be made or used.\n\n%3.")
        .arg(ProgramTitle, QString::fromStdString(failure.path),
            QString::fromLocal8Bit(failure.reason.c_str()));
}

} // namespace vypx
