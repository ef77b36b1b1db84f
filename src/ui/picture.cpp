#include "ui/picture.h"

#include "platform/run_error.h"
#include "platform/whole_file.h"

#include <QtWidgets>
#include <algorithm>
#include <iterator>

namespace quillon {

namespace {

// Beyond these a file is a mistake, or made to bring the program down.
constexpr std::uint64_t kMostBytes = 128U << 20;
constexpr qint64 kMostPixels = 30'000'000;

constexpr const char* kFormats[] = {"bmp", "gif", "ico", "jpeg", "jpg", "png"};

std::optional<QImage> ReadPicture(const FileSystem& files, const Text& path)
{
    if (path.empty() || files.Facts(path).size > kMostBytes)
        return std::nullopt;
    const std::string bytes = ReadWholeFile(files, path);
    QByteArray view = QByteArray::fromRawData(bytes.data(), static_cast<qsizetype>(bytes.size()));
    QBuffer buffer(&view);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer);
    const QByteArray format = reader.format();
    const QSize size = reader.size();
    if (std::find(std::begin(kFormats), std::end(kFormats), format) == std::end(kFormats) ||
        size.isEmpty() || qint64{size.width()} * size.height() > kMostPixels)
        return std::nullopt;
    // A camera's picture may stand on its side in the file.
    reader.setAutoTransform(true);
    QImage picture = reader.read();
    return picture.isNull() ? std::nullopt : std::optional(std::move(picture));
}

} // namespace

std::optional<QImage> LoadPicture(const FileSystem& files, const Text& path)
{
    try {
        return ReadPicture(files, path);
    } catch (const std::exception&) {
        return std::nullopt;
    }
}

} // namespace quillon
