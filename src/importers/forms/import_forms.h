// What the windows of the importers are opened with: the session, the main window, and the windows
// of other folders that they open.
#pragma once

#include "importers/import_work.h"
#include "shell/main_window.h"
#include "shell/session.h"

#include <functional>

class QWidget;

namespace quillon {

struct ImportForms {
    std::function<std::optional<Text>(const ImportUser::ProgramQuestion&, QWidget* parent)>
        chooseProgramDestination;
    std::function<bool(FileListRow& row, const Text& title, QWidget* parent)> editIcon;
    std::function<void(QWidget* parent)> showMDADetails;
    std::function<void(QWidget* parent)> showTestNETFramework;
};

struct ImportContext {
    Session& session;
    MainWindow& window;
    ImportForms forms;
};

void ShowImportVB5Project(const ImportContext& context, QWidget* parent);
void ShowImportVB6Project(const ImportContext& context, QWidget* parent);
void ShowImportVBNetProject(const ImportContext& context, QWidget* parent);
void ShowImportFolder(const ImportContext& context, QWidget* parent);

} // namespace quillon
