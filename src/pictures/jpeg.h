// JPEG pictures: what their headers say, and how large a picture of them is kept.
#pragma once

#include "pictures/picture_file.h"

namespace quillon {

struct JpegHeader {
    int width = 0;
    int height = 0;
    // Its scans are put together in memory before there is a picture.
    bool isProgressive = false;
    // Samples of all components beside one another for each pixel, times 16.
    std::int64_t samples16 = 0;
    // How the picture was held: 1 to 8, as cameras note it.
    int orientation = 1;
};

/// False where the file has no frame that can be decoded.
bool ReadJpegHeader(std::string_view bytes, JpegHeader& header);

/// 1, 2, 4 or 8, the smallest by which the picture can be kept; 0 where even 8 is too little.
int JpegReduction(const JpegHeader& header, std::size_t fileSize,
                  std::int64_t memory = kMaxPicturesMemory);

/// `memory` is all that the picture may take with the bytes of its file.
PictureResult DecodeJpeg(std::string_view bytes, std::int64_t memory);

} // namespace quillon
