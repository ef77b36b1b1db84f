#include "filelist/view/sort.h"

#include "filelist/view/columns.h"
#include "helpers/swedish_order.h"

#include <algorithm>
#include <iterator>
#include <numeric>

namespace quillon {

namespace {

constexpr Column kSortedByClick[] = {Filename,    Destination,     Date,  Time, IconMarker,
                                     CopyOptions, ComponentNumber, Source};

using RowNumbers = std::vector<std::size_t>;

RowNumbers RowNumbersInOrder(const FileList& list)
{
    std::vector<Text> texts;
    texts.reserve(list.rows.size());
    for (const FileListRow& row : list.rows)
        texts.push_back(SortText(row, list.sortKey));

    RowNumbers order(list.rows.size());
    std::iota(order.begin(), order.end(), std::size_t(0));
    const auto standsBefore = [&](std::size_t left, std::size_t right) {
        return list.sortDescending ? texts[right] < texts[left] : texts[left] < texts[right];
    };
    std::stable_sort(order.begin(), order.end(), standsBefore);
    return order;
}

NewPlaces MoveRows(FileList& list, const RowNumbers& order)
{
    NewPlaces places(order.size());
    for (std::size_t place = 0; place < order.size(); ++place)
        places[order[place]] = place;
    if (std::is_sorted(order.begin(), order.end()))
        return places;

    std::vector<FileListRow> rows;
    rows.reserve(order.size());
    for (const std::size_t number : order)
        rows.push_back(std::move(list.rows[number]));
    list.rows = std::move(rows);
    return places;
}

} // namespace

Text SortText(const FileListRow& row, Column key)
{
    // Names go by their capitals, so '_' comes after the letters and not before them.
    return SwedishOrderKey(key == Filename ? UpperCase(row[key]) : LowerCase(row[key]));
}

NewPlaces SortRows(FileList& list)
{
    RowNumbers order(list.rows.size());
    std::iota(order.begin(), order.end(), std::size_t(0));
    return MoveRows(list, list.sorted ? RowNumbersInOrder(list) : order);
}

NewPlaces SortRowsBy(FileList& list, Column key, bool descending)
{
    list.sortKey = key;
    list.sortDescending = descending;
    list.sorted = true;
    return SortRows(list);
}

void KeepStoredOrder(FileList& list)
{
    list.sortKey = Filename;
    list.sortDescending = false;
    const auto name = [](const FileListRow& row) { return SortText(row, Filename); };
    list.sorted = std::ranges::is_sorted(list.rows, {}, name);
    if (!list.sorted)
        list.sortKey = Destination;
}

NewPlaces HandleColumnClick(FileList& list, std::string_view header)
{
    Column key = list.sortKey;
    for (const ListColumn& shown : kListColumns) {
        const bool sorts =
            std::ranges::find(kSortedByClick, shown.column) != std::end(kSortedByClick);
        if (sorts && shown.header == header)
            key = shown.column;
    }
    // Rows with an icon are what a click on that column looks for, so they come first.
    const bool descending = header == kListColumns[IconMarker].header;
    return SortRowsBy(list, key, descending);
}

} // namespace quillon
