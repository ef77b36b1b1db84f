#include "archive/writer/deflate_walk.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <stdexcept>

namespace quillon {

namespace {

constexpr unsigned kMaxCodeLength = 15;
constexpr unsigned kFastBits = 10;
constexpr std::size_t kEndOfBlock = 256;
constexpr std::size_t kMaxLengthCodes = 288;
constexpr std::size_t kMaxDistanceCodes = 32;
constexpr std::size_t kCodeLengthCodes = 19;

[[noreturn]] void RefuseStream()
{
    throw std::logic_error("no deflate stream");
}

class BitReader {
public:
    explicit BitReader(std::span<const std::byte> bytes) : bytes_(bytes) {}

    /// At least 56 bits can then be looked at; after the end they are 0.
    void Refill()
    {
        if (bytes_.size() - next_ >= sizeof bits_) {
            std::uint64_t word = 0;
            for (std::size_t i = 0; i < sizeof word; ++i)
                word |= static_cast<std::uint64_t>(bytes_[next_ + i]) << (8 * i);
            bits_ |= word << count_;
            next_ += (63 - count_) / 8;
            count_ |= 56;
            return;
        }
        for (; count_ <= 56 && next_ < bytes_.size(); count_ += 8)
            bits_ |= static_cast<std::uint64_t>(bytes_[next_++]) << count_;
    }
    std::uint64_t Bits() const { return bits_; }
    void Drop(unsigned count)
    {
        if (count > count_)
            RefuseStream();
        bits_ >>= count;
        count_ -= count;
    }
    unsigned Take(unsigned count)
    {
        Refill();
        const auto value = static_cast<unsigned>(bits_ & ((std::uint64_t(1) << count) - 1));
        Drop(count);
        return value;
    }
    std::uint64_t Position() const { return std::uint64_t(next_) * 8 - count_; }
    void SkipBytes(std::size_t count)
    {
        next_ -= count_ / 8;
        bits_ = 0;
        count_ = 0;
        if (count > bytes_.size() - next_)
            RefuseStream();
        next_ += count;
    }

private:
    std::span<const std::byte> bytes_;
    std::size_t next_ = 0;
    std::uint64_t bits_ = 0;
    unsigned count_ = 0;
};

/// The codes of one alphabet, the shortest first, as the format numbers them.
class Codes {
public:
    struct Entry {
        std::uint16_t symbol = 0;
        std::uint8_t length = 0; // 0 where the code is longer than the fast bits
        std::uint8_t bits = 0;   // of the code and what follows it as its own
    };

    template <class ExtraBits>
    void Build(std::span<const std::uint8_t> lengths, ExtraBits extraBits)
    {
        counts_ = {};
        for (const std::uint8_t length : lengths)
            ++counts_[length];
        counts_[0] = 0;
        std::array<std::uint16_t, kMaxCodeLength + 2> place{};
        for (unsigned length = 1; length <= kMaxCodeLength; ++length)
            place[length + 1] = static_cast<std::uint16_t>(place[length] + counts_[length]);
        for (std::size_t symbol = 0; symbol < lengths.size(); ++symbol) {
            const std::uint8_t length = lengths[symbol];
            if (length > 0)
                sorted_[place[length]++] = {static_cast<std::uint16_t>(symbol), length,
                                            static_cast<std::uint8_t>(length + extraBits(symbol))};
        }
        FillFastTable();
    }

    Entry Next(std::uint64_t bits) const
    {
        const Entry entry = fast_[bits & ((1U << kFastBits) - 1)];
        return entry.length > 0 ? entry : LongCode(bits);
    }

private:
    void FillFastTable()
    {
        fast_.fill({});
        unsigned code = 0;
        std::size_t place = 0;
        for (unsigned length = 1; length <= kFastBits; ++length, code <<= 1U)
            for (unsigned i = 0; i < counts_[length]; ++i, ++code, ++place)
                for (unsigned at = Reversed(code, length); at < fast_.size(); at += 1U << length)
                    fast_[at] = sorted_[place];
    }
    static unsigned Reversed(unsigned code, unsigned length)
    {
        unsigned reversed = 0;
        for (; length > 0; --length, code >>= 1U)
            reversed = (reversed << 1U) | (code & 1U);
        return reversed;
    }
    Entry LongCode(std::uint64_t bits) const
    {
        unsigned code = 0;
        unsigned first = 0;
        std::size_t place = 0;
        for (unsigned length = 1; length <= kMaxCodeLength; ++length, bits >>= 1U) {
            code = (code << 1U) | static_cast<unsigned>(bits & 1U);
            first <<= 1U;
            if (code < first + counts_[length])
                return sorted_[place + code - first];
            first += counts_[length];
            place += counts_[length];
        }
        RefuseStream();
    }

    std::array<std::uint16_t, kMaxCodeLength + 1> counts_{};
    std::array<Entry, kMaxLengthCodes> sorted_{};
    std::array<Entry, 1U << kFastBits> fast_{};
};

// Bits after the code of a match's length and distance.
unsigned LengthExtraBits(std::size_t symbol)
{
    const bool hasNone = symbol < 265 || symbol >= 285;
    return hasNone ? 0 : static_cast<unsigned>((symbol - 261) / 4);
}

unsigned DistanceExtraBits(std::size_t symbol)
{
    return symbol < 4 ? 0 : static_cast<unsigned>(symbol / 2 - 1);
}

class Walker {
public:
    explicit Walker(std::span<const std::byte> stream) : reader_(stream) {}

    StreamEnd Walk()
    {
        StreamEnd end;
        bool isLast = false;
        while (!isLast) {
            end.lastBlockBit = reader_.Position();
            isLast = reader_.Take(1) != 0;
            WalkBlock(reader_.Take(2));
        }
        end.endBit = reader_.Position();
        return end;
    }

private:
    void WalkBlock(unsigned type)
    {
        switch (type) {
        case 0:
            reader_.Drop(static_cast<unsigned>((8 - reader_.Position() % 8) % 8));
            {
                const unsigned length = reader_.Take(16);
                reader_.Take(16); // the length's complement
                reader_.SkipBytes(length);
            }
            return;
        case 1:
            ReadFixedCodes();
            break;
        case 2:
            ReadCodes();
            break;
        default:
            RefuseStream();
        }
        WalkSymbols();
    }

    void ReadFixedCodes()
    {
        std::array<std::uint8_t, kMaxLengthCodes> lengths{};
        std::fill(lengths.begin(), lengths.begin() + 144, std::uint8_t(8));
        std::fill(lengths.begin() + 144, lengths.begin() + 256, std::uint8_t(9));
        std::fill(lengths.begin() + 256, lengths.begin() + 280, std::uint8_t(7));
        std::fill(lengths.begin() + 280, lengths.end(), std::uint8_t(8));
        lengths_.Build(lengths, LengthExtraBits);
        std::array<std::uint8_t, kMaxDistanceCodes> distances{};
        distances.fill(5);
        distances_.Build(distances, DistanceExtraBits);
    }

    void ReadCodes()
    {
        constexpr std::array<std::uint8_t, kCodeLengthCodes> kOrder = {
            16, 17, 18, 0, 8, 7, 9, 6, 10, 5, 11, 4, 12, 3, 13, 2, 14, 1, 15};
        const std::size_t lengthCodes = reader_.Take(5) + 257;
        const std::size_t distanceCodes = reader_.Take(5) + 1;
        const std::size_t codeLengthCodes = reader_.Take(4) + 4;
        if (lengthCodes > kMaxLengthCodes)
            RefuseStream();
        std::array<std::uint8_t, kCodeLengthCodes> codeLengths{};
        for (std::size_t i = 0; i < codeLengthCodes; ++i)
            codeLengths[kOrder[i]] = static_cast<std::uint8_t>(reader_.Take(3));
        lengths_.Build(codeLengths, [](std::size_t) { return 0U; });

        std::array<std::uint8_t, kMaxLengthCodes + kMaxDistanceCodes> all{};
        ReadCodeLengths(std::span(all).first(lengthCodes + distanceCodes));
        lengths_.Build(std::span(all).first(lengthCodes), LengthExtraBits);
        distances_.Build(std::span(all).subspan(lengthCodes, distanceCodes), DistanceExtraBits);
    }

    // The lengths of all codes, runs of equal ones in short.
    void ReadCodeLengths(std::span<std::uint8_t> all)
    {
        std::size_t filled = 0;
        while (filled < all.size()) {
            reader_.Refill();
            const Codes::Entry entry = lengths_.Next(reader_.Bits());
            reader_.Drop(entry.length);
            std::size_t repeats = 1;
            std::uint8_t length = 0;
            if (entry.symbol < 16) {
                length = static_cast<std::uint8_t>(entry.symbol);
            } else if (entry.symbol == 16) {
                repeats = 3 + reader_.Take(2);
                if (filled == 0)
                    RefuseStream();
                length = all[filled - 1];
            } else {
                repeats = entry.symbol == 17 ? 3 + reader_.Take(3) : 11 + reader_.Take(7);
            }
            if (repeats > all.size() - filled)
                RefuseStream();
            std::fill_n(all.begin() + static_cast<std::ptrdiff_t>(filled), repeats, length);
            filled += repeats;
        }
    }

    void WalkSymbols()
    {
        for (;;) {
            reader_.Refill(); // enough bits for a match with its distance: 48
            Codes::Entry entry = lengths_.Next(reader_.Bits());
            reader_.Drop(entry.bits);
            if (entry.symbol < kEndOfBlock) { // most often another literal follows
                entry = lengths_.Next(reader_.Bits());
                reader_.Drop(entry.bits);
            }
            if (entry.symbol == kEndOfBlock)
                return;
            if (entry.symbol > kEndOfBlock) {
                reader_.Refill();
                reader_.Drop(distances_.Next(reader_.Bits()).bits);
            }
        }
    }

    BitReader reader_;
    Codes lengths_;
    Codes distances_;
};

} // namespace

StreamEnd FindStreamEnd(std::span<const std::byte> stream)
{
    return Walker(stream).Walk();
}

} // namespace quillon
