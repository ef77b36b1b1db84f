// Pixels as the bytes of a PNG file.
#pragma once

#include "design/canvas.h"

#include <memory>
#include <string_view>

namespace quillon::cli {

class PngFile {
public:
    /// Uses the pixels' own memory for the packing.
    PngFile(std::vector<Pixel> pixels, int width, int height);

    std::string_view Bytes() const { return {bytes_.get(), size_}; }

private:
    std::unique_ptr<char[]> bytes_;
    std::size_t size_ = 0;
};

} // namespace quillon::cli
