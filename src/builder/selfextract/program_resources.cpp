#include "builder/selfextract/program_resources.h"

#include "helpers/little_endian.h"
#include "helpers/program_format.h"

#include <algorithm>
#include <array>

namespace quillon {

namespace {

using namespace program_format;

constexpr auto kResourceTable = static_cast<std::size_t>(DataDirectory::Resources);
constexpr std::uint32_t kIsFolder = 0x80000000;

std::uint32_t Aligned(std::uint32_t position, std::uint32_t alignment)
{
    return (position + alignment - 1) / alignment * alignment;
}

/// The tree of a section: types, below them numbers, below them the one language, then the data.
class ResourceTree {
public:
    ResourceTree(const std::vector<ProgramResource>& resources, std::uint32_t address)
        : resources_(resources), address_(address)
    {
    }

    std::string Bytes()
    {
        const std::vector<std::uint16_t> types = Types();
        const std::size_t count = resources_.size();
        languages_ = kFolderSize + types.size() * kEntrySize;
        for (const std::uint16_t type : types)
            languages_ += kFolderSize + CountOf(type) * kEntrySize;
        entries_ = languages_ + count * (kFolderSize + kEntrySize);
        data_ = entries_ + count * kDataEntrySize;
        PutFolders(types);
        PutLanguages();
        PutData();
        return bytes_;
    }

private:
    static constexpr std::size_t kFolderSize = 16;
    static constexpr std::size_t kEntrySize = 8;
    static constexpr std::size_t kDataEntrySize = 16;
    static constexpr std::uint32_t kDataAlignment = 8;

    std::vector<std::uint16_t> Types() const
    {
        std::vector<std::uint16_t> types;
        for (const ProgramResource& resource : resources_)
            if (types.empty() || types.back() != resource.type)
                types.push_back(resource.type);
        return types;
    }

    std::size_t CountOf(std::uint16_t type) const
    {
        return static_cast<std::size_t>(
            std::ranges::count(resources_, type, &ProgramResource::type));
    }

    void PutFolder(std::size_t entries)
    {
        bytes_.append(12, '\0');
        AppendNumber(bytes_, std::uint16_t{0}); // named entries
        AppendNumber(bytes_, static_cast<std::uint16_t>(entries));
    }

    void PutEntry(std::uint32_t id, std::size_t place, bool isFolder)
    {
        AppendNumber(bytes_, id);
        AppendNumber(bytes_, static_cast<std::uint32_t>(place) | (isFolder ? kIsFolder : 0U));
    }

    void PutFolders(const std::vector<std::uint16_t>& types)
    {
        PutFolder(types.size());
        std::size_t folder = kFolderSize + types.size() * kEntrySize;
        for (const std::uint16_t type : types) {
            PutEntry(type, folder, true);
            folder += kFolderSize + CountOf(type) * kEntrySize;
        }
        std::size_t number = 0;
        for (const std::uint16_t type : types) {
            PutFolder(CountOf(type));
            for (std::size_t end = number + CountOf(type); number < end; ++number)
                PutEntry(resources_[number].id, languages_ + number * (kFolderSize + kEntrySize),
                         true);
        }
    }

    void PutLanguages()
    {
        for (std::size_t i = 0; i < resources_.size(); ++i) {
            PutFolder(1);
            PutEntry(0, entries_ + i * kDataEntrySize, false);
        }
    }

    void PutData()
    {
        std::uint32_t place = Aligned(static_cast<std::uint32_t>(data_), kDataAlignment);
        for (const ProgramResource& resource : resources_) {
            const auto size = static_cast<std::uint32_t>(resource.bytes.size());
            AppendNumber(bytes_, address_ + place);
            AppendNumber(bytes_, size);
            AppendNumber(bytes_, std::uint32_t{0});
            AppendNumber(bytes_, std::uint32_t{0});
            place = Aligned(place + size, kDataAlignment);
        }
        for (const ProgramResource& resource : resources_) {
            bytes_.resize(Aligned(static_cast<std::uint32_t>(bytes_.size()), kDataAlignment), '\0');
            bytes_ += resource.bytes;
        }
    }

    const std::vector<ProgramResource>& resources_;
    std::uint32_t address_;
    std::size_t languages_ = 0;
    std::size_t entries_ = 0;
    std::size_t data_ = 0;
    std::string bytes_;
};

/// Where the numbers are that a new section changes.
struct ProgramLayout {
    std::size_t header = 0;
    std::size_t optional = 0;
    std::size_t tables = 0;
    std::size_t sections = 0;
    std::uint16_t sectionCount = 0;

    std::size_t NewSection() const { return sections + sectionCount * kSectionHeaderSize; }
    std::size_t TableEntry() const { return tables + kResourceTable * kTableEntrySize; }
};

std::optional<ProgramLayout> LayoutOf(std::string_view program)
{
    constexpr std::size_t kMinOptionalSize = 240; // of a 64-bit program; a 32-bit one has 16 less
    if (program.size() < kDosHeaderSize || ShortAt(program, 0) != kDosMark)
        return std::nullopt;
    ProgramLayout layout{.header = LongAt(program, kHeaderPosition)};
    if (layout.header > program.size() ||
        program.size() - layout.header < kFileHeaderSize + kMinOptionalSize ||
        LongAt(program, layout.header) != kFileMark)
        return std::nullopt;
    layout.optional = layout.header + kFileHeaderSize;
    layout.sectionCount = ShortAt(program, layout.header + kSectionCount);
    layout.sections = layout.optional + ShortAt(program, layout.header + kOptionalSize);
    layout.tables = layout.optional + FirstTable(ShortAt(program, layout.optional));
    const bool hasTable = LongAt(program, layout.tables - 4) > kResourceTable;
    if (!hasTable || layout.sectionCount == 0 ||
        layout.NewSection() + kSectionHeaderSize > program.size())
        return std::nullopt;
    return layout;
}

struct SectionEnds {
    std::uint32_t address = 0;
    std::size_t firstByte = 0; // of all sections, in the file
};

SectionEnds EndsOf(std::string_view program, const ProgramLayout& layout)
{
    SectionEnds ends{.firstByte = program.size()};
    for (std::size_t i = 0; i < layout.sectionCount; ++i) {
        const std::size_t at = layout.sections + i * kSectionHeaderSize;
        const std::uint32_t size = std::max(LongAt(program, at + 8), LongAt(program, at + 16));
        ends.address = std::max(ends.address, LongAt(program, at + 12) + size);
        if (LongAt(program, at + 16) > 0)
            ends.firstByte = std::min<std::size_t>(ends.firstByte, LongAt(program, at + 20));
    }
    return ends;
}

} // namespace

std::optional<std::string> WithResources(std::string program,
                                         std::vector<ProgramResource> resources)
{
    const auto layout = LayoutOf(program);
    if (!layout || LongAt(program, layout->TableEntry()) != 0)
        return std::nullopt;
    const SectionEnds ends = EndsOf(program, *layout);
    if (layout->NewSection() + kSectionHeaderSize > ends.firstByte)
        return std::nullopt;
    const std::uint32_t alignment = std::max(1U, LongAt(program, layout->optional + 32));
    const std::uint32_t fileAlignment = std::max(1U, LongAt(program, layout->optional + 36));
    const std::uint32_t address = Aligned(ends.address, alignment);

    std::ranges::stable_sort(resources, {}, [](const ProgramResource& resource) {
        return std::pair(resource.type, resource.id);
    });
    std::string section = ResourceTree(resources, address).Bytes();
    const auto size = static_cast<std::uint32_t>(section.size());
    const std::uint32_t position =
        Aligned(static_cast<std::uint32_t>(program.size()), fileAlignment);
    section.resize(Aligned(size, fileAlignment), '\0');

    const std::size_t at = layout->NewSection();
    program.replace(at, kSectionHeaderSize, kSectionHeaderSize, '\0');
    program.replace(at, 5, ".rsrc");
    SetNumber(program, at + 8, size);
    SetNumber(program, at + 12, address);
    SetNumber(program, at + 16, static_cast<std::uint32_t>(section.size()));
    SetNumber(program, at + 20, position);
    constexpr std::uint32_t kReadableData = 0x40000040;
    SetNumber(program, at + 36, kReadableData);
    SetNumber(program, layout->header + kSectionCount,
              static_cast<std::uint16_t>(layout->sectionCount + 1U));
    SetNumber(program, layout->optional + 56, Aligned(address + size, alignment));
    // The checksum does not hold any more.
    SetNumber(program, layout->optional + kChecksum, std::uint32_t{0});
    SetNumber(program, layout->TableEntry(), address);
    SetNumber(program, layout->TableEntry() + 4, size);
    program.resize(position, '\0');
    return program + section;
}

std::optional<std::vector<ProgramResource>> IconResources(std::string_view file)
{
    constexpr std::size_t kHeaderSize = 6;
    constexpr std::size_t kEntrySize = 16;
    constexpr std::uint32_t kBitmapHeaderSize = 40;
    constexpr std::string_view kPngMark = "\x89PNG\r\n\x1A\n";
    if (file.size() < kHeaderSize || ShortAt(file, 0) != 0 || ShortAt(file, 2) != 1)
        return std::nullopt;
    const std::size_t count = ShortAt(file, 4);
    if (count == 0 || (file.size() - kHeaderSize) / kEntrySize < count)
        return std::nullopt;

    std::vector<ProgramResource> resources;
    std::string group(file.substr(0, kHeaderSize));
    for (std::size_t i = 0; i < count; ++i) {
        const std::string_view entry = file.substr(kHeaderSize + i * kEntrySize, kEntrySize);
        const std::size_t size = LongAt(entry, 8);
        const std::size_t position = LongAt(entry, 12);
        if (position > file.size() || size > file.size() - position || size < kBitmapHeaderSize)
            return std::nullopt;
        const std::string_view picture = file.substr(position, size);
        if (!picture.starts_with(kPngMark) && LongAt(picture, 0) != kBitmapHeaderSize)
            return std::nullopt;
        const auto id = static_cast<std::uint16_t>(i + 1);
        resources.push_back({ResourceType::kIcon, id, std::string(picture)});
        // The same entry, with the picture's number in the place of its position.
        group += entry.substr(0, 12);
        AppendNumber(group, id);
    }
    resources.push_back({ResourceType::kGroupIcon, 1, group});
    return resources;
}

} // namespace quillon
