#include "archive/solid/writer/x86_program.h"

#include "archive/solid/signature_fields.h"
#include "archive/zip_records.h"

namespace quillon {

namespace {

constexpr std::uint16_t kMachine386 = 0x14C;
constexpr std::uint16_t kMachineAmd64 = 0x8664;
constexpr std::size_t kPlaceOfHeader = 60;

} // namespace

bool IsX86Program(std::span<const std::byte> head)
{
    if (!FindSignatureFields(head))
        return false;
    const auto header = zip::ReadNumber<std::uint32_t>(head.subspan(kPlaceOfHeader));
    const auto machine = zip::ReadNumber<std::uint16_t>(head.subspan(header + 4));
    return machine == kMachine386 || machine == kMachineAmd64;
}

} // namespace quillon
