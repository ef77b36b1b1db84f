#include "shell/row_pool.h"

#include <functional>

namespace quillon {

namespace {

// A length is seven bits a byte, the last one without the highest bit: nearly always one byte.
void AppendLength(std::size_t length, Text& packed)
{
    for (; length >= 0x80; length >>= 7)
        packed += static_cast<char>(length | 0x80);
    packed += static_cast<char>(length);
}

std::size_t TakeLength(std::string_view& rest)
{
    std::size_t length = 0;
    for (unsigned shift = 0;; shift += 7) {
        const auto byte = static_cast<unsigned char>(rest.front());
        rest.remove_prefix(1);
        length |= std::size_t{byte & 0x7FU} << shift;
        if (byte < 0x80)
            return length;
    }
}

// What a row costs beside its text: the table's slots, which are at most half full, and the heap.
constexpr std::size_t kBytesBeside = 64;

} // namespace

void PackRow(const FileListRow& row, Text& packed)
{
    packed.clear();
    for (const Text& field : row.columns) {
        AppendLength(field.size(), packed);
        packed += field;
    }
}

FileListRow UnpackRow(std::string_view packed)
{
    FileListRow row;
    for (Text& field : row.columns) {
        const std::size_t length = TakeLength(packed);
        field = packed.substr(0, length);
        packed.remove_prefix(length);
    }
    return row;
}

std::size_t RowPool::BytesOf(const Text& packed)
{
    return packed.capacity() + sizeof packed + kBytesBeside;
}

RowNumber RowPool::NumberOf(const Text& packed)
{
    const auto isAlike = [&](RowNumber number) { return rows_[number] == packed; };
    if (const auto found = table_.Find(std::hash<Text>()(packed), isAlike))
        return *found;
    auto number = static_cast<RowNumber>(rows_.size());
    if (free_.empty()) {
        rows_.push_back(packed);
    } else {
        number = free_.back();
        free_.pop_back();
        rows_[number] = packed;
    }
    bytes_ += BytesOf(rows_[number]);
    Index(number);
    return number;
}

void RowPool::Index(RowNumber number)
{
    table_.Add(number, std::hash<Text>()(rows_[number]),
               [&](RowNumber other) { return rows_[other] == rows_[number]; });
}

void RowPool::KeepOnly(const std::vector<bool>& used)
{
    table_ = {};
    free_.clear();
    bytes_ = 0;
    for (RowNumber number = 0; number < rows_.size(); ++number) {
        if (!used[number]) {
            rows_[number] = {};
            free_.push_back(number);
            continue;
        }
        bytes_ += BytesOf(rows_[number]);
        Index(number);
    }
}

} // namespace quillon
