#include "shell/forms/DlgCreateFoldersAtMyDoc.h"

#include "helpers/product.h"
#include "shell/projects_folder.h"
#include "shell/start.h"
#include "ui/qt_text.h"

#include <QtWidgets>

namespace quillon {

DlgCreateFoldersAtMyDoc::DlgCreateFoldersAtMyDoc(Session& session, QWidget* parent,
                                                 const Text& hostFolder)
    : Form("DlgCreateFoldersAtMyDoc", Text(kProductName), parent), session_(session)
{
    PathInSight(NAMED(lFolder), OfferedProjectsFolder(session.host.machine));
    QFont bold = lFolder->font();
    bold.setBold(true);
    lFolder->setFont(bold);

    Button(NAMED(CmdYes), "&Ja", [this] {
        AnswerFolderOffer(session_, true);
        accept();
    });
    Button(NAMED(CmdNo), "&Nej", [this] { reject(); });
    CmdYes->setDefault(true);

    Arrange(VBox({
        Note("Vill du skapa en katalog för dina projekt? Då öppnas dialogrutorna för att öppna och "
             "spara projekt i den."),
        lFolder,
        hostFolder.empty() ? Piece(HBox({}))
                           : VBox({Note("På den här datorn är det:"),
                                   PathInSight(NAMED(lHostFolder), hostFolder)}),
        Stretch(),
        HBox({Stretch(), CmdYes, CmdNo}),
    }));
}

QLabel* DlgCreateFoldersAtMyDoc::PathInSight(QLabel*& member, const char* name, const Text& path)
{
    Named(member, name, new QLabel(ToQt(path)));
    member->setTextFormat(Qt::PlainText);
    member->setTextInteractionFlags(Qt::TextSelectableByMouse);
    return member;
}

void DlgCreateFoldersAtMyDoc::reject()
{
    AnswerFolderOffer(session_, false);
    Form::reject();
}

void OfferProjectsFolder(Session& session, const Text& hostFolder, QWidget* parent)
{
    DlgCreateFoldersAtMyDoc(session, parent, hostFolder).ShowModal();
}

} // namespace quillon
