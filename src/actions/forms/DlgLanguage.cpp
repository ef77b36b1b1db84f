#include "actions/forms/DlgLanguage.h"

#include "shell/session.h"
#include "ui/qt_text.h"

#include <QtWidgets>

namespace quillon {

namespace {

constexpr int kUsualNameLength = 30;

} // namespace

DlgLanguage::DlgLanguage(Session& session, QWidget* parent)
    : EditorForm("DlgLanguage", "Språk", session, parent)
{
    Named(NAMED(FileListX), new QListWidget);
    FileListX->setUniformItemSizes(true);
    Button(NAMED(cmdAddLanguage), "&Lägg till språk...", [this] { AddLanguage(); });
    Button(NAMED(cmdEditLanguage), "&Redigera text...",
           [this] { EditLanguage(session_.host, Folders(), SelectedFile(), session_.ask); });
    connect(FileListX, &QListWidget::itemSelectionChanged, this,
            [this] { cmdEditLanguage->setEnabled(!SelectedFile().empty()); });
    ShowFiles(session.project.Language.LanguageFile);
    Arrange(VBox({
        Growing(Above("&Språkfiler:", HBox({
                                          Growing(MinWidth(kUsualNameLength, FileListX)),
                                          VBox({cmdAddLanguage, cmdEditLanguage, Stretch()}),
                                      }))),
        OkCancel(),
    }));
    FileListX->setFocus();
}

LanguageFolders DlgLanguage::Folders() const
{
    return {session_.options.ToolFolder, session_.options.OwnFolder};
}

void DlgLanguage::ShowFiles(const Text& selected)
{
    FileListX->clear();
    for (const Text& name : LanguageFiles(session_.host.files, Folders(), session_.ask)) {
        auto* entry = new QListWidgetItem(ToQt(name), FileListX);
        if (EqualIgnoreCase(name, selected))
            FileListX->setCurrentItem(entry);
    }
    cmdEditLanguage->setEnabled(!SelectedFile().empty());
}

Text DlgLanguage::SelectedFile() const
{
    const QList<QListWidgetItem*> selected = FileListX->selectedItems();
    return selected.isEmpty() ? Text() : FromQt(selected.front()->text());
}

void DlgLanguage::AddLanguage()
{
    const auto added = quillon::AddLanguage(session_.host, Folders(), session_.ask);
    if (!added)
        return;
    const Text before = SelectedFile();
    ShowFiles(*added);
    // A file with another extension is not in the list.
    if (SelectedFile().empty())
        ShowFiles(before);
}

bool DlgLanguage::MayClose()
{
    if (SelectedFile().empty() || CanBeLanguageFile(SelectedFile(), session_.ask))
        return true;
    FileListX->setFocus();
    return false;
}

void DlgLanguage::Store()
{
    EditorForm::Store();
    session_.project.Language.LanguageFile = UpperCase(SelectedFile());
}

void ShowLanguage(Session& session, QWidget* parent)
{
    DlgLanguage(session, parent).ShowModal();
}

} // namespace quillon
