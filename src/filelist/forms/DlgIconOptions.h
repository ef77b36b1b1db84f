// Where the icon of a file is beside the program group.
#pragma once

#include "filelist/options/icon_row.h"
#include "ui/kit/Form.h"

namespace quillon {

class DlgIconOptions : public Form {
public:
    DlgIconOptions(const IconPlaces& places, QWidget* parent);

    // The chosen places, valid once OK was pressed.
    IconPlaces Places;

    QCheckBox* cIconOnDesktop = nullptr;
    QCheckBox* cIconOnStartMenu = nullptr;
    QCheckBox* cIconOnProgramMenu = nullptr;

protected:
    void Store() override;
};

} // namespace quillon
