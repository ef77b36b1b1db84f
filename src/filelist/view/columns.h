// The columns of the file list as the user sees them. A header is also what a click on a column
// tells, so its text chooses the sort.
#pragma once

#include "project/file_list.h"

#include <array>
#include <string_view>

namespace quillon {

struct ListColumn {
    Column column;
    std::string_view header;
    int width; // twips; 0 hides the column, which is then there to carry data only
};

// clang-format off
inline constexpr std::array<ListColumn, kColumnCount> kListColumns{{
    {Filename,        "Filnamn",       1440},
    {Destination,     "Destination",   2800},
    {Size,            "Storlek (kb)",  1100},
    {Date,            "Datum",         1050},
    {Time,            "Tid",            650},
    {IconMarker,      "Ikon",           550},
    {CopyOptions,     "Inst",          1000},
    {ComponentNumber, "K",               40},
    {Extension,       "Ext",              0},
    {Source,          "Källa",            0},
    {IconDesc,        "IconDesc",         0},
    {IconPar,         "IconPar",          0},
    {IconWorkDir,     "IconWorkDir",      0},
    {IconFile,        "IconFile",         0},
    {IconDocReader,   "IconDocReader",    0},
}};
// clang-format on

} // namespace quillon
