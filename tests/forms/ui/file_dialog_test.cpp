#include "ui/dialogs/file_dialog.h"

#include "support/temp_folder.h"
#include "support/window_test.h"

#include <fstream>

namespace quillon::test {
namespace {

class FileDialogTest : public testing::Test {
protected:
    FileDialogTest()
    {
        std::filesystem::create_directories(Root() + "/Data");
        for (const char* name : {"a.qnp", "b.qnp", "c.txt", "日.qnp", "d\\e.qnp"})
            std::ofstream(Root() + "/Data/" + name) << "x";
        question.title = "Öppna projekt";
        question.folder = "C:\\Data";
        question.filter = "Projektfiler (*.qnp)|*.qnp|Alla filer (*.*)|*.*";
        question.defaultExtension = ".qnp";
        paths.toHost = [this](const Text& path) -> std::optional<std::string> {
            if (path.empty() || (path[0] != 'C' && path[0] != 'c'))
                return std::nullopt;
            std::string inside = path.substr(2);
            std::ranges::replace(inside, '\\', '/');
            return Root() + inside;
        };
        paths.toWindows = [this](const std::string& path) -> std::optional<Text> {
            if (path.compare(0, Root().size(), Root()) != 0)
                return "Z:" + path;
            std::string inside = path.substr(Root().size());
            if (inside.find('\\') != std::string::npos)
                return std::nullopt;
            std::ranges::replace(inside, '/', '\\');
            return "C:" + inside;
        };
    }

    std::string Root() const { return folder_.Path(); }

    static void Enter(QDialog& dialog, const QString& name)
    {
        Find<QLineEdit>(dialog, "fileNameEdit").setText(name);
        static_cast<QFileDialog&>(dialog)
            .findChild<QDialogButtonBox*>("buttonBox")
            ->buttons()
            .first()
            ->click();
    }

    /// Enters a name that is refused, and gives back the box that said so.
    static QString RefusalOf(QDialog& dialog, const QString& name)
    {
        QString text;
        OnNextDialog([&](QDialog& box) {
            text = dynamic_cast<QMessageBox&>(box).text();
            SavePicture(box, "MsgBox-refused-file");
        });
        Enter(dialog, name);
        return text;
    }

    FileQuestion question;
    HostPaths paths;

private:
    TempFolder folder_;
};

TEST_F(FileDialogTest, OpensInTheFolderWithTitleAndFilters)
{
    OnNextDialog([&](QDialog& dialog) {
        auto& files = dynamic_cast<QFileDialog&>(dialog);
        EXPECT_EQ(files.windowTitle(), "Öppna projekt");
        EXPECT_EQ(files.directory().path().toStdString(), Root() + "/Data");
        EXPECT_EQ(files.nameFilters(), QStringList({"Projektfiler (*.qnp)", "Alla filer (*)"}));
        EXPECT_TRUE(files.testOption(QFileDialog::DontUseNativeDialog));
        Enter(dialog, "a.qnp");
    });
    EXPECT_EQ(ChooseFileToOpen(question, paths, nullptr), "C:\\Data\\a.qnp");
}

TEST_F(FileDialogTest, ShowsNamesAloneToWhoeverWantsTheOlderLook)
{
    OnNextDialog([](QDialog& dialog) {
        EXPECT_EQ(dynamic_cast<QFileDialog&>(dialog).viewMode(), QFileDialog::Detail);
        EXPECT_TRUE(Find<QTreeView>(dialog, "treeView").isVisible());
    });
    EXPECT_TRUE(ChooseFilesToOpen(question, paths, nullptr).empty());
    question.look = FileQuestion::Look::NamesOnly;
    OnNextDialog([](QDialog& dialog) {
        EXPECT_EQ(dynamic_cast<QFileDialog&>(dialog).viewMode(), QFileDialog::List);
        auto& view = Find<QListView>(dialog, "listView");
        EXPECT_TRUE(view.isVisible());
        EXPECT_TRUE(QTest::qWaitFor([&] { return view.model()->rowCount(view.rootIndex()) > 0; }));
        EXPECT_FALSE(Find<QTreeView>(dialog, "treeView").isVisible());
        SavePicture(dialog, "FileDialog-names");
        Enter(dialog, "a.qnp");
    });
    EXPECT_EQ(ChooseFilesToOpen(question, paths, nullptr), std::vector<Text>{"C:\\Data\\a.qnp"});
}

TEST_F(FileDialogTest, GivesNothingOnCancel)
{
    OnNextDialog([](QDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
    EXPECT_EQ(ChooseFileToOpen(question, paths, nullptr), std::nullopt);
}

TEST_F(FileDialogTest, OpensSeveralFiles)
{
    OnNextDialog([](QDialog& dialog) { Enter(dialog, "\"a.qnp\" \"b.qnp\""); });
    const std::vector<Text> both{"C:\\Data\\a.qnp", "C:\\Data\\b.qnp"};
    EXPECT_EQ(ChooseFilesToOpen(question, paths, nullptr), both);
}

TEST_F(FileDialogTest, TakesSeveralNamesTypedWhileTheListFollows)
{
    OnNextDialog([&](QDialog& dialog) {
        auto& field = Find<QLineEdit>(dialog, "fileNameEdit");
        EXPECT_TRUE(QTest::qWaitFor([&] {
            return Find<QTreeView>(dialog, "treeView")
                       .model()
                       ->rowCount(Find<QTreeView>(dialog, "treeView").rootIndex()) > 0;
        }));
        field.setFocus();
        TypeKeys(field, "\"a.qnp\" \"b.qnp\"");
        QTest::keyClick(&field, Qt::Key_Return);
    });
    EXPECT_EQ(ChooseFilesToOpen(question, paths, nullptr),
              (std::vector<Text>{"C:\\Data\\a.qnp", "C:\\Data\\b.qnp"}));
}

TEST_F(FileDialogTest, GivesASavedNameItsExtension)
{
    OnNextDialog([](QDialog& dialog) { Enter(dialog, "nytt"); });
    EXPECT_EQ(ChooseFileToSave(question, paths, nullptr), "C:\\Data\\nytt.qnp");
}

// A name with a version has a dot, but no extension that the dialog for opening would show.
TEST_F(FileDialogTest, GivesASavedNameWithADotItsExtensionToo)
{
    const auto saved = [&](const char* typed) {
        OnNextDialog([&](QDialog& dialog) { Enter(dialog, typed); });
        return ChooseFileToSave(question, paths, nullptr);
    };
    EXPECT_EQ(saved("Räkna 1.2"), "C:\\Data\\Räkna 1.2.qnp");
    EXPECT_EQ(saved("C:\\Data\\nytt"), "C:\\Data\\nytt.qnp");
    EXPECT_EQ(saved("c:\\Data\\version 2.0"), "C:\\Data\\version 2.0.qnp");
    EXPECT_EQ(saved("nytt.QNP"), "C:\\Data\\nytt.QNP");
}

TEST_F(FileDialogTest, AsksBeforeItOverwrites)
{
    OnNextDialog([](QDialog& dialog) {
        OnNextDialog([](QDialog& box) {
            EXPECT_TRUE(dynamic_cast<QMessageBox&>(box).text().contains("a.qnp"));
            box.reject();
        });
        Enter(dialog, "a.qnp");
        EXPECT_TRUE(dialog.isVisible());
    });
    EXPECT_EQ(ChooseFileToSave(question, paths, nullptr), std::nullopt);
}

TEST_F(FileDialogTest, TakesATypedWindowsPath)
{
    OnNextDialog([](QDialog& dialog) { Enter(dialog, "c:\\Data\\b.qnp"); });
    EXPECT_EQ(ChooseFileToOpen(question, paths, nullptr), "C:\\Data\\b.qnp");
}

TEST_F(FileDialogTest, TellsOfADriveThatIsNotThere)
{
    OnNextDialog([](QDialog& dialog) {
        EXPECT_EQ(RefusalOf(dialog, "s:\\b.qnp"),
                  "Enheten S: finns inte på den här datorn. Enheter anges i miljövariabeln "
                  "QUILLON_DRIVES.");
        EXPECT_TRUE(dialog.isVisible());
    });
    EXPECT_EQ(ChooseFileToOpen(question, paths, nullptr), std::nullopt);
}

TEST_F(FileDialogTest, RefusesNamesThatNoProjectHolds)
{
    const std::pair<const char*, const char*> cases[] = {
        {"日.qnp", "tecken som inte får plats i ett projekt"},
        {"d\\e.qnp", "inte går att skriva som en sökväg i Windows"}};
    for (const auto& [name, reason] : cases) {
        OnNextDialog([name, reason](QDialog& dialog) {
            EXPECT_TRUE(RefusalOf(dialog, name).contains(reason)) << name;
            EXPECT_TRUE(dialog.isVisible());
        });
        EXPECT_EQ(ChooseFileToOpen(question, paths, nullptr), std::nullopt);
    }
}

TEST_F(FileDialogTest, RemembersTheLastFolderWhereNoneIsGiven)
{
    OnNextDialog([](QDialog& dialog) { Enter(dialog, "a.qnp"); });
    EXPECT_TRUE(ChooseFileToOpen(question, paths, nullptr));
    for (const char* folder : {"", "C:\\Borta", "X:\\"}) {
        question.folder = folder;
        OnNextDialog([&](QDialog& dialog) {
            EXPECT_EQ(dynamic_cast<QFileDialog&>(dialog).directory().path().toStdString(),
                      Root() + "/Data");
        });
        EXPECT_FALSE(ChooseFileToOpen(question, paths, nullptr));
    }
}

TEST_F(FileDialogTest, OffersHomeAndDrivesAndShowsSwedishColumns)
{
    OnNextDialog([&](QDialog& dialog) {
        auto& files = dynamic_cast<QFileDialog&>(dialog);
        const QList<QUrl> places = files.sidebarUrls();
        ASSERT_EQ(places.size(), 2);
        EXPECT_EQ(places[0].toLocalFile(), QDir::homePath());
        EXPECT_EQ(QDir(places[1].toLocalFile()).path().toStdString(), Root());
        auto& view = Find<QTreeView>(dialog, "treeView");
        EXPECT_TRUE(QTest::qWaitFor([&] { return view.model()->rowCount(view.rootIndex()) > 0; }));
        const QModelIndex row = view.model()->index(0, 1, view.rootIndex());
        EXPECT_EQ(row.data().toString(), "1 byte");
        EXPECT_EQ(row.siblingAtColumn(2).data().toString(), "QNP-fil");
        SavePicture(dialog, "FileDialog");
    });
    EXPECT_FALSE(ChooseFileToOpen(question, paths, nullptr));
}

TEST_F(FileDialogTest, TakesAnyFileThatNoProjectNames)
{
    question.isForProject = false;
    OnNextDialog([](QDialog& dialog) { Enter(dialog, "日.qnp"); });
    EXPECT_EQ(ChooseFileToOpen(question, paths, nullptr), "C:\\Data\\日.qnp");
    OnNextDialog([](QDialog& dialog) { Enter(dialog, "Ω"); });
    EXPECT_EQ(ChooseFileToSave(question, paths, nullptr), "C:\\Data\\Ω.qnp");
    OnNextDialog([&](QDialog& dialog) {
        EXPECT_TRUE(RefusalOf(dialog, "d\\e.qnp").contains("en sökväg i Windows"));
    });
    EXPECT_EQ(ChooseFileToOpen(question, paths, nullptr), std::nullopt);
}

/// The names in the list of files, once there are as many as wanted.
QStringList ShownFiles(QDialog& dialog, int count)
{
    auto& view = Find<QTreeView>(dialog, "treeView");
    EXPECT_TRUE(QTest::qWaitFor([&] { return view.model()->rowCount(view.rootIndex()) == count; }));
    QStringList names;
    for (int row = 0; row < view.model()->rowCount(view.rootIndex()); ++row)
        names << view.model()->index(row, 0, view.rootIndex()).data().toString();
    names.sort();
    return names;
}

TEST_F(FileDialogTest, BeginsWithAPatternAndShowsWhatIsTypedAsOne)
{
    question.fileName = "*.qnp";
    question.filter = "Alla filer (*.*)|*.*";
    OnNextDialog([&](QDialog& dialog) {
        auto& field = Find<QLineEdit>(dialog, "fileNameEdit");
        EXPECT_EQ(field.text(), "*.qnp");
        EXPECT_EQ(field.selectedText(), "*.qnp") << "what is typed takes its place";
        EXPECT_EQ(ShownFiles(dialog, 5).size(), 5);
        SavePicture(dialog, "FileDialog-pattern");
        Enter(dialog, "*.txt");
        EXPECT_TRUE(dialog.isVisible());
        EXPECT_EQ(ShownFiles(dialog, 1), QStringList{"c.txt"});
        Enter(dialog, "*.*");
        EXPECT_EQ(ShownFiles(dialog, 5).size(), 5);
        Enter(dialog, "a.qnp");
    });
    EXPECT_EQ(ChooseFileToOpen(question, paths, nullptr), "C:\\Data\\a.qnp");
}

} // namespace
} // namespace quillon::test
