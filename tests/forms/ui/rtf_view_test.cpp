// Formatted text as a user reads it, and files made to crash the program.
#include "ui/controls/rtf_view.h"

#include "support/window_test.h"

namespace quillon::test {
namespace {

class RtfViewTest : public WindowTest {
protected:
    void Show(const std::string& body)
    {
        machine.files.Put("C:\\a.rtf", "{\\rtf1 " + body + "}");
        view.ShowFile(machine.files, "C:\\a.rtf");
        view.resize(400, 300);
        ShowActive(view);
        view.grab();
    }

    RtfView view{"Avtal"};
};

std::string Repeated(std::string_view piece, std::size_t count)
{
    std::string all;
    for (std::size_t i = 0; i < count; ++i)
        all += piece;
    return all;
}

struct Endless {
    const char* name;
    const char* piece;
    std::size_t count;
};

class EndlessText : public RtfViewTest, public testing::WithParamInterface<Endless> {};

// Endless contents are shown up to a limit, and quickly; otherwise the test program would not end.
TEST_P(EndlessText, IsShownFromItsBeginningToTheLimit)
{
    Show(Repeated(GetParam().piece, GetParam().count));
    EXPECT_EQ(view.ShownNote(),
              "Texten är för lång för att visas i sin helhet. Här visas dess början.");
    view.moveCursor(QTextCursor::End);
    view.ensureCursorVisible();
    view.grab();
    EXPECT_GT(view.verticalScrollBar()->maximum(), 0);
}

constexpr Endless kEndless[] = {
    {"Word", "a", 3'000'000},         {"Words", "ord ", 1'000'000},
    {"Runs", "\\b a\\b0 b", 200'000}, {"Paragraphs", "\\par", 200'000},
    {"Lines", "\\line", 1'000'000},   {"Tabs", "\\tab", 3'000'000},
    {"Turns", "\\u8238?", 1'000'000},
};

INSTANTIATE_TEST_SUITE_P(All, EndlessText, testing::ValuesIn(kEndless),
                         [](const auto& one) { return std::string(one.param.name); });

TEST_F(RtfViewTest, KeepsTextTogetherThatIsCutIntoBlocks)
{
    Show("\\qc " + std::string(20'000, 'a') + "\\b " + std::string(5, 'b') + "\\par c");
    QString text;
    for (QTextBlock block = view.document()->begin(); block.isValid(); block = block.next()) {
        text += block.text();
        const bool isCentred = block.blockFormat().alignment().testFlag(Qt::AlignHCenter);
        EXPECT_TRUE(isCentred) << block.blockNumber();
    }
    EXPECT_EQ(text, QString(20'000, 'a') + "bbbbbc");
    EXPECT_EQ(view.ShownNote(), "");
}

TEST_F(RtfViewTest, StandsOnWhiteWhateverTheDesktopHas)
{
    const QPalette before = QApplication::palette();
    QApplication::setPalette(QPalette(QColor(53, 53, 53), QColor(42, 42, 42)));
    Show("a");
    const QImage dark = view.viewport()->grab().toImage();
    EXPECT_EQ(QColor(PixelAt(dark, view.viewport()->rect().center())), QColor(Qt::white));
    EXPECT_EQ(view.document()->firstBlock().begin().fragment().charFormat().foreground().color(),
              QColor(Qt::black));
    QApplication::setPalette(before);
}

TEST_F(RtfViewTest, ShowsOneFileAfterAnother)
{
    Show("ett");
    view.ShowFile(machine.files, "C:\\finns_inte.rtf");
    EXPECT_EQ(view.toPlainText(), "Filen 'C:\\finns_inte.rtf' finns inte.");
    Show("\\b tv\\'e5\\par tre");
    EXPECT_EQ(view.toPlainText(), "två\ntre");
    EXPECT_EQ(view.ShownNote(), "");
}

TEST_F(RtfViewTest, PutsTheTextOfAListBehindItsSign)
{
    Show("\\fi-360\\li720 \\bullet\\tab text");
    const QTextBlock block = view.document()->firstBlock();
    const QTextLine line = block.layout()->lineAt(0);
    const double sign = line.cursorToX(0);
    const double text = line.cursorToX(2);
    const double distance = 360 / 1440.0 * view.logicalDpiX();
    EXPECT_NEAR(text - sign, distance, 1);
}

TEST_F(RtfViewTest, LooksRight)
{
    Show(
        "{\\fonttbl{\\f0\\froman Times New Roman;}{\\f1\\fmodern Courier New;}}"
        "{\\colortbl;\\red0\\green0\\blue160;\\red255\\green255\\blue160;}"
        "\\qc\\b\\fs36 Avtal\\b0\\fs22\\par\\pard\\sa120\\qj F\\'f6r H\\sub 2\\nosupersub O och "
        "m\\super 2\\nosupersub  g\\'e4ller \\i kursiv\\i0 , \\ul understruken\\ulnone , \\strike "
        "struken\\strike0 , {\\cf1 bl\\'e5} och {\\highlight2 gul} text.\\par\\pard\\li720\\fi-360 "
        "1.\\tab En punkt som \\'e4r s\\'e5 l\\'e5ng att den m\\'e5ste brytas p\\'e5 flera rader i "
        "rutan.\\par 2.\\tab En annan.\\par\\pard\\tx2000\\tx3500 Pris\\tab Antal\\tab "
        "Summa\\line 10\\tab 2\\tab 20\\par\\pard\\qr\\f1 void main()\\par");
    SavePicture(view, "rtf_view");
    SaveDarkPicture(view, "rtf_view");
}

} // namespace
} // namespace quillon::test
