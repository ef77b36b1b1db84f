#include "ui/dialogs/SelectDir.h"

#include "platform/run_error.h"
#include "support/window_test.h"

namespace quillon::test {
namespace {

/// A disk that counts how often a folder is read, and refuses one.
class WatchedFiles : public MemoryFiles {
public:
    std::vector<FolderEntry> List(const Text& folder) const override
    {
        ++reads[folder];
        if (folder == "C:\\Hemligt")
            throw RunError(ErrorNumber::kPermissionDenied, folder);
        return MemoryFiles::List(folder);
    }
    mutable std::map<Text, int> reads;
};

class SelectDirTest : public WindowTest {
protected:
    SelectDirTest()
    {
        for (char letter = 'A'; letter <= 'Z'; ++letter)
            files.driveKinds[Text(1, static_cast<char>(letter + 32)) + ":\\"] = DriveKind::NoRoot;
        files.driveKinds["c:\\"] = DriveKind::Fixed;
        files.driveKinds["z:\\"] = DriveKind::Remote;
        for (const char* folder : {"C:\\Data\\App\\Sub", "C:\\Data\\Övrigt", "C:\\Hemligt\\Inre",
                                   "C:\\Tom", "Z:\\Bygge", "C:\\data\\Zebra"})
            files.PutFolder(folder);
        files.Put("C:\\Data\\fil.txt", "x");
        files.PutFolder("C:\\Dolt");
        files.At("C:\\Dolt").status.isHidden = true;
    }

    static QModelIndex Row(SelectDir& form, const QString& name)
    {
        QAbstractItemModel& model = *form.DirTreeX->model();
        const auto found = model.match(model.index(0, 0), Qt::DisplayRole, name, 1,
                                       Qt::MatchExactly | Qt::MatchRecursive);
        return found.isEmpty() ? QModelIndex() : found.front();
    }

    static QStringList Below(const QModelIndex& index)
    {
        QStringList names;
        for (int row = 0; row < index.model()->rowCount(index); ++row)
            names << index.model()->index(row, 0, index).data().toString();
        return names;
    }

    WatchedFiles files;
};

constexpr char kText[] = "Välj en katalog (mapp) i listan nedanför och tryck därefter på 'OK'. "
                         "Alla installationsfiler kommer att kopieras till den valda katalogen.";

TEST_F(SelectDirTest, OpensAtTheFolderAndShowsItsDrive)
{
    SelectDir form(files, ask, kText, "C:\\Data\\App", nullptr);
    EXPECT_EQ(form.windowTitle(), "Välj katalog");
    EXPECT_EQ(form.sDialogText->text(), kText);
    EXPECT_EQ(TextIn(form, "sDirectory"), "C:\\Data\\App");
    EXPECT_EQ(form.DriveListX->currentText(), "C:\\  (DISK)");
    EXPECT_EQ(form.DriveListX->count(), 2);
    EXPECT_EQ(form.DirTreeX->currentIndex().data().toString(), "App");
    ShowActive(form);
    SavePicture(form, "SelectDir");
}

TEST_F(SelectDirTest, OpensAtTheNearestFolderThatExists)
{
    const std::pair<const char*, const char*> cases[] = {
        {"C:\\Data\\App\\Borta\\Helt", "C:\\Data\\App"},
        {"C:\\Borta", "C:\\"},
        {"c:\\data\\app\\", "C:\\Data\\App"},
        {"X:\\Borta", "C:\\"},
        {"\\\\server\\mapp", "C:\\"},
        {"", "C:\\"},
    };
    for (const auto& [wanted, shown] : cases) {
        SelectDir form(files, ask, kText, wanted, nullptr);
        EXPECT_EQ(TextIn(form, "sDirectory"), shown) << wanted;
    }
}

TEST_F(SelectDirTest, ListsFoldersInSwedishOrderAndReadsThemOnlyWhenOpened)
{
    SelectDir form(files, ask, kText, "C:\\", nullptr);
    EXPECT_EQ(Below(Row(form, "C:\\")), QStringList({"Data", "Hemligt", "Tom"}));
    EXPECT_EQ(files.reads.count("C:\\Data"), 0U);
    form.DirTreeX->expand(Row(form, "Data"));
    EXPECT_EQ(Below(Row(form, "Data")), QStringList({"App", "Zebra", "Övrigt"}));
    form.DirTreeX->collapse(Row(form, "Data"));
    form.DirTreeX->expand(Row(form, "Data"));
    EXPECT_EQ(files.reads["C:\\Data"], 1);
    EXPECT_EQ(files.reads.count("C:\\Data\\App"), 0U);
}

TEST_F(SelectDirTest, ShowsAFolderThatCannotBeReadAsEmpty)
{
    SelectDir form(files, ask, kText, "C:\\", nullptr);
    const QModelIndex secret = Row(form, "Hemligt");
    EXPECT_TRUE(secret.model()->hasChildren(secret));
    form.DirTreeX->expand(secret);
    EXPECT_EQ(files.reads["C:\\Hemligt"], 1);
    EXPECT_FALSE(secret.model()->hasChildren(secret));
}

TEST_F(SelectDirTest, FollowsTheTreeAndTheDrive)
{
    SelectDir form(files, ask, kText, "C:\\Data", nullptr);
    form.DirTreeX->setCurrentIndex(Row(form, "Tom"));
    EXPECT_EQ(TextIn(form, "sDirectory"), "C:\\Tom");
    ShowActive(form);
    form.DriveListX->setFocus();
    QTest::keyClick(form.DriveListX, Qt::Key_Down);
    EXPECT_EQ(TextIn(form, "sDirectory"), "Z:\\");
    EXPECT_EQ(Below(Row(form, "Z:\\")), QStringList({"Bygge"}));
}

TEST_F(SelectDirTest, FollowsTypingWithoutWritingOverIt)
{
    SelectDir form(files, ask, kText, "C:\\", nullptr);
    ShowActive(form);
    Type(form, "sDirectory", "c:\\data\\app\\");
    EXPECT_EQ(TextIn(form, "sDirectory"), "c:\\data\\app\\");
    EXPECT_EQ(form.DirTreeX->currentIndex().data().toString(), "App");
    Type(form, "sDirectory", "C:\\Dolt");
    EXPECT_EQ(form.DirTreeX->currentIndex().data().toString(), "Dolt");
    QTest::keyClick(form.sDirectory, Qt::Key_Return);
    EXPECT_FALSE(form.isVisible());
    EXPECT_EQ(form.Folder, "C:\\Dolt");
}

TEST_F(SelectDirTest, GivesNoFolderOnCancelAndEsc)
{
    for (const bool byKey : {false, true}) {
        SelectDir form(files, ask, kText, "C:\\Data", nullptr);
        ShowActive(form);
        if (byKey)
            QTest::keyClick(&form, Qt::Key_Escape);
        else
            Click(form, "cmdCancel");
        EXPECT_FALSE(form.OK);
        EXPECT_EQ(form.Folder, "");
    }
}

TEST_F(SelectDirTest, RefusesAFolderThatDoesNotExist)
{
    ask.Expect(
        {BoxKind::Inform, "Katalogen existerar inte", "Katalogen 'C:\\Nix' existerar inte!"});
    ask.Expect({BoxKind::Inform, "Katalogen existerar inte", "Välj en katalog först!"});
    SelectDir form(files, ask, kText, "C:\\", nullptr);
    ShowActive(form);
    Type(form, "sDirectory", "C:\\Nix");
    Click(form, "cmdOK");
    EXPECT_TRUE(form.isVisible());
    Type(form, "sDirectory", " ");
    Click(form, "cmdOK");
    EXPECT_TRUE(form.isVisible());
    Type(form, "sDirectory", "z:");
    Click(form, "cmdOK");
    EXPECT_EQ(form.Folder, "z:\\");
}

TEST_F(SelectDirTest, TakesAPathOfThisMachine)
{
    const HostPaths paths{.toHost = {}, .toWindows = [](const std::string& path) {
                              return std::optional("Z:" + ReplaceAll(path, "/", "\\"));
                          }};
    SelectDir form(files, ask, kText, "C:\\", nullptr, paths);
    ShowActive(form);
    Type(form, "sDirectory", "/Bygge");
    EXPECT_EQ(TextIn(form, "sDirectory"), "/Bygge");
    EXPECT_EQ(form.DirTreeX->currentIndex().data().toString(), "Bygge");
    Click(form, "cmdOK");
    EXPECT_EQ(form.Folder, "Z:\\Bygge");
}

TEST_F(SelectDirTest, RefusesAFolderThatIsTooLongInsteadOfCuttingIt)
{
    Text folder = "C:";
    for (int i = 0; i < 40; ++i)
        folder += "\\abcdefghi";
    folder += "\\slutet"; // 409 characters
    ask.Expect({BoxKind::Inform, "Ogiltig katalog",
                "Katalogen '" + folder + "' är längre än 255 tecken! Välj en annan katalog."});
    SelectDir form(files, ask, kText, "C:\\", nullptr);
    ShowActive(form);
    Type(form, "sDirectory", folder);
    EXPECT_EQ(TextIn(form, "sDirectory"), folder);
    Click(form, "cmdOK");
    EXPECT_TRUE(form.isVisible());
    EXPECT_EQ(form.Folder, "");
}

TEST_F(SelectDirTest, MakesANewFolderBelowTheChosenOne)
{
    ask.choices = {{{"Ny"}}, {{"a/b"}}, {{".."}}, {}};
    ask.Expect({BoxKind::Inform, "Fel"});
    ask.Expect({BoxKind::Inform, "Fel"});
    SelectDir form(files, ask, kText, "C:\\Tom", nullptr);
    Click(form, "cmdNewDirectory");
    EXPECT_TRUE(files.DirExists("C:\\Tom\\Ny"));
    EXPECT_EQ(TextIn(form, "sDirectory"), "C:\\Tom\\Ny");
    for (int again = 0; again < 3; ++again)
        Click(form, "cmdNewDirectory");
    EXPECT_EQ(TextIn(form, "sDirectory"), "C:\\Tom\\Ny");
}

TEST_F(SelectDirTest, TellsThatAFolderCouldNotBeMade)
{
    files.refuseFolders = true;
    ask.choices = {{{"Ny"}}};
    ask.Expect({BoxKind::Inform, "Kan ej skapa katalog", "Kan ej skapa katalogen C:\\Tom\\Ny!"});
    SelectDir form(files, ask, kText, "C:\\Tom", nullptr);
    Click(form, "cmdNewDirectory");
    EXPECT_EQ(TextIn(form, "sDirectory"), "C:\\Tom");
}

TEST_F(SelectDirTest, HoldsThousandsOfFolders)
{
    for (int i = 0; i < 5000; ++i)
        files.PutFolder("C:\\Tom\\m" + std::to_string(i));
    SelectDir form(files, ask, kText, "C:\\Tom\\m4999", nullptr);
    ShowActive(form);
    EXPECT_EQ(Below(Row(form, "Tom")).size(), 5000);
    EXPECT_EQ(TextIn(form, "sDirectory"), "C:\\Tom\\m4999");
    // Only what was opened on the way has been read.
    EXPECT_EQ(files.reads.size(), 2U);
}

} // namespace
} // namespace quillon::test
