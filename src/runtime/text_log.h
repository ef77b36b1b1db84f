// The log that /LOG= asks for: UTF-8, a line for each action, with the reason where something was
// skipped. A log that can't be written any more stops being written; it never stops the work.
#pragma once

#include "platform/file_system.h"
#include "platform/machine.h"

#include <memory>

namespace quillon {

class TextLog {
public:
    /// A log that goes nowhere.
    TextLog() = default;
    /// Throws as `OpenOutput` does.
    TextLog(FileSystem& files, const Machine& machine, const Text& path);

    void Line(std::string_view text);
    /// "Hoppar över <what>: <reason>"
    void Skipped(std::string_view what, std::string_view reason);
    void Close();

private:
    const Machine* machine_ = nullptr;
    std::unique_ptr<OutputFile> file_;
};

} // namespace quillon
