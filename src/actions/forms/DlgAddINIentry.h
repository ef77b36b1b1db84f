// A value that the setup writes to an INI file.
#pragma once

#include "platform/ask.h"
#include "ui/kit/Form.h"

namespace quillon {

class DlgAddINIentry : public Form {
public:
    /// `list` is what the entry comes after.
    DlgAddINIentry(const Text& list, Ask& ask, QWidget* parent);

    // After OK: what the entry puts at the end of the list; empty where no entry was typed.
    Text Lines;

    QLineEdit* tName = nullptr;
    QLineEdit* tValue = nullptr;
    QPushButton* cmdVariables = nullptr;

protected:
    bool MayClose() override;
    void Store() override;

private:
    Text TypedLines() const;

    const Text& list_;
    Ask& ask_;
};

} // namespace quillon
