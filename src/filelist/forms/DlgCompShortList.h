// The choice of the component that new files belong to.
#pragma once

#include "ui/kit/Form.h"

class QListWidget;

namespace quillon {

class DlgCompShortList : public Form {
public:
    DlgCompShortList(const std::vector<Text>& entries, QWidget* parent);

    // The text of the chosen entry, after OK.
    Text Entry;
    bool Accepted() const { return OK; }

    QListWidget* lbCompList = nullptr;

protected:
    bool MayClose() override;
};

} // namespace quillon
