#include "support/program_file.h"

namespace quillon::test {

namespace {

constexpr std::size_t kHeadersSize = 0x400;
constexpr std::uint32_t kSectionAddress = 0x3000;

void Put(std::string& bytes, std::uint64_t number, std::size_t size)
{
    for (std::size_t i = 0; i < size; ++i)
        bytes += static_cast<char>(number >> (8 * i) & 0xFFU);
}

void Set(std::string& bytes, std::size_t position, std::uint64_t number, std::size_t size)
{
    for (std::size_t i = 0; i < size; ++i)
        bytes[position + i] = static_cast<char>(number >> (8 * i) & 0xFFU);
}

void Align(std::string& bytes)
{
    bytes.resize((bytes.size() + 3) / 4 * 4);
}

/// Two bytes a character, with a zero at the end.
std::string Wide(const std::string& text)
{
    std::string wide;
    for (std::size_t i = 0; i < text.size(); ++i) {
        auto code = static_cast<unsigned char>(text[i]);
        const bool isLatin1 = code == 0xC2 || code == 0xC3;
        if (isLatin1)
            code = static_cast<unsigned char>((code & 3U) << 6U | (text[++i] & 0x3F));
        Put(wide, code, 2);
    }
    Put(wide, 0, 2);
    return wide;
}

/// A block of the version resource. `value` and `parts` come as finished bytes.
std::string Block(const std::string& name, const std::string& value, std::size_t valueLength,
                  bool isText, const std::string& parts)
{
    std::string block(6, '\0');
    block += Wide(name);
    Align(block);
    block += value;
    if (!parts.empty())
        Align(block);
    block += parts;
    Set(block, 0, block.size(), 2);
    Set(block, 2, valueLength, 2);
    Set(block, 4, isText ? 1 : 0, 2);
    return block;
}

using Texts = std::vector<std::pair<std::string, std::string>>;

std::string TextTable(const Texts& texts, bool countsBytes)
{
    std::string parts;
    for (const auto& [name, value] : texts) {
        Align(parts);
        const std::string wide = Wide(value);
        parts += Block(name, wide, countsBytes ? wide.size() : wide.size() / 2, true, "");
    }
    return Block("041D04B0", "", 0, true, parts);
}

void PutNumbers(std::string& bytes, const std::vector<std::uint16_t>& numbers)
{
    Put(bytes, std::uint32_t(numbers[0]) << 16U | numbers[1], 4);
    Put(bytes, std::uint32_t(numbers[2]) << 16U | numbers[3], 4);
}

std::string VersionResource(const ProgramFileParts& parts, const std::vector<Texts>& languages)
{
    std::string fixed;
    Put(fixed, 0xFEEF04BD, 4);
    Put(fixed, 0x00010000, 4);
    PutNumbers(fixed, parts.fileNumbers);
    PutNumbers(fixed, parts.productNumbers);
    fixed.resize(52);

    std::string tables;
    for (const Texts& texts : languages) {
        Align(tables);
        tables += TextTable(texts, parts.countsBytes);
    }
    std::string translation;
    Put(translation, 0x04B0041D, 4);
    std::string infos = Block("VarFileInfo", "", 0, true,
                              Block("Translation", translation, translation.size(), false, ""));
    Align(infos);
    infos += Block("StringFileInfo", "", 0, true, tables);
    return Block("VS_VERSION_INFO", fixed, fixed.size(), false, infos);
}

void PutFolder(std::string& tree, const std::vector<std::pair<std::uint32_t, std::uint32_t>>& items)
{
    tree.append(12, '\0');
    Put(tree, 0, 2);
    Put(tree, items.size(), 2);
    for (const auto& [id, offset] : items) {
        Put(tree, id, 4);
        Put(tree, offset, 4);
    }
}

/// The tree of a program that also has an icon, so that the version has to be looked for.
std::string ResourceSection(const std::vector<std::string>& resources)
{
    constexpr std::uint32_t kFolder = 0x80000000;
    constexpr std::uint32_t kIcons = 3;
    constexpr std::uint32_t kVersions = 16;
    const std::uint32_t names = 16 + 2 * 8;
    const std::uint32_t languages = names + 16 + 8;
    const auto count = static_cast<std::uint32_t>(resources.size());
    const std::uint32_t leaves = languages + 16 + 8 * count;

    std::string tree;
    PutFolder(tree, {{kIcons, kFolder | languages}, {kVersions, kFolder | names}});
    PutFolder(tree, {{1, kFolder | languages}});
    std::vector<std::pair<std::uint32_t, std::uint32_t>> entries;
    for (std::uint32_t i = 0; i < count; ++i)
        entries.emplace_back(0x409 + i, leaves + 16 * i);
    PutFolder(tree, entries);

    std::size_t data = tree.size() + 16 * resources.size();
    std::string contents;
    for (const std::string& resource : resources) {
        Put(tree, kSectionAddress + data + contents.size(), 4);
        Put(tree, resource.size(), 4);
        Put(tree, 0, 8);
        contents += resource;
        Align(contents);
    }
    return tree + contents;
}

} // namespace

std::string MakeProgramFile(const ProgramFileParts& parts)
{
    std::vector<std::string> resources;
    if (parts.isEntryPerLanguage)
        for (const Texts& texts : parts.languages)
            resources.push_back(VersionResource(parts, {texts}));
    else
        resources.push_back(VersionResource(parts, parts.languages));
    const std::string section = ResourceSection(resources);

    std::string file(kHeadersSize, '\0');
    file[0] = 'M';
    file[1] = 'Z';
    const std::size_t start = 0x80;
    Set(file, 0x3C, start, 4);
    file.replace(start, 2, "PE");
    const std::size_t table = parts.is64Bit ? 112 : 96;
    const std::size_t optionalSize = table + 16 * 8;
    Set(file, start + 6, 2, 2); // sections
    Set(file, start + 20, optionalSize, 2);
    const std::size_t optional = start + 24;
    Set(file, optional, parts.is64Bit ? 0x20B : 0x10B, 2);
    Set(file, optional + table - 4, 16, 4);
    Set(file, optional + table + 2 * 8, kSectionAddress, 4);
    Set(file, optional + table + 2 * 8 + 4, section.size(), 4);
    const std::size_t code = optional + optionalSize;
    Set(file, code + 12, 0x1000, 4);
    const std::size_t resource = code + 40;
    file.replace(resource, 5, ".rsrc");
    Set(file, resource + 8, section.size(), 4);
    Set(file, resource + 12, kSectionAddress, 4);
    Set(file, resource + 16, section.size(), 4);
    Set(file, resource + 20, kHeadersSize, 4);
    return file + section + std::string(parts.bytesBehind, 'x');
}

} // namespace quillon::test
