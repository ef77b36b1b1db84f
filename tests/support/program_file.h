// Builds small Windows programs that are nothing but headers and a version resource.
#pragma once

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace quillon::test {

struct ProgramFileParts {
    bool is64Bit = false;
    // A table of texts for each language: name and value, in UTF-8 of ASCII and Latin-1.
    std::vector<std::vector<std::pair<std::string, std::string>>> languages;
    // The four numbers of file and product in the fixed part; none where all are 0.
    std::vector<std::uint16_t> fileNumbers = {0, 0, 0, 0};
    std::vector<std::uint16_t> productNumbers = {0, 0, 0, 0};
    // A resource entry for each language instead of one with all tables in it.
    bool isEntryPerLanguage = false;
    // Some compilers count the length of a text in bytes.
    bool countsBytes = false;
    std::size_t bytesBehind = 0;
};

std::string MakeProgramFile(const ProgramFileParts& parts);

} // namespace quillon::test
