#include "writer/TemplateExport.h"

#include "document/Document.h"
#include "document/IconStats.h"
#include "platform/Platform.h"
#include "writer/CompileIconset.h"
#include "writer/SaveChecks.h"

#include <filesystem>

namespace vypx {

namespace {

namespace fs = std::filesystem;

/// The flag of a compile that makes a template, taken back whatever comes of it.
class Exporting {
public:
    Exporting() { ExportingTemplate = true; }
    ~Exporting() { ExportingTemplate = false; }
    Exporting(const Exporting&) = delete;
    Exporting& operator=(const Exporting&) = delete;
};

/// Where a file of that path is, or would be.
fs::path Place(const std::string& path)
{
    std::error_code error;
    const fs::path native = platform::NativePath(path);
    const fs::path place = fs::weakly_canonical(native, error);
    return error ? native.lexically_normal() : place;
}

bool IsSameFile(const std::string& path, const std::string& other)
{
    const auto here = platform::IdentityOf(path), there = platform::IdentityOf(other);
    if (here && there)
        return here->volume == there->volume && here->file == there->file;
    return Place(path) == Place(other);
}

} // namespace

std::optional<std::string_view> WhyNotExported()
{
    if (!FileLoaded)
        return "No file loaded";
    if (!HasNormalImages())
        return "Can't save. The iconset doesn't contain any icons.";
    if (StatTotal == 0)
        return "Can't save. You must add some icons first.";
    return std::nullopt;
}

bool IsOpenFile(const std::string& path) { return !FileName.empty() && IsSameFile(path, FileName); }

bool WouldReplaceOpenIconset(const std::string& path)
{
    return !LoadedAsTemplate && IsOpenFile(path);
}

SaveReport ExportTemplate(const std::string& path, ColorDepth depth)
{
    TemplatePath = path;
    const Exporting exporting;
    CompileTarget target = TargetFromFlags();
    target.depth = depth;
    return CompileIconset(target);
}

} // namespace vypx
