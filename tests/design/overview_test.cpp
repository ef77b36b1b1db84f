#include "design/overview.h"

#include "design/rtf_box_file.h"
#include "support/memory_host.h"
#include "support/scripted_ask.h"

#include <gmock/gmock.h>

namespace quillon {

using test::BoxKind;
using test::MemoryFiles;
using test::ScriptedAsk;
using testing::ElementsAre;

void PrintTo(const OverviewRow& row, std::ostream* out)
{
    *out << row.label << "|" << row.file << "|" << row.size;
}

namespace {

class Overview : public testing::Test {
protected:
    const RTFboxFolders texts_{"C:\\Quillon"};
    Overview()
    {
        files_.Put("C:\\Quillon\\rtf\\Demo.rtf", std::string(1234567, 'x'));
        files_.Put("C:\\b\\ett.bmp", "123");
        files_.Put("C:\\b\\tva.bmp", std::string(1000, 'x'));
        files_.Put("C:\\b\\v.jpg", "");
        files_.Put("C:\\b\\logo.wmf", "12");
        files_.Put("C:\\b\\ljud.mid", "1");
    }

    std::vector<OverviewRow> Rows() const { return DesOverview(project_, files_, texts_); }

    MemoryFiles files_;
    Project project_;
};

TEST_F(Overview, OfANewProjectIsEmpty)
{
    EXPECT_TRUE(Rows().empty());
}

TEST_F(Overview, ListsEveryFileInOrder)
{
    project_.DesRTFbox.RTFfilename = "Demo.rtf";
    project_.DesRTFbox.ShowRTFbox = kOn;
    project_.DesPictures.Pictures[0].PictureFilename = "C:\\b\\ett.bmp";
    project_.DesPictures.Pictures[2].PictureFilename = "C:\\b\\tva.bmp";
    project_.DesPicturesAnim.NrAnimPictures = 2;
    project_.DesPicturesAnim.P[0] = "C:\\b\\v.jpg";
    project_.DesPicturesAnim.P[1] = "C:\\b\\ett.bmp";
    project_.DesPicturesAnim.P[2] = "C:\\b\\tva.bmp"; // beyond the count
    project_.DesLogotype.LogotypeFilename = "C:\\b\\logo.wmf";
    project_.DesSound.BackSoundFilename = "C:\\b\\ljud.mid";
    EXPECT_THAT(Rows(), ElementsAre(OverviewRow{"RTF-ruta", "Demo.rtf", "1 234 567"},
                                    OverviewRow{"Bild 1", "ett.bmp", "3"},
                                    OverviewRow{"Bild 3", "tva.bmp", "1 000"},
                                    // Kept: the pattern prints no digit for an empty file.
                                    OverviewRow{"Växl. Bild 1", "v.jpg", ""},
                                    OverviewRow{"Växl. Bild 2", "ett.bmp", "3"},
                                    OverviewRow{"Logotype", "logo.wmf", "2"},
                                    OverviewRow{"Ljud", "ljud.mid", "1"}));
}

TEST_F(Overview, LeavesOutAnRtfBoxThatIsNotShown)
{
    project_.DesRTFbox.RTFfilename = "Demo.rtf";
    EXPECT_TRUE(Rows().empty());
}

TEST_F(Overview, MeasuresTheUsersOwnTextInFrontOfTheTools)
{
    project_.DesRTFbox.RTFfilename = "Demo.rtf";
    project_.DesRTFbox.ShowRTFbox = kOn;
    const RTFboxFolders texts("C:\\Quillon", "C:\\Data\\Quillon");
    EXPECT_THAT(DesOverview(project_, files_, texts),
                ElementsAre(OverviewRow{"RTF-ruta", "Demo.rtf", "1 234 567"}));
    files_.Put("C:\\Data\\Quillon\\RTF\\Demo.rtf", "1234");
    EXPECT_THAT(DesOverview(project_, files_, texts),
                ElementsAre(OverviewRow{"RTF-ruta", "Demo.rtf", "4"}));
}

TEST_F(Overview, EndsAtAFileThatCantBeMeasured)
{
    project_.DesPictures.Pictures[0].PictureFilename = "C:\\b\\ett.bmp";
    project_.DesPictures.Pictures[1].PictureFilename = "C:\\b\\borta.bmp";
    project_.DesLogotype.LogotypeFilename = "C:\\b\\logo.wmf";
    EXPECT_THAT(Rows(), ElementsAre(OverviewRow{"Bild 1", "ett.bmp", "3"}));
}

TEST(ProposedRTFfilename, IsTheProjectsNameWithRtf)
{
    EXPECT_EQ(ProposedRTFfilename("C:\\Projekt\\Demo.qnp"), "Demo.rtf");
    EXPECT_EQ(ProposedRTFfilename("C:\\Projekt\\Demo.QNP"), "Demo.rtf");
    EXPECT_EQ(ProposedRTFfilename("noname"), "rtf");
    EXPECT_EQ(ProposedRTFfilename(""), "rtf");
    EXPECT_EQ(ProposedRTFfilename("C:\\arkiv.qnp\\Demo.qnp"), "Demo.rtf");
    EXPECT_EQ(ProposedRTFfilename("C:\\P\\a.qnp.kopia.qnp"), "a.qnp.kopia.rtf");
}

TEST(StoredRTFfilename, EndsInRtf)
{
    EXPECT_EQ(StoredRTFfilename("rtf"), "rtf.rtf");
    EXPECT_EQ(StoredRTFfilename("Demo.RTF"), "Demo.RTF");
    EXPECT_EQ(StoredRTFfilename("Demo.rtf.txt"), "Demo.rtf.txt"); // ".rtf" anywhere is enough
}

TEST(CheckRTFfilename, AsksForAName)
{
    ScriptedAsk ask({{BoxKind::Inform, "Filnamn saknas",
                      "Du måste ange ett filnamn till RTF-filen! RFT-filen kommer att sparas med "
                      "det angivna filnamnet i underkatalogen '\\RTF' i Quillons "
                      "program-katalog."}});
    EXPECT_FALSE(CheckRTFfilename("", ask));
    EXPECT_TRUE(CheckRTFfilename("x", ask));
}

} // namespace
} // namespace quillon
