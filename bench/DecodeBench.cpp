// Opening an iconset of 2000 resources with 4000 pictures (8 and 16 bits, not compressed and in all
// compressed forms) against writing the same working files with plain calls. Compare CPU times.

#include "companion/NearestColour.h"
#include "document/Document.h"
#include "document/WorkingFolder.h"
#include "reader/LoadFile.h"
#include "settings/Settings.h"
#include "support/Files.h"
#include "support/Iconsets.h"
#include "support/TempFolder.h"

#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <map>
#include <random>
#include <unistd.h>

namespace vypx {

namespace {

using test::Join;

class Silent : public LoadListener {
    void Message(std::string_view) override { }
};

enum Form { Plain, Scanline, Rle, PackBits, Sixteen, FormCount };

Bytes Packed(const Bytes& row, Form form)
{
    Bytes packed;
    switch (form) {
    case Scanline:
        for (std::size_t i = 0; i < row.size(); i += 8) {
            packed.push_back(0xFF);
            packed.insert(packed.end(), row.begin() + static_cast<std::ptrdiff_t>(i),
                row.begin() + static_cast<std::ptrdiff_t>(std::min(i + 8, row.size())));
        }
        return packed;
    case Rle:
        for (const std::uint8_t value : row)
            packed.insert(packed.end(), { 1, value });
        return packed;
    case PackBits:
        packed.push_back(static_cast<std::uint8_t>(row.size() - 1));
        packed.insert(packed.end(), row.begin(), row.end());
        return packed;
    default:
        return row;
    }
}

/// A record of random pixels.
Bytes Record(int width, int height, Form form, bool high, std::mt19937& random)
{
    const bool sixteen = form == Sixteen, compressed = form != Plain && !sixteen;
    const auto rowBytes = static_cast<std::size_t>(sixteen ? width * 2 : width);
    Bytes record(high || sixteen ? 24 : 16, 0);
    test::PutU16(record, 0, static_cast<unsigned>(width));
    test::PutU16(record, 2, static_cast<unsigned>(height));
    test::PutU16(record, 4, static_cast<unsigned>(rowBytes));
    record[6] = compressed ? 0x80 : 0;
    record[8] = sixteen ? 16 : 8;
    record[13] = form == Scanline ? 0 : form == Rle ? 1 : 2;
    if (compressed)
        record.resize(record.size() + (high ? 4 : 2), 1);
    for (int y = 0; y <= height; ++y) {
        Bytes row(rowBytes);
        for (std::uint8_t& byte : row)
            byte = static_cast<std::uint8_t>(random());
        if (y < height || form == Scanline)
            record = Join({ record, Packed(row, form) });
    }
    record.resize((record.size() + 3) / 4 * 4);
    if (!high)
        test::PutU16(record, 10, static_cast<unsigned>(record.size() / 4));
    return record;
}

Bytes BigIconset()
{
    std::mt19937 random(1);
    test::Iconset set;
    for (int id = 0; id < 2000; ++id) {
        const auto form = static_cast<Form>(id % FormCount);
        const bool large = id % 2 == 0;
        set.resources.push_back({ "tAIB", id,
            Join({ Record(large ? 32 : 15, large ? 22 : 11, form, false, random), test::Separator(),
                Record(large ? 64 : 30, large ? 44 : 22, form, true, random) }) });
    }
    return set.File();
}

const test::TempFolder& Folder()
{
    static const test::TempFolder folder;
    return folder;
}

void UseFolder()
{
    AppFolder = Folder().Path();
    SetTempSuffix(0);
    MakeFolder(WorkFolder());
    if (!FileExists(Folder().File("big.prc")))
        test::WriteBytes(Folder().File("big.prc"), BigIconset());
}

void Open(ColorDepth depth)
{
    ResetDocument();
    DefaultColorDepth = depth;
    Silent listener;
    if (LoadFile(Folder().File("big.prc"), listener) != LoadResult::Opened)
        std::abort();
}

void OpenAt(benchmark::State& state, ColorDepth depth)
{
    UseFolder();
    for (auto _ : state) {
        state.PauseTiming();
        DeleteWorkingFiles({ ".bmp" });
        state.ResumeTiming();
        Open(depth);
    }
}

void OpenAt16(benchmark::State& state) { OpenAt(state, ColorDepth::Bits16); }
void OpenAt8(benchmark::State& state) { OpenAt(state, ColorDepth::Bits8); }

/// Neither here nor above does the deletion of the files of the round before count.
void WriteTheSameFiles(benchmark::State& state)
{
    UseFolder();
    Open(ColorDepth::Bits16);
    std::map<std::string, Bytes> files;
    for (const auto& entry : std::filesystem::directory_iterator(WorkFolder()))
        files[entry.path()] = test::ReadBytes(entry.path());
    for (auto _ : state) {
        state.PauseTiming();
        DeleteWorkingFiles({ ".bmp" });
        state.ResumeTiming();
        for (const auto& [path, bytes] : files) {
            const int file = open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0666);
            if (write(file, bytes.data(), bytes.size()) != static_cast<ssize_t>(bytes.size()))
                std::abort();
            close(file);
        }
    }
    state.counters["files"] = static_cast<double>(files.size());
}

void NearestOfRandomPixels(benchmark::State& state)
{
    std::mt19937 random(2);
    std::vector<std::uint8_t> pixels(3 * 100'000);
    for (std::uint8_t& byte : pixels)
        byte = static_cast<std::uint8_t>(random());
    NearestColour& nearest = NearestIn(Palette8);
    for (auto _ : state) {
        int sum = 0;
        for (std::size_t i = 0; i < pixels.size(); i += 3)
            sum += nearest.IndexOf(pixels[i], pixels[i + 1], pixels[i + 2]);
        benchmark::DoNotOptimize(sum);
    }
    state.SetItemsProcessed(state.iterations() * 100'000);
}

BENCHMARK(WriteTheSameFiles)->Unit(benchmark::kMillisecond);
BENCHMARK(OpenAt16)->Unit(benchmark::kMillisecond);
BENCHMARK(OpenAt8)->Unit(benchmark::kMillisecond);
BENCHMARK(NearestOfRandomPixels);

} // namespace
} // namespace vypx
