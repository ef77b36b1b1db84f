#include "actions/forms/DlgShowDocAfter.h"

#include "actions/after_install.h"
#include "actions/forms/target_file_field.h"
#include "filelist/view/status_text.h"
#include "project/text_limits.h"
#include "shell/session.h"
#include "ui/qt_text.h"

#include <QtWidgets>

namespace quillon {

namespace {

using Document = section::ShowDocAfter;

constexpr int kFieldCharacters = 50;

} // namespace

DlgShowDocAfter::DlgShowDocAfter(Session& session, QWidget* parent)
    : EditorForm("DlgShowDocAfter", "Visa dokument efter installation", session, parent)
{
    Document& shown = session.project.ShowDocAfter;
    Field(NAMED(tDocumentFileName), shown.DocFileName, MaxTextLength(&Document::DocFileName));
    EditTargetFile(tDocumentFileName, "Dokument", session.ask);
    Check(NAMED(cShowCheckBox), "&Visa extra kryssruta i dialogrutan 'Installationen avslutad'",
          shown.ShowCheckBox);
    Field(NAMED(tCheckBoxText), shown.CheckBoxText, MaxTextLength(&Document::CheckBoxText));
    Check(NAMED(cUseInternalRTFBox), "Visa &RTF-dokument direkt i installationsprogrammet",
          shown.UseInternalRTFBox);
    Field(NAMED(tInternalRTFBoxDlgTitle), shown.InternalRTFBoxDlgTitle,
          MaxTextLength(&Document::InternalRTFBoxDlgTitle));
    // As with OK and Cancel, a press must not leave the document's field: the box of its check
    // would take the release, and nothing be ticked.
    for (QCheckBox* box : {cShowCheckBox, cUseInternalRTFBox})
        box->setFocusPolicy(Qt::TabFocus);
    Arrange(VBox({
        Above("Visa följande dokument efter installationen",
              MinWidth(kFieldCharacters, tDocumentFileName)),
        cShowCheckBox,
        Above("&Text vid kryssruta:", tCheckBoxText),
        cUseInternalRTFBox,
        Above("Titel för dialogrut&a:", tInternalRTFBoxDlgTitle),
        Stretch(),
        OkCancel(),
    }));
}

// The setup's own window shows formatted text and nothing else.
bool DlgShowDocAfter::MayClose()
{
    if (!IsRtfDocument(FromQt(tDocumentFileName->text())))
        cUseInternalRTFBox->setChecked(false);
    return true;
}

void ShowDocAfter(Session& session, QWidget* parent)
{
    DlgShowDocAfter(session, parent).ShowModal();
}

void ShowDocOfRowAfter(Session& session, const MainWindow& window, QWidget* parent)
{
    const FileList& files = session.project.Files;
    if (!HasRowsForCommand(files, CommandNeeds::SelectedRow, session.ask))
        return;
    const std::vector<std::size_t> selected = window.SelectedRows();
    if (selected.empty())
        return;
    const auto document = DocumentOfRow(files.rows[selected.front()], session.ask);
    if (!document)
        return;
    DlgShowDocAfter form(session, parent);
    form.tDocumentFileName->setText(ToQt(*document));
    form.ShowModal();
}

} // namespace quillon
