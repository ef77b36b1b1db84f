#include "app/ask_forms.h"

#include "filelist/forms/DlgVariables.h"
#include "filelist/forms/list_commands.h"
#include "ui/dialogs/QtAsk.h"

namespace quillon {

void ConnectFileListForms(QtAsk& ask, Session& session)
{
    ask.onChooseDestination = [&session](const DestinationQuestion& question, QWidget* parent) {
        return ChooseDestination(session, question, parent);
    };
    ask.onChooseComponent = [](const std::vector<Text>& entries, QWidget* parent) {
        return ChooseComponent(entries, parent);
    };
    ask.onChooseVariable = [&session](QWidget* parent) { return ChooseVariable(session, parent); };
}

} // namespace quillon
