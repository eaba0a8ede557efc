// Saving 3996 working files at 8 bits, packed, against reading the same files and writing their
// bytes as one file (an iconset holds 2000 resources, its version and its index among them, of two
// working files each); and opening and saving against a bare loop over the same records that
// expands, writes, reads and encodes each. Compare CPU times.

#include "companion/BmpFile.h"
#include "companion/PalmRecord.h"
#include "companion/PixelLibrary.h"
#include "document/Document.h"
#include "document/IconStats.h"
#include "document/WorkingFolder.h"
#include "platform/Platform.h"
#include "reader/BitmapRecord.h"
#include "reader/LoadFile.h"
#include "settings/Settings.h"
#include "support/Files.h"
#include "support/Iconsets.h"
#include "support/TempFolder.h"
#include "writer/CompileIconset.h"

#include <benchmark/benchmark.h>
#include <random>

namespace vypx {

namespace {

constexpr int Resources = 1998;

class Silent : public LoadListener {
    void Message(std::string_view) override { }
};

/// Smooth areas with some noise, as icons have.
Picture SomePicture(int width, int height, std::mt19937& random)
{
    Picture picture(width, height);
    Rgb colour;
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x) {
            if (random() % 5 == 0)
                colour = Palette8[random() % 200];
            picture.Set(x, y, colour);
        }
    return picture;
}

/// The records of one resource.
struct Family {
    Bytes low, high;
};

const std::vector<Family>& Families()
{
    static const std::vector<Family> families = [] {
        std::mt19937 random(1);
        const RecordForm form{
            .depth = 8, .packed = true, .palette8 = Palette8, .palette4 = Palette4
        };
        std::vector<Family> made(Resources);
        for (Family& family : made) {
            family.low = EncodeLowDensity(SomePicture(32, 22, random), form, std::nullopt, true);
            family.high = EncodeHighDensity(SomePicture(64, 44, random), form, std::nullopt);
        }
        return made;
    }();
    return families;
}

const test::TempFolder& Folder()
{
    static const test::TempFolder folder;
    return folder;
}

void Prepare()
{
    SetDefaultSettings();
    DefaultColorDepth = ColorDepth::Bits8;
    UsePackbits = true;
    AppFolder = Folder().Path();
    SetTempSuffix(0);
    MakeFolder(WorkFolder());
    if (FileExists(Folder().File("big.prc")))
        return;
    test::Iconset set;
    for (int id = 0; id < Resources; ++id) {
        const Family& family = Families()[static_cast<std::size_t>(id)];
        set.resources.push_back(
            { "tAIB", 3500 + id, test::Join({ family.low, HighDensityMark(), family.high }) });
    }
    test::WriteBytes(Folder().File("big.prc"), set.File());
}

void Open()
{
    ResetDocument();
    Silent listener;
    if (LoadFile({ .path = Folder().File("big.prc") }, listener).result != LoadResult::Opened)
        std::abort();
}

void Save() { CompileIconset({ .path = Folder().File("out.prc") }); }

void SaveAFullIconset(benchmark::State& state)
{
    Prepare();
    Open();
    for (auto _ : state)
        Save();
}

void ReadThemAndWriteTheirBytes(benchmark::State& state)
{
    Prepare();
    Open();
    for (auto _ : state) {
        Bytes all;
        for (const BitmapEntry& bitmap : BitmapTable) {
            if (bitmap.file.empty())
                continue;
            const auto bytes = platform::ReadWholeFile(WorkPath(bitmap.file));
            all.insert(all.end(), bytes->begin(), bytes->end());
        }
        if (platform::ReplaceFile(Folder().File("bytes"), all))
            std::abort();
    }
}

void OpenAndSave(benchmark::State& state)
{
    Prepare();
    for (auto _ : state) {
        Open();
        Save();
    }
}

Bytes ExpandWriteReadEncode(const Bytes& bytes, bool high, const std::string& path)
{
    const BitmapRecord record{ .bytes = bytes, .highDensity = high };
    const PixelBuffer pixels = ExpandPixels(record.Pixels(), record.Form());
    Bmp8to24(pixels, Palette8, record.Width(), record.Height(), path);
    const auto picture = DecodeBmp(*platform::ReadWholeFile(path));
    const RecordForm form{ .depth = 8, .packed = true, .palette8 = Palette8, .palette4 = Palette4 };
    return high ? EncodeHighDensity(*picture, form, std::nullopt)
                : EncodeLowDensity(*picture, form, std::nullopt, true);
}

void BareLoop(benchmark::State& state)
{
    Prepare();
    for (auto _ : state) {
        DeleteWorkingFiles({ ".bmp" });
        Bytes all;
        for (int id = 0; id < Resources; ++id) {
            const Family& family = Families()[static_cast<std::size_t>(id)];
            const std::string name = "tAIB" + std::to_string(3500 + id);
            for (const Bytes& record :
                { ExpandWriteReadEncode(family.low, false, WorkPath(name + ".bmp")),
                    ExpandWriteReadEncode(family.high, true, WorkPath(name + "-d144.bmp")) })
                all.insert(all.end(), record.begin(), record.end());
        }
        if (platform::ReplaceFile(Folder().File("bytes"), all))
            std::abort();
    }
}

BENCHMARK(ReadThemAndWriteTheirBytes)->Unit(benchmark::kMillisecond);
BENCHMARK(SaveAFullIconset)->Unit(benchmark::kMillisecond);
BENCHMARK(BareLoop)->Unit(benchmark::kMillisecond);
BENCHMARK(OpenAndSave)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace vypx
