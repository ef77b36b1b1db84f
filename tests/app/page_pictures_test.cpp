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
        FillDesign();
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

    /// Draws a bitmap of the project; magenta is what the project makes transparent.
    Text Drawn(const char* name, QSize size, const std::function<void(QPainter&)>& draw)
    {
        QImage image(size, QImage::Format_RGB32);
        image.fill(Qt::magenta);
        QPainter painter(&image);
        painter.setPen(Qt::NoPen);
        draw(painter);
        painter.end();
        QByteArray bytes;
        QBuffer buffer(&bytes);
        buffer.open(QIODevice::WriteOnly);
        EXPECT_TRUE(image.save(&buffer, "BMP"));
        const Text path = Text("C:\\Bilder\\") + name;
        machine.files.Put(path, bytes.toStdString());
        return path;
    }

    /// A screen with every object on it.
    void FillDesign()
    {
        Project& project = session.project;
        project.DesBackground = {
            .BackColor1 = 0x703818, .BackColor2 = 0x301008, .BlendDirection = 5};
        project.DesTitle = {.TitleText = "Ordlistan 4", .TitleForeColor = 0xE0F8FF};
        project.DesTitleUnderline = {.UnderlineType = 3,
                                     .UnderlineColor1 = 0x40B0FF,
                                     .UnderlineColor2 = 0x703818,
                                     .UnderlineHeight = 4,
                                     .UnderlineTextOnly = 0};
        project.DesSubTitle.SubTitleText = "Svenska, engelska och franska";
        section::DesTextBox& box = project.DesTextBox;
        box.BoxTitle = "Välkommen";
        box.BoxText = "Ordlistan slår upp ord i tre språk, medan du skriver.";
        box.BoxBackColor = 0x502810;
        box.BoxTitleColor = 0x60C8FF;
        box.BoxTextColor = 0xFFFFFF;
        box.ShowTextBox = kOn;
        box.BoxXPos = 600 * 15;
        box.BoxYPos = 110 * 15;
        project.DesRTFbox = {.RTFfilename = "Ordlistan.rtf",
                             .RTFboxBackColor = 0xE0F0F8,
                             .ShowRTFbox = kOn,
                             .RTFboxXPos = 600 * 15,
                             .RTFboxYPos = 240 * 15};
        section::DesPictures& pictures = project.DesPictures;
        pictures.TransparentColorNr = 5;
        const std::pair<Integer, Integer> places[] = {{40, 130}, {230, 150}, {400, 170}};
        const QColor colours[] = {QColor(230, 90, 70), QColor(250, 190, 80), QColor(90, 180, 150)};
        for (std::size_t i = 0; i < section::kDesPictureCount; ++i) {
            pictures.Pictures[i].PictureFilename =
                Drawn("bok.bmp", {150, 190}, [&](QPainter& painter) {
                    painter.fillRect(20, 10, 110, 170, colours[i]);
                    painter.fillRect(20, 10, 14, 170, colours[i].darker(130));
                    painter.fillRect(50, 40, 60, 6, QColor(255, 250, 235));
                    painter.fillRect(50, 54, 40, 4, QColor(255, 250, 235));
                });
            machine.files.Put("C:\\Bilder\\bok" + NumberText(std::int64_t(i)) + ".bmp",
                              machine.files.Get("C:\\Bilder\\bok.bmp"));
            pictures.Pictures[i].PictureFilename =
                "C:\\Bilder\\bok" + NumberText(std::int64_t(i)) + ".bmp";
            pictures.Pictures[i].UseTransparentBkg = kOn;
            pictures.Pictures[i].PictureXPos = static_cast<Integer>(places[i].first * 15);
            pictures.Pictures[i].PictureYPos = static_cast<Integer>(places[i].second * 15);
        }
        project.DesPicturesAnim.NrAnimPictures = 2;
        project.DesPicturesAnim.PictureXPos = 330 * 15;
        project.DesPicturesAnim.PictureYPos = 330 * 15;
        project.DesLogotype.LogotypeFilename =
            Drawn("logotype.bmp", {120, 40}, [](QPainter& painter) {
                painter.fillRect(0, 0, 120, 40, QColor(255, 250, 235));
                painter.fillRect(8, 10, 104, 6, QColor(24, 56, 112));
                painter.fillRect(8, 22, 70, 6, QColor(230, 90, 70));
            });
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
