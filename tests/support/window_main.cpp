// main() of the tests that drive windows: real widgets on a screen in memory.
#include "ui/swedish_texts.h"

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

// What the screen in memory says about itself would bury the messages of a failed test.
static void TellMessage(QtMsgType type, const QMessageLogContext&, const QString& text)
{
    if (text.contains("This plugin does not support") || text.contains("XDG_RUNTIME_DIR"))
        return;
    std::fprintf(stderr, "%s\n", qPrintable(text));
    if (type == QtFatalMsg)
        std::abort();
}

int main(int count, char** words)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qInstallMessageHandler(TellMessage);
    testing::InitGoogleTest(&count, words);
    QApplication application(count, words);
    QApplication::setStyle("Fusion");
    quillon::InstallSwedishTexts(application);
    return RUN_ALL_TESTS();
}
