#include "pictures/run_lengths.h"

#include <algorithm>

namespace quillon {

namespace {

class RunLengths {
public:
    RunLengths(PictureBytes runs, int bits, const std::vector<Pixel>& palette, Picture& picture)
        : runs_(runs), bits_(bits), palette_(palette), picture_(picture)
    {
    }

    bool Decode()
    {
        while (runs_.Has(at_, 2) && !isOver_) {
            const std::uint8_t count = runs_.Byte(at_);
            const std::uint8_t value = runs_.Byte(at_ + 1);
            at_ += 2;
            if (count > 0)
                Repeat(count, value);
            else if (!Escape(value))
                return false;
        }
        // Some writers leave the mark of the end out; a cut file ends further up.
        return isOver_ || (y_ == picture_.height - 1 && x_ >= picture_.width) ||
               (y_ >= picture_.height);
    }

private:
    Pixel ColourAt(std::size_t place, int index) const
    {
        const std::uint8_t byte =
            runs_.Byte(place + static_cast<std::size_t>(bits_ == 8 ? index : index / 2));
        return Colour(byte, index);
    }

    Pixel Colour(std::uint8_t byte, int index) const
    {
        if (bits_ == 8)
            return palette_[byte];
        return palette_[index % 2 == 0 ? byte >> 4U : byte & 0xFU];
    }

    // What runs over the end of a row is cut off there.
    void Put(Pixel pixel)
    {
        if (x_ < picture_.width && y_ < picture_.height)
            picture_.pixels[static_cast<std::size_t>(picture_.height - 1 - y_) *
                                static_cast<std::size_t>(picture_.width) +
                            static_cast<std::size_t>(x_)] = pixel;
        x_ = std::min(x_ + 1, picture_.width);
    }

    void Repeat(int count, std::uint8_t value)
    {
        for (int i = 0; i < count; ++i)
            Put(Colour(value, i));
    }

    bool Escape(std::uint8_t code)
    {
        switch (code) {
        case 0:
            x_ = 0;
            y_ = std::min(y_ + 1, picture_.height);
            return true;
        case 1:
            isOver_ = true;
            return true;
        case 2:
            return Skip();
        default:
            return Literal(code);
        }
    }

    bool Skip()
    {
        if (!runs_.Has(at_, 2))
            return false;
        x_ = std::min(x_ + runs_.Byte(at_), picture_.width);
        y_ = std::min(y_ + runs_.Byte(at_ + 1), picture_.height);
        at_ += 2;
        return true;
    }

    bool Literal(int count)
    {
        const auto bytes = static_cast<std::size_t>(bits_ == 8 ? count : (count + 1) / 2);
        if (!runs_.Has(at_, bytes))
            return false;
        for (int i = 0; i < count; ++i)
            Put(ColourAt(at_, i));
        at_ += (bytes + 1) / 2 * 2; // filled up to a word
        return true;
    }

    PictureBytes runs_;
    int bits_;
    const std::vector<Pixel>& palette_;
    Picture& picture_;
    std::size_t at_ = 0;
    int x_ = 0;
    int y_ = 0; // from the bottom
    bool isOver_ = false;
};

} // namespace

bool DecodeRunLengths(PictureBytes runs, int bits, const std::vector<Pixel>& palette,
                      Picture& picture)
{
    std::ranges::fill(picture.pixels, palette[0]);
    return RunLengths(runs, bits, palette, picture).Decode();
}

} // namespace quillon
