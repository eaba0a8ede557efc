#pragma once

#include "platform/Platform.h"

#include <filesystem>
#include <string>

namespace vypx::test {

/// A fresh folder that goes with this object.
class TempFolder {
public:
    TempFolder()
    {
        static int made = 0;
        m_path = std::filesystem::temp_directory_path()
            / ("vypx-test-" + std::to_string(platform::ProcessNumber()) + "-"
                + std::to_string(++made));
        std::filesystem::remove_all(m_path);
        std::filesystem::create_directories(m_path);
    }
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;
    ~TempFolder()
    {
        std::error_code ignored;
        std::filesystem::remove_all(m_path, ignored);
    }

    std::string Path() const { return platform::Utf8Path(m_path); }
    std::string File(const std::string& name) const
    {
        return platform::Utf8Path((m_path / platform::NativePath(name)).make_preferred());
    }

private:
    std::filesystem::path m_path;
};

} // namespace vypx::test
