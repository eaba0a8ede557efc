// Opening an iconset of 2000 resources with 4000 pictures (8 and 16 bits, not compressed and in all
// compressed forms) against a bare loop over the same records, which reads the file, expands each
// record, reduces its colours and writes the same working file; and against writing these files
// with plain calls. Compare CPU times.
//
// A round of the first two runs in a process of its own, since a process keeps the colours that it
// has once looked for.

#include "companion/BmpFile.h"
#include "companion/NearestColour.h"
#include "companion/PixelLibrary.h"
#include "companion/WorkingFile.h"
#include "document/Document.h"
#include "document/WorkingFolder.h"
#include "platform/Platform.h"
#include "reader/BitmapRecord.h"
#include "reader/LoadFile.h"
#include "settings/Settings.h"
#include "support/Files.h"
#include "support/Iconsets.h"
#include "support/TempFolder.h"

#include <benchmark/benchmark.h>
#include <ctime>
#include <fcntl.h>
#include <map>
#include <random>
#include <sys/wait.h>
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
    if (LoadFile({ .path = Folder().File("big.prc") }, listener).result != LoadResult::Opened)
        std::abort();
}

/// CPU time of each round in a process of its own, where the same has been done once at 16 bits:
/// the heap has its pages then, but no colour has been looked for.
template <typename Round>
void MeasureInNewProcesses(benchmark::State& state, const Round& round, bool reduced)
{
    UseFolder();
    for (auto _ : state) {
        int ends[2];
        if (pipe(ends) != 0)
            std::abort();
        const pid_t child = fork();
        if (child == 0) {
            DeleteWorkingFiles({ ".bmp" });
            round(false);
            DeleteWorkingFiles({ ".bmp" });
            const std::clock_t begin = std::clock();
            round(reduced);
            const std::clock_t spent = std::clock() - begin;
            _exit(write(ends[1], &spent, sizeof(spent)) == sizeof(spent) ? 0 : 1);
        }
        int status = 0;
        std::clock_t spent = 0;
        if (waitpid(child, &status, 0) != child || status != 0
            || read(ends[0], &spent, sizeof(spent)) != sizeof(spent))
            std::abort();
        close(ends[0]);
        close(ends[1]);
        state.SetIterationTime(static_cast<double>(spent) / CLOCKS_PER_SEC);
    }
}

/// All of a palette of 256 colours searched by a plain loop, which compilers turn into vectors, for
/// each 5-6-5 value when it is first met.
class PlainReduction {
public:
    explicit PlainReduction(const std::array<Rgb, 256>& palette)
    {
        for (std::size_t i = 0; i < palette.size(); ++i) {
            m_red[i] = palette[i].red;
            m_green[i] = palette[i].green;
            m_blue[i] = palette[i].blue;
        }
    }

    Rgb Nearest(std::uint16_t colour)
    {
        if (m_known[colour] < 0)
            m_known[colour] = Search(From565(colour));
        const auto index = static_cast<std::size_t>(m_known[colour]);
        return { m_red[index], m_green[index], m_blue[index] };
    }

private:
    int Search(Rgb colour) const
    {
        int least = INT32_MAX;
        for (std::size_t i = 0; i < m_red.size(); ++i) {
            const int r = m_red[i] - colour.red, g = m_green[i] - colour.green,
                      b = m_blue[i] - colour.blue;
            least = std::min(least, (r * r + g * g + b * b) << 8 | static_cast<int>(i));
        }
        return least & 0xFF;
    }

    std::array<int, 256> m_red{}, m_green{}, m_blue{};
    std::vector<int> m_known = std::vector<int>(65536, -1);
};

void WriteReduced(const PixelBuffer& pixels, PlainReduction& reduction, const BitmapRecord& record,
    const std::string& path)
{
    BmpBytes bmp(record.Width(), record.Height(), 24);
    for (int y = 0; y < record.Height(); ++y) {
        const std::uint8_t* in = pixels.Row(y);
        std::uint8_t* out = bmp.Row(y);
        for (int x = 0; x < record.Width(); ++x, in += 2, out += 3) {
            const Rgb colour = reduction.Nearest(static_cast<std::uint16_t>(in[0] << 8 | in[1]));
            out[0] = static_cast<std::uint8_t>(colour.blue);
            out[1] = static_cast<std::uint8_t>(colour.green);
            out[2] = static_cast<std::uint8_t>(colour.red);
        }
    }
    WriteWorkingFile(path, bmp.File());
}

void WriteRecord(
    const BitmapRecord& record, bool reduced, PlainReduction& reduction, const std::string& path)
{
    const PixelBuffer pixels = ExpandPixels(record.Pixels(), record.Form());
    if (record.PixelSize() == 8)
        Bmp8to24(pixels, Palette8, record.Width(), record.Height(), path);
    else if (reduced)
        WriteReduced(pixels, reduction, record, path);
    else
        Bmp16to24(pixels, record.Width(), record.Height(), path);
}

/// Knows of the file only that each resource is a low-density record, the mark, and a high-density
/// record up to the next one.
void ReadDecodeReduceWrite(bool reduced)
{
    const auto file = platform::ReadWholeFile(Folder().File("big.prc"));
    const ByteView view(*file);
    PlainReduction reduction(Palette8);
    const std::size_t count = view.U16(76);
    for (std::size_t i = 0; i < count; ++i) {
        const std::size_t entry = 78 + 10 * i;
        const std::size_t begin = view.U32(entry + 6);
        const std::size_t end = i + 1 < count ? view.U32(entry + 16) : view.Size();
        const std::size_t lowSize = view.U16(begin + 10) * std::size_t{ 4 };
        const std::string stem = WorkPath("tAIB" + std::to_string(view.U16(entry + 4)));
        const BitmapRecord low{ .bytes = view.Part(begin, lowSize), .highDensity = false };
        WriteRecord(low, reduced, reduction, stem + ".bmp");
        const std::size_t high = begin + lowSize + 16;
        WriteRecord({ .bytes = view.Part(high, end - high), .highDensity = true }, reduced,
            reduction, stem + "-d144.bmp");
    }
}

void OpenReduced(bool reduced) { Open(reduced ? ColorDepth::Bits8 : ColorDepth::Bits16); }

void OpenAt16(benchmark::State& state) { MeasureInNewProcesses(state, OpenReduced, false); }
void OpenAt8(benchmark::State& state) { MeasureInNewProcesses(state, OpenReduced, true); }
void BareLoopAt16(benchmark::State& state)
{
    MeasureInNewProcesses(state, ReadDecodeReduceWrite, false);
}
void BareLoopAt8(benchmark::State& state)
{
    MeasureInNewProcesses(state, ReadDecodeReduceWrite, true);
}

/// The deletion of the files of the round before doesn't count, here as above.
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

BENCHMARK(WriteTheSameFiles)->Unit(benchmark::kMillisecond);
BENCHMARK(BareLoopAt16)->Unit(benchmark::kMillisecond)->UseManualTime();
BENCHMARK(OpenAt16)->Unit(benchmark::kMillisecond)->UseManualTime();
BENCHMARK(BareLoopAt8)->Unit(benchmark::kMillisecond)->UseManualTime();
BENCHMARK(OpenAt8)->Unit(benchmark::kMillisecond)->UseManualTime();

} // namespace
} // namespace vypx
