// What the list can be sorted by in the sort dialog.
#pragma once

#include "project/file_list.h"

#include <array>

namespace quillon {

struct SortChoice {
    const char* control; // of DlgSortList
    const char* caption;
    Column key;
};

// clang-format off
inline constexpr std::array<SortChoice, 6> kSortChoices{{
    {"oFilename",   "&Filnamn",             Filename},
    {"oDirectory",  "Des&tinationskatalog", Destination},
    {"oDate",       "&Datum",               Date},
    {"oTime",       "Kl&ockslag",           Time},
    {"oComponents", "&Komponentnummer",     ComponentNumber},
    {"oExtension",  "Filnamnsti&llägg",     Extension},
}};
// clang-format on

} // namespace quillon
