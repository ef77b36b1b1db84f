#include "app/window/tab_pictures.h"

#include "support/window_test.h"

#include <fstream>
#include <iterator>

namespace quillon::test {
namespace {

std::string BytesOf(const std::string& file)
{
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

class TabPictures : public WindowTest {
protected:
    TabPictures()
    {
        for (int tab = 0; tab < 6; ++tab)
            tabs.addTab(new QWidget, QString::number(tab));
    }

    QImage Shown(int tab, int side = 16) const
    {
        return tabs.tabIcon(tab)
            .pixmap(side, side)
            .toImage()
            .convertToFormat(QImage::Format_ARGB32);
    }

    QTabWidget tabs;
};

TEST_F(TabPictures, ComeFromTheToolsFolder)
{
    for (int tab = 1; tab <= 6; ++tab) {
        const std::string name = "tab" + std::to_string(tab) + ".bmp";
        const std::string bytes = BytesOf(std::string(QUILLON_TOOL_FOLDER) + "/Res/" + name);
        ASSERT_FALSE(bytes.empty()) << name;
        machine.files.Put("C:\\Quillon\\Res\\" + name, bytes);
    }
    ShowTabPictures(tabs, machine.files, "C:\\Quillon");
    for (int tab = 0; tab < 6; ++tab) {
        EXPECT_EQ(tabs.tabIcon(tab).availableSizes(), QList<QSize>({QSize(48, 48)})) << tab;
        // Nothing but the drawing covers the tab.
        EXPECT_EQ(qAlpha(Shown(tab).pixel(0, 15)), 0) << tab;
        for (int other = 0; other < tab; ++other)
            EXPECT_NE(Shown(tab), Shown(other)) << tab << ' ' << other;
    }
}

TEST_F(TabPictures, AreTheProgramsOwnWhereAFileIsMissingOrDamaged)
{
    machine.files.Put("C:\\Quillon\\Res\\tab2.bmp", "BM no picture");
    ShowTabPictures(tabs, machine.files, "C:\\Quillon");
    for (int tab = 0; tab < 6; ++tab) {
        ASSERT_FALSE(tabs.tabIcon(tab).isNull()) << tab;
        EXPECT_NE(Shown(tab), QImage(Shown(tab).size(), QImage::Format_ARGB32)) << tab;
        for (int other = 0; other < tab; ++other)
            EXPECT_NE(Shown(tab), Shown(other)) << tab << ' ' << other;
    }
}

} // namespace
} // namespace quillon::test
