// What belongs to a component beside its name and folder.
#pragma once

#include "project/records.h"
#include "ui/kit/Form.h"

class QLabel;

namespace quillon {

class DlgCompMoreData : public EditorForm {
public:
    /// `component` is its index, 0 to 8.
    DlgCompMoreData(std::size_t component, Session& session, QWidget* parent);

    bool Accepted() const { return OK; }

    QLabel* sComponent = nullptr;
    QPlainTextEdit* tCompText = nullptr;
    QCheckBox* cCompDefault = nullptr;
    QCheckBox* cCanChangeDestDir = nullptr;
    QCheckBox* cMustAlwaysBeInstalled = nullptr;
    QPushButton* CmdAdvanced = nullptr;

protected:
    bool MayClose() override;
    void Store() override;

private:
    void TickDefaultWhereItMustBe();

    section::FileComponent& component_;
    // The advanced values as edited here; they become the component's on OK alone.
    section::FileComponent advanced_;
};

void ShowCompMoreData(Session& session, std::size_t component, QWidget* parent);

} // namespace quillon
