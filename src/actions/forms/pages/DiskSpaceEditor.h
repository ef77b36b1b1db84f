// What the editors of the two pages for a destination share: how the page shows the disk space.
#pragma once

#include "actions/forms/pages/PageEditor.h"

namespace quillon {

class DiskSpaceEditor : public PageEditor {
public:
    QCheckBox* cShowDiskSpaceDirectly = nullptr;
    QCheckBox* cShowDiskSpaceButton = nullptr;

protected:
    using PageEditor::PageEditor;

    QWidget* DiskSpaceFrame(Flag& directly, Flag& button);
};

} // namespace quillon
