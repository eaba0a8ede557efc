#include "pictures/PictureLoader.h"

#include "pictures/PictureFormats.h"
#include "pictures/PixelCopy.h"
#include "platform/Platform.h"

#include <QBuffer>
#include <QFile>
#include <QImageReader>
#include <QLoggingCategory>
#include <algorithm>
#include <filesystem>
#include <mutex>
#include <new>
#include <sstream>

namespace vypx {

namespace {

constexpr std::int64_t MostPixelBytes = 400'000'000;
constexpr int LeastPixelBytes = 4;
constexpr std::int64_t MostSidePixels = 32'767;
constexpr std::int64_t MostFileBytes = 1'000'000'000;

constexpr const char* NoPicture = "it is no picture that can be read here";
// Qt's readers don't tell the one from the other.
constexpr const char* Broken = "its data are broken or of a kind that can't be read here";

/// An open picture file, or the bytes of one.
struct PictureSource {
    QIODevice& file;
    const PictureFormat* format = nullptr;
    HeaderClaim claim{};

    QByteArray FormatName() const { return format->qtName; }
};

/// Why a file of this path can't be opened as a picture; empty: it can.
std::string WhyNotOpened(const std::string& path)
{
    std::error_code error;
    const std::filesystem::file_status status =
        std::filesystem::status(platform::NativePath(path), error);
    if (!std::filesystem::exists(status))
        return "it is not there";
    if (std::filesystem::is_directory(status))
        return "it is a folder";
    // Others than files, as pipes and devices, may never give an end.
    return std::filesystem::is_regular_file(status) ? "" : NoPicture;
}

/// What Qt's reader tells of the header, where our own look at it hasn't told the sides.
void CompleteClaim(PictureSource& source)
{
    source.file.seek(0);
    QImageReader reader(&source.file, source.FormatName());
    reader.setAutoDetectImageFormat(false);
    const QSize size = reader.size();
    if (size.isEmpty())
        return; // of a header that is broken some readers tell a format which is no format at all
    if (source.claim.width == 0) {
        source.claim.width = size.width();
        source.claim.height = size.height();
    }
    const QImage::Format pixels = reader.imageFormat();
    if (pixels > QImage::Format_Invalid && pixels < QImage::NImageFormats)
        source.claim.pixelBytes =
            std::max(source.claim.pixelBytes, QImage::toPixelFormat(pixels).bitsPerPixel() / 8);
}

std::string WhyTooLarge(const HeaderClaim& claim)
{
    constexpr std::int64_t Million = 1'000'000;
    if (claim.width > MostSidePixels || claim.height > MostSidePixels)
        return "it is wider or higher than 32767 pixels";
    const std::int64_t most = MostPixelBytes / std::max(claim.pixelBytes, LeastPixelBytes);
    if (claim.width * claim.height > most)
        return "it has more than " + std::to_string(most / Million) + " million pixels";
    return {};
}

/// Returns why there is no open file; empty: there is.
std::string Open(QFile& file, const std::string& path)
{
    if (std::string whyNot = WhyNotOpened(path); !whyNot.empty())
        return whyNot;
    file.setFileName(QString::fromUtf8(path.data(), static_cast<qsizetype>(path.size())));
    return file.open(QIODevice::ReadOnly) ? "" : "it can't be opened";
}

/// Looks at the header. Returns why the picture can't be loaded; empty: it can, as far as the
/// header tells.
std::string Examine(PictureSource& source)
{
    if (source.file.size() > MostFileBytes)
        return "it has more than 1000 MB";
    source.format = FormatOf(source.file);
    if (!source.format)
        return NoPicture;
    if (source.format->claim) {
        FileBytes bytes(source.file);
        source.claim = source.format->claim(bytes);
    }
    if (!source.claim.whyNot.empty())
        return source.claim.whyNot;
    CompleteClaim(source);
    if (source.claim.width < 1 || source.claim.height < 1)
        return Broken;
    return WhyTooLarge(source.claim);
}

/// The first picture of the file as its reader gives it. Null after a failure. The reader and all
/// that it keeps of its own are gone then.
QImage Decode(PictureSource& source, QImageIOHandler::Transformations& turn)
{
    if (source.format->read) {
        FileBytes bytes(source.file);
        if (QImage image = source.format->read(bytes); !image.isNull())
            return image;
    }
    source.file.seek(0);
    QImageReader reader(&source.file, source.FormatName());
    reader.setAutoDetectImageFormat(false);
    reader.setAutoTransform(false); // the copy turns it: no second picture is needed
    turn = reader.transformation();
    QImage image;
    if (source.claim.leavesGaps) {
        // Readers take a picture of the right size and format as it is.
        image = QImage(static_cast<int>(source.claim.width), static_cast<int>(source.claim.height),
            reader.imageFormat());
        image.fill(0);
    }
    return reader.read(&image) ? image : QImage();
}

LoadedPicture Load(QIODevice& file)
{
    PictureSource source{ .file = file };
    if (std::string whyNot = Examine(source); !whyNot.empty())
        return { {}, std::move(whyNot) };
    QImageIOHandler::Transformations turn;
    QImage image = Decode(source, turn);
    source.file.close();
    if (image.isNull())
        return { {}, Broken };
    // A frame can be larger than the header said.
    const HeaderClaim decoded{
        .width = image.width(), .height = image.height(), .pixelBytes = image.depth() / 8
    };
    if (std::string whyNot = WhyTooLarge(decoded); !whyNot.empty())
        return { {}, std::move(whyNot) };
    const bool isPng = source.FormatName() == "png";
    return { CopyPixels(std::move(image), turn, isPng ? GammaMark::IsSRgb : GammaMark::Counts),
        {} };
}

QLoggingCategory::CategoryFilter filterBefore = nullptr;

/// What is wrong with a file is told by us, in words, and once.
void SilenceReaders(QLoggingCategory* category)
{
    if (filterBefore)
        filterBefore(category);
    const QByteArrayView name(category->categoryName());
    if (name.startsWith("qt.gui.imageio") || name.startsWith("qt.gui.icc")) {
        for (const QtMsgType type : { QtInfoMsg, QtWarningMsg, QtCriticalMsg })
            category->setEnabled(type, false);
    }
}

/// Readies Qt's readers, once. They refuse what takes more than so many MiB, each pixel counted as
/// 4 bytes at least; a limit that is higher already, or none (0), stays.
void PrepareReaders()
{
    constexpr int MostMiB = static_cast<int>(MostPixelBytes >> 20) + 1;
    const int limit = QImageReader::allocationLimit();
    if (limit > 0 && limit < MostMiB)
        QImageReader::setAllocationLimit(MostMiB);
    static std::once_flag once;
    std::call_once(once, [] { filterBefore = QLoggingCategory::installFilter(SilenceReaders); });
}

/// What both kinds of sources are loaded by.
template <typename Loader>
LoadedPicture Guarded(Loader load)
{
    try {
        PrepareReaders();
        return load();
    } catch (const BrokenFile&) {
        return { {}, Broken };
    } catch (const std::bad_alloc&) {
        return { {}, "there is not enough memory" };
    }
}

std::int64_t PixelsClaimedIn(QIODevice& file)
{
    try {
        PrepareReaders();
        PictureSource source{ .file = file };
        Examine(source);
        return source.claim.width * source.claim.height;
    } catch (const std::exception&) {
        return 0;
    }
}

/// A device over the bytes, which stay whose they are.
void OpenBytes(QBuffer& buffer, std::span<const std::uint8_t> bytes)
{
    buffer.setData(QByteArray::fromRawData(
        reinterpret_cast<const char*>(bytes.data()), static_cast<qsizetype>(bytes.size())));
    buffer.open(QIODevice::ReadOnly);
}

} // namespace

LoadedPicture LoadPicture(const std::string& path)
{
    return Guarded([&] {
        QFile file;
        std::string whyNot = Open(file, path);
        return whyNot.empty() ? Load(file) : LoadedPicture{ {}, std::move(whyNot) };
    });
}

LoadedPicture LoadPictureBytes(std::span<const std::uint8_t> bytes)
{
    return Guarded([&] {
        QBuffer buffer;
        OpenBytes(buffer, bytes);
        return Load(buffer);
    });
}

std::int64_t PixelsClaimed(const std::string& path)
{
    QFile file;
    return Open(file, path).empty() ? PixelsClaimedIn(file) : 0;
}

std::int64_t PixelsClaimed(std::span<const std::uint8_t> bytes)
{
    QBuffer buffer;
    OpenBytes(buffer, bytes);
    return PixelsClaimedIn(buffer);
}

std::vector<std::string> PictureEndings()
{
    const QList<QByteArray> readable = QImageReader::supportedImageFormats();
    std::vector<std::string> endings;
    for (const PictureFormat& format : PictureFormats()) {
        if (!readable.contains(format.qtName))
            continue;
        std::istringstream words{ std::string(format.endings) };
        for (std::string ending; words >> ending;)
            endings.push_back(ending);
    }
    std::sort(endings.begin(), endings.end());
    return endings;
}

} // namespace vypx
