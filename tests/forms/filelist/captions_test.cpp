// Captions of the file list's dialogs, letter for letter: users and their manuals know them.
#include "filelist/forms/DlgChVariables.h"
#include "filelist/forms/DlgCompMoreData.h"
#include "filelist/forms/DlgCompMoreDataAdv.h"
#include "filelist/forms/DlgCompShortList.h"
#include "filelist/forms/DlgCopyOptions.h"
#include "filelist/forms/DlgIcon.h"
#include "filelist/list_builder.h"
#include "support/window_test.h"

namespace quillon::test {
namespace {

QStringList TextsIn(const QWidget& form)
{
    QStringList texts{form.windowTitle()};
    for (const auto* label : form.findChildren<QLabel*>())
        texts << label->text();
    for (const auto* button : form.findChildren<QAbstractButton*>())
        texts << button->text();
    for (const auto* frame : form.findChildren<QGroupBox*>())
        texts << frame->title();
    return texts;
}

void ExpectTexts(const QWidget& form, std::initializer_list<const char*> texts)
{
    const QStringList shown = TextsIn(form);
    for (const char* text : texts)
        EXPECT_TRUE(shown.contains(QString::fromUtf8(text)))
            << form.objectName().toStdString() << " does not say " << text;
}

using FileListCaptions = WindowTest;

TEST_F(FileListCaptions, OfIcons)
{
    FileListRow row = MakeRow("Prog.exe", "%DESTDIR", "c:\\d\\prog.exe");
    ExpectTexts(DlgIcon(row, session, nullptr),
                {"Ikon", "Filnamn:", "&Beskrivning:", "&Parametrar:", "&Starta i:",
                 "Extern &ikonfil:", "&Dokumentläsare:", "Adde&ra ikon till skapad programgrupp",
                 "Alternati&v..."});
}

TEST_F(FileListCaptions, OfComponents)
{
    ExpectTexts(DlgCompMoreData(0, session, nullptr),
                {"Komponent - mer inställningar och beskrivning",
                 "&Denna komponent ska vara ikryssad från början i installationsdialogrutan",
                 "&Användaren ska kunna ändra destinationskatalog för denna komponent",
                 "Denna komponent ska alltid installera&s", "A&vancerat..."});
    ExpectTexts(DlgCompMoreDataAdv(session.project.FileComponents[0], session, nullptr),
                {"Komponent - avancerade inställningar", "Uppdatering av komponent",
                 "&Denna komponent får endast installeras om en tidigare version redan finns "
                 "installerad",
                 "&Referensfil:", "&Titel:", "Te&xt:",
                 "Om inte komponenten är installerad sen tidigare ska följande text visas i en "
                 "informationsruta:"});
    ExpectTexts(DlgCompShortList({"Ingen komponent"}, nullptr),
                {"Välj komponent",
                 "Välj vilken komponent som de valda filerna ska ingå i eller 'Ingen komponent' om "
                 "filerna alltid ska kopieras till mottagarens hårddisk."});
}

TEST_F(FileListCaptions, OfVariables)
{
    ExpectTexts(DlgChVariables(session, nullptr),
                {" Företagsnamn ", " Produktnamn ", " Produkt, versionsnummer",
                 " Produkt, versionsnummer (hämtas från fil) ",
                 "Licensuppgifter (användarens namn && företag)", " Egen variabel 1 ",
                 " Egen variabel 2 ", " Egen variabel 3 "});
}

TEST_F(FileListCaptions, OfCopyOptionsBoxByBox)
{
    const struct {
        char letter;
        const char* control;
        const char* caption;
    } boxes[] = {
        {'D', "cDateTimeCheck", "Kontrollera &datum och tid"},
        {'V', "cVersionCheck", "Kontrollera &version"},
        {'N', "cNeverReplace", "&Ersätt aldrig existerande fil"},
        {'X', "cWarnIfExist", "Var&na alltid om en fil redan existerar"},
        {'R', "cRegisterFile", "&Registrera fil"},
        {'A', "cActiveFile", "Hantera &aktiv fil"},
        {'S', "cSharedFile", "&Filen delas med andra program"},
        {'W', "cWriteProtected", "Ersät&t även skrivskyddad fil"},
        {'P', "cSetWriteProtection", "&Sätt på skrivskydd"},
        {'B', "cMakeBackup", "Säkerhetskopiera alltid e&xisterande fil"},
        {'E', "cVersionNoCopyIfEqual", "&Kopiera inte om samma version"},
        {'*', "cNoUninstall", "Denna fil f&år aldrig avinstalleras"},
    };
    ASSERT_EQ(std::size(boxes), kCopyOptionBoxes);
    DlgCopyOptions form(CopyOptionTicks{}, nullptr);
    for (std::size_t i = 0; i < std::size(boxes); ++i) {
        auto& box = Find<QCheckBox>(form, boxes[i].control);
        EXPECT_EQ(box.text(), QString::fromUtf8(boxes[i].caption));
        CopyOptionTicks ticks{};
        ticks[i] = true;
        // Alone the last letter of versions is dropped.
        const Text letters = boxes[i].letter == 'E' ? "" : Text(1, boxes[i].letter);
        EXPECT_EQ(CopyOptionLetters(ticks), letters);
    }
}

} // namespace
} // namespace quillon::test
