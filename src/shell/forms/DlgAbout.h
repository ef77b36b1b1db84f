// What the program is and which version of it runs.
#pragma once

#include "ui/kit/Form.h"

class QLabel;

namespace quillon {

class DlgAbout : public Form {
public:
    explicit DlgAbout(QWidget* parent = nullptr);

    QLabel* lProductName = nullptr;
    QLabel* lVersion = nullptr;
};

void ShowAbout(QWidget* parent);

} // namespace quillon
