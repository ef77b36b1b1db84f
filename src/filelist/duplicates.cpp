#include "filelist/duplicates.h"

#include "helpers/number_text.h"

#include <algorithm>

namespace quillon {

namespace {

// Shorter lists are searched from end to end.
constexpr std::size_t kHalvedFrom = 100;

// The name stands first, so that rows of one key have one name.
Text KeyOf(const Text& upperName, std::string_view place)
{
    return upperName + '\0' + UpperCase(place);
}

} // namespace

bool IsFilenameInFileList(const FileList& list, std::string_view fileName)
{
    return std::ranges::any_of(list.rows, [&](const FileListRow& row) {
        return EqualIgnoreCase(row[Filename], fileName);
    });
}

DuplicateIndex::DuplicateIndex(const FileList& list)
    : list_(list), ordersByName_(list.sorted && list.sortKey == Filename),
      firstHalf_([this](RowNumber left, RowNumber right) { return StandsBefore(left, right); }),
      secondHalf_(firstHalf_.key_comp())
{
    upperNames_.reserve(list.rows.size());
    while (upperNames_.size() < list.rows.size())
        NoteNewRow();
}

void DuplicateIndex::NoteNewRow()
{
    const auto number = static_cast<RowNumber>(upperNames_.size());
    const FileListRow& row = list_.rows[number];
    const Text& upperName = upperNames_.emplace_back(UpperCase(row[Filename]));
    const auto note = [number](OccurrencesByText& all, const Text& key) {
        all.try_emplace(key, Occurrences{number, number}).first->second.last = number;
    };
    note(bySource_, KeyOf(upperName, row[Source]));
    note(byDestination_, KeyOf(upperName, row[Destination]));
    if (ordersByName_)
        PlaceInHalf(number);
}

void DuplicateIndex::PlaceInHalf(RowNumber row)
{
    const bool comesFirst = !firstHalf_.empty() && StandsBefore(row, *firstHalf_.rbegin());
    (comesFirst ? firstHalf_ : secondHalf_).insert(row);
    while (firstHalf_.size() > MiddleCount())
        secondHalf_.insert(firstHalf_.extract(std::prev(firstHalf_.end())));
    while (firstHalf_.size() < MiddleCount())
        firstHalf_.insert(secondHalf_.extract(secondHalf_.begin()));
}

bool DuplicateIndex::StandsBefore(RowNumber left, RowNumber right) const
{
    if (ordersByName_) {
        const int order = upperNames_[left].compare(upperNames_[right]);
        if (order != 0)
            return (order < 0) != list_.sortDescending;
    }
    return left < right;
}

bool DuplicateIndex::HalvesTheList() const
{
    return upperNames_.size() >= kHalvedFrom && list_.sortKey == Filename;
}

std::size_t DuplicateIndex::MiddleCount() const
{
    return static_cast<std::size_t>(RoundToEven(static_cast<double>(upperNames_.size()) / 2));
}

DuplicateIndex::RowNumber DuplicateIndex::MiddleRow() const
{
    return ordersByName_ ? *firstHalf_.rbegin() : static_cast<RowNumber>(MiddleCount() - 1);
}

bool DuplicateIndex::LiesInSpan(const OccurrencesByText& all, const Text& key,
                                const Text& upperName) const
{
    const auto found = all.find(key);
    if (found == all.end())
        return false;
    if (!HalvesTheList())
        return true;
    const RowNumber middle = MiddleRow();
    // Kept: one step of halving, and as if the list stood in ascending order, whether it does or
    // not. Both halves hold the middle row.
    if (upperName > upperNames_[middle])
        return !StandsBefore(found->second.last, middle);
    return !StandsBefore(middle, found->second.first);
}

bool DuplicateIndex::IsFileAlreadyInList(std::string_view fileName, std::string_view sourcePath,
                                         std::string_view destination) const
{
    const Text upperName = UpperCase(fileName);
    return LiesInSpan(bySource_, KeyOf(upperName, sourcePath), upperName) ||
           LiesInSpan(byDestination_, KeyOf(upperName, destination), upperName);
}

} // namespace quillon
