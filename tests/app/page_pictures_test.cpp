// Pictures of the tabs that edit the project in place, filled and in both colour schemes.
#include "app/MainForm.h"

#include "support/window_test.h"

#include <fstream>
#include <sstream>

namespace quillon::test {
namespace {

class PagePictures : public WindowTest {
protected:
    void SetUp() override
    {
        std::ifstream file(QUILLON_TEST_DATA "/../resources/Res/SetupDef.bmp", std::ios::binary);
        std::stringstream bytes;
        bytes << file.rdbuf();
        ASSERT_FALSE(bytes.str().empty());
        machine.files.Put("C:\\Quillon\\Res\\SetupDef.bmp", bytes.str());

        Project& project = session.project;
        project.ProjectName.ProjectName = "Ordlistan";
        project.InstallDirectories.DestinationDirectory = "%PROGRAMFILES\\Ordlistan";
        project.Lists.Registry = "HKEY_LOCAL_MACHINE\\SOFTWARE\\Firma\\Ordlistan :: Version=\"1.0\""
                                 "\r\nDELETE=HKEY_CURRENT_USER\\SOFTWARE\\Firma\\Gammal\r\n....";
        project.Lists.INIFiles = "-- WIN.INI --\r\n[Ordlistan]\r\nPath=%DESTDIR";
        project.FileComponents[0] = {
            .Comp = 1, .CompName = "Ordböcker", .CompDir = "%DESTDIR\\Ordböcker"};
        project.FileComponents[2] = {.Comp = 1, .CompName = "Hjälp", .CompDir = "%DESTDIR\\Hjälp"};
    }

    void TearDown() override { QApplication::setPalette(usual); }

    void Take(const std::string& scheme)
    {
        MainForm form(session);
        form.resize(1000, 640);
        ShowActive(form);
        for (const auto& [tab, name] :
             {std::pair{Tab::Dialogs, "dialogrutor"}, std::pair{Tab::Registry, "registry"},
              std::pair{Tab::IniFiles, "ini-filer"}, std::pair{Tab::Components, "komponenter"}}) {
            form.SelectTab(tab);
            QApplication::processEvents();
            SavePicture(form, "MainForm-" + (name + ("-" + scheme)));
        }
    }

    const QPalette usual = QApplication::palette();
};

TEST_F(PagePictures, OnLight)
{
    Take("ljus");
}

TEST_F(PagePictures, OnDark)
{
    QPalette dark(QColor(53, 53, 53), QColor(45, 45, 45));
    dark.setColor(QPalette::Base, QColor(30, 30, 30));
    dark.setColor(QPalette::PlaceholderText, QColor(160, 160, 160));
    QApplication::setPalette(dark);
    Take("mörk");
}

} // namespace
} // namespace quillon::test
