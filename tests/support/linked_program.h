// Builds small Windows programs that are nothing but headers and what they are linked to.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace quillon::test {

struct LinkedProgramParts {
    bool is64Bit = false;
    bool isLibrary = false;
    std::uint16_t machine = 0; // that of the bits where it is 0
    std::vector<std::string> imports;
    std::vector<std::string> delayedImports;
    bool hasOldDelayTable = false; // with whole addresses
    // A program of .NET.
    std::string clrVersion;
    std::uint32_t clrFlags = 1;
    std::string targetFramework;
};

class LinkedProgram {
public:
    explicit LinkedProgram(const LinkedProgramParts& parts) : parts_(parts)
    {
        PutImports();
        PutDelayedImports();
        PutClrHeader();
    }

    std::string Bytes() const
    {
        const std::size_t tables = parts_.is64Bit ? 112 : 96;
        std::string file(kSectionPlace, '\0');
        file.replace(0, 2, "MZ");
        Set(file, 60, 64, 4);
        file.replace(64, 2, "PE");
        Set(file, 68, Machine(), 2);
        Set(file, 70, 1, 2);
        Set(file, 84, tables + 16 * 8, 2);
        Set(file, 86, parts_.isLibrary ? 0x2002 : 0x0002, 2);
        Set(file, 88, parts_.is64Bit ? 0x20B : 0x10B, 2);
        Set(file, 88 + (parts_.is64Bit ? 24U : 28U), kImageBase, 4);
        Set(file, 88 + tables - 4, 16, 4);
        for (std::size_t i = 0; i < 16; ++i)
            Set(file, 88 + tables + i * 8, tables_[i], 4);
        const std::size_t section = 88 + tables + 16 * 8;
        Set(file, section + 12, kAddress, 4);
        Set(file, section + 16, section_.size(), 4);
        Set(file, section + 20, kSectionPlace, 4);
        Set(file, 88 + tables + 14 * 8 + 4, tables_[14] == 0 ? 0 : 72, 4);
        return file + section_;
    }

private:
    static constexpr std::size_t kSectionPlace = 0x200;
    static constexpr std::uint32_t kAddress = 0x1000;
    static constexpr std::uint32_t kImageBase = 0x400000;

    static void Set(std::string& bytes, std::size_t position, std::uint64_t number,
                    std::size_t size)
    {
        for (std::size_t i = 0; i < size; ++i)
            bytes[position + i] = static_cast<char>(number >> (8 * i) & 0xFFU);
    }

    std::uint16_t Machine() const
    {
        if (parts_.machine != 0)
            return parts_.machine;
        return parts_.is64Bit ? 0x8664 : 0x14C;
    }

    std::uint32_t Here() const { return kAddress + static_cast<std::uint32_t>(section_.size()); }

    std::uint32_t PutText(const std::string& text)
    {
        const std::uint32_t address = Here();
        section_ += text + std::string(1, '\0');
        return address;
    }

    void PutImports()
    {
        std::string table((parts_.imports.size() + 1) * 20, '\0');
        for (std::size_t i = 0; i < parts_.imports.size(); ++i)
            Set(table, i * 20 + 12, PutText(parts_.imports[i]), 4);
        if (!parts_.imports.empty())
            tables_[1] = Here();
        section_ += table;
    }

    void PutDelayedImports()
    {
        std::string table((parts_.delayedImports.size() + 1) * 32, '\0');
        for (std::size_t i = 0; i < parts_.delayedImports.size(); ++i) {
            Set(table, i * 32, parts_.hasOldDelayTable ? 0 : 1, 4);
            Set(table, i * 32 + 4,
                PutText(parts_.delayedImports[i]) + (parts_.hasOldDelayTable ? kImageBase : 0U), 4);
        }
        if (!parts_.delayedImports.empty())
            tables_[13] = Here();
        section_ += table;
    }

    void PutClrHeader()
    {
        if (parts_.clrVersion.empty())
            return;
        std::string metadata(16, '\0');
        metadata.replace(0, 4, "BSJB");
        const std::size_t length = (parts_.clrVersion.size() + 4) / 4 * 4;
        Set(metadata, 12, length, 4);
        metadata += parts_.clrVersion;
        metadata.resize(16 + length, '\0');
        metadata += "blob\x01" + parts_.targetFramework + "\x01";
        std::string header(72, '\0');
        Set(header, 0, 72, 4);
        Set(header, 8, Here(), 4);
        Set(header, 12, metadata.size(), 4);
        Set(header, 16, parts_.clrFlags, 4);
        section_ += metadata;
        tables_[14] = Here();
        section_ += header;
    }

    LinkedProgramParts parts_;
    std::string section_;
    std::uint32_t tables_[16] = {};
};

inline std::string MakeLinkedProgram(const LinkedProgramParts& parts)
{
    return LinkedProgram(parts).Bytes();
}

} // namespace quillon::test
