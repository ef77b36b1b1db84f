// What the dialogs of the importers share: project and program, the import itself with its progress
// and a way to stop it, and the windows that it asks with.
#pragma once

#include "importers/forms/import_forms.h"
#include "importers/import_data.h"
#include "ui/Form.h"

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
    QPushButton* cmdImport = nullptr;
    QPushButton* cmdClose = nullptr;

    void reject() override;

protected:
    ImportForm(const char* name, const Text& title, const ImportDesk& desk, QWidget* parent);

    /// A path and the button that chooses it.
    Piece PathRow(PathLabel*& label, const char* name, QPushButton*& button, const char* buttonName,
                  const Text& caption, std::function<void()> select);
    /// A box with words that tell what it does.
    QCheckBox* Choice01(QCheckBox*& member, const char* name, const Text& caption,
                        const Text& help);
    Piece Progress();
    /// The last row: `cmdImport` and `cmdClose`.
    Piece Buttons();

    /// Asks for the project's file; where it lies is remembered.
    std::optional<Text> SelectProject(const Text& filter, const Text& fileName);
    /// Asks for the program, in a folder or else in the last one.
    std::optional<Text> SelectProgram(const Text& folder = {});

    /// Runs long work that the user can stop.
    void RunStoppable(const std::function<void()>& work);
    /// What the work is at; false once the user has stopped it.
    bool ShowStep(const Text& step);

    Text LastFolder() const;
    void RememberFolder(const Text& folder) { desk_.lastFolder = folder; }

    virtual ImportResult Import(const ImportWork& work) = 0;
    /// The table of the importers, read when it is needed for the first time.
    const ImportData& Data();

    const ImportDesk& Desk() const { return desk_; }

private:
    void StartImport();
    void ShowRunning(bool isRunning);

    std::optional<Text>
    ChooseProgramDestination(const ImportUser::ProgramQuestion& question) override;
    bool EditIcon(FileListRow& row, const Text& title) override;
    void HideDialog() override;
    void UpdateStatusBar() override;
    bool MayGoOn(const Text& file) override;

    const ImportDesk desk_;
    std::optional<ImportData> data_;
    std::optional<ImportResult> result_;
    bool isRunning_ = false;
    bool isStopWanted_ = false;
};

/// Opens the dialog, and shows the list as the import has left it.
void RunImportForm(ImportForm& form, MainWindow& window);

} // namespace quillon
