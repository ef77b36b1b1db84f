// What the dialogs for a line of the registry list share: the key, and what helps to write it.
#pragma once

#include "actions/registry_list.h"
#include "ui/kit/Form.h"

namespace quillon {

class RegistryKeyForm : public Form {
public:
    // The chosen line, valid once OK was pressed.
    Text Line;

    QComboBox* ComboHKEY = nullptr;
    QLineEdit* tSubKey = nullptr;

protected:
    RegistryKeyForm(const char* name, const Text& title, Ask& ask, QWidget* parent);

    /// The first rows of the dialogs.
    Piece KeyRows();
    Text Root() const;
    Text SubKey() const;
    bool MayClose() override;

    Ask& ask_;

private:
    void ChooseRoot();
    void LeaveSubKey();
};

/// The line that takes a key or a value away.
class RemoveRegKeyForm : public RegistryKeyForm {
public:
    QLineEdit* tValue = nullptr;

protected:
    RemoveRegKeyForm(const char* name, const Text& title, RegistryRemoval when, Ask& ask,
                     QWidget* parent);

    void Store() override;

private:
    RegistryRemoval when_;
};

} // namespace quillon
