// An icon file of two sizes, for tests of where it goes.
#pragma once

#include <string>

namespace quillon::test {

/// A picture of this size in an icon file, as a bitmap or as PNG; its contents are arbitrary.
inline std::string PlainIconPicture(std::size_t size, bool isPng)
{
    std::string picture(size, isPng ? 'p' : 'b');
    if (isPng)
        picture.replace(0, 8, "\x89PNG\r\n\x1A\n");
    else
        picture.replace(0, 4, std::string("\x28\0\0\0", 4));
    return picture;
}

inline std::string PlainIconFile()
{
    const std::string small = PlainIconPicture(100, false);
    const std::string large = PlainIconPicture(300, true);
    std::string file("\0\0\1\0\2\0", 6);
    file += std::string("\x10\x10\0\0\1\0\x20\0", 8) + std::string("\x64\0\0\0\x26\0\0\0", 8);
    file += std::string("\0\0\0\0\1\0\x20\0", 8) + std::string("\x2C\1\0\0\x8A\0\0\0", 8);
    return file + small + large;
}

} // namespace quillon::test
