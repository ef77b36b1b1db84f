// Scaling of pictures. Each row of the result is first mixed of the rows that it covers, and then
// across; nothing of the size of a picture is kept in between, and everything is whole numbers, so
// that every machine gets the same pixels.
#include "design/picture.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <span>

namespace quillon {

namespace {

// A few weights are parts of 2^8, so that two or four channels are mixed in one number; many would
// be too coarse then, and are parts of 2^14, with which a sum of 255 fits in 32 bits.
constexpr std::size_t kFew = 4;
constexpr int kFewBits = 8;
constexpr int kManyBits = 14;

// The source pixels that one pixel of the result is mixed of, and how much each counts.
struct Mix {
    int first = 0;
    std::span<const std::uint32_t> weights;

    bool IsFew() const { return weights.size() <= kFew; }
};

class Mixes {
public:
    Mixes(int from, int to) : from_(from), to_(to)
    {
        firsts_.reserve(static_cast<std::size_t>(to));
        ends_.reserve(static_cast<std::size_t>(to));
        for (int at = 0; at < to; ++at) {
            shares_.clear();
            firsts_.push_back(to < from ? MeanOf(at) : BetweenTwo(at));
            AddWeights();
            ends_.push_back(weights_.size());
        }
    }

    Mix operator[](int at) const
    {
        const auto index = static_cast<std::size_t>(at);
        const std::size_t begin = index == 0 ? 0 : ends_[index - 1];
        return {firsts_[index], std::span(weights_).subspan(begin, ends_[index] - begin)};
    }

private:
    // Smaller: how much of each source pixel the result's pixel covers, in units of 1 / to.
    int MeanOf(int at)
    {
        const std::int64_t begin = std::int64_t{at} * from_;
        const std::int64_t end = begin + from_;
        const std::int64_t first = begin / to_;
        for (std::int64_t source = first; source * to_ < end; ++source)
            shares_.push_back(std::min(end, (source + 1) * to_) - std::max(begin, source * to_));
        return static_cast<int>(first);
    }

    // Larger: the two source pixels whose middles lie round the middle of the result's pixel.
    int BetweenTwo(int at)
    {
        const std::int64_t place = (2 * std::int64_t{at} + 1) * from_ - to_; // by 1 / (2 to)
        const std::int64_t unit = 2 * std::int64_t{to_};
        const std::int64_t first = std::max<std::int64_t>(place, 0) / unit;
        if (place <= 0 || first >= from_ - 1) {
            shares_.push_back(1);
            return place <= 0 ? 0 : from_ - 1;
        }
        shares_.push_back(unit - place % unit);
        shares_.push_back(place % unit);
        return static_cast<int>(first);
    }

    // Makes the weights one whole together, so that a single colour stays what it is.
    void AddWeights()
    {
        const std::int64_t whole = 1 << (shares_.size() <= kFew ? kFewBits : kManyBits);
        std::int64_t total = 0;
        for (const std::int64_t share : shares_)
            total += share;
        std::int64_t given = 0;
        for (const std::int64_t share : shares_) {
            weights_.push_back(static_cast<std::uint32_t>(share * whole / total));
            given += weights_.back();
        }
        const auto begin = weights_.end() - static_cast<std::ptrdiff_t>(shares_.size());
        *std::max_element(begin, weights_.end()) += static_cast<std::uint32_t>(whole - given);
    }

    int from_;
    int to_;
    std::vector<int> firsts_;
    std::vector<std::size_t> ends_;
    std::vector<std::uint32_t> weights_;
    std::vector<std::int64_t> shares_;
};

Pixel MixedOfMany(const Pixel* first, std::ptrdiff_t step, std::span<const std::uint32_t> weights)
{
    std::array<std::uint32_t, 4> sums{};
    for (const std::uint32_t weight : weights) {
        for (unsigned channel = 0; channel < 4; ++channel)
            sums[channel] += (*first >> (8 * channel) & 0xFF) * weight;
        first += step;
    }
    Pixel mixed = 0;
    for (unsigned channel = 0; channel < 4; ++channel)
        mixed |= (sums[channel] + (1U << (kManyBits - 1))) >> kManyBits << (8 * channel);
    return mixed;
}

// Its four channels with room for a weight above each.
std::uint64_t Spread(Pixel pixel)
{
    return (pixel | std::uint64_t{pixel} << 24) & 0x00FF00FF00FF00FF;
}

Pixel MixedOfFew(const Pixel* first, std::span<const std::uint32_t> weights)
{
    std::uint64_t sum = 0x0080008000800080;
    for (const std::uint32_t weight : weights)
        sum += Spread(*first++) * weight;
    sum = sum >> kFewBits & 0x00FF00FF00FF00FF;
    return static_cast<Pixel>(sum | sum >> 24);
}

// Plain loops over bytes, which compilers turn into instructions that mix many at once.
void AddRow(std::uint16_t* sums, const std::uint8_t* row, std::size_t bytes, std::uint32_t weight)
{
    const auto factor = static_cast<std::uint16_t>(weight);
    for (std::size_t i = 0; i < bytes; ++i)
        sums[i] = static_cast<std::uint16_t>(sums[i] + row[i] * factor);
}

class RowMixer {
public:
    explicit RowMixer(const Picture& picture)
        : picture_(picture), sums_(4 * static_cast<std::size_t>(picture.width)),
          mixed_(static_cast<std::size_t>(picture.width))
    {
    }

    const Pixel* Mixed(const Mix& mix)
    {
        const Pixel* first = picture_.pixels.data() + std::ptrdiff_t{mix.first} * picture_.width;
        if (mix.weights.size() == 1)
            return first;
        if (mix.IsFew())
            MixFew(first, mix.weights);
        else
            for (int x = 0; x < picture_.width; ++x)
                mixed_[static_cast<std::size_t>(x)] =
                    MixedOfMany(first + x, picture_.width, mix.weights);
        return mixed_.data();
    }

private:
    void MixFew(const Pixel* row, std::span<const std::uint32_t> weights)
    {
        std::fill(sums_.begin(), sums_.end(), std::uint16_t{1 << (kFewBits - 1)});
        for (const std::uint32_t weight : weights) {
            AddRow(sums_.data(), reinterpret_cast<const std::uint8_t*>(row), sums_.size(), weight);
            row += picture_.width;
        }
        auto* out = reinterpret_cast<std::uint8_t*>(mixed_.data());
        for (std::size_t i = 0; i < sums_.size(); ++i)
            out[i] = static_cast<std::uint8_t>(sums_[i] >> kFewBits);
    }

    const Picture& picture_;
    std::vector<std::uint16_t> sums_;
    std::vector<Pixel> mixed_;
};

} // namespace

Picture Scaled(const Picture& picture, int width, int height)
{
    if (picture.IsEmpty() || width < 1 || height < 1)
        return {};
    if (width == picture.width && height == picture.height)
        return picture;
    // A wide strip that becomes narrow and high would be mixed across for every row of the result.
    if (width < picture.width && height > picture.height)
        return Scaled(Scaled(picture, width, picture.height), width, height);
    Picture result{width, height, {}};
    result.pixels.resize(static_cast<std::size_t>(width) * static_cast<std::size_t>(height));
    const Mixes down(picture.height, height);
    const Mixes across(picture.width, width);
    RowMixer mixer(picture);
    Pixel* out = result.pixels.data();
    for (int y = 0; y < height; ++y) {
        const Pixel* row = mixer.Mixed(down[y]);
        for (int x = 0; x < width; ++x) {
            const Mix mix = across[x];
            *out++ = mix.IsFew() ? MixedOfFew(row + mix.first, mix.weights)
                                 : MixedOfMany(row + mix.first, 1, mix.weights);
        }
    }
    return result;
}

} // namespace quillon
