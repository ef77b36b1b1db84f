// The uninstaller as a whole: from its command line to an exit code. The program for Windows adds
// its windows, the machine's registry, and the removal of its own file.
#pragma once

#include "runtime/command_line/switches.h"
#include "runtime/file_users.h"
#include "runtime/list_page.h"
#include "runtime/uninstall/uninstall.h"

namespace quillon {

struct UninstallProgramInput {
    Host& host;
    Target& target;
    const UninstallerCommand& line;
    Text program;                      // the uninstaller's own file
    bool otherSetupRuns = false;       // a setup or another uninstaller on this machine
    FileUsers* users = nullptr;        // null: nothing is known of programs that hold files
    RunningProgram* running = nullptr; // that file, where it runs
};

/// The uninstaller's windows beside the boxes of `Ask`. Without windows the user can't cancel.
class UninstallView {
public:
    virtual ~UninstallView() = default;
    /// False where the user has cancelled.
    virtual bool ShowList(const ListPage& page) = 0;
    virtual void ShowProgress(bool isAtWork) = 0;
};

class UninstallProgram {
public:
    explicit UninstallProgram(const UninstallProgramInput& input) : input_(input) {}
    // The log of /LOG= holds on to the texts.
    UninstallProgram(const UninstallProgram&) = delete;
    UninstallProgram& operator=(const UninstallProgram&) = delete;

    /// Finds the product, and finishes a setup that was killed. Throws where that can't be done, or
    /// where the log of /LOG= can't be made.
    void Prepare();
    /// In the language of the installation, once that is known.
    const LanguageTexts& Texts() const { return texts_; }
    Text Title() const;
    ExitCode Run(Ask& ask, UninstallView& view);
    /// After a failure was thrown: ends the logs, and gives what the user is to be shown.
    Text Fail(const std::exception& error);

private:
    struct Refusal {
        ExitCode code;
        Text text; // empty: there is nothing to show
    };
    void FindProduct();
    void FinishEarlierSetup(const Text& mainFolder);
    const Switches& GivenSwitches() const { return input_.line.switches; }
    bool OnlyShowsInformation() const;
    std::optional<Refusal> WhyRefused() const;
    Refusal WithoutProduct() const;
    Text InstalledVersion() const;
    ExitCode Tell(Ask& ask);
    ExitCode End(ExitCode code, const Text& error = {});
    void TellTheEnd(const UninstallResult& result, Ask& ask, UninstallView& view) const;

    const UninstallProgramInput input_;
    LanguageTexts texts_;
    std::optional<InstalledProduct> product_;
    ActionLog log_;
    bool hasFinishedEarlier_ = false;
};

} // namespace quillon
