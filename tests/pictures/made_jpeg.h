// JPEG pictures made for tests, by a function that gives each line.
#pragma once

#include <functional>
#include <string>
#include <vector>

namespace quillon::test {

struct MadeJpeg {
    int width = 16;
    int height = 16;
    int components = 3; // 1 grey, 3 RGB, 4 CMYK
    bool isProgressive = false;
    int quality = 95;
    bool hasAdobeMarker = true; // of CMYK files only
    int orientation = 1;
};

/// `line` fills a row of `width` times `components` bytes.
std::string MakeJpeg(const MadeJpeg& made,
                     const std::function<void(int y, std::vector<unsigned char>& row)>& line);

} // namespace quillon::test
