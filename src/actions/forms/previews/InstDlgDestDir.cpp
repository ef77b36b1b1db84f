#include "actions/forms/previews/InstDlgDestDir.h"

#include "actions/forms/pages/DiskSpacePart.h"
#include "actions/preview_page.h"
#include "formats/page_layout.h"
#include "project/text_limits.h"
#include "shell/session.h"
#include "ui/controls/RunningText.h"
#include "ui/kit/typed_text.h"
#include "ui/qt_text.h"

#include <QtWidgets>

namespace quillon {

InstDlgDestDir::InstDlgDestDir(const DiskSpacePreview& page, Session& session, QWidget* parent)
    : InstDlg("InstDlgDestDir", &section::DialogBoxes::DestinationDlg, "Destinationsmapp", {},
              session, parent)
{
    Paragraph(NAMED(sText),
              "Programmet installeras i mappen nedan. Välj en annan mapp om du vill ha det "
              "någon annanstans.",
              "Text", PageLayout::kMaxTextHeight);
    Named(NAMED(tDestDir), new QLineEdit(ToQt(PreviewMainFolder(session.project, session.host))));
    LimitTyping(tDestDir, MaxTextLength(&section::InstallDirectories::DestinationDirectory));
    tDestDir->setCursorPosition(0);
    Button(NAMED(cmdBrowse), "B&läddra...", [this] { Browse(); });
    space = new DiskSpacePart(page, session);
    OnLeave(tDestDir, [this] { ShowSpace(); });
    ArrangePage(VBox({
        sText,
        Above("&Mapp:", HBox({tDestDir, cmdBrowse})),
        Stretch(),
        space,
    }));
    ShowSpace();
}

void InstDlgDestDir::Browse()
{
    const auto folder =
        session_.ask.SelectDir("Välj mapp för installationen.", FromQt(tDestDir->text()));
    if (!folder || folder->empty())
        return;
    tDestDir->setText(ToQt(*folder));
    ShowSpace();
}

void InstDlgDestDir::ShowSpace()
{
    space->ShowFor(FromQt(tDestDir->text()));
}

void ShowInstDlgDestDir(Session& session, const DiskSpacePreview& page, QWidget* parent)
{
    InstDlgDestDir(page, session, parent).ShowModal();
}

} // namespace quillon
