#include "shell/forms/DlgCreateFoldersAtMyDoc.h"

#include "helpers/product.h"
#include "shell/projects_folder.h"
#include "shell/start.h"
#include "ui/qt_text.h"

#include <QtWidgets>

namespace quillon {

DlgCreateFoldersAtMyDoc::DlgCreateFoldersAtMyDoc(Session& session, QWidget* parent)
    : Form("DlgCreateFoldersAtMyDoc", Text(kProductName), parent), session_(session)
{
    Named(NAMED(lFolder), new QLabel(ToQt(OfferedProjectsFolder(session.host.machine))));
    lFolder->setTextFormat(Qt::PlainText);
    lFolder->setTextInteractionFlags(Qt::TextSelectableByMouse);
    QFont bold = lFolder->font();
    bold.setBold(true);
    lFolder->setFont(bold);

    Button(NAMED(CmdYes), "&Ja", [this] {
        AnswerFolderOffer(session_, true);
        accept();
    });
    Button(NAMED(CmdNo), "&Nej", [this] { reject(); });
    CmdYes->setDefault(true);

    Arrange(Down({
        Note("Vill du skapa en katalog för dina projekt? Då öppnas dialogrutorna för att öppna och "
             "spara projekt i den."),
        lFolder,
        Stretch(),
        Across({Stretch(), CmdYes, CmdNo}),
    }));
}

void DlgCreateFoldersAtMyDoc::reject()
{
    AnswerFolderOffer(session_, false);
    Form::reject();
}

void OfferProjectsFolder(Session& session, QWidget* parent)
{
    DlgCreateFoldersAtMyDoc(session, parent).ShowModal();
}

} // namespace quillon
