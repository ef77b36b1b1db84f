#include "made_jpeg.h"

#include <cstdio>
#include <cstdlib>

#include <jpeglib.h>

namespace quillon::test {

namespace {

// A note as a camera writes it, of one entry.
std::string Exif(int orientation)
{
    std::string note("Exif\0\0MM\0*\0\0\0\x08\0\1\x01\x12\0\3\0\0\0\1\0\0\0\0\0\0\0\0", 32);
    note[25] = static_cast<char>(orientation);
    return note;
}

} // namespace

std::string MakeJpeg(const MadeJpeg& made,
                     const std::function<void(int y, std::vector<unsigned char>& row)>& line)
{
    jpeg_compress_struct jpeg{};
    jpeg_error_mgr errors{};
    jpeg.err = jpeg_std_error(&errors);
    jpeg_create_compress(&jpeg);
    unsigned char* memory = nullptr;
    unsigned long size = 0;
    jpeg_mem_dest(&jpeg, &memory, &size);
    jpeg.image_width = static_cast<unsigned>(made.width);
    jpeg.image_height = static_cast<unsigned>(made.height);
    jpeg.input_components = made.components;
    jpeg.in_color_space = made.components == 1   ? JCS_GRAYSCALE
                          : made.components == 3 ? JCS_RGB
                                                 : JCS_CMYK;
    jpeg_set_defaults(&jpeg);
    jpeg_set_quality(&jpeg, made.quality, TRUE);
    if (made.isProgressive)
        jpeg_simple_progression(&jpeg);
    if (made.components == 4)
        jpeg.write_Adobe_marker = made.hasAdobeMarker ? TRUE : FALSE;
    jpeg_start_compress(&jpeg, TRUE);
    if (made.orientation != 1) {
        const std::string note = Exif(made.orientation);
        jpeg_write_marker(&jpeg, JPEG_APP0 + 1, reinterpret_cast<const JOCTET*>(note.data()),
                          static_cast<unsigned>(note.size()));
    }
    std::vector<unsigned char> row(static_cast<std::size_t>(made.width * made.components));
    for (int y = 0; y < made.height; ++y) {
        line(y, row);
        JSAMPROW pointer = row.data();
        jpeg_write_scanlines(&jpeg, &pointer, 1);
    }
    jpeg_finish_compress(&jpeg);
    jpeg_destroy_compress(&jpeg);
    std::string bytes(reinterpret_cast<const char*>(memory), size);
    std::free(memory);
    return bytes;
}

} // namespace quillon::test
