// How a setting that is on or off is written in the files of a package and of a project.
#pragma once

#include "helpers/text.h"

namespace quillon {

inline Text FlagText(bool on)
{
    return on ? "1" : "0";
}

} // namespace quillon
