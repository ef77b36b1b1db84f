#include "tools/list_pages.h"

#include "support/scripted_ask.h"

#include <algorithm>

namespace quillon::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

class ListPagesTest : public testing::Test {
protected:
    void AddRows(std::size_t count)
    {
        for (std::size_t i = 0; i < count; ++i) {
            FileListRow row;
            row[Filename] = "f" + std::to_string(project.Files.rows.size() + 1);
            row[Destination] = "%DESTDIR";
            row[Size] = "1,0";
            project.Files.rows.push_back(row);
        }
    }
    std::vector<PrintedPage> Pages() { return PagesOfFileList(project, state, ',', ask); }

    /// The text whose upper left corner is there.
    static const PrintedText* At(const PrintedPage& page, double x, double y)
    {
        const auto found = std::ranges::find_if(
            page.texts, [&](const PrintedText& text) { return text.x == x && text.y == y; });
        return found == page.texts.end() ? nullptr : &*found;
    }
    static Text TextAt(const PrintedPage& page, double x, double y)
    {
        const PrintedText* text = At(page, x, y);
        return text ? text->text : Text("(nothing)");
    }
    static void ExpectLook(const PrintedPage& page, double x, double y, int size, bool bold)
    {
        const PrintedText* text = At(page, x, y);
        ASSERT_NE(text, nullptr) << x << ", " << y;
        EXPECT_EQ(text->size, size) << text->text;
        EXPECT_EQ(text->bold, bold) << text->text;
    }
    static std::vector<double> Rules(const PrintedPage& page)
    {
        std::vector<double> ys;
        for (const PrintedRule& rule : page.rules) {
            EXPECT_EQ(rule.fromX, 17);
            EXPECT_EQ(rule.toX, 190);
            ys.push_back(rule.y);
        }
        return ys;
    }
    static std::vector<double> RowYs(const PrintedPage& page)
    {
        std::vector<double> ys;
        for (const PrintedText& text : page.texts)
            if (text.x == 17 && text.size == 8)
                ys.push_back(text.y);
        return ys;
    }

    Project project;
    OpenProjectState state;
    ScriptedAsk ask;
};

TEST_F(ListPagesTest, NamesTheProjectsFileInItsTitle)
{
    AddRows(1);
    EXPECT_EQ(TextAt(Pages()[0], 17, 15), "Quillon 2004 - Fillista");
    state.ProjectFileName = "Z:/hem/Hej.qnp";
    EXPECT_EQ(TextAt(Pages()[0], 17, 15), "Quillon 2004 - Fillista - [Hej.qnp]");
    EXPECT_EQ(TextAt(Pages()[0], 180, 15), "Sid 1");
    ExpectLook(Pages()[0], 17, 15, 10, false);
    ExpectLook(Pages()[0], 180, 15, 10, false);
}

TEST_F(ListPagesTest, TellsOfTheProjectOnItsFirstPage)
{
    AddRows(2);
    project.Files.rows[0][Size] = "1234567,0";
    project.ProjectName.ProjectName = "Hej";
    project.InstallDirectories.DestinationDirectory = "%PROGRAMDIR\\Hej";
    const PrintedPage page = Pages()[0];
    EXPECT_EQ(TextAt(page, 17, 25), "Projekt:");
    EXPECT_EQ(TextAt(page, 47, 25), "Hej");
    EXPECT_EQ(TextAt(page, 17, 32), "Huvudkatalog:");
    EXPECT_EQ(TextAt(page, 47, 32), "%PROGRAMDIR\\Hej");
    EXPECT_EQ(TextAt(page, 17, 36), "Antal objekt:");
    EXPECT_EQ(TextAt(page, 47, 36), "2");
    EXPECT_EQ(TextAt(page, 17, 40), "Total storlek:");
    EXPECT_EQ(TextAt(page, 47, 40), "1234 568,0 kb");
    ExpectLook(page, 17, 25, 11, true);
    ExpectLook(page, 47, 25, 11, false);
    for (const double y : {32, 36, 40}) {
        ExpectLook(page, 17, y, 10, false);
        ExpectLook(page, 47, y, 10, false);
    }
}

TEST_F(ListPagesTest, HasItsColumnsAndRulesInPlace)
{
    AddRows(1);
    FileListRow& row = project.Files.rows[0];
    row[Date] = "2004-02-29";
    row[Time] = "12:30";
    row[IconMarker] = "IkonD";
    row[CopyOptions] = "DA";
    row[ComponentNumber] = "3";
    const PrintedPage page = Pages()[0];
    EXPECT_THAT(Rules(page), ElementsAre(21, 46));
    const std::tuple<double, const char*, const char*> kColumns[] = {
        {17, "Filnamn", "f1"},        {55, "Destination", "%DESTDIR"}, {124, "Storlek", "1,0"},
        {139, "Datum", "2004-02-29"}, {155, "Tid", "12:30"},           {166, "(nothing)", "IkonD"},
        {174, "Inst", "DA"},          {187, "(nothing)", "3"}};
    for (const auto& [x, heading, value] : kColumns) {
        EXPECT_EQ(TextAt(page, x, 52), heading);
        EXPECT_EQ(TextAt(page, x, 61), value);
        ExpectLook(page, x, 61, 8, false);
    }
    ExpectLook(page, 17, 52, 9, true);
}

TEST_F(ListPagesTest, HeadsTheComponentsOnlyWhereOneIsInUse)
{
    AddRows(1);
    project.FileComponents[2].Comp = kOn;
    EXPECT_EQ(TextAt(Pages()[0], 187, 52), "K");
}

TEST_F(ListPagesTest, CutsNoText)
{
    AddRows(1);
    const Text longText = ReplaceAll(Text(50, 'x'), "x", "lång ");
    project.Files.rows[0][Destination] = longText;
    EXPECT_EQ(TextAt(Pages()[0], 55, 61), longText);
}

// From 61 to 265 in steps of 4: the first page has 52 rows.
TEST_F(ListPagesTest, FillsTheFirstPage)
{
    AddRows(51);
    EXPECT_THAT(Pages(), SizeIs(1));
    AddRows(1);
    const auto pages = Pages();
    ASSERT_THAT(pages, SizeIs(2));
    EXPECT_THAT(RowYs(pages[0]), SizeIs(52));
    EXPECT_EQ(RowYs(pages[0]).back(), 265);
    EXPECT_THAT(RowYs(pages[1]), IsEmpty());
}

TEST_F(ListPagesTest, EndsOnAPageOfHeadingsWhereTheLastRowFillsAPage)
{
    AddRows(52);
    const PrintedPage page = Pages()[1];
    EXPECT_EQ(TextAt(page, 180, 15), "Sid 2");
    EXPECT_THAT(Rules(page), ElementsAre(21));
    EXPECT_EQ(TextAt(page, 17, 25), "Filnamn");
    EXPECT_EQ(TextAt(page, 47, 25), "(nothing)");
}

TEST_F(ListPagesTest, Holds59RowsOnAContinuedPage)
{
    AddRows(52 + 59 + 1);
    const auto pages = Pages();
    ASSERT_THAT(pages, SizeIs(3));
    const auto ys = RowYs(pages[1]);
    EXPECT_THAT(ys, SizeIs(59));
    EXPECT_EQ(ys.front(), 34);
    EXPECT_EQ(ys.back(), 266);
    EXPECT_EQ(TextAt(pages[2], 17, 34), "f112");
    EXPECT_EQ(TextAt(pages[2], 180, 15), "Sid 3");
}

TEST_F(ListPagesTest, PrintsEveryRowOfALongList)
{
    AddRows(32767);
    std::size_t rows = 0;
    for (const PrintedPage& page : Pages())
        rows += RowYs(page).size();
    EXPECT_EQ(rows, 32767U);
}

TEST_F(ListPagesTest, AnEmptyListIsTold)
{
    ask.Expect({BoxKind::Inform, "Info", "Det finns inga filer i fillistan!"});
    EXPECT_FALSE(HasRowsToPrint(project.Files, ask));
    AddRows(1);
    EXPECT_TRUE(HasRowsToPrint(project.Files, ask));
}

} // namespace
} // namespace quillon::test
