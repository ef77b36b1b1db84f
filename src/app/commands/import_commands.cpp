#include "app/commands/import_commands.h"

#include "actions/forms/DlgTestNETFramework.h"
#include "app/MainForm.h"
#include "filelist/forms/DlgDestinationDirectory.h"
#include "filelist/forms/DlgIcon.h"
#include "filelist/forms/DlgMDADetails.h"
#include "filelist/forms/per_file_commands.h"
#include "ui/qt_text.h"

#include <QGroupBox>

namespace quillon {

namespace {

std::optional<Text> ChooseProgramDestination(Session& session,
                                             const ImportUser::ProgramQuestion& question,
                                             QWidget* parent)
{
    DlgDestinationDirectory form(question.destination, session, parent);
    form.setWindowTitle(ToQt(question.caption));
    if (auto* frame = form.findChild<QGroupBox*>())
        frame->setTitle(ToQt(question.frameCaption));
    return form.ShowModal() ? std::optional(form.Destination) : std::nullopt;
}

bool EditIcon(Session& session, FileListRow& row, const Text& title, QWidget* parent)
{
    if (IconDialogOf(row) != IconDialog::DlgIcon)
        return OpenIconDialogBox(session, row, parent);
    DlgIcon form(row, session, parent);
    form.setWindowTitle(ToQt(title));
    return form.ShowModal();
}

} // namespace

ImportContext MakeImportContext(MainForm& form)
{
    Session& session = form.GetSession();
    return {
        .session = session,
        .window = form,
        .forms = {
            .chooseProgramDestination =
                [&session](const ImportUser::ProgramQuestion& question, QWidget* parent) {
                    return ChooseProgramDestination(session, question, parent);
                },
            .editIcon =
                [&session](FileListRow& row, const Text& title, QWidget* parent) {
                    return EditIcon(session, row, title, parent);
                },
            .showMDADetails =
                [&session](QWidget* parent) { DlgMDADetails(session, parent).ShowModal(); },
            .showTestNETFramework =
                [&session](QWidget* parent) { DlgTestNETFramework(session, parent).ShowModal(); }}};
}

} // namespace quillon
