#pragma once

#include "catalogs/ShippedCatalogs.h"

#include "support/Files.h"
#include "support/TempFolder.h"

#include <chrono>
#include <filesystem>
#include <gtest/gtest.h>
#include <thread>

namespace vypx::test {

/// A folder with what a program ships, and one of a user's.
class Shipping : public ::testing::Test {
protected:
    /// A start of the program, as far as it takes what is shipped.
    void Start(std::string_view version = "2.0.0") const
    {
        TakeShippedFiles(
            { .work = user.Path(), .shipped = shipped.Path() }, ShippedCatalogRules, version);
    }
    /// A later start, at which what was written before has rested.
    void StartLater(std::string_view version = "2.0.0") const
    {
        std::this_thread::sleep_for(std::chrono::milliseconds(25));
        Start(version);
    }

    void Ship(const std::string& name, std::string_view text) const
    {
        std::filesystem::create_directories(
            std::filesystem::path(shipped.File(name)).parent_path());
        WriteText(shipped.File(name), text);
    }
    /// What a version ships, and a start of it.
    void Bring(const std::string& catalog, std::string_view text) const
    {
        Ship(catalog, text);
        StartLater();
    }
    /// The catalog of applications when the version that brings `added` meets the user's `own`.
    std::string Merged(const std::string& own, const std::string& added) const
    {
        Bring("AppList.dat", "");
        WriteOwn("AppList.dat", own);
        Bring("AppList.dat", added);
        return Own("AppList.dat");
    }

    /// A file of the user's. A new line of one without any ends as the system's do.
    std::string Own(const std::string& name) const
    {
        std::string text = ReadText(user.File(name));
        if (platform::PathSeparator == '\\')
            std::erase(text, '\r');
        return text;
    }
    void WriteOwn(const std::string& name, std::string_view text) const
    {
        WriteText(user.File(name), text);
    }
    void DeleteOwn(const std::string& name) const { std::filesystem::remove(user.File(name)); }
    bool Has(const std::string& name) const { return std::filesystem::exists(user.File(name)); }

    TempFolder shipped, user;
};

/// An entry of a catalog of applications or of the launcher's icons.
inline std::string OwnerText(const std::string& name, const std::string& creator)
{
    return "[" + name + "]\nType=appl\nCreator={" + creator + "}\n";
}
inline std::string LauncherItem(const std::string& name, const std::string& id)
{
    return "[" + name + "]\nID=" + id + "\n";
}

} // namespace vypx::test
