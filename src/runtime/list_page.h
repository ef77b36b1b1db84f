// A list that the user reads before or after something happens: a line above it, its lines, and one
// button or two.
#pragma once

#include "helpers/text.h"

#include <vector>

namespace quillon {

struct ListPage {
    Text title;
    Text text;
    std::vector<Text> lines;
    Text okCaption;
    Text cancelCaption; // empty: there is nothing to cancel
};

} // namespace quillon
