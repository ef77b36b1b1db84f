// The interface to the system's decoder of JPEG pictures.
#pragma once

#include "design/picture.h"

#include <cstdint>
#include <string_view>

namespace quillon {

struct JpegRequest {
    // The size in the file, which the system's decoder has to confirm.
    int width = 0;
    int height = 0;
    // 1, 2, 4 or 8: both directions are made smaller by it, rounded up.
    int reduction = 1;
    // How much memory the decoder may take for itself, in bytes.
    std::uint64_t memory = 0;

    /// A picture of the size that is asked for, whose pixels are not set.
    Picture MakePicture() const
    {
        const auto reduced = [this](int side) { return (side + reduction - 1) / reduction; };
        Picture picture{reduced(width), reduced(height), {}};
        picture.pixels.resize(static_cast<std::size_t>(picture.width) *
                              static_cast<std::size_t>(picture.height));
        return picture;
    }
};

/// An empty picture where the file is damaged or asks for too much. A file that is only cut gives
/// what there is. Nothing is thrown but `std::bad_alloc`.
Picture DecodeJpegPixels(std::string_view bytes, const JpegRequest& request);

} // namespace quillon
