#include "shell/forms/DlgEditorOptions.h"

#include "helpers/windows_path.h"
#include "shell/session.h"
#include "ui/qt_text.h"

#include <QtWidgets>
#include <array>

namespace quillon {

namespace {

constexpr std::array kBarsStyles = [] {
    std::array<const char*, 4> captions{};
    const auto set = [&](BarsStyle style, const char* caption) {
        captions[static_cast<std::size_t>(style)] = caption;
    };
    set(BarsStyle::WindowsXP, "Windows XP");
    set(BarsStyle::Office2000, "Office 2000");
    set(BarsStyle::OfficeXP, "Office XP");
    set(BarsStyle::Office2003, "Office 2003");
    return captions;
}();

} // namespace

DlgEditorOptions::DlgEditorOptions(Session& session, QWidget* parent)
    : Form("DlgEditorOptions", "Alternativ", parent)
{
    Named(NAMED(tabOptions), new QTabWidget, "Alternativ");
    tabOptions->addTab(FileListTab(session), "Fillista");
    tabOptions->addTab(WindowTab(session), "Fönster");
    tabOptions->addTab(CreateTab(session), "Skapa");
    Arrange(VBox({Growing(tabOptions), OkCancel()}));
}

QWidget* DlgEditorOptions::FileListTab(Session& session)
{
    ListOptions& options = session.Settings.ListOptions;
    return Group(VBox({
        Check(NAMED(cShowAlsoSourcePathInFileList), "Visa även &källkatalog i fillistan",
              options.ShowAlsoSourcePathInFileList),
        Check(NAMED(cFileListShowGridLines), "Visa &rutnät i fillistan",
              options.ShowGridLinesInFileList),
        Check(NAMED(cOldStyleAddDialogBox), "Använd den äldre &dialogrutan när filer adderas",
              options.OldStyleAddDialogBox),
        Stretch(),
    }));
}

QWidget* DlgEditorOptions::WindowTab(Session& session)
{
    HideTabs& hide = session.Settings.HideTabs;
    return Group(VBox({
        Frame("Dölj flikar",
              {
                  Check(NAMED(cHideRegistry), "&Registry", hide.HideTabRegistry),
                  Check(NAMED(cHideINIFiles), "&INI-filer", hide.HideTabINIFiles),
                  Check(NAMED(cHideComponents), "&Komponenter", hide.HideTabComponents),
              }),
        Fields({{"&Utseende på menyer och verktygsfält:",
                 Choice(NAMED(cbCBarsStyle), kBarsStyles,
                        session.Settings.WindowOptions.CBarsCurrentStyle)}}),
        Stretch(),
    }));
}

QWidget* DlgEditorOptions::CreateTab(Session& session)
{
    CreateOptions& options = session.options;
    QWidget* tab = Group(VBox({
        Check(NAMED(cUpdateSetupDateTime), "Ge setup-programmet dagens &datum och tid",
              options.UpdateSetupExeDateTime),
        Check(NAMED(cPlaceCompressedFilesInFolderSetupFiles),
              "Lägg &komprimerade filer i katalogen \\SetupFiles",
              options.PlaceCompressedFilesInFolderSetupFiles),
        Check(NAMED(cCreateFolderStructureInFolderSetupFiles),
              "Skapa katalog&struktur i katalogen \\SetupFiles",
              options.CreateFolderStructureInFolderSetupFiles),
        Frame("Gäller tills programmet avslutas",
              {
                  Check(NAMED(cUseTempZipPath), "Komprimera i en &egen arbetskatalog",
                        options.UseTempZipPath),
                  Check(NAMED(cCreateZipLogFile), "Skriv en &loggfil över komprimeringen",
                        options.CreateZipLogFile),
              }),
        Stretch(),
    }));
    cUseTempZipPath->setToolTip(ToQt(PrettyPath(options.TempZipPath)));
    connect(cPlaceCompressedFilesInFolderSetupFiles, &QCheckBox::toggled, this,
            [this] { TurnOnOffSetupFilesOpt2(); });
    TurnOnOffSetupFilesOpt2();
    return tab;
}

void DlgEditorOptions::TurnOnOffSetupFilesOpt2()
{
    cCreateFolderStructureInFolderSetupFiles->setEnabled(
        cPlaceCompressedFilesInFolderSetupFiles->isChecked());
}

void ShowEditorOptions(Session& session, MainWindow& window, QWidget* parent)
{
    if (DlgEditorOptions(session, parent).ShowModal())
        window.ShowSettings();
}

} // namespace quillon
