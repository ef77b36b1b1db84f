// The headers of a Windows program or library, 32-bit or 64-bit: which machine it is for, and where
// its sections and tables lie in the file. Every offset comes from the file and is trusted no
// further than reading there gives bytes. The layout is described in Microsoft's "PE Format" page.
#pragma once

#include "helpers/little_endian.h"
#include "helpers/program_format.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace quillon {

/// Fills the buffer from a position of the file and says how many bytes there were; fewer than
/// asked for only at the file's end.
using ReadFileAt = std::function<std::size_t(std::uint64_t position, std::span<std::byte> buffer)>;

class ProgramHeaders {
public:
    explicit ProgramHeaders(const ReadFileAt& read) : read_(read) {}

    /// False where the file is no program.
    bool Read();

    std::uint16_t Machine() const { return machine_; }
    std::uint16_t Characteristics() const { return characteristics_; }
    std::uint64_t ImageBase() const { return imageBase_; }

    struct Table {
        std::uint32_t address;
        std::uint32_t size;
    };
    /// Nothing where the program has no such table.
    std::optional<Table> TableOf(program_format::DataDirectory directory) const;

    /// Exactly so many bytes, or nothing.
    std::optional<std::string> Bytes(std::uint64_t position, std::size_t count) const;
    /// Fewer where the file ends before.
    std::string BytesUpTo(std::uint64_t position, std::size_t count) const;
    /// Where an address of the loaded program is in the file.
    std::optional<std::uint64_t> FilePosition(std::uint32_t address) const;

private:
    bool ReadOptionalHeader(std::string_view header);
    bool ReadSections(std::uint64_t position, std::size_t count);

    struct Section {
        std::uint32_t address;
        std::uint32_t fileSize;
        std::uint32_t filePosition;
    };

    const ReadFileAt& read_;
    std::uint16_t machine_ = 0;
    std::uint16_t characteristics_ = 0;
    bool is64Bit_ = false;
    std::uint64_t imageBase_ = 0;
    std::vector<Table> tables_;
    std::vector<Section> sections_;
};

} // namespace quillon
