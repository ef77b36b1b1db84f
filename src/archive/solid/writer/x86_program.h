// Whether the branch filter suits a file.
#pragma once

#include <cstddef>
#include <span>

namespace quillon {

/// True of a Windows program for x86 or x64. `headers` is as much of the front of the file as
/// `kProgramHeadersSize`, or all of a smaller one.
bool IsX86Program(std::span<const std::byte> headers);

} // namespace quillon
