// How the setup copies a file: a box for each letter of the column "Inst".
#pragma once

#include "filelist/options/copy_options.h"
#include "ui/kit/Form.h"

namespace quillon {

class DlgCopyOptions : public Form {
public:
    DlgCopyOptions(const CopyOptionTicks& ticks, QWidget* parent);

    // The chosen letters, valid once OK was pressed.
    Text Letters;

protected:
    void Store() override;

private:
    QCheckBox* BoxOf(char letter) const;
    QCheckBox* MakeBox(std::size_t number, bool isTicked);

    std::array<QCheckBox*, kCopyOptionBoxes> boxes_{}; // in the order of kCopyOptions
};

} // namespace quillon
