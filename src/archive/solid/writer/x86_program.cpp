#include "archive/solid/writer/x86_program.h"

#include "archive/solid/signature_fields.h"
#include "archive/zip_records.h"
#include "helpers/program_format.h"

namespace quillon {

using namespace program_format;

bool IsX86Program(std::span<const std::byte> headers)
{
    if (!FindSignatureFields(headers))
        return false;
    const auto header = zip::ReadNumber<std::uint32_t>(headers.subspan(kHeaderPosition));
    const auto machine = zip::ReadNumber<std::uint16_t>(headers.subspan(header + kMachine));
    return machine == kMachineX86 || machine == kMachineX64;
}

} // namespace quillon
