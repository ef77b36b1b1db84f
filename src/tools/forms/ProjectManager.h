// The projects that the author has gathered: one is opened from here, added, looked at, or taken
// out of the list. Cancel leaves the list as it was.
#pragma once

#include "tools/project_list.h"
#include "ui/kit/Form.h"

class QTreeWidget;
class QTreeWidgetItem;

namespace quillon {

struct Session;
class MainWindow;

class ProjectManager : public Form {
public:
    ProjectManager(Session& session, QWidget* parent);

    /// The project to open; empty where none was chosen.
    Text SelectedProject;

    QTreeWidget* ListViewProjects = nullptr;
    QPushButton* cmdOpenProject = nullptr;
    QPushButton* cmdAddProject = nullptr;
    QPushButton* cmdDeleteProject = nullptr;
    QPushButton* cmdMoreInfo = nullptr;

protected:
    bool MayClose() override;

private:
    void MakeList();
    void MakeKeys();
    void ShowRow(const ListedProject& project);
    void EnableButtons();
    /// Null where no row is selected.
    QTreeWidgetItem* SelectedRow() const;

    void OpenSelected();
    void AddOpenProject();
    void DeleteSelected();
    void ShowMoreInfo();

    Session& session_;
    ProjectList read_;
    // What the list shows, in its stored order, which sorting by a column leaves alone.
    std::vector<ListedProject> projects_;
};

/// Shows the project manager, and opens the project that was chosen in it after the usual
/// question.
void OpenProjectManager(Session& session, MainWindow& window, QWidget* parent);

} // namespace quillon
