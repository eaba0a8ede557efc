#pragma once

#include "install/InstallResult.h"
#include "install/InstallWays.h"
#include "support/Files.h"
#include "support/PrcFiles.h"
#include "support/TempFolder.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <set>

namespace vypx::test {

/// A Palm database of that name: its header, and `body` behind it.
inline Bytes PalmDatabase(const std::string& name, std::string_view body = "icons")
{
    Bytes file = PrcFile(name, "ICON", "VNTR");
    file.resize(78);
    file.insert(file.end(), body.begin(), body.end());
    return file;
}

/// An iconset "set.prc" that is to be queued, and a folder for the queue.
class InstallFixture : public ::testing::Test {
protected:
    InstallFixture() { WriteBytes(folder.File("set.prc"), PalmDatabase("My Icons")); }

    /// The names of all that stands in a folder.
    static std::set<std::string> NamesIn(const std::string& path)
    {
        std::set<std::string> names;
        for (const auto& entry : std::filesystem::directory_iterator(platform::NativePath(path)))
            names.insert(platform::Utf8Path(entry.path().filename()));
        return names;
    }

    TempFolder folder;
};

} // namespace vypx::test
