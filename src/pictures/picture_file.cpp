#include "pictures/picture_file.h"

#include "pictures/bitmap.h"
#include "pictures/jpeg.h"
#include "pictures/metafile.h"
#include "platform/run_error.h"

#include <utility>

namespace quillon {

namespace {

PictureResult Failed(PictureFault fault)
{
    return {{}, fault};
}

/// Into memory of just the file's size, which a text that grows would take twice over.
std::string ReadBytes(InputFile& file, std::uint64_t size)
{
    std::string bytes(static_cast<std::size_t>(size), '\0');
    std::size_t length = 0;
    while (length < bytes.size()) {
        const std::size_t got = file.Read(std::as_writable_bytes(std::span(bytes).subspan(length)));
        if (got == 0)
            break;
        length += got;
    }
    bytes.resize(length);
    return bytes;
}

PictureResult ReadFromFile(const FileSystem& files, const Text& path, std::int64_t memory)
{
    if (path.empty() || !files.FileExists(path))
        return Failed(PictureFault::NotFound);
    const auto file = files.OpenInput(path);
    const std::uint64_t size = file->Size();
    if (size > kMaxPictureFileBytes || static_cast<std::int64_t>(size) > memory)
        return Failed(PictureFault::TooLarge);
    return DecodePicture(ReadBytes(*file, size), memory);
}

} // namespace

PictureFormat PictureFormatOf(std::string_view bytes)
{
    if (bytes.starts_with("BM"))
        return PictureFormat::Bitmap;
    if (bytes.starts_with("\xFF\xD8\xFF"))
        return PictureFormat::Jpeg;
    return IsMetafile(bytes) ? PictureFormat::Metafile : PictureFormat::Unknown;
}

PictureResult DecodePicture(std::string bytes, std::int64_t memory)
{
    switch (PictureFormatOf(bytes)) {
    case PictureFormat::Bitmap: {
        DecodedPixels decoded = DecodeBitmapFile(bytes, memory);
        return {std::move(decoded.picture), decoded.fault};
    }
    case PictureFormat::Jpeg:
        return DecodeJpeg(bytes, memory);
    case PictureFormat::Metafile:
        return DecodeMetafile(std::move(bytes));
    case PictureFormat::Unknown:
        break;
    }
    return Failed(PictureFault::UnknownFormat);
}

PictureResult ReadPictureFile(const FileSystem& files, const Text& path, std::int64_t memory)
{
    try {
        return ReadFromFile(files, path, memory);
    } catch (const RunError&) {
        return Failed(PictureFault::Unreadable);
    } catch (const std::bad_alloc&) {
        return Failed(PictureFault::TooLarge);
    }
}

} // namespace quillon
