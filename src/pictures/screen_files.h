// The files that a design names, read for the painter: its pictures and the text of its RTF box.
#pragma once

#include "design/rtf_box_file.h"
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

/// What the files are read for.
struct ScreenSize {
    // The surface on which the author made the design, in pixels.
    int surfaceWidth = 640;
    int surfaceHeight = 480;
    ScreenMetrics metrics;
    // The screen that is painted.
    int width = 0;
    int height = 0;
};

/// Only what is shown is read, of the changing pictures the first one, and only as much of a
/// picture is kept as is shown: all together take no more than `kMaxPicturesMemory`, with the file
/// that is being read. A file that there is no more room for is too large.
ScreenFiles ReadScreenFiles(const Project& project, const FileSystem& files,
                            const RTFboxFolders& texts, const ScreenSize& size);

} // namespace quillon
