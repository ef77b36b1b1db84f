// What the run reports: the log that /LOG asks for, UTF-8 in the language of the package, a
// line for each action, with the reason where something was skipped; and the same for programs
// (json_log.h). A log that can't be written any more stops being written; it never stops the work.
#pragma once

#include "platform/file_system.h"
#include "platform/machine.h"
#include "runtime/command_line/switches.h"
#include "runtime/log/json_log.h"
#include "runtime/texts/language_file.h"

#include <exception>
#include <memory>

namespace quillon {

class ActionLog {
public:
    /// A log that goes nowhere.
    ActionLog() = default;
    /// Throws as `OpenOutput` does. The texts have to live as long as the log. No file for an empty
    /// path.
    ActionLog(FileSystem& files, const Machine& machine, const Text& path,
              const LanguageTexts& texts)
        : ActionLog(files, machine, LogFiles{path, {}, {}}, texts)
    {
    }
    ActionLog(FileSystem& files, const Machine& machine, const LogFiles& paths,
              const LanguageTexts& texts);

    /// With `first` in the place of "%1" and `second` in that of "%2".
    void Line(Message message, std::string_view first = {}, std::string_view second = {});
    void Skipped(std::string_view what, const Reason& reason);
    /// What could not be undone, or not be removed where `what` says so, and why.
    void CannotUndo(const std::exception& error);
    void CannotRemove(std::string_view what, const std::exception& error);
    /// Ends the log for programs with the code of the whole run.
    void End(ExitCode code, RunEnd end, std::string_view error = {});
    void Close();

private:
    void TextLine(std::string_view text);
    void Because(Message message, std::string_view what, std::string_view detail,
                 const std::optional<Reason>& reason);

    const Machine* machine_ = nullptr;
    const LanguageTexts* texts_ = nullptr;
    std::unique_ptr<OutputFile> file_;
    std::unique_ptr<JsonLog> json_;
};

/// A line of the readable log, with its time and its end.
Text LogLine(const Machine& machine, std::string_view text);

/// Opens the logs. Where one can't be made the failure is thrown, but `log` still has the file of
/// the result where that can be made, so that the reason is written to it.
void OpenLogs(ActionLog& log, FileSystem& files, const Machine& machine, const LogFiles& paths,
              const LanguageTexts& texts);

/// A path in the folder for temporary files at which nothing is: "QNSETUP-20040301-123005.LOG".
Text NewFileInTemp(const FileSystem& files, const Machine& machine, std::string_view program,
                   std::string_view ending);

/// The files that the switches ask for. A /LOG without a value means a new file in the folder for
/// temporary files, named after the program and the time.
LogFiles LogFilesOf(const Switches& switches, const FileSystem& files, const Machine& machine,
                    std::string_view program);

} // namespace quillon
