// What a project wants to be started once its product is installed: two programs and a document.
// None of them is a reason to undo anything; what can't be started is logged.
#pragma once

#include "runtime/log/action_log.h"
#include "runtime/setup_variables.h"

#include <functional>

namespace quillon {

struct AfterInstallInput {
    const Host& host;
    // Throws `RunError` where the file is not there or can't be started.
    const std::function<void(const Text& file, const Text& arguments)>& start;
    ActionLog& log;
    const LanguageTexts& texts;
    const SetupInformation& setup;
    const SetupVariables& variables;
    bool silent = false; // null: there is no user to see a program
    bool showsDocument = true;
};

void StartProgramsAfter(const AfterInstallInput& input);

/// `showRtf` shows the bytes of an RTF document in a window of the setup, for a project that wants
/// that; other documents are opened by the program that the system has for them.
void ShowDocumentAfter(const AfterInstallInput& input,
                       const std::function<void(const std::string& rtf)>& showRtf);

} // namespace quillon
