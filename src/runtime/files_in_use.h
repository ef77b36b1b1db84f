// What is done about files that programs hold open before they are replaced or removed: the user is
// shown which programs, and they are closed where the user or the command line wants that. A file
// that is still held is left to the machine's next start, or ends the installation.
#pragma once

#include "platform/ask.h"
#include "runtime/command_line/switches.h"
#include "runtime/file_users.h"
#include "runtime/log/action_log.h"

namespace quillon {

struct InUseInput {
    Ask& ask;
    ActionLog& log;
    const LanguageTexts& texts;
    FileUsers* users; // null: nothing is known of programs
    const Switches& switches;
    Text title; // of the boxes
};

/// False where the user has cancelled.
bool FreeFiles(const InUseInput& input, const std::vector<Text>& paths);

} // namespace quillon
