#include "support/golden.h"

#include <algorithm>
#include <fstream>
#include <iterator>

namespace quillon::test {

std::string GoldenFile(const std::string& name)
{
    std::ifstream file(std::string(QUILLON_TEST_DATA) + "/golden/" + name, std::ios::binary);
    if (!file)
        ADD_FAILURE() << "no golden file " << name;
    return {std::istreambuf_iterator<char>(file), {}};
}

testing::AssertionResult SameBytes(const std::string& actual, const std::string& expected)
{
    if (actual == expected)
        return testing::AssertionSuccess();
    const auto places =
        std::mismatch(actual.begin(), actual.end(), expected.begin(), expected.end());
    const auto line = 1 + std::count(actual.begin(), places.first, '\n');
    const auto offset = std::size_t(places.first - actual.begin());
    return testing::AssertionFailure()
           << "line " << line << ", byte " << offset << ": is "
           << testing::PrintToString(actual.substr(offset, 40)) << ", should be "
           << testing::PrintToString(expected.substr(offset, 40));
}

} // namespace quillon::test
