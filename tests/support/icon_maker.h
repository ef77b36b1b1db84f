// Icon files for tests: a picture of each size, as a bitmap or compressed as PNG.
#pragma once

#include <QtWidgets>
#include <string>
#include <vector>

namespace quillon::test {

struct IconPart {
    int side;
    QColor colour;
    bool isPng = false;
    int bits = 32; // as the file's directory says
};

namespace icon_file {

inline void AddNumber(std::string& bytes, int size, std::uint32_t number)
{
    for (int i = 0; i < size; ++i)
        bytes += static_cast<char>(number >> (8 * i) & 0xFF);
}

inline std::string PngPart(const IconPart& part)
{
    QImage image(part.side, part.side, QImage::Format_ARGB32);
    image.fill(part.colour);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return bytes.toStdString();
}

// 32 bits a dot, bottom line first, and after it a mask in which nothing is left out.
inline std::string BitmapPart(const IconPart& part)
{
    const auto side = static_cast<std::uint32_t>(part.side);
    std::string bytes;
    AddNumber(bytes, 4, 40);
    AddNumber(bytes, 4, side);
    AddNumber(bytes, 4, 2 * side);
    AddNumber(bytes, 2, 1);
    AddNumber(bytes, 2, 32);
    bytes += std::string(24, '\0');
    for (std::uint32_t dot = 0; dot < side * side; ++dot)
        AddNumber(bytes, 4, part.colour.rgba());
    return bytes + std::string(((side + 31) / 32) * 4 * side, '\0');
}

} // namespace icon_file

inline std::string MakeIconFile(const std::vector<IconPart>& parts)
{
    using namespace icon_file;
    std::string header;
    AddNumber(header, 2, 0);
    AddNumber(header, 2, 1);
    AddNumber(header, 2, static_cast<std::uint32_t>(parts.size()));
    std::string pictures;
    for (const IconPart& part : parts) {
        const std::string picture = part.isPng ? PngPart(part) : BitmapPart(part);
        AddNumber(header, 1, static_cast<std::uint32_t>(part.side)); // 256 is written as 0
        AddNumber(header, 1, static_cast<std::uint32_t>(part.side));
        AddNumber(header, 2, 0);
        AddNumber(header, 2, 1);
        AddNumber(header, 2, static_cast<std::uint32_t>(part.bits));
        AddNumber(header, 4, static_cast<std::uint32_t>(picture.size()));
        AddNumber(header, 4, static_cast<std::uint32_t>(6 + 16 * parts.size() + pictures.size()));
        pictures += picture;
    }
    return header + pictures;
}

} // namespace quillon::test
