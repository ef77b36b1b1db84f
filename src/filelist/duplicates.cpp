#include "filelist/duplicates.h"

#include "helpers/number_text.h"

#include <algorithm>
#include <functional>

namespace quillon {

namespace {

// Shorter lists are searched from end to end.
constexpr std::size_t kHalvedFrom = 100;

std::size_t HashOf(std::string_view upperName, std::string_view upperText)
{
    const std::hash<std::string_view> hash;
    return hash(upperName) * 31 + hash(upperText);
}

// Compares as the texts do, up to where the number ends.
std::uint64_t FirstBytes(std::string_view text)
{
    std::uint64_t bytes = 0;
    for (std::size_t i = 0; i < sizeof bytes; ++i)
        bytes = (bytes << 8U) | (i < text.size() ? static_cast<unsigned char>(text[i]) : 0U);
    return bytes;
}

} // namespace

bool IsFilenameInFileList(const FileList& list, std::string_view fileName)
{
    return std::ranges::any_of(list.rows, [&](const FileListRow& row) {
        return EqualIgnoreCase(row[Filename], fileName);
    });
}

DuplicateIndex::DuplicateIndex(const FileList& list)
    : list_(list), ordersByName_(list.sorted && list.sortKey == Filename)
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
    if (ordersByName_)
        rowsByName_.Insert(Ordered(number));
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

DuplicateIndex::OrderedRow DuplicateIndex::Ordered(RowNumber number) const
{
    return {FirstBytes(upperNames_[number]), number};
}

bool DuplicateIndex::StandsBefore(const OrderedRow& left, const OrderedRow& right) const
{
    if (ordersByName_) {
        if (left.nameStart != right.nameStart)
            return (left.nameStart < right.nameStart) != list_.sortDescending;
        const int order = upperNames_[left.number].compare(upperNames_[right.number]);
        if (order != 0)
            return (order < 0) != list_.sortDescending;
    }
    return left.number < right.number;
}

bool DuplicateIndex::HalvesTheList() const
{
    return upperNames_.size() >= kHalvedFrom && list_.sortKey == Filename;
}

std::size_t DuplicateIndex::MiddleCount() const
{
    return static_cast<std::size_t>(RoundToEven(static_cast<double>(upperNames_.size()) / 2));
}

DuplicateIndex::OrderedRow DuplicateIndex::MiddleRow() const
{
    const std::size_t place = MiddleCount() - 1;
    return ordersByName_ ? rowsByName_.At(place) : Ordered(static_cast<RowNumber>(place));
}

bool DuplicateIndex::LiesInSpan(const Place& place, const Text& upperName,
                                std::string_view text) const
{
    const AlikeRows* const found =
        place.rows.Find(HashOf(upperName, UpperCase(text)), HasNameAndText(place, upperName, text));
    if (!found || !HalvesTheList())
        return found != nullptr;
    const OrderedRow middle = MiddleRow();
    // Kept: one step of halving, and as if the list stood in ascending order, whether it does or
    // not. Both halves hold the middle row.
    if (upperName > upperNames_[middle.number])
        return !StandsBefore(Ordered(found->last), middle);
    return !StandsBefore(middle, Ordered(found->first));
}

bool DuplicateIndex::IsFileAlreadyInList(std::string_view fileName, std::string_view sourcePath,
                                         std::string_view destination) const
{
    const Text upperName = UpperCase(fileName);
    return LiesInSpan(source_, upperName, sourcePath) ||
           LiesInSpan(destination_, upperName, destination);
}

} // namespace quillon
