#include "importers/forms/DlgCompareLstFile.h"

#include "importers/lst_file.h"
#include "platform/failure_text.h"
#include "shell/help.h"
#include "shell/session.h"
#include "ui/controls/PathLabel.h"
#include "ui/qt_text.h"

#include <QtWidgets>

namespace quillon {

namespace {

constexpr int kPathCharacters = 60;

} // namespace

DlgCompareLstFile::DlgCompareLstFile(Session& session, QWidget* parent)
    : Form("DlgCompareLstFile", "Jämför fillista med LST-fil", parent), session_(session)
{
    Named(sLSTFileName, "sLSTFileName", new PathLabel);
    Named(ListOfFiles, "ListOfFiles", new QListWidget);
    Button(NAMED(CmdSelectLstFile), "&Välj LST-fil...", [this] { SelectLstFile(); });
    Button(NAMED(CmdHelp), "&Hjälp", [this] { ShowHelp(session_, {CommandId::CompareLstFile}); });
    Button(NAMED(cmdClose), "Stäng", [this] { reject(); });
    Arrange(VBox({
        Note("Välj den LST-fil som Package & Deployment Wizard har skapat för ditt projekt."),
        Frame("LST-fil", {HBox({Growing(sLSTFileName), CmdSelectLstFile})}),
        Growing(Above("&Filer som saknas i fillistan:", MinWidth(kPathCharacters, ListOfFiles))),
        HBox({CmdHelp, Stretch(), cmdClose}),
    }));
    CmdSelectLstFile->setDefault(true);
    CmdSelectLstFile->setFocus();
}

void DlgCompareLstFile::SelectLstFile()
{
    const auto lstFile = session_.ask.OpenFile({.title = "Välj Visual Basic LST-fil",
                                                .fileName = "*.lst",
                                                .filter = "Visual Basic LST-filer (*.lst)|*.lst"});
    if (lstFile)
        Compare(*lstFile);
}

void DlgCompareLstFile::Compare(const Text& lstFile)
{
    sLSTFileName->ShowPath(ToQt(lstFile));
    ListOfFiles->clear();
    // Nothing may be thrown through Qt.
    try {
        if (const Text fault = TooLargeLstText(session_.host.files, lstFile); !fault.empty())
            return session_.ask.Critical("Fel", fault);
        const auto missing =
            MissingFromFileList(session_.host.files, lstFile, session_.project.Files.rows);
        if (!missing)
            session_.ask.Inform("Inga filer hittades",
                                "Hittade inga filer i LST-filen '" + lstFile +
                                    "'. Kontrollera att du valt rätt LST-fil.");
        for (const Text& name : missing.value_or(std::vector<Text>()))
            ListOfFiles->addItem(ToQt(name));
    } catch (const RunError& error) {
        session_.ask.Critical("Fel", FailureText(error, lstFile));
    }
}

void ShowCompareLstFile(Session& session, QWidget* parent)
{
    DlgCompareLstFile(session, parent).ShowModal();
}

} // namespace quillon
