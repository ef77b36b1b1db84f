#include "filelist/forms/DlgIcon.h"

#include "shell/session.h"
#include "ui/controls/PathLabel.h"
#include "ui/controls/complete_variable.h"
#include "ui/kit/typed_text.h"
#include "ui/qt_text.h"

#include <QtWidgets>

namespace quillon {

namespace {

constexpr int kFieldCharacters = 50;

} // namespace

DlgIcon::DlgIcon(FileListRow& row, Session& session, QWidget* parent)
    : IconForm("DlgIcon", row, session, parent)
{
    auto* filename = new PathLabel;
    filename->ShowPath(ToQt(row[Filename]));
    Named(sFilename, "sFilename", static_cast<QLabel*>(filename));
    Field(NAMED(tParameters), icon_.parameters);
    Field(NAMED(tIconFile), icon_.iconFile);
    MakeDocumentReader();
    TickAddIconOnTyping(tParameters);
    CompleteVariables(tIconFile, PrefixTable::IconFile);
    OnLeave(tIconFile, [this] { CheckExternalIconFile(FromQt(tIconFile->text()), session_.ask); });
    Arrange(VBox({
        Fields({
            {"Filnamn:", sFilename},
            {"&Beskrivning:", MinWidth(kFieldCharacters, tDescription)},
            {"&Parametrar:", tParameters},
            {"&Starta i:", tWorkDir},
            {"Extern &ikonfil:", tIconFile},
            {"&Dokumentläsare:", ComboDocumentReader},
        }),
        Ending(),
    }));
    tDescription->setFocus();
}

void DlgIcon::MakeDocumentReader()
{
    Named(NAMED(ComboDocumentReader), new QComboBox);
    for (const char* reader : kDocumentReaders)
        ComboDocumentReader->addItem(reader);
    // A project may name a reader that is not offered; it stays as long as nothing else is chosen.
    const QString reader = ToQt(icon_.documentReader);
    if (!reader.isEmpty() && ComboDocumentReader->findText(reader) < 0)
        ComboDocumentReader->addItem(reader);
    ComboDocumentReader->setCurrentIndex(std::max(0, ComboDocumentReader->findText(reader)));
}

bool DlgIcon::MayClose()
{
    return IconForm::MayClose() && CanStore(tParameters) && CanStore(tIconFile);
}

void DlgIcon::Store()
{
    IconForm::Store();
    icon_.documentReader = FromQt(ComboDocumentReader->currentText());
    SetIcon(row_, icon_);
}

} // namespace quillon
