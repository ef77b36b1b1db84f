#include "ui/controls/picture.h"

#include "design/system_letters.h"
#include "pictures/picture_file.h"
#include "platform/run_error.h"
#include "platform/whole_file.h"

#include <QtWidgets>
#include <algorithm>
#include <functional>
#include <iterator>
#include <tuple>

namespace quillon {

namespace {

// A larger file is a mistake, or made to crash the program.
constexpr std::uint64_t kMaxBytes = 128U << 20;
constexpr qint64 kMaxPixels = 30'000'000;
constexpr int kMaxIcons = 64;
constexpr int kMaxIconSize = 1024;

// Kinds that the setup shows too are read by the same code as in the setup.
constexpr const char* kFormats[] = {"gif", "ico", "png"};

/// Reads the pictures of one file, whose bytes it holds.
class PictureFile {
public:
    PictureFile(const FileSystem& files, const Text& path)
    {
        if (path.empty() || files.Status(path).size > kMaxBytes)
            return;
        bytes_ = ReadWholeFile(files, path);
        view_ = QByteArray::fromRawData(bytes_.data(), static_cast<qsizetype>(bytes_.size()));
        buffer_.setBuffer(&view_);
        buffer_.open(QIODevice::ReadOnly);
        reader_.setDevice(&buffer_);
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
            size.isEmpty() || qint64{size.width()} * size.height() > kMaxPixels)
            return std::nullopt;
        QImage picture;
        return reader_.read(&picture) ? std::optional(std::move(picture)) : std::nullopt;
    }

    std::vector<QImage> ReadIcons()
    {
        std::vector<QImage> icons;
        for (int i = 0; i < std::min(reader_.imageCount(), kMaxIcons); ++i)
            if (QImage icon; reader_.jumpToImage(i) && reader_.read(&icon) && IsIconSize(icon))
                icons.push_back(std::move(icon));
        return icons;
    }

private:
    static bool IsIconSize(const QImage& icon)
    {
        return !icon.isNull() && std::max(icon.width(), icon.height()) <= kMaxIconSize;
    }

    std::string bytes_;
    QByteArray view_;
    QBuffer buffer_;
    QImageReader reader_;
};

/// In its own size; one that is larger than any screen is made smaller.
QImage ImageOf(const ScalablePicture& picture)
{
    int width = picture.Width();
    int height = picture.Height();
    while (std::int64_t{width} * height > kMaxPicturePixels) {
        width = (width + 1) / 2;
        height = (height + 1) / 2;
    }
    FontLetters letters;
    const Picture& sized = picture.InSize(width, height, letters);
    return QImage(reinterpret_cast<const uchar*>(sized.pixels.data()), sized.width, sized.height,
                  QImage::Format_ARGB32_Premultiplied)
        .copy();
}

/// Nothing where it is not of a kind that the setup shows.
std::optional<QImage> ReadShownBySetup(const FileSystem& files, const Text& path)
{
    const PictureResult read = ReadPictureFile(files, path);
    return read.fault == PictureFault::None ? std::optional(ImageOf(read.picture)) : std::nullopt;
}

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
        return LoadPicture(files, path);
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
        if (auto shown = ReadShownBySetup(files, path))
            return shown;
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
