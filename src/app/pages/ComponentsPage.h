// The tab "Komponenter": the nine optional parts of the installation.
#pragma once

#include "shell/session.h"
#include "ui/kit/Page.h"

#include <array>

class QCheckBox;
class QGridLayout;
class QLabel;
class QLineEdit;

namespace quillon {

class ComponentsPage : public Page {
public:
    /// `showComponentColumns` brings the file list's columns in line with the components in use.
    ComponentsPage(Session& session, std::function<void()> showComponentColumns);

    void ShowSession() override;

protected:
    void changeEvent(QEvent* event) override;

private:
    // The controls of one component; their names end in its number.
    struct Row {
        QCheckBox* cComp = nullptr;
        QLineEdit* tCompName = nullptr;
        QLabel* sCompDir = nullptr;
        QLineEdit* tCompDir = nullptr;
        QPushButton* cmdCompData = nullptr;
    };

    void MakeRow(std::size_t component, QGridLayout& grid);
    void Tick(std::size_t component, bool ticked);
    void ShowEnabled(std::size_t component);
    void ShowBackgrounds();

    Session& session_;
    std::function<void()> showComponentColumns_;
    std::array<Row, kComponentCount> rows_;
};

} // namespace quillon
