// main() of the tests that drive windows: real widgets on a screen in memory, with all that the
// program sets up before its first window but the desktop's wishes.
#include "ui/controls/cut_texts.h"
#include "ui/kit/menu_key.h"
#include "ui/look/outline_style.h"
#include "ui/swedish/swedish_texts.h"

#include <QApplication>
#include <cstdio>
#include <cstdlib>
#include <gtest/gtest.h>

// What Qt's font library keeps until the end of the process is no leak of ours.
extern "C" const char* __lsan_default_suppressions();
extern "C" const char* __lsan_default_suppressions()
{
    return "leak:libfontconfig\nleak:libglib\nleak:libQt6Gui\nleak:libQt6Core\nleak:"
           "libQt6Widgets\n";
}

// Messages of the screen in memory would hide those of a failed test.
static void TellMessage(QtMsgType type, const QMessageLogContext&, const QString& text)
{
    if (text.contains("This plugin does not support") || text.contains("XDG_RUNTIME_DIR"))
        return;
    std::fprintf(stderr, "%s\n", qPrintable(text));
    if (type == QtFatalMsg)
        std::abort();
}

int main(int argc, char** argv)
{
    // A large screen, and two small ones: one of them has 640 x 400 points at either scale.
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" QUILLON_TEST_DATA "/support/screens.json");
    qInstallMessageHandler(TellMessage);
    testing::InitGoogleTest(&argc, argv);
    QApplication application(argc, argv);
    QApplication::setStyle(new quillon::OutlineStyle);
    quillon::InstallSwedishTexts(application);
    quillon::ShowElidedTextsAsToolTips(application);
    quillon::OpenMenusByShiftF10(application);
    return RUN_ALL_TESTS();
}
