#include "companion/PalmDatabase.h"

#include "companion/BmpFile.h"
#include "companion/IconsetLimits.h"
#include "companion/Numbers.h"
#include "companion/PalmRecord.h"
#include "platform/Platform.h"

#include <algorithm>
#include <chrono>
#include <map>
#include <numeric>
#include <unordered_map>

namespace vypx {

namespace {

constexpr std::size_t HeaderSize = 78, EntrySize = 10;
// A reader that asks where the data behind the last resource begin finds a whole entry of zeros.
constexpr std::size_t Gap = EntrySize;

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

class Compiler {
public:
    Compiler(std::span<const TransparencyRow> transparency, const RecordForm& form,
        const std::string& workFolder)
        : m_form(form)
        , m_workFolder(workFolder)
    {
        for (const TransparencyRow& row : transparency)
            if (!row.file.empty())
                m_transparency[row.file] = &row; // a later row overrides an earlier one
    }

    /// Throws CompileFailure.
    Bytes Body(const ResourceRow& row)
    {
        if (row.IsPlainFile())
            return ReadFile(row.key + ".bin");
        Bytes family;
        if (!row.lowFile.empty())
            family = Encoded(row.lowFile, [&](const Picture& picture, const Colour& colour) {
                return EncodeLowDensity(picture, m_form, colour, !row.highFile.empty());
            });
        if (!row.highFile.empty()) {
            const Bytes mark = HighDensityMark();
            const Bytes record =
                Encoded(row.highFile, [&](const Picture& picture, const Colour& colour) {
                    return EncodeHighDensity(picture, m_form, colour);
                });
            family.insert(family.end(), mark.begin(), mark.end());
            family.insert(family.end(), record.begin(), record.end());
        }
        return family;
    }

private:
    using Colour = std::optional<Rgb>;

    template <typename Encode>
    Bytes Encoded(const std::string& name, const Encode& encode) const
    {
        const Picture picture = ReadPicture(name);
        try {
            return encode(picture, ColourOf(name));
        } catch (const RecordTooLarge& failure) {
            throw Failure(name, failure.what());
        }
    }

    CompileFailure Failure(const std::string& name, const std::string& reason) const
    {
        return { .file = m_workFolder + name, .reason = reason };
    }

    Bytes ReadFile(const std::string& name) const
    {
        std::optional<Bytes> bytes = platform::ReadWholeFile(m_workFolder + name);
        if (!bytes)
            throw Failure(name, "it is missing or can't be read");
        return *std::move(bytes);
    }

    Picture ReadPicture(const std::string& name) const
    {
        std::optional<Picture> picture = DecodeBmp(ReadFile(name));
        if (!picture)
            throw Failure(name, "it can't be read as a picture");
        return *std::move(picture);
    }

    Colour ColourOf(const std::string& file) const
    {
        const auto found = m_transparency.find(file);
        if (found == m_transparency.end() || found->second->flag != "1")
            return std::nullopt;
        const TransparencyRow& row = *found->second;
        const auto component = [](const std::string& text) { return LeadingWhole(text, 0, 255); };
        const auto red = component(row.red), green = component(row.green),
                   blue = component(row.blue);
        if (!red || !green || !blue)
            return std::nullopt;
        return Rgb{ *red, *green, *blue };
    }

    RecordForm m_form;
    std::string m_workFolder;
    std::unordered_map<std::string, const TransparencyRow*> m_transparency;
};

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

/// Throws CompileFailure.
Bytes Database(std::span<const ResourceRow> resources, const std::string& databaseName,
    const std::string& outputPath, Compiler& compiler)
{
    Bytes file = Header(databaseName, resources.size());
    std::size_t entry = file.size();
    file.resize(HeaderSize + EntrySize * resources.size() + Gap);
    for (const ResourceRow& row : resources) {
        file.resize((file.size() + 1) / 2 * 2);
        Bytes listed;
        AppendText(listed, std::string_view(row.key).substr(0, 4), 4);
        Append16(listed, static_cast<unsigned>(ResourceId(row.key)));
        Append32(listed, static_cast<std::uint32_t>(file.size()));
        std::copy(listed.begin(), listed.end(), file.begin() + static_cast<std::ptrdiff_t>(entry));
        entry += EntrySize;
        if (file.size() >= DataOffsetEnd)
            throw CompileFailure{ outputPath, "no resource can begin behind the first 16 MiB" };
        const Bytes body = compiler.Body(row);
        if (body.size() + 1 > std::size_t{ MaxResourceSize }) // the last one is read 1 longer
            throw CompileFailure{ outputPath, row.key + " would be 10000000 bytes or more" };
        file.insert(file.end(), body.begin(), body.end());
    }
    return file;
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
    try {
        Compiler compiler(transparency,
            { .depth = depth, .packed = pack, .palette8 = palette8, .palette4 = palette4 },
            workFolder);
        if (resources.size() > MaxResources)
            return CompileFailure{ outputPath, "an iconset holds 2000 resources at most" };
        if (outputPath.empty())
            return CompileFailure{ {}, "there is no file name" };
        const Bytes file = Database(resources, databaseName, outputPath, compiler);
        if (const std::error_code error = platform::ReplaceFile(outputPath, file)) {
            const platform::Refusal refusal = platform::ExplainRefusal(outputPath, error);
            return CompileFailure{ refusal.path, refusal.reason };
        }
        return std::nullopt;
    } catch (const CompileFailure& failure) {
        return failure;
    }
}

} // namespace vypx
