// The log that /LOG= asks for: UTF-8, in the language of the package, a line for each action, with
// the reason where something was skipped. A log that can't be written any more stops being written;
// it never stops the work.
#pragma once

#include "platform/file_system.h"
#include "platform/machine.h"
#include "runtime/language_file.h"

#include <exception>
#include <memory>

namespace quillon {

class ActionLog {
public:
    /// A log that goes nowhere.
    ActionLog() = default;
    /// Throws as `OpenOutput` does. The texts have to live as long as the log.
    ActionLog(FileSystem& files, const Machine& machine, const Text& path,
              const LanguageTexts& texts);

    /// With `first` in the place of "%1" and `second` in that of "%2".
    void Line(Message message, std::string_view first = {}, std::string_view second = {});
    void Skipped(std::string_view what, const Reason& reason);
    /// What could not be undone, or not be removed where `what` says so, and why.
    void CannotUndo(const std::exception& error);
    void CannotRemove(std::string_view what, const std::exception& error);
    /// A line that is in the language of the package already.
    void TextLine(std::string_view text);
    void Close();

private:
    const Machine* machine_ = nullptr;
    const LanguageTexts* texts_ = nullptr;
    std::unique_ptr<OutputFile> file_;
};

} // namespace quillon
