#pragma once

#include "Tool.h"
#include "support/Files.h"
#include "support/Iconsets.h"
#include "support/Netpbm.h"
#include "support/TempFolder.h"

#include <filesystem>
#include <gmock/gmock.h>
#include <set>

namespace vypx::test {

/// A bitmap record of 8 bits whose pixels all have one index of the system's palette, but for the
/// upper left one, which has `corner`. With a transparent colour it is that corner's.
struct PlainBitmap {
    int width = 64, height = 44;
    std::uint8_t index = 0, corner = 0;
    bool transparent = false, high = false;

    Bytes Record(bool last = true) const
    {
        const int rowBytes = (width + 1) / 2 * 2;
        const std::size_t header = high ? 24 : 16;
        const auto pixels = static_cast<std::size_t>(rowBytes * height);
        Bytes record((header + pixels + 3) / 4 * 4, 0);
        PutU16(record, 0, static_cast<unsigned>(width));
        PutU16(record, 2, static_cast<unsigned>(height));
        PutU16(record, 4, static_cast<unsigned>(rowBytes));
        PutU16(record, 6, transparent ? 0x2000 : 0);
        record[8] = 8;
        record[9] = high ? 3 : 2;
        record[13] = 0xFF;
        record[high ? 19 : 12] = corner;
        if (high)
            PutU16(record, 14, 144);
        else if (!last)
            PutU16(record, 10, static_cast<unsigned>(record.size() / 4));
        std::fill_n(record.begin() + static_cast<std::ptrdiff_t>(header), pixels, index);
        record[header] = corner;
        return record;
    }
    /// A low-density one of the index alone, packed in runs of 255 bytes, of which the width is a
    /// multiple.
    Bytes InRuns() const
    {
        Bytes record = Record();
        record.resize(18);
        PutU16(record, 6, 0x8000);
        record[13] = 1;
        for (int runs = 0; runs < width / 255 * height; ++runs)
            record.insert(record.end(), { 255, index });
        PutU16(record, 16, static_cast<unsigned>(record.size() - 16));
        record.resize((record.size() + 3) / 4 * 4);
        return record;
    }
};

/// For the commands that only look at FILE: a folder of the test in which FILE is `set.prc`.
class ReadingFixture : public ::testing::Test {
protected:
    void Write(const Iconset& set) { WriteBytes(folder.File("set.prc"), set.File()); }
    /// Both pictures of an icon; each picture's upper left pixel is transparent.
    static Bytes Family(std::uint8_t index, int width = 64, int height = 44)
    {
        const PlainBitmap low{ .width = width / 2,
            .height = height / 2,
            .index = index,
            .corner = 5,
            .transparent = true };
        PlainBitmap high = low;
        high.width = width;
        high.height = height;
        high.high = true;
        return Join({ low.Record(false), Separator(), high.Record() });
    }
    /// A set of which nothing gets lost: one application that the shipped catalogs know.
    static Iconset SoundSet()
    {
        Iconset set{ .name = "Sound",
            .resources = { { "tAIB", 3500, Family(0x60) }, { "tAIB", 3501, Family(0x70, 30, 22) },
                { "tver", 1000, { '3', '.', '2', '0', 0 } },
                { "iTbl", 1000, IndexRecord("appl", "date", 3500, 3501) } } };
        return set;
    }
    /// Bare names of what is in the test's folder.
    std::set<std::string> Listing(const std::string& below = {}) const
    {
        std::set<std::string> names;
        for (const auto& entry :
            std::filesystem::directory_iterator(below.empty() ? folder.Path() : folder.File(below)))
            names.insert(entry.path().filename().string());
        return names;
    }
    /// A file with the attribute and the version of a resource database, which the support's own
    /// lack.
    static Bytes WithAttribute(Bytes file)
    {
        PutU16(file, 32, 1);
        if (file[34] == 0 && file[35] == 0)
            PutU16(file, 34, 1);
        return file;
    }

    TempFolder folder;
};

} // namespace vypx::test
