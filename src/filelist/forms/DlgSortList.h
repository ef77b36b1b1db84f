// The choice of what the file list is sorted by.
#pragma once

#include "project/records.h"
#include "ui/kit/Form.h"

#include <vector>

namespace quillon {

class DlgSortList : public Form {
public:
    DlgSortList(const Project& project, QWidget* parent);

    // The chosen column, valid once OK was pressed.
    Column Key = Filename;
    bool Accepted() const { return OK; }

protected:
    void Store() override;

private:
    QRadioButton* MakeOption(std::size_t number, const Project& project);

    std::vector<QRadioButton*> options_; // in the order of kSortChoices
};

} // namespace quillon
