#include "importers/forms/DlgCompareLstFile.h"

#include "support/window_test.h"
#include "ui/controls/PathLabel.h"

namespace quillon::test {
namespace {

constexpr const char* kLst = "C:\\Data\\SETUP.LST";

class DlgCompareLstFileTest : public WindowTest {
protected:
    DlgCompareLstFileTest()
    {
        machine.files.Put(kLst, "[Bootstrap Files]\r\nFile1=@VB6STKIT.DLL,$(WinSysPath)\r\n"
                                "File2=@COMCAT.DLL,$(WinSysPath)\r\n"
                                "[Setup1 Files]\r\nFile1=prog.exe,$(AppPath)\r\n"
                                "File2=L\xE4s & skriv.txt,$(AppPath)\r\n");
        session.project.Files.rows.emplace_back()[Filename] = "PROG.EXE";
    }

    void Choose(DlgCompareLstFile& form, std::vector<Text> chosen)
    {
        ask.choices.push_back({std::move(chosen)});
        Click(form, "CmdSelectLstFile");
    }
    static std::vector<Text> Listed(DlgCompareLstFile& form)
    {
        std::vector<Text> names;
        for (int i = 0; i < form.ListOfFiles->count(); ++i)
            names.push_back(FromQt(form.ListOfFiles->item(i)->text()));
        return names;
    }
    static Text ShownPath(DlgCompareLstFile& form) { return FromQt(form.sLSTFileName->text()); }
};

TEST_F(DlgCompareLstFileTest, ListsWhatIsMissingAndChangesNothing)
{
    const FileList before = session.project.Files;
    DlgCompareLstFile form(session);
    ShowActive(form);
    EXPECT_TRUE(Listed(form).empty());
    EXPECT_EQ(ShownPath(form), "");
    Choose(form, {kLst});
    EXPECT_EQ(ShownPath(form), kLst);
    EXPECT_EQ(Listed(form), (std::vector<Text>{"COMCAT.DLL", "Läs & skriv.txt"}));
    EXPECT_EQ(session.project.Files.rows, before.rows);
    EXPECT_EQ(session.state.ProjectIsDirty, kOff);
}

TEST_F(DlgCompareLstFileTest, AsksForASetupList)
{
    DlgCompareLstFile form(session);
    ShowActive(form);
    Choose(form, {kLst});
    ASSERT_EQ(ask.questions.size(), 1U);
    EXPECT_EQ(ask.questions[0].title, "Välj Visual Basic LST-fil");
    EXPECT_EQ(ask.questions[0].fileName, "*.lst");
    EXPECT_EQ(ask.questions[0].filter, "Visual Basic LST-filer (*.lst)|*.lst");
}

TEST_F(DlgCompareLstFileTest, KeepsWhatItShowsWhereTheChoiceIsCancelled)
{
    DlgCompareLstFile form(session);
    ShowActive(form);
    Choose(form, {kLst});
    Choose(form, {});
    EXPECT_EQ(ShownPath(form), kLst);
    EXPECT_EQ(Listed(form).size(), 2U);
}

TEST_F(DlgCompareLstFileTest, StartsAnewWithEachFile)
{
    machine.files.Put("C:\\b.lst", "[Setup1 Files]\r\nFile1=b.txt\r\n");
    DlgCompareLstFile form(session);
    ShowActive(form);
    Choose(form, {kLst});
    Choose(form, {"C:\\b.lst"});
    EXPECT_EQ(ShownPath(form), "C:\\b.lst");
    EXPECT_EQ(Listed(form), (std::vector<Text>{"b.txt"}));
}

class DlgCompareLstFileFailures : public DlgCompareLstFileTest {
protected:
    void ExpectNothingListed(ScriptedAsk& user)
    {
        Session other = NewSession(machine.host, user, "C:\\Quillon");
        DlgCompareLstFile form(other);
        ShowActive(form);
        user.choices = {{{kLst}}};
        Click(form, "CmdSelectLstFile");
        EXPECT_EQ(ShownPath(form), kLst);
        EXPECT_TRUE(Listed(form).empty());
    }
};

TEST_F(DlgCompareLstFileFailures, TellsOfAFileThatListsNothing)
{
    machine.files.Put(kLst, "\x7F\x45\x4C\x46[Setup]\r\nFile1=a\r\n");
    ScriptedAsk user{{{BoxKind::Inform, "Inga filer hittades",
                       "Hittade inga filer i LST-filen 'C:\\Data\\SETUP.LST'. Kontrollera att du "
                       "valt rätt LST-fil."}}};
    ExpectNothingListed(user);
}

TEST_F(DlgCompareLstFileFailures, TellsOfAFileThatIsTooLarge)
{
    machine.files.Put(kLst, std::string((32U << 20) + 1, 'x'));
    ScriptedAsk user{{{BoxKind::Critical, "Fel",
                       "Filen 'C:\\Data\\SETUP.LST' är för stor för att vara en LST-fil: den är "
                       "större än 32 MB. Kontrollera att du valt rätt LST-fil."}}};
    ExpectNothingListed(user);
}

TEST_F(DlgCompareLstFileFailures, TellsOfAFileThatCannotBeRead)
{
    machine.files.At(kLst).unreadable = true;
    ScriptedAsk user{{{BoxKind::Critical, "Fel", "Åtkomst nekas till 'C:\\Data\\SETUP.LST'."}}};
    ExpectNothingListed(user);
}

TEST_F(DlgCompareLstFileTest, OpensTheHelp)
{
    machine.files.Put("C:\\Quillon\\QN.HLP", "x");
    DlgCompareLstFile form(session);
    ShowActive(form);
    Click(form, "CmdHelp");
    ASSERT_EQ(machine.machine.started.size(), 1U);
    EXPECT_EQ(machine.machine.started[0].first, "C:\\Quillon\\QN.HLP");
}

TEST_F(DlgCompareLstFileTest, ClosesByItsButtonAndByEsc)
{
    OnNextDialog([](QDialog& form) { Click(form, "cmdClose"); });
    ShowCompareLstFile(session, nullptr);
    OnNextDialog([](QDialog& form) { QTest::keyClick(&form, Qt::Key_Escape); });
    ShowCompareLstFile(session, nullptr);
}

TEST_F(DlgCompareLstFileTest, LooksRight)
{
    const Text deep = "C:\\Dokument och inställningar\\Ulla Ek\\Mina dokument\\Programmering\\"
                      "Visual Basic\\Kundregister\\Package\\SETUP.LST";
    machine.files.Put(deep, machine.files.Get(kLst));
    DlgCompareLstFile form(session);
    ShowActive(form);
    SavePicture(form, "DlgCompareLstFile-empty");
    Choose(form, {deep});
    QCoreApplication::processEvents();
    SavePicture(form, "DlgCompareLstFile");
    SaveDarkPicture(form, "DlgCompareLstFile");
}

} // namespace
} // namespace quillon::test
