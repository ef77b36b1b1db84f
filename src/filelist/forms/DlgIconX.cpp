#include "filelist/forms/DlgIconX.h"

#include "shell/help.h"
#include "shell/session.h"
#include "ui/controls/PictureView.h"
#include "ui/controls/picture.h"
#include "ui/qt_text.h"

#include <QtWidgets>

namespace quillon {

namespace {

constexpr int kFieldCharacters = 50;

} // namespace

DlgIconX::DlgIconX(FileListRow& row, Session& session, QWidget* parent)
    : IconForm("DlgIconX", row, session, parent)
{
    Named(NAMED(IconPicture), new PictureView, row[Filename]);
    Field(NAMED(tCommandLine), icon_.parameters);
    TickAddIconOnTyping(tCommandLine);
    // A question of this dialog sends its reader to the help by this key.
    connect(new QShortcut(Qt::Key_F1, this), &QShortcut::activated, this,
            [this] { ShowHelp(session_, {CommandId::Icon}); });
    Arrange(VBox({
        Growing(IconPicture),
        Fields({
            {"&Beskrivning:", MinWidth(kFieldCharacters, tDescription)},
            {"&Kommandorad:", tCommandLine},
            {"&Starta i:", tWorkDir},
        }),
        Ending(),
    }));
    tDescription->setFocus();
    ShowIcon();
}

void DlgIconX::ShowIcon()
{
    const FileSystem& files = session_.host.files;
    if (!files.FileExists(row_[Source])) {
        session_.ask.Critical("Fel", "Ikonen existerar inte på hårddisken vid angiven källsökväg!");
        return;
    }
    const auto picture = LoadIconPicture(files, row_[Source]);
    if (picture)
        IconPicture->ShowPicture(*picture);
    else
        IconPicture->ShowNote("Filen innehåller ingen ikon som kan visas.");
}

bool DlgIconX::MayClose()
{
    Text commandLine = FromQt(tCommandLine->text());
    commandLine.erase(commandLine.find_last_not_of(' ') + 1);
    tCommandLine->setText(ToQt(commandLine));
    if (!IconForm::MayClose() || !CanStore(tCommandLine))
        return false;
    if (CheckCommandLine(commandLine, session_.ask))
        return true;
    tCommandLine->setFocus();
    return false;
}

void DlgIconX::Store()
{
    IconForm::Store();
    SetIconOfIconFile(row_, icon_);
}

} // namespace quillon
