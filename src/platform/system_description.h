// The machine in words, for the support.
#pragma once

#include "helpers/text.h"

#include <cstdint>
#include <vector>

namespace quillon {

struct SystemDescription {
    Text system;    // name and version, as the system calls itself
    Text processor; // its architecture
    int processorCount = 0;
    std::uint64_t memory = 0;     // bytes
    std::uint64_t freeMemory = 0; // bytes
    Text language;                // "sv_SE.UTF-8"
    Text codePage;                // the characters of texts outside this product
    Text desktop;                 // the kind of session; empty where there is none
};

SystemDescription DescribeSystem();

} // namespace quillon
