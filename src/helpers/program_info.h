// What a Windows program or library says about its needs: its machine, the libraries that it is
// linked to, and the .NET run-time that runs it.
#pragma once

#include "helpers/program_headers.h"
#include "helpers/text.h"

#include <optional>
#include <vector>

namespace quillon {

enum class ProgramMachine { X86, X64, Arm64, Other };

struct ProgramInfo {
    ProgramMachine machine = ProgramMachine::Other;
    bool isLibrary = false;
    /// Names as the program spells them, each once. Without those that are loaded at first use
    /// only, which may be missing as long as they are not used.
    std::vector<Text> imports;
    std::vector<Text> delayedImports;

    bool isManaged = false; // a program of .NET
    /// A managed program without code of its own for one machine runs on any.
    bool isForAnyMachine = false;
    /// "v4.0.30319" of the CLR header; empty where it has none.
    Text clrVersion;
    /// ".NETFramework,Version=v4.7.2", as the compiler noted it; empty in programs that are older
    /// than this note.
    Text targetFramework;

    bool operator==(const ProgramInfo&) const = default;
};

/// Nothing where the file is no program. A damaged table ends where it is damaged; what was read of
/// it so far counts.
std::optional<ProgramInfo> ReadProgramInfo(const ReadFileAt& read);

} // namespace quillon
