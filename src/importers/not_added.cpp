// The report of files that an import found and did not add.
#include "importers/import_work.h"

namespace quillon {

namespace {

struct NotAddedRow {
    NotAdded why;
    const char* kind;
    const char* reason;
    bool isNeverNeeded = false;
};

// clang-format off
constexpr NotAddedRow kNotAdded[] = {
    {NotAdded::NotInSystemFolder,   "missing",      "finns inte i systemkatalogen"},
    {NotAdded::NotAtSource,         "missing",      "finns inte vid källsökvägen"},
    {NotAdded::NotRegistered,       "unregistered", "saknas i registry"},
    {NotAdded::OutsideSystemFolder, "outside",      "ligger utanför systemkatalogen"},
    {NotAdded::LeftOut,             "refused",      "är dold eller skyddad av Windows, kan ej läsas eller har ett otillåtet namn"},
    {NotAdded::RestOfDepFile,       "cut",          "är ej läst till slutet, eftersom en fil i den inte kunde adderas"},
    {NotAdded::AlreadyListed,       "listed",       "finns redan i fillistan"},
    {NotAdded::PartOfWindows,       "windows",      "hör till Windows och läggs aldrig in", true},
    {NotAdded::OfTheBuild,          "build",        "hör till bygget", true},
};
// clang-format on

const NotAddedRow& RowOf(NotAdded why)
{
    const NotAddedRow* row = kNotAdded;
    while (row->why != why)
        ++row;
    return *row;
}

} // namespace

bool IsNeverNeeded(NotAdded why)
{
    return RowOf(why).isNeverNeeded;
}

Text NotAddedFile::Reason() const
{
    return RowOf(why).reason;
}

Text NotAddedFile::Kind() const
{
    return RowOf(why).kind;
}

} // namespace quillon
