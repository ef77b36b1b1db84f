// The user of a call that changes a project: what the tool's dialogs would ask, the command line
// has answered beforehand.
#pragma once

#include "cli/console_ask.h"

namespace quillon::cli {

struct PreparedAnswers {
    std::vector<Text> files;         // of a dialog for several files
    std::vector<Text> oneFileEach;   // of the dialogs for one file, in their order
    Text folder;                     // of the folder tree
    Text line;                       // of the box for a line of text
    std::optional<Text> destination; // else what the dialog would open with
    Text componentNr;                // empty for none
    bool confirms = false;           // answers Yes where the call itself is the confirmation
};

class EditAsk : public ConsoleAsk {
public:
    EditAsk(std::ostream& err, Answers answers) : ConsoleAsk(nullptr, err, answers) {}

    void Critical(const Text& title, const Text& text) override;
    bool YesNo(const Text& title, const Text& text, Stops stops) override;

    std::optional<Text> OpenFile(const FileQuestion& question) override;
    std::vector<Text> OpenFiles(const FileQuestion&) override { return prepared.files; }
    std::optional<Text> SelectDir(const Text&, const Text&) override { return prepared.folder; }
    std::optional<Text> XInputBox(const Text&, const Text&) override { return prepared.line; }
    std::optional<Text> ChooseDestination(const DestinationQuestion& question) override;
    std::optional<Text> ChooseComponent(const std::vector<Text>& entries) override;

    /// Ends a call whose command was refused or answered with the answer that stops it.
    [[noreturn]] void EndCall() const;

    PreparedAnswers prepared;
    // What could not be done, as the boxes with the stop sign said.
    std::vector<Text> refusals;

private:
    std::size_t filesAsked_ = 0;
};

} // namespace quillon::cli
