// The variables with their values here: a preview, or a list to pick one from.
#pragma once

#include "ui/kit/Form.h"

#include <optional>

class QTreeWidget;

namespace quillon {

class DlgVariables : public Form {
public:
    enum class Use { Preview, Picker };
    DlgVariables(Session& session, Use use, QWidget* parent);

    // After OK; empty where no row was chosen.
    Text Variable;

    QTreeWidget* ListViewVariables = nullptr;
    QPushButton* cmdChangeVariables = nullptr;

protected:
    void Store() override;

private:
    void MakeList();
    void Fill();
    void ChangeVariables();

    Session& session_;
};

void ShowVariables(Session& session, QWidget* parent);

/// Nothing where the user cancelled or chose no row.
std::optional<Text> ChooseVariable(Session& session, QWidget* parent);

} // namespace quillon
