// For tests of the previews of the setup's pages: a project with pictures, and a look at what was
// typed beside what is shown.
#pragma once

#include "actions/forms/previews/InstDlg.h"
#include "actions/forms/previews/SidePicture.h"
#include "support/bitmap_maker.h"
#include "support/window_test.h"
#include "ui/controls/RunningText.h"

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

    /// Opens the preview of what is in an editor, looks at it, and keeps a picture of both
    /// beside each other.
    static void ShowPreviewOf(QDialog& editor, const std::string& name,
                              const std::function<void(QDialog&)>& look)
    {
        bool isShown = false;
        OnNextDialog([&](QDialog& preview) {
            isShown = true;
            EXPECT_EQ(preview.objectName().toStdString(), name);
            look(preview);
            SaveSideBySide(editor, preview, name + "_side_by_side");
        });
        Click(editor, "cmdTest");
        EXPECT_TRUE(isShown) << name;
        EXPECT_TRUE(editor.isVisible()) << "closing the preview leads back";
    }

    static void SaveSideBySide(QWidget& left, QWidget& right, const std::string& name)
    {
        QWidget both;
        auto* across = new QHBoxLayout(&both);
        for (QWidget* window : {&left, &right}) {
            auto* picture = new QLabel;
            picture->setPixmap(window->grab());
            across->addWidget(picture);
        }
        both.resize(both.sizeHint());
        SavePicture(both, name);
    }

    static constexpr char kStandard[] = "C:\\Quillon\\Res\\SetupDef.bmp";
};

} // namespace quillon::test
