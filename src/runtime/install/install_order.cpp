#include "runtime/install/install_order.h"

#include <algorithm>
#include <map>

namespace quillon {

std::vector<std::size_t> InstallOrder(const std::vector<PlannedFile>& files,
                                      const PackageReader& package)
{
    std::vector<std::pair<std::uint64_t, std::size_t>> places;
    std::map<Text, std::uint64_t> earlier; // by path in lower case
    for (const PlannedFile& file : files) {
        std::uint64_t& position = earlier[LowerCase(file.path)];
        position = std::max(position, package.Position(*file.row));
        places.emplace_back(position, places.size());
    }
    std::sort(places.begin(), places.end());
    std::vector<std::size_t> order;
    for (const auto& place : places)
        order.push_back(place.second);
    return order;
}

} // namespace quillon
