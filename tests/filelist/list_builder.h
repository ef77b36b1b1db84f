// Helpers that make a file list for a test.
#pragma once

#include "project/file_list.h"

#include <cstddef>
#include <initializer_list>

namespace quillon::test {

inline FileListRow MakeRow(const Text& name, const Text& destination = "%DESTDIR",
                           const Text& source = {})
{
    FileListRow row;
    row[Filename] = name;
    row[Destination] = destination;
    row[Source] = source;
    return row;
}

/// A list in the order of its names, as a new project keeps it.
inline FileList MakeList(std::initializer_list<FileListRow> rows)
{
    FileList list;
    list.rows = rows;
    return list;
}

inline std::vector<Text> NamesOf(const FileList& list)
{
    std::vector<Text> names;
    for (const FileListRow& row : list.rows)
        names.push_back(row[Filename]);
    return names;
}

} // namespace quillon::test
