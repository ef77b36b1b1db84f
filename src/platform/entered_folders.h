// The folders that a walk through a tree is in, so that a link to a folder above does not make it
// endless.
#pragma once

#include <algorithm>
#include <cstdint>
#include <vector>

namespace quillon {

class EnteredFolders {
public:
    /// Whether the walk is in this folder already. False for a folder without an identity, which is
    /// 0.
    bool Has(std::uint64_t identity) const
    {
        return identity != 0 && std::ranges::find(entered_, identity) != entered_.end();
    }
    std::size_t Depth() const { return entered_.size(); }

    void Enter(std::uint64_t identity) { entered_.push_back(identity); }
    void Leave() { entered_.pop_back(); }

private:
    std::vector<std::uint64_t> entered_;
};

} // namespace quillon
