// Little-endian numbers in the bytes of a picture file. Nothing is read beyond the end.
#pragma once

#include <cstdint>
#include <string_view>

namespace quillon {

class PictureBytes {
public:
    PictureBytes() = default;
    explicit PictureBytes(std::string_view bytes) : bytes_(bytes) {}

    std::size_t Size() const { return bytes_.size(); }
    bool Has(std::uint64_t place, std::uint64_t length) const
    {
        return place <= bytes_.size() && length <= bytes_.size() - place;
    }

    /// What lies beyond the end is 0.
    std::uint8_t Byte(std::size_t place) const
    {
        return place < bytes_.size() ? static_cast<std::uint8_t>(bytes_[place]) : std::uint8_t{0};
    }
    std::uint16_t Word(std::size_t place) const
    {
        return static_cast<std::uint16_t>(Byte(place) | Byte(place + 1) << 8);
    }
    std::int16_t Short(std::size_t place) const { return static_cast<std::int16_t>(Word(place)); }
    std::uint32_t Long(std::size_t place) const
    {
        return Word(place) | static_cast<std::uint32_t>(Word(place + 2)) << 16;
    }
    std::int32_t SignedLong(std::size_t place) const
    {
        return static_cast<std::int32_t>(Long(place));
    }

    /// From `place` on, at most `length` bytes.
    PictureBytes Part(std::size_t place, std::size_t length = std::string_view::npos) const
    {
        return PictureBytes(place < bytes_.size() ? bytes_.substr(place, length)
                                                  : std::string_view{});
    }
    std::string_view View() const { return bytes_; }

private:
    std::string_view bytes_;
};

} // namespace quillon
