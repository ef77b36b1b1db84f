#include "cli/png_file.h"

#include "platform/run_error.h"

#include <png.h>

namespace quillon::cli {

namespace {

constexpr std::size_t kBytesPerPixel = 3;

/// Three bytes for each pixel, blue first; an opaque picture needs no fourth one. They lie where
/// the pixels were, each after those before it.
const unsigned char* WithoutAlpha(std::vector<Pixel>& pixels)
{
    auto* const bytes = reinterpret_cast<unsigned char*>(pixels.data());
    for (std::size_t i = 0; i < pixels.size(); ++i) {
        const Pixel pixel = pixels[i];
        bytes[i * kBytesPerPixel] = static_cast<unsigned char>(pixel);
        bytes[i * kBytesPerPixel + 1] = static_cast<unsigned char>(pixel >> 8);
        bytes[i * kBytesPerPixel + 2] = static_cast<unsigned char>(pixel >> 16);
    }
    return bytes;
}

} // namespace

PngFile::PngFile(std::vector<Pixel> pixels, int width, int height)
{
    png_image image{};
    image.version = PNG_IMAGE_VERSION;
    image.width = static_cast<png_uint_32>(width);
    image.height = static_cast<png_uint_32>(height);
    image.format = PNG_FORMAT_BGR;
    const unsigned char* rows = WithoutAlpha(pixels);
    // Not filled with zeros: most of it is never used.
    png_alloc_size_t size = PNG_IMAGE_PNG_SIZE_MAX(image);
    bytes_.reset(new char[size]);
    if (png_image_write_to_memory(&image, bytes_.get(), &size, 0, rows, 0, nullptr) == 0)
        throw RunError(ErrorNumber::kDeviceIo);
    size_ = size;
}

} // namespace quillon::cli
