// The choice of a destination for files: the user's own folder, with variables, or one of the
// system's.
#pragma once

#include "platform/ask.h"
#include "shell/session.h"
#include "ui/kit/Form.h"

namespace quillon {

class DlgDestinationDirectory : public Form {
public:
    DlgDestinationDirectory(const DestinationQuestion& question, Session& session, QWidget* parent);

    // The chosen destination, valid once OK was pressed.
    Text Destination;
    bool Accepted() const { return OK; }

    QRadioButton* oUserDirectory = nullptr;
    QRadioButton* oSystemDirectory = nullptr;
    QRadioButton* oWindowsDirectory = nullptr;
    QComboBox* ctDirectory = nullptr;
    QPushButton* CmdVars = nullptr;

protected:
    bool MayClose() override;
    void Store() override;
    void showEvent(QShowEvent* event) override;

private:
    void MakeOptions(DestinationQuestion::Place place);
    QRadioButton& OptionFor(DestinationQuestion::Place place);
    void MakeDirectory(const Text& folder);
    void EnableDirectory();
    void PickVariable();
    DestinationQuestion::Place Place() const;

    Session& session_;
};

} // namespace quillon
