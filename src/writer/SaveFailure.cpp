#include "writer/SaveFailure.h"

#include "companion/Latin1.h"
#include "document/Document.h"
#include "document/WorkingFolder.h"
#include "platform/Platform.h"

namespace vypx {

namespace {

/// Of the first icon that shows the file; the file's own name without its ending where none does.
std::string OwnerOf(const std::string& name, std::string IconRow::*cell, std::string_view ending)
{
    for (const IconRow& row : IconTable)
        if (row.*cell == name && !row.IconLabel.empty())
            return Utf8FromLatin1(row.IconLabel);
    return name.substr(0, name.size() - ending.size());
}

/// What a file is for the user, who has never heard of those in the working folder.
std::string SubjectOf(const std::string& file)
{
    if (FolderOf(file) != WorkFolder())
        return file;
    const std::string name = LastComponent(file);
    const std::string High = std::string(HighResSuffix) + ".bmp", Low = ".bmp";
    if (name.ends_with(High))
        return "The high-res picture of " + OwnerOf(name, &IconRow::HighResFile, High);
    if (name.ends_with(Low))
        return "The low-res picture of " + OwnerOf(name, &IconRow::LowResFile, Low);
    if (name.starts_with("tver"))
        return "The version text";
    return name.starts_with("iTbl") ? "The index of icons" : "The working folder";
}

} // namespace

SaveFailure::SaveFailure(const std::string& file, const std::string& reason)
    : std::runtime_error(file.empty() ? reason : SubjectOf(file) + ": " + reason)
{
}

SaveFailure::SaveFailure(const std::string& file, std::error_code error)
    : SaveFailure(
        platform::ExplainRefusal(file, error).path, platform::ExplainRefusal(file, error).reason)
{
}

SaveFailure::SaveFailure(const CompileFailure& failure)
    : SaveFailure(failure.file, failure.reason)
{
}

} // namespace vypx
