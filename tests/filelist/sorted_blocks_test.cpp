#include "filelist/sorted_blocks.h"

#include <gtest/gtest.h>

#include <random>
#include <utility>

namespace quillon::test {

namespace {

using Item = std::pair<unsigned, int>; // sorted by the first alone

struct ByFirst {
    bool operator()(const Item& left, const Item& right) const { return left.first < right.first; }
};

} // namespace

TEST(SortedBlocks, KeepItemsInTheOrderOfAStableSort)
{
    for (const unsigned kinds : {1U, 20U, 100000U}) {
        std::mt19937 random(kinds);
        SortedBlocks<Item, ByFirst> blocks{ByFirst()};
        std::vector<Item> sorted;
        for (int i = 0; i < 3000; ++i) {
            sorted.emplace_back(random() % kinds, i);
            blocks.Insert(sorted.back());
        }
        std::stable_sort(sorted.begin(), sorted.end(), ByFirst());
        for (std::size_t i = 0; i < sorted.size(); ++i)
            ASSERT_EQ(blocks.At(i), sorted[i]) << kinds << " kinds, item " << i;
    }
}

} // namespace quillon::test
