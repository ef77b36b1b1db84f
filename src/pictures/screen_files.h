// The files that a design names, read for the painter: its pictures and the text of its RTF box.
#pragma once

#include "design/screen.h"
#include "pictures/picture_file.h"

#include <optional>

namespace quillon {

struct ScreenFileFault {
    Text file;
    PictureFault fault = PictureFault::None;
    bool isRtf = false;
};

struct ScreenFiles {
    ScreenPictures pictures; // with their transparent colours taken out
    std::optional<RtfText> rtfBox;
    // Files that would be shown and can't be, in the order of the objects.
    std::vector<ScreenFileFault> faults;
};

/// Only what is shown is read, of the changing pictures the first one.
ScreenFiles ReadScreenFiles(const Project& project, const FileSystem& files,
                            const Text& toolFolder);

} // namespace quillon
