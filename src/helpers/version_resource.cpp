// The layout is described in Microsoft's "PE Format" and "VS_VERSIONINFO" pages. Every offset comes
// from the file and is trusted no further than reading there gives bytes.
#include "helpers/version_resource.h"

#include "helpers/number_text.h"
#include "helpers/utf16.h"

#include <algorithm>
#include <array>
#include <optional>
#include <string>
#include <vector>

namespace quillon {

namespace {

constexpr std::size_t kMaxVersionTextLength = 300;

constexpr std::uint32_t kVersionResource = 16; // the type's number in the resource tree
constexpr std::uint32_t kIsFolder = 0x80000000;

// More than any program has; a damaged count ends here.
constexpr std::size_t kMaxEntries = 1024;
constexpr std::size_t kMaxLanguages = 64;
// A version block gives its length in 16 bits.
constexpr std::size_t kMaxResourceSize = 0xFFFF;

/// The part of a program that holds its resources.
class ResourceTree {
public:
    explicit ResourceTree(const ReadFileAt& read) : headers_(read) {}

    /// False where the file is no program or has no resources.
    bool Open();
    /// The version resources, of all languages.
    std::vector<std::string> VersionResources() const;

private:
    struct TreeEntry {
        std::uint32_t id;
        std::uint32_t offset;
    };
    std::vector<TreeEntry> Folder(std::uint32_t offset) const;
    std::optional<std::string> Leaf(std::uint32_t offset) const;

    ProgramHeaders headers_;
    std::uint64_t tree_ = 0; // where the resource tree is in the file
};

bool ResourceTree::Open()
{
    if (!headers_.Read())
        return false;
    const auto table = headers_.TableOf(program_format::DataDirectory::Resources);
    const auto tree = table ? headers_.FilePosition(table->address) : std::nullopt;
    tree_ = tree.value_or(0);
    return tree.has_value();
}

std::vector<ResourceTree::TreeEntry> ResourceTree::Folder(std::uint32_t offset) const
{
    constexpr std::size_t kHeaderSize = 16;
    constexpr std::size_t kEntrySize = 8;
    const auto header = headers_.Bytes(tree_ + offset, kHeaderSize);
    if (!header)
        return {};
    const std::size_t count = std::size_t(ShortAt(*header, 12)) + ShortAt(*header, 14);
    const auto table =
        headers_.Bytes(tree_ + offset + kHeaderSize, std::min(count, kMaxEntries) * kEntrySize);
    if (!table)
        return {};
    std::vector<TreeEntry> entries;
    for (std::size_t i = 0; i < table->size(); i += kEntrySize)
        entries.push_back({LongAt(*table, i), LongAt(*table, i + 4)});
    return entries;
}

std::optional<std::string> ResourceTree::Leaf(std::uint32_t offset) const
{
    const auto entry = headers_.Bytes(tree_ + offset, 16);
    if (!entry)
        return std::nullopt;
    const auto position = headers_.FilePosition(LongAt(*entry, 0));
    if (!position)
        return std::nullopt;
    return headers_.Bytes(*position, std::min<std::size_t>(LongAt(*entry, 4), kMaxResourceSize));
}

std::vector<std::string> ResourceTree::VersionResources() const
{
    std::vector<std::string> resources;
    for (const TreeEntry& type : Folder(0)) {
        if (type.id != kVersionResource || (type.offset & kIsFolder) == 0)
            continue;
        // A program has one version resource; only its languages are many.
        for (const TreeEntry& name : Folder(type.offset & ~kIsFolder)) {
            if ((name.offset & kIsFolder) == 0)
                continue;
            for (const TreeEntry& language : Folder(name.offset & ~kIsFolder))
                if (auto leaf = Leaf(language.offset & ~kIsFolder);
                    leaf && resources.size() < kMaxLanguages)
                    resources.push_back(std::move(*leaf));
            return resources;
        }
    }
    return resources;
}

constexpr std::size_t Aligned(std::size_t position)
{
    return (position + 3) & ~std::size_t(3);
}

/// A part of the resource: a name, then a value or parts of its own, or both.
struct Block {
    Text name;
    std::string_view body;
    std::size_t valueLength;
};

/// Takes the block at the front of `bytes`; nothing where there is none, which ends the walk.
std::optional<Block> TakeBlock(std::string_view& bytes)
{
    constexpr std::size_t kHeaderSize = 6;
    if (bytes.size() < kHeaderSize)
        return std::nullopt;
    const std::size_t length = ShortAt(bytes, 0);
    if (length < kHeaderSize || length > bytes.size())
        return std::nullopt;
    const std::string_view block = bytes.substr(0, length);
    bytes.remove_prefix(std::min(Aligned(length), bytes.size()));

    std::size_t nameEnd = kHeaderSize;
    while (nameEnd + 1 < length && ShortAt(block, nameEnd) != 0)
        nameEnd += 2;
    return Block{.name = FromUtf16(block.substr(kHeaderSize, nameEnd - kHeaderSize)),
                 .body = block.substr(std::min(Aligned(nameEnd + 2), length)),
                 .valueLength = ShortAt(block, 2)};
}

// The value's length counts units in some programs and bytes in others; its zero is reliable.
Text TextValue(std::string_view value)
{
    std::size_t end = 0;
    while (end + 1 < value.size() && ShortAt(value, end) != 0)
        end += 2;
    return FirstCharacters(FromUtf16(value.substr(0, end)), kMaxVersionTextLength);
}

struct TextName {
    const char* name;
    Text FileVersionData::*text;
};
constexpr TextName kTexts[] = {
    {"FileVersion", &FileVersionData::FileVersion},
    {"ProductName", &FileVersionData::ProductName},
    {"CompanyName", &FileVersionData::CompanyName},
    {"FileDescription", &FileVersionData::FileDescription},
    {"LegalCopyright", &FileVersionData::LegalCopyright},
    {"ProductVersion", &FileVersionData::ProductVersion},
};

void TakeTexts(std::string_view languages, FileVersionData& data)
{
    while (const auto language = TakeBlock(languages)) {
        std::string_view texts = language->body;
        while (const auto text = TakeBlock(texts))
            for (const TextName& known : kTexts)
                if ((data.*known.text).empty() && EqualIgnoreCase(text->name, known.name))
                    data.*known.text = TextValue(text->body);
    }
}

/// "1.2.3.4" of the two numbers that hold two parts each; empty where all are 0, which means that
/// they were not set.
Text FourNumbers(std::string_view fixed, std::size_t position)
{
    const std::uint32_t high = LongAt(fixed, position);
    const std::uint32_t low = LongAt(fixed, position + 4);
    if (high == 0 && low == 0)
        return {};
    return NumberText(high >> 16U) + "." + NumberText(high & 0xFFFFU) + "." +
           NumberText(low >> 16U) + "." + NumberText(low & 0xFFFFU);
}

void TakeFixedNumbers(std::string_view fixed, FileVersionData& data)
{
    constexpr std::size_t kFixedSize = 52;
    constexpr std::uint32_t kFixedMark = 0xFEEF04BD;
    if (fixed.size() < kFixedSize || LongAt(fixed, 0) != kFixedMark)
        return;
    if (data.FileVersion.empty())
        data.FileVersion = FourNumbers(fixed, 8);
    if (data.ProductVersion.empty())
        data.ProductVersion = FourNumbers(fixed, 16);
}

} // namespace

FileVersionData GetFileVersionData(const ReadFileAt& read)
{
    FileVersionData data;
    ResourceTree tree(read);
    if (!tree.Open())
        return data;

    std::string_view fixedNumbers;
    const std::vector<std::string> resources = tree.VersionResources();
    for (std::string_view resource : resources) {
        const auto root = TakeBlock(resource);
        if (!root || root->name != "VS_VERSION_INFO")
            continue;
        if (fixedNumbers.empty())
            fixedNumbers = root->body.substr(0, root->valueLength);
        std::string_view parts =
            root->body.substr(std::min(Aligned(root->valueLength), root->body.size()));
        while (const auto part = TakeBlock(parts))
            if (part->name == "StringFileInfo")
                TakeTexts(part->body, data);
    }
    TakeFixedNumbers(fixedNumbers, data);
    return data;
}

} // namespace quillon
