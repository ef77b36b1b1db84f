// How a page is laid out, by a ruler whose letters are all alike; the picture that is drawn; and
// the keys that lead to the controls, in every language.
#include "pictures/bitmap.h"
#include "runtime/pages/page_arrangement.h"
#include "runtime/pages/page_state.h"
#include "runtime/pages/standard_picture.h"
#include "runtime/support/memory_target.h"
#include "support/memory_host.h"
#include "support/scripted_ask.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>

namespace quillon::test {

namespace {

namespace fs = std::filesystem;

/// Letters are 6 pixels wide and 13 high, those of titles half as large again.
class EvenRuler : public PageRuler {
public:
    double UnitWidth() const override { return 1.5; }
    double UnitHeight() const override { return 1.625; }
    int TextHeight(const Text& text, int width, bool isTitle) const override
    {
        const int letter = isTitle ? 9 : 6;
        const int line = isTitle ? 20 : 13;
        int lines = 0;
        for (const Text& one : SplitLines(text))
            lines += std::max(1, (int(CharacterCount(one)) * letter + width - 1) / width);
        return lines * line;
    }
    int LineWidth(const Text& text) const override { return int(CharacterCount(text)) * 6; }
};

SetupPage PageOf(std::vector<PagePiece> pieces)
{
    SetupPage page;
    page.title = "Titel";
    page.pieces = std::move(pieces);
    return page;
}

TEST(ArrangedPage, HasPictureLineAndButtonsInTheirPlaces)
{
    const PageArrangement placed = ArrangePage(PageOf({}), EvenRuler{});
    EXPECT_EQ(placed.width, 476);
    EXPECT_EQ(placed.picture, (PixelRect{0, 0, 164, 314}));
    EXPECT_EQ(placed.line, 314);
    EXPECT_EQ(placed.title, (PixelRect{174, 11, 466, 31}));
    EXPECT_EQ(placed.away.right, 466);
    EXPECT_EQ(placed.away.Width(), 81);
    EXPECT_EQ(placed.away.left - placed.forward.right, 10);
    EXPECT_EQ(placed.forward.left - placed.back.right, 4);
    EXPECT_EQ(placed.height - placed.away.bottom, placed.away.top - placed.line - 2);
}

TEST(ArrangedPage, HasOneButtonBehindTheInstallation)
{
    SetupPage page = PageOf({});
    page.buttons = PageButtons::Finish;
    const PageArrangement placed = ArrangePage(page, EvenRuler{});
    EXPECT_TRUE(placed.back.IsEmpty());
    EXPECT_TRUE(placed.away.IsEmpty());
    EXPECT_EQ(placed.forward.right, 466);
}

TEST(ArrangedPage, GivesTheRestToWhatGrows)
{
    const PageArrangement placed =
        ArrangePage(PageOf({{.kind = PieceKind::Paragraph, .text = "Kort", .maxHeight = 60},
                            {.kind = PieceKind::List, .label = "Lista:"},
                            {.kind = PieceKind::Value, .label = "Antal:", .text = "1"}}),
                    EvenRuler{});
    EXPECT_EQ(placed.pieces[0].field.Height(), 13);
    EXPECT_EQ(placed.pieces[1].label.bottom + 3, placed.pieces[1].field.top);
    EXPECT_EQ(placed.pieces[2].field.bottom, 314 - 11);
    EXPECT_EQ(placed.pieces[1].field.bottom + 10, placed.pieces[2].field.top);
    EXPECT_GT(placed.pieces[1].field.Height(), 150);
}

TEST(ArrangedPage, PutsLabelsInAColumnAndAButtonBehindALine)
{
    const PageArrangement placed = ArrangePage(
        PageOf(
            {{.kind = PieceKind::Entry, .label = "Namn:"},
             {.kind = PieceKind::Entry, .label = "Företaget:"},
             {.kind = PieceKind::Entry, .label = "Mapp:", .isLabelAbove = true, .button = "..."}}),
        EvenRuler{});
    EXPECT_EQ(placed.pieces[0].field.left, 174 + 60 + 9);
    EXPECT_EQ(placed.pieces[0].field.left, placed.pieces[1].field.left);
    EXPECT_LT(placed.pieces[0].label.right, placed.pieces[0].field.left + 1);
    EXPECT_EQ(placed.pieces[2].field.left, 174);
    EXPECT_EQ(placed.pieces[2].button.right, 466);
    EXPECT_LT(placed.pieces[2].field.right, placed.pieces[2].button.left);
}

TEST(ArrangedPage, LetsALongTextScroll)
{
    Text text;
    text.assign(4000, 'x');
    SetupPage page = PageOf({{.kind = PieceKind::Rest, .text = text}});
    EXPECT_TRUE(ArrangePage(page, EvenRuler{}).pieces[0].scrolls);
    EXPECT_EQ(ArrangePage(page, EvenRuler{}).pieces[0].field.bottom, 314 - 11);
    page.pieces[0].text = "kort";
    EXPECT_FALSE(ArrangePage(page, EvenRuler{}).pieces[0].scrolls);
    page.title = text;
    EXPECT_TRUE(ArrangePage(page, EvenRuler{}).titleScrolls);
    EXPECT_EQ(ArrangePage(page, EvenRuler{}).title.Height(), 104);
}

// The tool shows the file, the setup draws it: the same pixels.
TEST(StandardSidePicture, IsThatOfTheTool)
{
    std::ifstream file(fs::path(QUILLON_TEST_DATA) / ".." / "resources" / "Res" / "SetupDef.bmp",
                       std::ios::binary);
    const std::string bytes{std::istreambuf_iterator<char>(file), {}};
    const DecodedPixels read = DecodeBitmapFile(bytes, kMaxPicturesMemory);
    ASSERT_EQ(read.fault, PictureFault::None);
    const Picture drawn = StandardSidePicture();
    ASSERT_EQ(drawn.width, read.picture.width);
    ASSERT_EQ(drawn.height, read.picture.height);
    EXPECT_TRUE(drawn.pixels == read.picture.pixels);
}

class PagesOfALanguage : public testing::TestWithParam<const char*> {};

/// The letter after '&', in lower case; empty where there is none.
Text AccessLetter(const Text& caption)
{
    const std::size_t mark = caption.find('&');
    return mark == Text::npos ? Text() : LowerCase(FirstCharacters(caption.substr(mark + 1), 1));
}

TEST_P(PagesOfALanguage, HaveAnAccessLetterOfItsOwnForEachControl)
{
    std::ifstream file(fs::path(QUILLON_TEST_DATA) / ".." / "resources" / "Language" / GetParam(),
                       std::ios::binary);
    const LanguageTexts texts(std::string{std::istreambuf_iterator<char>(file), {}});
    MemoryHost memory;
    MemoryTarget target{&memory.files};
    memory.files.PutFolder("C:\\Ulla\\Start-meny\\Program");
    ScriptedAsk ask;
    SetupInformation setup;
    setup.UseComponents = kOn;
    setup.project.FileComponents[0].Comp = 1;
    setup.project.FileComponents[0].CompCanChangeDir = 1;
    setup.project.DialogBoxData.NameCompanyExtendedInfo = kOn;
    setup.project.DialogBoxData.DestDirShowSizeInfo = kOn;
    setup.project.DialogBoxData.DestDriveShowSizeInfo = kOn;
    setup.project.ShowDocAfter = {"läs.txt", kOn, "", kOff, ""};
    const std::vector<InstallRow> rows;
    const PageInput input{memory.host, target, ask, texts, setup, rows, "D:\\Paket"};
    const PageState state(input);
    for (int kind = 0; kind <= int(PageKind::InstallCompleted); ++kind) {
        const SetupPage page = MakePage(state, PageKind(kind));
        std::vector<Text> captions;
        if (page.buttons == PageButtons::Finish)
            captions = {texts[Message::Finish]};
        else if (page.buttons == PageButtons::BackYesNo)
            captions = {texts[Message::Back], texts[Message::Accept], texts[Message::Decline]};
        else
            captions = {texts[Message::Back], texts[Message::Next]};
        for (const PagePiece& piece : page.pieces) {
            if (piece.kind != PieceKind::Value && !piece.label.empty())
                captions.push_back(piece.label);
            if (!piece.button.empty())
                captions.push_back(piece.button);
        }
        std::set<Text> letters;
        for (const Text& caption : captions) {
            EXPECT_NE(AccessLetter(caption), "") << caption;
            EXPECT_TRUE(letters.insert(AccessLetter(caption)).second)
                << caption << " on page " << kind;
        }
    }
}

INSTANTIATE_TEST_SUITE_P(, PagesOfALanguage,
                         testing::Values("SWEDISH.LNG", "ENGLISH.LNG", "NORWEGIAN.LNG",
                                         "DANISH.LNG", "FINNISH.LNG", "GERMAN.LNG"),
                         [](const auto& language) {
                             const Text name = language.param;
                             return name.substr(0, name.find('.'));
                         });

} // namespace

} // namespace quillon::test
