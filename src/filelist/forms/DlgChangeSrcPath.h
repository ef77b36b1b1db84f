// The path that a row's file is taken from.
#pragma once

#include "ui/kit/Form.h"

namespace quillon {

class DlgChangeSrcPath : public EditorForm {
public:
    DlgChangeSrcPath(const Text& source, Session& session, QWidget* parent);

    // The chosen source, valid once OK was pressed.
    Text Source;
    bool Accepted() const { return OK; }

    QLineEdit* tFileSrcDir = nullptr;

protected:
    bool MayClose() override;
};

} // namespace quillon
