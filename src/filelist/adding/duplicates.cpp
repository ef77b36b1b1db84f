#include "filelist/adding/duplicates.h"

#include <algorithm>
#include <functional>

namespace quillon {

namespace {

std::size_t HashOf(std::string_view upperName, std::string_view upperText)
{
    const std::hash<std::string_view> hash;
    return hash(upperName) * 31 + hash(upperText);
}

} // namespace

bool IsFilenameInFileList(const FileList& list, std::string_view fileName)
{
    return std::ranges::any_of(list.rows, [&](const FileListRow& row) {
        return EqualIgnoreCase(row[Filename], fileName);
    });
}

DuplicateIndex::DuplicateIndex(const FileList& list) : list_(list)
{
    while (upperNames_.size() < list.rows.size())
        NoteNewRow();
}

void DuplicateIndex::NoteNewRow()
{
    const auto number = static_cast<RowNumber>(upperNames_.size());
    upperNames_.push_back(UpperCase(list_.rows[number][Filename]));
    Note(source_, number);
    Note(destination_, number);
}

auto DuplicateIndex::HasNameAndText(const Place& place, const Text& upperName,
                                    std::string_view text) const
{
    return [this, column = place.column, &upperName, text](RowNumber number) {
        return upperNames_[number] == upperName &&
               EqualIgnoreCase(list_.rows[number][column], text);
    };
}

void DuplicateIndex::Note(Place& place, RowNumber number)
{
    const Text& upperName = upperNames_[number];
    const Text& text = list_.rows[number][place.column];
    place.rows.Add(number, HashOf(upperName, UpperCase(text)),
                   HasNameAndText(place, upperName, text));
}

bool DuplicateIndex::Holds(const Place& place, const Text& upperName, std::string_view text) const
{
    return place.rows.Holds(HashOf(upperName, UpperCase(text)),
                            HasNameAndText(place, upperName, text));
}

bool DuplicateIndex::IsFileAlreadyInList(std::string_view fileName, std::string_view sourcePath,
                                         std::string_view destination) const
{
    const Text upperName = UpperCase(fileName);
    return Holds(source_, upperName, sourcePath) || Holds(destination_, upperName, destination);
}

} // namespace quillon
