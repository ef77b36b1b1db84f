#include "ui/picture.h"

#include "platform/run_error.h"
#include "platform/whole_file.h"

#include <QtWidgets>
#include <algorithm>
#include <functional>
#include <iterator>
#include <tuple>

namespace quillon {

namespace {

// Beyond these a file is a mistake, or made to bring the program down.
constexpr std::uint64_t kMostBytes = 128U << 20;
constexpr qint64 kMostPixels = 30'000'000;
constexpr int kMostIcons = 64;
constexpr int kLargestIcon = 1024;

constexpr char kBitmapFormat[] = "bmp";
constexpr const char* kFormats[] = {kBitmapFormat, "gif", "ico", "jpeg", "jpg", "png"};

std::uint32_t Number(const std::string& bytes, std::size_t place, std::size_t length)
{
    std::uint32_t number = 0;
    for (std::size_t i = 0; i < length && place + i < bytes.size(); ++i)
        number |= std::uint32_t{static_cast<unsigned char>(bytes[place + i])} << (8 * i);
    return number;
}

/// Whether a bitmap file ends before its last point does. One with run lengths has no such end.
bool IsCutBitmap(const std::string& bytes)
{
    constexpr std::uint32_t kOldHeader = 12;
    constexpr std::uint32_t kRunLengths8 = 1;
    constexpr std::uint32_t kRunLengths4 = 2;
    const bool isOld = Number(bytes, 14, 4) == kOldHeader;
    const std::uint32_t compression = isOld ? 0 : Number(bytes, 30, 4);
    if (compression == kRunLengths8 || compression == kRunLengths4)
        return false;
    const std::uint64_t width = isOld ? Number(bytes, 18, 2) : Number(bytes, 18, 4);
    const auto height =
        static_cast<std::int32_t>(isOld ? Number(bytes, 20, 2) : Number(bytes, 22, 4));
    const std::uint64_t bits = width * (isOld ? Number(bytes, 24, 2) : Number(bytes, 28, 2));
    const auto rows = static_cast<std::uint64_t>(std::abs(std::int64_t{height}));
    // Rows are filled up to whole words; of the last one that may be missing.
    const std::uint64_t rowBytes = (bits + 31) / 32 * 4;
    return rows > 0 && bytes.size() < Number(bytes, 10, 4) + rowBytes * (rows - 1) + (bits + 7) / 8;
}

/// Reads the pictures of one file, whose bytes it holds.
class PictureFile {
public:
    PictureFile(const FileSystem& files, const Text& path)
    {
        if (path.empty() || files.Facts(path).size > kMostBytes)
            return;
        bytes_ = ReadWholeFile(files, path);
        view_ = QByteArray::fromRawData(bytes_.data(), static_cast<qsizetype>(bytes_.size()));
        buffer_.setBuffer(&view_);
        buffer_.open(QIODevice::ReadOnly);
        reader_.setDevice(&buffer_);
        // A camera's picture may stand on its side in the file.
        reader_.setAutoTransform(true);
    }
    PictureFile(const PictureFile&) = delete;
    PictureFile& operator=(const PictureFile&) = delete;

    bool IsIcon() { return reader_.device() && reader_.format() == "ico"; }

    std::optional<QImage> Read()
    {
        if (!reader_.device())
            return std::nullopt;
        const QByteArray format = reader_.format();
        const QSize size = reader_.size();
        if (std::find(std::begin(kFormats), std::end(kFormats), format) == std::end(kFormats) ||
            size.isEmpty() || qint64{size.width()} * size.height() > kMostPixels)
            return std::nullopt;
        if (format == kBitmapFormat && IsCutBitmap(bytes_))
            return std::nullopt;
        QImage picture = ClearedFor(format, size);
        return reader_.read(&picture) ? std::optional(std::move(picture)) : std::nullopt;
    }

    std::vector<QImage> ReadIcons()
    {
        std::vector<QImage> icons;
        for (int i = 0; i < std::min(reader_.imageCount(), kMostIcons); ++i)
            if (QImage icon; reader_.jumpToImage(i) && reader_.read(&icon) && IsIconSize(icon))
                icons.push_back(std::move(icon));
        return icons;
    }

private:
    /// Points that a bitmap says nothing of would show what happens to lie in memory.
    QImage ClearedFor(const QByteArray& format, const QSize& size) const
    {
        const QImage::Format form = reader_.imageFormat();
        if (format != kBitmapFormat || form == QImage::Format_Invalid)
            return {};
        QImage cleared(size, form);
        cleared.fill(0);
        return cleared;
    }

    static bool IsIconSize(const QImage& icon)
    {
        return !icon.isNull() && std::max(icon.width(), icon.height()) <= kLargestIcon;
    }

    std::string bytes_;
    QByteArray view_;
    QBuffer buffer_;
    QImageReader reader_;
};

/// How many bits a dot had in the icon file; what was read has always the same.
int DepthInFile(const QImage& icon)
{
    return icon.text("_q_icoOrigDepth").toInt();
}

/// The largest first, each size once.
void KeepBestOfEachSize(std::vector<QImage>& icons)
{
    const auto rank = [](const QImage& icon) {
        return std::tuple(icon.width(), icon.height(), DepthInFile(icon));
    };
    std::ranges::stable_sort(icons, std::greater(), rank);
    const auto again = std::ranges::unique(icons, {}, &QImage::size);
    icons.erase(again.begin(), again.end());
}

/// In columns, none higher than the first icon.
QImage BesideEachOther(const std::vector<QImage>& icons)
{
    constexpr int kGap = 8;
    int height = 0;
    for (const QImage& icon : icons)
        height = std::max(height, icon.height());
    std::vector<QPoint> places;
    QPoint place;
    int width = 0;
    for (const QImage& icon : icons) {
        if (place.y() + icon.height() > height)
            place = {width + kGap, 0};
        places.push_back(place);
        width = std::max(width, place.x() + icon.width());
        place.ry() += icon.height() + kGap;
    }
    QImage all(width, height, QImage::Format_ARGB32_Premultiplied);
    all.fill(Qt::transparent);
    QPainter painter(&all);
    for (std::size_t i = 0; i < icons.size(); ++i)
        painter.drawImage(places[i], icons[i]);
    return all;
}

std::optional<QImage> ReadIconPicture(const FileSystem& files, const Text& path)
{
    PictureFile file(files, path);
    if (!file.IsIcon())
        return file.Read();
    std::vector<QImage> icons = file.ReadIcons();
    if (icons.empty())
        return std::nullopt;
    KeepBestOfEachSize(icons);
    return BesideEachOther(icons);
}

} // namespace

std::optional<QImage> LoadPicture(const FileSystem& files, const Text& path)
{
    try {
        return PictureFile(files, path).Read();
    } catch (const std::exception&) {
        return std::nullopt;
    }
}

QString WhyNoPicture(const FileSystem& files, const Text& path)
{
    if (path.empty())
        return "Ingen bild är vald";
    if (!files.FileExists(path))
        return "Bildfilen finns inte";
    return "Bilden kan inte visas: den är skadad eller för stor";
}

std::optional<QImage> LoadIconPicture(const FileSystem& files, const Text& path)
{
    try {
        return ReadIconPicture(files, path);
    } catch (const std::exception&) {
        return std::nullopt;
    }
}

} // namespace quillon
