// Pictures of the main window: its six tabs, of a new project and of a full one, in both colour
// schemes.
#include "app/MainForm.h"

#include "support/window_test.h"

#include <fstream>
#include <sstream>

namespace quillon::test {
namespace {

constexpr const char* kTabNames[kTabCount] = {"fillista", "design",    "dialogrutor",
                                              "registry", "ini-filer", "komponenter"};

class PagePictures : public WindowTest {
protected:
    void SetUp() override
    {
        std::ifstream file(QUILLON_TEST_DATA "/../resources/Res/SetupDef.bmp", std::ios::binary);
        std::stringstream bytes;
        bytes << file.rdbuf();
        ASSERT_FALSE(bytes.str().empty());
        machine.files.Put("C:\\Quillon\\Res\\SetupDef.bmp", bytes.str());
    }

    void TearDown() override { QApplication::setPalette(usual); }

    static void UseDarkColours()
    {
        QPalette dark(QColor(53, 53, 53), QColor(45, 45, 45));
        dark.setColor(QPalette::Base, QColor(30, 30, 30));
        dark.setColor(QPalette::PlaceholderText, QColor(160, 160, 160));
        QApplication::setPalette(dark);
    }

    void FillProject()
    {
        Project& project = session.project;
        project.ProjectName = {"Ordlistan"};
        project.InstallDirectories.DestinationDirectory = Text("%PROGRAMFILES\\Ordlistan");
        project.Lists.Registry =
            Text("HKEY_LOCAL_MACHINE\\SOFTWARE\\Firma\\Ordlistan :: Version=\"1.0\""
                 "\r\nDELETE=HKEY_CURRENT_USER\\SOFTWARE\\Firma\\Gammal\r\n....");
        project.Lists.INIFiles = Text("-- WIN.INI --\r\n[Ordlistan]\r\nPath=%DESTDIR");
        project.FileComponents[0] = {
            .Comp = 1, .CompName = "Ordböcker", .CompDir = "%DESTDIR\\Ordböcker"};
        project.FileComponents[2] = {.Comp = 1, .CompName = "Hjälp", .CompDir = "%DESTDIR\\Hjälp"};
        project.DesBackground.BackColor1 = 0x800000;
        for (const char* name : {"Ordlista.exe", "Svenska.dic", "Läs mig.txt"}) {
            FileListRow& row = project.Files.rows.emplace_back();
            row[Filename] = name;
            row[Destination] = Text("%DESTDIR");
            row[Size] = Text("12,5");
            row[Date] = Text("2004-05-17");
            row[Time] = Text("09:30");
            row[CopyOptions] = Text("D");
            row[ComponentNumber] = Text("1");
        }
    }

    void Take(const std::string& content, const std::string& scheme)
    {
        MainForm form(session);
        form.resize(1000, 640);
        ShowActive(form);
        for (int tab = 0; tab < kTabCount; ++tab) {
            form.SelectTab(static_cast<Tab>(tab));
            QApplication::processEvents();
            SavePicture(form,
                        std::string("MainForm-") + kTabNames[tab] + "-" + content + "-" + scheme);
        }
    }

    const QPalette usual = QApplication::palette();
};

TEST_F(PagePictures, OfANewProject)
{
    Take("tom", "ljus");
    UseDarkColours();
    Take("tom", "mörk");
}

TEST_F(PagePictures, OfAFullProject)
{
    FillProject();
    Take("full", "ljus");
    UseDarkColours();
    Take("full", "mörk");
}

} // namespace
} // namespace quillon::test
