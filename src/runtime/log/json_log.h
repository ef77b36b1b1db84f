// The log for programs: JSON Lines, a record for each action, and the record of the end in a file
// of its own where that is wanted. What an action is called is the key of its line in the readable
// log; a reason is the key of its text. Like that log it never stops the work.
#pragma once

#include "platform/file_system.h"
#include "platform/machine.h"
#include "runtime/exit_codes.h"
#include "runtime/texts/messages.h"

#include <array>
#include <memory>
#include <optional>

namespace quillon {

struct LogFiles {
    Text readable;
    Text json;
    Text result;
};

/// How a run has ended, which its exit code may hide. A stopped run was undone, or changed nothing.
enum class RunEnd { Done, RestartDue, Stopped };

class JsonLog {
public:
    JsonLog(FileSystem& files, const Machine& machine, const LogFiles& paths);

    void Action(Message message, std::string_view subject, std::string_view detail,
                std::optional<Message> reason);
    /// The last record, into both files.
    void End(ExitCode code, RunEnd end, std::string_view error);

private:
    const Machine& machine_;
    std::unique_ptr<OutputFile> file_;
    std::unique_ptr<OutputFile> result_;
    std::array<std::uint32_t, std::size_t(Message::Count)> counts_{};
};

} // namespace quillon
