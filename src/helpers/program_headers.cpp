#include "helpers/program_headers.h"

#include <algorithm>

namespace quillon {

namespace {

using namespace program_format;

// More than any program has; a damaged count ends here.
constexpr std::size_t kMaxSections = 96;
constexpr std::size_t kMaxTables = 16;

} // namespace

std::optional<std::string> ProgramHeaders::Bytes(std::uint64_t position, std::size_t count) const
{
    std::string bytes = BytesUpTo(position, count);
    if (bytes.size() != count)
        return std::nullopt;
    return bytes;
}

std::string ProgramHeaders::BytesUpTo(std::uint64_t position, std::size_t count) const
{
    std::string bytes(count, '\0');
    bytes.resize(read_(position, std::as_writable_bytes(std::span(bytes))));
    return bytes;
}

bool ProgramHeaders::Read()
{
    const auto dosHeader = Bytes(0, kDosHeaderSize);
    if (!dosHeader || ShortAt(*dosHeader, 0) != kDosMark)
        return false;
    const std::uint64_t start = LongAt(*dosHeader, kHeaderPosition);
    const auto fileHeader = Bytes(start, kFileHeaderSize);
    if (!fileHeader || LongAt(*fileHeader, 0) != kFileMark)
        return false;

    machine_ = ShortAt(*fileHeader, kMachine);
    characteristics_ = ShortAt(*fileHeader, kCharacteristics);
    const std::size_t sectionCount = ShortAt(*fileHeader, kSectionCount);
    const std::size_t optionalSize = ShortAt(*fileHeader, kOptionalSize);
    const auto optional = Bytes(start + kFileHeaderSize, optionalSize);
    return optional && ReadOptionalHeader(*optional) &&
           ReadSections(start + kFileHeaderSize + optionalSize, sectionCount);
}

bool ProgramHeaders::ReadOptionalHeader(std::string_view header)
{
    if (header.size() < 2)
        return false;
    const std::uint16_t magic = ShortAt(header, 0);
    if (magic != kMagic32 && magic != kMagic64)
        return false;
    is64Bit_ = magic == kMagic64;
    const std::size_t firstTable = FirstTable(magic);
    if (header.size() < firstTable)
        return false;
    imageBase_ = is64Bit_ ? std::uint64_t(LongAt(header, 28)) << 32U | LongAt(header, 24)
                          : LongAt(header, 28);
    const std::size_t count = std::min<std::size_t>(LongAt(header, firstTable - 4), kMaxTables);
    for (std::size_t i = 0; i < count && firstTable + (i + 1) * kTableEntrySize <= header.size();
         ++i)
        tables_.push_back({LongAt(header, firstTable + i * kTableEntrySize),
                           LongAt(header, firstTable + i * kTableEntrySize + 4)});
    return true;
}

bool ProgramHeaders::ReadSections(std::uint64_t position, std::size_t count)
{
    const auto table = Bytes(position, std::min(count, kMaxSections) * kSectionHeaderSize);
    if (!table)
        return false;
    for (std::size_t i = 0; i < table->size(); i += kSectionHeaderSize)
        sections_.push_back(
            {LongAt(*table, i + 12), LongAt(*table, i + 16), LongAt(*table, i + 20)});
    return true;
}

std::optional<ProgramHeaders::Table> ProgramHeaders::TableOf(DataDirectory directory) const
{
    const auto number = static_cast<std::size_t>(directory);
    if (number >= tables_.size())
        return std::nullopt;
    return tables_[number];
}

std::optional<std::uint64_t> ProgramHeaders::FilePosition(std::uint32_t address) const
{
    for (const Section& section : sections_)
        if (address >= section.address && address - section.address < section.fileSize)
            return std::uint64_t(section.filePosition) + (address - section.address);
    return std::nullopt;
}

} // namespace quillon
