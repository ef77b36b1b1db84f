// The format is Microsoft's [MS-SHLLINK]: a header, an item list, the link's place, then texts.
#include "wine/shell_link.h"

#include "helpers/ansi_text.h"
#include "helpers/utf8.h"

#include <fstream>
#include <iterator>

namespace quillon::test {

namespace {

constexpr std::size_t kHeaderSize = 0x4C;
constexpr char kClassId[] = "\x01\x14\x02\0\0\0\0\0\xC0\0\0\0\0\0\0\x46";
constexpr unsigned kHasItemList = 0x01;
constexpr unsigned kHasPlace = 0x02;
constexpr unsigned kHasDescription = 0x04;
constexpr unsigned kHasRelativePath = 0x08;
constexpr unsigned kHasWorkFolder = 0x10;
constexpr unsigned kHasArguments = 0x20;
constexpr unsigned kHasIconFile = 0x40;
constexpr unsigned kIsUnicode = 0x80;
constexpr std::size_t kBasePathInPlace = 16;

class LinkReader {
public:
    explicit LinkReader(std::string bytes) : bytes_(std::move(bytes)) {}

    ShellLink Read()
    {
        ShellLink link;
        if (Number(0, 4) != kHeaderSize || bytes_.substr(4, 16) != std::string(kClassId, 16))
            return link;
        link.isShellLink = true;
        flags_ = Number(20, 4);
        position_ = kHeaderSize;
        if (Has(kHasItemList))
            position_ += 2 + Number(position_, 2);
        if (Has(kHasPlace)) {
            const std::size_t start = position_ + Number(position_ + kBasePathInPlace, 4);
            link.target = AnsiText::FromBytes(bytes_.c_str() + std::min(start, bytes_.size()));
            position_ += Number(position_, 4);
        }
        link.description = TakeText(kHasDescription);
        TakeText(kHasRelativePath);
        link.workFolder = TakeText(kHasWorkFolder);
        link.arguments = TakeText(kHasArguments);
        link.iconFile = TakeText(kHasIconFile);
        return link;
    }

private:
    bool Has(unsigned flag) const { return (flags_ & flag) != 0; }

    unsigned Number(std::size_t position, std::size_t size) const
    {
        unsigned number = 0;
        for (std::size_t i = size; i-- > 0;)
            if (position + i < bytes_.size())
                number = number << 8U | static_cast<unsigned char>(bytes_[position + i]);
        return number;
    }

    std::string TakeText(unsigned flag)
    {
        if (!Has(flag))
            return {};
        const std::size_t length = Number(position_, 2);
        const std::size_t size = Has(kIsUnicode) ? 2 : 1;
        std::string text;
        for (std::size_t i = 0; i < length; ++i)
            AppendCodePoint(text, Number(position_ + 2 + i * size, size));
        position_ += 2 + length * size;
        // Wine counts the NUL that ends a text as a part of it.
        return text.c_str();
    }

    std::string bytes_;
    unsigned flags_ = 0;
    std::size_t position_ = 0;
};

} // namespace

ShellLink ReadShellLink(const std::filesystem::path& path)
{
    std::ifstream file(path, std::ios::binary);
    return LinkReader({std::istreambuf_iterator<char>(file), {}}).Read();
}

} // namespace quillon::test
