// JPEG pictures by libjpeg. Its failures jump out of it, so nothing that has to be destroyed lives
// in the function that is jumped back into.
#include "pictures/jpeg_decoder.h"

#include <algorithm>
#include <csetjmp>
#include <cstdio>

#include <jpeglib.h>

namespace quillon {

namespace {

// How often all of a picture may be gone through: a file of a few bytes can ask for any number of
// scans of a large picture.
constexpr int kMaxScans = 100;
constexpr std::int64_t kMaxScannedPixels = 1'500'000'000;

struct Decoding {
    jpeg_decompress_struct jpeg;
    jpeg_error_mgr errors;
    jpeg_progress_mgr progress;
    std::jmp_buf failure;
    Picture* picture;
    JSAMPROW line;
};

Decoding& DecodingOf(j_common_ptr jpeg)
{
    return *static_cast<Decoding*>(jpeg->client_data);
}

[[noreturn]] void Fail(j_common_ptr jpeg)
{
    std::longjmp(DecodingOf(jpeg).failure, 1);
}

// The decoder's warnings and traces are ignored.
void Ignore(j_common_ptr) {}
void IgnoreLevel(j_common_ptr, int) {}

void LimitScans(j_common_ptr common)
{
    const jpeg_decompress_struct& jpeg = DecodingOf(common).jpeg;
    const int scans = jpeg.input_scan_number;
    const std::int64_t pixels = std::int64_t{jpeg.image_width} * jpeg.image_height;
    if (scans > kMaxScans || (scans > 1 && scans * pixels > kMaxScannedPixels))
        Fail(common);
}

// CMYK samples to RGB. In a file with Adobe's marker the samples are inverted; without it they are
// plain.
void PixelsFromCmyk(const JSAMPLE* samples, int width, bool areInverted, Pixel* out)
{
    const auto light = [areInverted](unsigned coverage) {
        return areInverted ? coverage : 255 - coverage;
    };
    for (int x = 0; x < width; ++x, samples += 4) {
        const unsigned black = light(samples[3]);
        const auto part = [&](int i) { return (light(samples[i]) * black + 127) / 255; };
        out[x] = 0xFF000000 | part(0) << 16 | part(1) << 8 | part(2);
    }
}

void ReadLines(Decoding& decoding)
{
    jpeg_decompress_struct& jpeg = decoding.jpeg;
    const bool isCmyk = jpeg.out_color_space == JCS_CMYK;
    const auto width = static_cast<int>(jpeg.output_width);
    while (jpeg.output_scanline < jpeg.output_height) {
        Pixel* row =
            decoding.picture->pixels.data() + std::size_t{jpeg.output_scanline} * jpeg.output_width;
        JSAMPROW line = isCmyk ? decoding.line : reinterpret_cast<JSAMPROW>(row);
        if (jpeg_read_scanlines(&jpeg, &line, 1) != 1)
            Fail(reinterpret_cast<j_common_ptr>(&jpeg));
        if (isCmyk)
            PixelsFromCmyk(line, width, jpeg.saw_Adobe_marker, row);
    }
}

void Start(Decoding& decoding, std::string_view bytes, const JpegRequest& request)
{
    jpeg_decompress_struct& jpeg = decoding.jpeg;
    jpeg_create_decompress(&jpeg);
    jpeg.client_data = &decoding;
    jpeg.progress = &decoding.progress;
    decoding.progress.progress_monitor = LimitScans;
    jpeg.mem->max_memory_to_use = static_cast<long>(request.memory);
    jpeg_mem_src(&jpeg, reinterpret_cast<const unsigned char*>(bytes.data()),
                 static_cast<unsigned long>(bytes.size()));
    jpeg_read_header(&jpeg, TRUE);
    if (static_cast<int>(jpeg.image_width) != request.width ||
        static_cast<int>(jpeg.image_height) != request.height)
        Fail(reinterpret_cast<j_common_ptr>(&jpeg));
    jpeg.scale_num = 1;
    jpeg.scale_denom = static_cast<unsigned>(request.reduction);
    const bool isCmyk = jpeg.jpeg_color_space == JCS_CMYK || jpeg.jpeg_color_space == JCS_YCCK;
    // In memory the order of these bytes is that of a pixel.
    jpeg.out_color_space = isCmyk ? JCS_CMYK : JCS_EXT_BGRA;
    jpeg.dct_method = JDCT_ISLOW;
}

/// False after a failure.
bool Decode(Decoding& decoding, std::string_view bytes, const JpegRequest& request)
{
    if (setjmp(decoding.failure) != 0)
        return false;
    Start(decoding, bytes, request);
    jpeg_start_decompress(&decoding.jpeg);
    decoding.line = static_cast<JSAMPROW>(
        decoding.jpeg.mem->alloc_small(reinterpret_cast<j_common_ptr>(&decoding.jpeg), JPOOL_IMAGE,
                                       std::size_t{decoding.jpeg.output_width} * 4));
    const auto width = static_cast<int>(decoding.jpeg.output_width);
    const auto height = static_cast<int>(decoding.jpeg.output_height);
    if (width != decoding.picture->width || height != decoding.picture->height)
        return false;
    ReadLines(decoding);
    return true;
}

} // namespace

Picture DecodeJpegPixels(std::string_view bytes, const JpegRequest& request)
{
    Picture picture = request.MakePicture();
    Decoding decoding{};
    decoding.picture = &picture;
    decoding.jpeg.err = jpeg_std_error(&decoding.errors);
    decoding.jpeg.client_data = &decoding;
    decoding.errors.error_exit = Fail;
    decoding.errors.output_message = Ignore;
    decoding.errors.emit_message = IgnoreLevel;
    const bool isDecoded = Decode(decoding, bytes, request);
    jpeg_destroy_decompress(&decoding.jpeg);
    return isDecoded ? std::move(picture) : Picture{};
}

} // namespace quillon
