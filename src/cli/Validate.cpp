#include "cli/Validate.h"

#include "cli/DocumentChecks.h"
#include "cli/FileChecks.h"
#include "companion/DatabaseHeader.h"
#include "companion/Latin1.h"
#include "platform/Platform.h"

#include <filesystem>
#include <iostream>

namespace vypx {

namespace {

namespace fs = std::filesystem;

/// Why a load could not read the file at all; empty: it could.
std::string WhyNotRead(const std::string& file)
{
    std::error_code error;
    const fs::path path = platform::NativePath(file);
    const fs::file_status status = fs::status(path, error);
    if (!fs::exists(status))
        return error && error != std::errc::no_such_file_or_directory ? error.message()
                                                                      : "there is no such file";
    if (fs::is_directory(status))
        return "it is a folder";
    if (!fs::is_regular_file(status))
        return "it is a pipe or a device and no file";
    const std::uintmax_t size = fs::file_size(path, error);
    if (!error && size > LargestIconset)
        return "it has " + std::to_string(size) + " bytes, and no more than "
            + std::to_string(LargestIconset) + " are looked at";
    return platform::ReadWholeFile(file, LargestIconset) ? "" : "it can't be read";
}

void JudgeBytes(ByteView file, Findings& findings)
{
    if (file.Size() < DatabaseHeaderSize) {
        findings.Add("header", "the file ends within it");
        return;
    }
    CheckHeader(file, findings);
    const std::vector<ListedResource> resources = ListedResources(file);
    CheckList(file, resources, findings);
    CheckIndex(file, resources, findings);
    for (const ListedResource& resource : resources) {
        const ByteView data = resource.Data(file);
        if (resource.HasPictures() && data.Size() > 0)
            CheckPictures(resource.Name(), data, findings);
    }
}

} // namespace

Findings Judged(const ReadOptions& options)
{
    Findings findings;
    JudgedPictures pictures(findings, IsTemplate(options));
    const ReadEnd end = ReadIconset(options, pictures, true);
    for (const std::string& text : end.messages)
        findings.Add("load", text);
    for (const std::string& resource : end.duplicates)
        findings.Add(resource, "the label of its icon is another one's already");
    if (const std::string note = NoteOf(end.report); !note.empty()) {
        const std::string why = end.file.empty() ? WhyNotRead(options.file) : std::string();
        findings.Add("load", Latin1FromUtf8(why.empty() ? note : note + " (" + why + ")"));
    }
    if (end.file.empty())
        return findings; // it is no iconset
    JudgeBytes(end.file, findings);
    if (end.IsOpened()) {
        CheckIcons(findings);
        CheckSave(end.file, pictures, findings);
    }
    return findings;
}

int Validate(const ReadOptions& options)
{
    const Findings findings = Judged(options);
    for (const std::string& line : findings.Lines())
        std::cout << line << '\n';
    return findings.Lines().empty() ? 0 : 1;
}

} // namespace vypx
