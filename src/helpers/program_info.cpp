#include "helpers/program_info.h"

#include "helpers/program_format.h"

#include <algorithm>
#include <array>

namespace quillon {

namespace {

using namespace program_format;

constexpr std::uint16_t kIsLibrary = 0x2000;

// More than any program has; a damaged table ends here.
constexpr std::size_t kMaxImports = 4096;
constexpr std::size_t kMaxNameLength = 260;
constexpr std::size_t kMaxFrameworkLength = 80;
// The metadata of the largest assemblies; the note that is looked for is in them.
constexpr std::size_t kMaxMetadata = std::size_t{16} << 20;

ProgramMachine MachineOf(std::uint16_t number)
{
    switch (number) {
    case kMachineX86:
        return ProgramMachine::X86;
    case kMachineX64:
        return ProgramMachine::X64;
    case kMachineArm64:
        return ProgramMachine::Arm64;
    default:
        return ProgramMachine::Other;
    }
}

bool IsNameCharacter(char character)
{
    return character > ' ' && character < '\x7F';
}

class InfoReader {
public:
    explicit InfoReader(const ReadFileAt& read) : headers_(read) {}

    std::optional<ProgramInfo> Read()
    {
        if (!headers_.Read())
            return std::nullopt;
        info_.machine = MachineOf(headers_.Machine());
        info_.isLibrary = (headers_.Characteristics() & kIsLibrary) != 0;
        ReadImports();
        ReadDelayedImports();
        ReadClrHeader();
        return std::move(info_);
    }

private:
    void ReadImports()
    {
        constexpr std::size_t kEntrySize = 20;
        constexpr std::size_t kNamePlace = 12;
        const auto table = headers_.TableOf(DataDirectory::Imports);
        for (std::size_t i = 0; table && i < kMaxImports; ++i) {
            const auto entry = BytesAt(table->address + i * kEntrySize, kEntrySize);
            if (!entry || LongAt(*entry, kNamePlace) == 0)
                return;
            Take(LongAt(*entry, kNamePlace), info_.imports);
        }
    }

    void ReadDelayedImports()
    {
        constexpr std::size_t kEntrySize = 32;
        constexpr std::uint32_t kIsRelative = 1;
        const auto table = headers_.TableOf(DataDirectory::DelayedImports);
        for (std::size_t i = 0; table && i < kMaxImports; ++i) {
            const auto entry = BytesAt(table->address + i * kEntrySize, kEntrySize);
            if (!entry || LongAt(*entry, 4) == 0)
                return;
            // The linkers of the nineties noted whole addresses.
            const std::uint64_t base =
                (LongAt(*entry, 0) & kIsRelative) != 0 ? 0 : headers_.ImageBase();
            Take(LongAt(*entry, 4) - base, info_.delayedImports);
        }
    }

    void ReadClrHeader()
    {
        constexpr std::size_t kHeaderSize = 20;
        constexpr std::uint32_t kOnlyManagedCode = 1;
        constexpr std::uint32_t kNeeds32Bit = 2;
        const auto table = headers_.TableOf(DataDirectory::ClrHeader);
        const auto header =
            table && table->address != 0 ? BytesAt(table->address, kHeaderSize) : std::nullopt;
        if (!header)
            return;
        info_.isManaged = true;
        const std::uint32_t flags = LongAt(*header, 16);
        info_.isForAnyMachine = info_.machine == ProgramMachine::X86 &&
                                (flags & kOnlyManagedCode) != 0 && (flags & kNeeds32Bit) == 0;
        ReadMetadata(LongAt(*header, 8), LongAt(*header, 12));
    }

    void ReadMetadata(std::uint32_t address, std::uint32_t size)
    {
        constexpr std::size_t kRootSize = 16;
        constexpr std::size_t kMaxVersionLength = 255;
        const auto root = BytesAt(address, kRootSize);
        if (!root || !root->starts_with("BSJB"))
            return;
        const auto version = BytesAt(std::uint64_t(address) + kRootSize,
                                     std::min<std::size_t>(LongAt(*root, 12), kMaxVersionLength));
        if (version)
            info_.clrVersion = NameIn(*version);
        if (const auto metadata = BytesAt(address, std::min<std::size_t>(size, kMaxMetadata)))
            info_.targetFramework = FrameworkIn(*metadata);
    }

    static Text FrameworkIn(std::string_view metadata)
    {
        constexpr std::array<std::string_view, 3> kNotes = {
            ".NETFramework,Version=v", ".NETCoreApp,Version=v", ".NETStandard,Version=v"};
        for (const std::string_view note : kNotes)
            if (const std::size_t place = metadata.find(note); place != std::string_view::npos) {
                std::size_t end = place + note.size();
                while (end < metadata.size() && end - place < kMaxFrameworkLength &&
                       (metadata[end] == '.' || (metadata[end] >= '0' && metadata[end] <= '9')))
                    ++end;
                return Text(metadata.substr(place, end - place));
            }
        return {};
    }

    void Take(std::uint64_t nameAddress, std::vector<Text>& names)
    {
        const auto position = nameAddress > UINT32_MAX
                                  ? std::nullopt
                                  : headers_.FilePosition(static_cast<std::uint32_t>(nameAddress));
        if (!position)
            return;
        const Text name = NameIn(headers_.BytesUpTo(*position, kMaxNameLength));
        const bool isKnown = std::ranges::any_of(
            names, [&](const Text& known) { return EqualIgnoreCase(known, name); });
        if (!name.empty() && !isKnown)
            names.push_back(name);
    }

    static Text NameIn(std::string_view bytes)
    {
        const auto end = std::ranges::find_if_not(bytes, IsNameCharacter);
        return Text(bytes.begin(), end);
    }

    std::optional<std::string> BytesAt(std::uint64_t address, std::size_t count) const
    {
        if (address > UINT32_MAX)
            return std::nullopt;
        const auto position = headers_.FilePosition(static_cast<std::uint32_t>(address));
        return position ? headers_.Bytes(*position, count) : std::nullopt;
    }

    ProgramHeaders headers_;
    ProgramInfo info_;
};

} // namespace

std::optional<ProgramInfo> ReadProgramInfo(const ReadFileAt& read)
{
    return InfoReader(read).Read();
}

} // namespace quillon
