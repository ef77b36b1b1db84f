// For tests of the previews of the setup's pages: a project with pictures, and a look at what was
// typed beside what is shown.
#pragma once

#include "actions/forms/InstDlg.h"
#include "actions/forms/SidePicture.h"
#include "support/window_test.h"
#include "ui/RunningText.h"

#include <fstream>
#include <sstream>

namespace quillon::test {

inline std::string BytesOfFile(const std::string& path)
{
    std::ifstream file(path, std::ios::binary);
    std::ostringstream bytes;
    bytes << file.rdbuf();
    EXPECT_FALSE(bytes.str().empty()) << path;
    return bytes.str();
}

inline std::string BitmapOf(const QColor& colour, QSize size)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(colour);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    EXPECT_TRUE(image.save(&buffer, "bmp"));
    return bytes.toStdString();
}

using Typed = std::vector<std::pair<Text, Text>>;

class PreviewTest : public WindowTest {
protected:
    PreviewTest()
    {
        machine.files.Put(kStandard,
                          BytesOfFile(QUILLON_TEST_DATA "/../resources/Res/SetupDef.bmp"));
        session.project.ProjectName.ProjectName = "Receptboken";
        session.project.DialogBoxes.DlgBitmap = kStandard;
    }

    /// The text of a label or running text as the user can read it.
    static Text Said(const RunningText* text) { return FromQt(text->toPlainText()); }

    /// All lines can be read: they fit, or scroll.
    static void ExpectReadable(const RunningText& text)
    {
        const bool scrolls = text.verticalScrollBar()->maximum() > 0;
        const double lines = text.document()->size().height();
        EXPECT_TRUE(scrolls || lines <= text.viewport()->height() + 1) << lines;
        EXPECT_EQ(text.horizontalScrollBar()->maximum(), 0) << "cut at the right";
        EXPECT_EQ(scrolls, text.focusPolicy() != Qt::NoFocus) << "the keyboard scrolls, too";
    }

    /// Each of the page's buttons closes it, as Esc and the window's own cross do.
    static void ExpectEachButtonCloses(QDialog& page, const std::vector<const char*>& buttons)
    {
        for (const char* name : buttons) {
            ShowActive(page);
            Click(page, name);
            EXPECT_FALSE(page.isVisible()) << name;
        }
        ShowActive(page);
        QTest::keyClick(&page, Qt::Key_Return);
        EXPECT_FALSE(page.isVisible()) << "Enter";
        ShowActive(page);
        QTest::keyClick(&page, Qt::Key_Escape);
        EXPECT_FALSE(page.isVisible()) << "Esc";
        ShowActive(page);
        page.close();
        EXPECT_FALSE(page.isVisible());
    }

    /// What was typed at the left, what is shown at the right.
    static void SaveSideBySide(const Typed& typed, QWidget& preview, const std::string& name)
    {
        QWidget both;
        auto* fields = new QFormLayout;
        fields->setRowWrapPolicy(QFormLayout::WrapAllRows);
        for (const auto& [caption, text] : typed) {
            auto* field = new QPlainTextEdit(LinesToQt(text));
            const qsizetype lines = std::clamp<qsizetype>(1 + text.size() / 40, 1, 12);
            field->setFixedHeight(static_cast<int>(lines + 1) * field->fontMetrics().lineSpacing());
            fields->addRow(ToQt(caption), field);
        }
        auto* shown = new QLabel;
        shown->setPixmap(preview.grab());
        auto* across = new QHBoxLayout(&both);
        across->addLayout(fields, 1);
        across->addWidget(shown);
        both.resize(both.sizeHint());
        both.show();
        SavePicture(both, name + "_side_by_side");
    }

    static constexpr char kStandard[] = "C:\\Quillon\\Res\\SetupDef.bmp";
};

} // namespace quillon::test
