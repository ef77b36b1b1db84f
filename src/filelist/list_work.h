// What the commands of the file list work on.
#pragma once

#include "platform/ask.h"
#include "platform/host.h"
#include "project/records.h"

namespace quillon {

struct ListWork {
    Project& project;
    OpenProjectState& state;
    Host host;
    Ask& ask;
};

} // namespace quillon
