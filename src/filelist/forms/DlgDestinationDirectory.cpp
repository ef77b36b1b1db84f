#include "filelist/forms/DlgDestinationDirectory.h"

#include "filelist/adding/destination_choice.h"
#include "filelist/forms/DlgDestDirVars.h"
#include "helpers/windows_path.h"
#include "ui/controls/complete_variable.h"
#include "ui/kit/typed_text.h"
#include "ui/qt_text.h"

#include <QtWidgets>

namespace quillon {

DlgDestinationDirectory::DlgDestinationDirectory(const DestinationQuestion& question,
                                                 Session& session, QWidget* parent)
    : Form("DlgDestinationDirectory", "Destinationskatalog", parent), session_(session)
{
    MakeOptions(question.place);
    MakeDirectory(question.folder);
    Button(NAMED(CmdVars), "Va&riabler...", [this] { PickVariable(); });
    Arrange(VBox({
        Note("Välj den katalog på mottagarens hårddisk som filerna ska kopieras till."),
        Frame("Destinationskatalog", {oUserDirectory, HBox({Growing(ctDirectory), CmdVars}),
                                      oSystemDirectory, oWindowsDirectory}),
        Stretch(),
        OkCancel(),
    }));
    EnableDirectory();
}

void DlgDestinationDirectory::MakeOptions(DestinationQuestion::Place place)
{
    Named(NAMED(oUserDirectory), new QRadioButton("&Egen katalog:"));
    Named(NAMED(oSystemDirectory), new QRadioButton("Windows &systemkatalog (%SYSDIR)"));
    Named(NAMED(oWindowsDirectory), new QRadioButton("&Windowskatalogen (%WINDIR)"));
    for (QRadioButton* option : {oUserDirectory, oSystemDirectory, oWindowsDirectory})
        connect(option, &QRadioButton::toggled, this, [this] { EnableDirectory(); });
    OptionFor(place).setChecked(true);
}

QRadioButton& DlgDestinationDirectory::OptionFor(DestinationQuestion::Place place)
{
    switch (place) {
    case DestinationQuestion::Place::System:
        return *oSystemDirectory;
    case DestinationQuestion::Place::Windows:
        return *oWindowsDirectory;
    default:
        return *oUserDirectory;
    }
}

void DlgDestinationDirectory::MakeDirectory(const Text& folder)
{
    Named(NAMED(ctDirectory), new QComboBox, "Egen katalog");
    ctDirectory->setEditable(true);
    ctDirectory->setInsertPolicy(QComboBox::NoInsert);
    // Qt's own completion ignores case and would finish a folder that is still being typed.
    ctDirectory->setCompleter(nullptr);
    ctDirectory->setMinimumContentsLength(40);
    for (const Text& recent : RecentDestinationDirectories(session_.state))
        ctDirectory->addItem(ToQt(recent));
    ctDirectory->setEditText(ToQt(folder));
    LimitTyping(ctDirectory->lineEdit(), static_cast<int>(kMaxPathLength));
    CompleteVariables(ctDirectory->lineEdit(), PrefixTable::Folder);
}

void DlgDestinationDirectory::EnableDirectory()
{
    if (ctDirectory)
        ctDirectory->setEnabled(oUserDirectory->isChecked());
}

void DlgDestinationDirectory::showEvent(QShowEvent* event)
{
    Form::showEvent(event);
    if (oUserDirectory->isChecked()) {
        ctDirectory->setFocus();
        ctDirectory->lineEdit()->selectAll();
    }
}

void DlgDestinationDirectory::PickVariable()
{
    DlgDestDirVars form(this);
    if (!form.ShowModal())
        return;
    oUserDirectory->setChecked(true);
    ctDirectory->setEditText(ToQt(form.Variable));
    ctDirectory->setFocus();
    ctDirectory->lineEdit()->end(false);
}

DestinationQuestion::Place DlgDestinationDirectory::Place() const
{
    if (oSystemDirectory->isChecked())
        return DestinationQuestion::Place::System;
    if (oWindowsDirectory->isChecked())
        return DestinationQuestion::Place::Windows;
    return DestinationQuestion::Place::User;
}

bool DlgDestinationDirectory::MayClose()
{
    const auto destination =
        MakeDestination(Place(), FromQt(ctDirectory->currentText()), session_.ask);
    if (destination)
        Destination = *destination;
    else
        ctDirectory->setFocus();
    return destination.has_value();
}

void DlgDestinationDirectory::Store()
{
    if (Place() == DestinationQuestion::Place::User)
        RememberDestination(session_.state, Destination);
}

} // namespace quillon
