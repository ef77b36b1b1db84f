// A sequence that stays sorted while it grows, in blocks that fit the processor's caches: with
// thousands of items, putting one in costs far less than in one long array or in a tree.
#pragma once

#include <algorithm>
#include <cstddef>
#include <vector>

namespace quillon {

template <class Item, class Before>
class SortedBlocks {
public:
    explicit SortedBlocks(Before before) : before_(before) {}

    /// Behind its equals.
    void Insert(const Item& item)
    {
        if (blocks_.empty()) {
            blocks_.push_back({item});
            return;
        }
        const auto behind = std::upper_bound(
            blocks_.begin(), blocks_.end(), item,
            [this](const Item& left, const Block& right) { return before_(left, right.front()); });
        const auto block = behind == blocks_.begin() ? behind : behind - 1;
        block->insert(std::upper_bound(block->begin(), block->end(), item, before_), item);
        if (block->size() == kMostInBlock)
            Split(static_cast<std::size_t>(block - blocks_.begin()));
    }

    const Item& At(std::size_t position) const
    {
        auto block = blocks_.begin();
        for (; position >= block->size(); ++block)
            position -= block->size();
        return (*block)[position];
    }

private:
    using Block = std::vector<Item>;
    static constexpr std::size_t kMostInBlock = 256;

    void Split(std::size_t number)
    {
        Block& block = blocks_[number];
        const auto half = block.begin() + kMostInBlock / 2;
        Block rest(half, block.end());
        block.erase(half, block.end());
        blocks_.insert(blocks_.begin() + static_cast<std::ptrdiff_t>(number) + 1, std::move(rest));
    }

    Before before_;
    std::vector<Block> blocks_;
};

} // namespace quillon
