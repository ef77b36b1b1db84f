// What the dialogs of the importers share: project and program, the import itself with its progress
// and a way to stop it, and the windows that it asks with.
#pragma once

#include "importers/forms/import_forms.h"
#include "importers/import_data.h"
#include "ui/dialogs/form_help.h"

class QLabel;
class QProgressBar;

namespace quillon {

class PathLabel;

class ImportForm : public Form, protected ImportUser {
public:
    /// What the import did; nothing where none has run.
    const std::optional<ImportResult>& Result() const { return result_; }

    QLabel* sImportStatus = nullptr;
    QProgressBar* pbImport = nullptr;
    QPushButton* CmdHelp = nullptr;
    QPushButton* cmdImport = nullptr;
    QPushButton* cmdClose = nullptr;

    void reject() override;

protected:
    /// `lastFolder` is where the choices of the project and the program open, and takes the folder
    /// of the project.
    ImportForm(const char* name, const Text& title, const ImportContext& context, Text& lastFolder,
               QWidget* parent);

    struct PathButton {
        const char* name;
        Text caption;
        Text help;
        std::function<void()> select;
    };
    /// A path and the button that chooses it.
    Piece PathRow(PathLabel*& label, const char* name, QPushButton*& button,
                  const PathButton& choice);
    /// A box with words that say what it does.
    QCheckBox* Choice01(QCheckBox*& member, const char* name, const Text& caption,
                        const Text& help);
    Piece Progress();
    /// The last row: `CmdHelp`, `cmdImport` and `cmdClose`.
    Piece Buttons();

    /// Asks for the project's file; its folder is remembered.
    std::optional<Text> SelectProject(const Text& filter, const Text& fileName);
    /// Asks for the program, in a folder or else in the last one.
    std::optional<Text> SelectProgram(const Text& folder = {});

    /// Runs long work that the user can stop.
    void RunStoppable(const std::function<void()>& work);
    /// What the work is at; false once the user has stopped it.
    bool ShowStep(const Text& step);

    Text& LastFolder() { return lastFolder_; }

    virtual ImportResult Import(const ImportWork& work) = 0;
    /// The table of the importers, read when it is needed for the first time.
    const ImportData& Data();

    const ImportContext& Context() const { return context_; }

private:
    void StartImport();
    void ShowRunning(bool isRunning);
    void DisableControls();
    void ShowFormHelp();

    std::optional<Text>
    ChooseProgramDestination(const ImportUser::ProgramQuestion& question) override;
    bool EditIcon(FileListRow& row, const Text& title) override;
    void HideDialog() override { hide(); }
    void ShowDialog() override { show(); }
    void UpdateStatusBar() override;
    bool MayGoOn(const Text& file) override;

    const ImportContext context_;
    Text& lastFolder_;
    std::optional<ImportData> data_;
    std::optional<ImportResult> result_;
    bool isRunning_ = false;
    std::vector<QWidget*> disabledByRun_;
    bool isStopWanted_ = false;
};

/// Opens the dialog, and shows the list as the import has left it and what it did not add.
void RunImportForm(ImportForm& form, MainWindow& window);

} // namespace quillon
