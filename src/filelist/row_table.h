// A hash table of rows that is one array: with thousands of rows, what a look-up costs is mostly
// the memory that it touches.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

namespace quillon {

using RowNumber = std::uint32_t;

class RowTable {
public:
    /// `isAlike` decides whether a row is what is looked for.
    template <class IsAlike>
    bool Holds(std::size_t hash, IsAlike isAlike) const
    {
        return !slots_[SlotOf(hash, isAlike)].isFree;
    }

    /// The row that was added; nothing where there is none.
    template <class IsAlike>
    std::optional<RowNumber> Find(std::size_t hash, IsAlike isAlike) const
    {
        const Slot& slot = slots_[SlotOf(hash, isAlike)];
        return slot.isFree ? std::nullopt : std::optional(slot.number);
    }

    /// Of rows that are alike the first one stays.
    template <class IsAlike>
    void Add(RowNumber number, std::size_t hash, IsAlike isAlike)
    {
        Slot& slot = slots_[SlotOf(hash, isAlike)];
        if (!slot.isFree)
            return;
        slot = {static_cast<Hash>(hash), number, false};
        if (++used_ * 2 > slots_.size())
            Grow();
    }

private:
    using Hash = std::uint32_t;
    struct Slot {
        Hash hash = 0;
        RowNumber number = 0;
        bool isFree = true;
    };

    // The slot of such rows, or the free one where they would go.
    template <class IsAlike>
    std::size_t SlotOf(std::size_t hash, IsAlike isAlike) const
    {
        std::size_t place = static_cast<Hash>(hash) % slots_.size();
        while (!slots_[place].isFree &&
               (slots_[place].hash != static_cast<Hash>(hash) || !isAlike(slots_[place].number)))
            place = (place + 1) % slots_.size();
        return place;
    }

    void Grow()
    {
        std::vector<Slot> old(slots_.size() * 2);
        old.swap(slots_);
        const auto nothingIsAlike = [](RowNumber) { return false; };
        for (const Slot& slot : old)
            if (!slot.isFree)
                slots_[SlotOf(slot.hash, nothingIsAlike)] = slot;
    }

    std::vector<Slot> slots_ = std::vector<Slot>(256); // always a power of two, at most half full
    std::size_t used_ = 0;
};

} // namespace quillon
