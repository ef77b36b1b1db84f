#include "importers/forms/DlgImportFolder.h"

#include "helpers/windows_path.h"
#include "ui/controls/PathLabel.h"
#include "ui/qt_text.h"

#include <QtWidgets>

namespace quillon {

namespace {

constexpr int kLinesInView = 5;

} // namespace

DlgImportFolder::DlgImportFolder(const ImportContext& context, QWidget* parent)
    : ImportForm("DlgImportFolder", "Importera programkatalog", context,
                 context.session.LastImportFolder, parent)
{
    Named(NAMED(cbProgram), new QComboBox);
    connect(cbProgram, &QComboBox::activated, this, [this] { ShowFindings(); });
    Named(NAMED(ListOfFindings), new QListWidget);
    ListOfFindings->setMinimumHeight(kLinesInView * ListOfFindings->fontMetrics().lineSpacing());
    Explained(cbProgram,
              "Programmet som mottagaren startar. Det får ikonen, och dess version fyller "
              "projektets versionsinformation.");
    Explained(
        ListOfFindings,
        "Vad programmet behöver: processor, .NET-version och de bibliotek som varken finns i "
        "katalogen eller är en del av Windows. De sista måste läggas in manuellt eller finnas hos "
        "mottagaren.");
    setWhatsThis("Adderar alla filer i en katalog där ett program är byggt eller publicerat, "
                 "med vilket verktyg som helst.");
    Arrange(VBox({
        Fields(
            {{"Katalog:",
              PathRow(
                  NAMED(sFolder), cmdSelectFolder,
                  {"cmdSelectFolder", "Välj &katalog...",
                   "Katalogen som programmet är byggt eller publicerat i. Alla filer i den och "
                   "dess underkataloger adderas, även typsnitt, till samma plats under programmets "
                   "destinationskatalog.",
                   [this] { SelectFolder(); }})},
             {"&Program:", cbProgram}}),
        Growing(Above("I&nnehåll och vad som saknas:", ListOfFindings)),
        MakeOptions(),
        Progress(),
        Buttons(),
    }));
    ShowFolder();
    cmdSelectFolder->setFocus();
}

Piece DlgImportFolder::MakeOptions()
{
    const Piece options = HBox(
        {Growing(VBox(
             {Choice01(NAMED(cVersionData), "Hämta &versionsinformation",
                       "Fyller projektets versionsinformation med den som programmet innehåller. "
                       "Det som programmet inte talar om behåller sitt värde."),
              Choice01(NAMED(cTestNETFramework), "Testa .NET &Framework",
                       "Låter installationen testa att .NET Framework finns, när programmet "
                       "behöver det.")})),
         Growing(VBox(
             {Choice01(
                  NAMED(cSkipBuildFiles), "&Utelämna byggets filer",
                  "Lägger inte in felsökningssymboler, länkbibliotek och liknande: .pdb, .lib, "
                  ".obj, .exp, .ilk, .vshost.exe."),
              Choice01(NAMED(cAddIcon), "Lägg till ik&on för programmet",
                       "Frågar efter ikonens uppgifter när importen är klar.")}))});
    for (QCheckBox* box : {cVersionData, cTestNETFramework, cSkipBuildFiles, cAddIcon})
        box->setChecked(true);
    return options;
}

void DlgImportFolder::SelectFolder()
{
    const Session& session = Context().session;
    const auto folder =
        session.ask.SelectDir("Välj katalogen där programmet är byggt eller publicerat.",
                              LastFolder().empty() ? session.ProjectsFolder : LastFolder());
    if (!folder)
        return;
    LastFolder() = *folder;
    RunStoppable([&] {
        folder_ = ReadProgramFolder(session.host.files, *folder,
                                    [this](const Text& file) { return ShowStep("Läser " + file); });
    });
    ShowFolder();
}

void DlgImportFolder::ShowFolder()
{
    sFolder->ShowPath(ToQt(folder_.folder));
    cbProgram->clear();
    for (const std::size_t place : folder_.programs)
        cbProgram->addItem(ToQt(folder_.files[place].RelativePath()));
    cbProgram->setEnabled(cbProgram->count() > 1);
    ShowFindings();
}

void DlgImportFolder::ShowFindings()
{
    ListOfFindings->clear();
    if (!folder_.damage.empty())
        ListOfFindings->addItem(ToQt(folder_.damage));
    findings_ = {};
    const int row = cbProgram->currentIndex();
    if (row >= 0) {
        const FolderFile& program = folder_.files[folder_.programs[static_cast<std::size_t>(row)]];
        findings_ = FindingsOf(Context().session.host.files, folder_, program, Data());
        for (const Text& line : FindingsText(findings_))
            ListOfFindings->addItem(ToQt(line));
    }
    cTestNETFramework->setEnabled(CanTestFor(findings_.dotNet));
}

ImportResult DlgImportFolder::Import(const ImportWork& work)
{
    if (!HasProgram(folder_, work.list.ask))
        return {.end = ImportEnd::Refused};
    const auto row = static_cast<std::size_t>(cbProgram->currentIndex());
    return ImportProgramFolder(work, folder_, folder_.programs[row], findings_,
                               {.cVersionData = cVersionData->isChecked(),
                                .cSkipBuildFiles = cSkipBuildFiles->isChecked(),
                                .cTestNETFramework = cTestNETFramework->isChecked(),
                                .cAddIcon = cAddIcon->isChecked()});
}

void ShowImportFolder(const ImportContext& context, QWidget* parent)
{
    DlgImportFolder form(context, parent);
    RunImportForm(form, context.window);
}

} // namespace quillon
