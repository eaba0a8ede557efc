#include "companion/PalmDatabase.h"

#include "companion/BitmapFamilies.h"
#include "companion/DatabaseLayout.h"
#include "companion/Numbers.h"
#include "platform/Platform.h"

#include <algorithm>
#include <chrono>
#include <functional>
#include <numeric>

namespace vypx {

namespace {

constexpr std::size_t EntrySize = 10; // of the resource list

void Append16(Bytes& bytes, unsigned value)
{
    bytes.push_back(static_cast<std::uint8_t>(value >> 8));
    bytes.push_back(static_cast<std::uint8_t>(value));
}

void Append32(Bytes& bytes, std::uint32_t value)
{
    Append16(bytes, value >> 16);
    Append16(bytes, value & 0xFFFF);
}

void AppendText(Bytes& bytes, std::string_view text, std::size_t width)
{
    for (std::size_t i = 0; i < width; ++i)
        bytes.push_back(i < text.size() ? static_cast<std::uint8_t>(text[i]) : 0);
}

/// Seconds since the beginning of 1904, as Palm OS counts them.
std::uint32_t PalmNow()
{
    using namespace std::chrono;
    constexpr sys_days Epoch = 1904y / January / 1;
    return static_cast<std::uint32_t>(duration_cast<seconds>(system_clock::now() - Epoch).count());
}

Bytes Header(const std::string& databaseName, std::size_t count)
{
    constexpr std::size_t NameSize = 32;
    constexpr unsigned ResourceDatabase = 0x0001;
    Bytes bytes;
    AppendText(bytes, std::string_view(databaseName).substr(0, LongestName), NameSize);
    Append16(bytes, ResourceDatabase);
    Append16(bytes, 1); // version
    const std::uint32_t now = PalmNow();
    Append32(bytes, now);
    Append32(bytes, now);
    Append32(bytes, 0); // never backed up
    Append32(bytes, 1); // modification number
    Append32(bytes, 0);
    Append32(bytes, 0);
    AppendText(bytes, "ICONVNTR", 8);
    Append32(bytes, 0);
    Append32(bytes, 0);
    Append16(bytes, static_cast<unsigned>(count));
    return bytes;
}

/// Makes the bitmap family of a row with pictures.
using FamilyMaker = std::function<Bytes(const ResourceRow&)>;

/// Where a database goes, what it is called there, and where its plain files are.
struct Output {
    const std::string& path;
    const std::string& databaseName;
    const std::string& workFolder;
};

/// Throws CompileFailure.
Bytes Database(
    std::span<const ResourceRow> resources, const Output& output, const FamilyMaker& family)
{
    DatabaseLayout layout(resources.size(), output.path);
    if (output.path.empty())
        throw CompileFailure{ {}, "there is no file name" };
    Bytes file = Header(output.databaseName, resources.size());
    std::size_t entry = file.size();
    file.resize(layout.Begin());
    for (const ResourceRow& row : resources) {
        const std::size_t offset = layout.Begin();
        file.resize(offset);
        Bytes listed;
        AppendText(listed, std::string_view(row.key).substr(0, 4), 4);
        Append16(listed, static_cast<unsigned>(ResourceId(row.key)));
        Append32(listed, static_cast<std::uint32_t>(offset));
        std::copy(listed.begin(), listed.end(), file.begin() + static_cast<std::ptrdiff_t>(entry));
        entry += EntrySize;
        const Bytes body =
            row.IsPlainFile() ? ReadWorkingBytes(output.workFolder, row.key + ".bin") : family(row);
        layout.End(row.key, body.size());
        file.insert(file.end(), body.begin(), body.end());
    }
    return file;
}

/// Makes the database and writes it, or says what was in the way.
std::optional<CompileFailure> Write(
    std::span<const ResourceRow> resources, const Output& output, const FamilyMaker& family)
{
    try {
        const Bytes file = Database(resources, output, family);
        if (const std::error_code error = platform::ReplaceFile(output.path, file)) {
            const platform::Refusal refusal = platform::ExplainRefusal(output.path, error);
            return CompileFailure{ refusal.path, refusal.reason };
        }
        return std::nullopt;
    } catch (const CompileFailure& failure) {
        return failure;
    }
}

} // namespace

std::error_code WriteItbl(
    std::span<const ItblValue> values, std::span<const ItblKey> keys, const std::string& path)
{
    std::vector<std::size_t> order(values.size());
    std::iota(order.begin(), order.end(), std::size_t{ 0 });
    const auto sum = [&](std::size_t i) { return keys[i].entryClass + keys[i].creator; };
    std::stable_sort(order.begin(), order.end(),
        [&](std::size_t left, std::size_t right) { return sum(left) < sum(right); });

    Bytes body;
    for (const std::size_t i : order) {
        Append32(body, values[i].type);
        Append32(body, values[i].creator);
        Append16(body, values[i].largeId);
        Append16(body, values[i].smallId);
        Append32(body, 0);
    }
    return platform::ReplaceFile(path, body);
}

std::optional<CompileFailure> CompilePRC(std::span<const ResourceRow> resources,
    std::span<const TransparencyRow> transparency, Palette palette8, Palette palette4, int depth,
    bool pack, const std::string& outputPath, const std::string& databaseName,
    const std::string& workFolder)
{
    const PictureFamilies pictures(transparency,
        { .depth = depth, .packed = pack, .palette8 = palette8, .palette4 = palette4 }, workFolder);
    return Write(resources, { outputPath, databaseName, workFolder },
        [&](const ResourceRow& row) { return pictures.Of(row); });
}

std::optional<CompileFailure> ExpTemplate(std::span<const ResourceRow> resources,
    std::span<const TransparencyRow>, Palette, Palette palette4, int, bool,
    const std::string& templatePath, const std::string& databaseName, const std::string& workFolder)
{
    return Write(resources, { templatePath, databaseName, workFolder },
        [&](const ResourceRow& row) { return FamilyWithoutPictures(row, palette4); });
}

} // namespace vypx
