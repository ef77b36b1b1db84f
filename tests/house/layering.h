// The order of the folders below src/, as rules on includes.
#pragma once

#include <string>
#include <vector>

namespace quillon::test {

struct Include {
    std::string file; // below src/
    std::string target;
    bool isSystem = false; // in angle brackets
};

/// What is wrong with an include, a line each.
std::vector<std::string> Violations(const Include& include);

/// Whether a file is in a folder that the order knows.
bool HasLayer(const std::string& file);

/// The folders of the order, from the lowest height on; those of one height together.
std::vector<std::vector<std::string>> Layers();

} // namespace quillon::test
