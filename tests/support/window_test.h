// For tests that drive windows: controls by their object names, dialogs that a click opens, and
// pictures to look at afterwards.
#pragma once

#include "shell/session.h"
#include "support/memory_host.h"
#include "support/scripted_ask.h"
#include "ui/qt_text.h"

#include <QApplication>
#include <QTest>
#include <QTimer>
#include <QtWidgets>
#include <gtest/gtest.h>

namespace quillon::test {

/// The control with this name below `root`; a missing one ends the test program with its name.
template <class Widget>
Widget& Find(QWidget& root, const char* name)
{
    auto* found = root.findChild<Widget*>(QString::fromUtf8(name));
    if (!found)
        qFatal("there is no %s called %s", Widget::staticMetaObject.className(), name);
    return *found;
}

inline void Click(QWidget& root, const char* name)
{
    auto& button = Find<QAbstractButton>(root, name);
    // A box or an option wider than its caption takes no clicks after it.
    QTest::mouseClick(&button, Qt::LeftButton, {},
                      {std::min(10, button.width() / 2), button.height() / 2});
}

/// Types into a widget, a key for each character.
inline void TypeKeys(QWidget& widget, const Text& text)
{
    for (const QChar character : ToQt(text))
        QTest::sendKeyEvent(QTest::Click, &widget, Qt::Key_unknown, QString(character),
                            Qt::NoModifier);
}

/// Replaces what is in the field, key by key, and does not leave it.
inline void Type(QWidget& root, const char* name, const Text& text)
{
    auto& field = Find<QLineEdit>(root, name);
    field.setFocus();
    field.selectAll();
    QTest::keyClick(&field, Qt::Key_Delete);
    TypeKeys(field, text);
}

inline Text TextIn(QWidget& root, const char* name)
{
    return FromQt(Find<QLineEdit>(root, name).text());
}

/// Moves the mouse over a widget, also where its window is larger than the screen.
inline void MoveMouse(QWidget& widget, QPoint place)
{
    QWidget* window = widget.window();
    QTest::mouseMove(window->windowHandle(), widget.mapTo(window, place));
    QApplication::processEvents();
}

/// The pixel of a grabbed picture at a place of its widget, whatever the scale of the screen.
inline QRgb PixelAt(const QImage& picture, QPoint place)
{
    return picture.pixel((QPointF(place) * picture.devicePixelRatio()).toPoint());
}

/// Shows a window as on a screen, so that focus moves in it.
inline void ShowActive(QWidget& window)
{
    window.show();
    window.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
}

/// Runs `use` on the dialog that comes up next, while the code that opens it waits. A dialog that
/// is still open after it is closed, so that no test hangs.
inline void OnNextDialog(std::function<void(QDialog&)> use)
{
    QTimer::singleShot(0, [use = std::move(use)] {
        auto* dialog = dynamic_cast<QDialog*>(QApplication::activeModalWidget());
        ASSERT_NE(dialog, nullptr) << "no dialog came up";
        const QPointer<QDialog> guard = dialog;
        use(*dialog);
        if (guard && guard->isVisible())
            guard->reject();
    });
}

/// Keeps a picture of the window as build/<preset>/screens/<name>.png, to be looked at; at twice
/// the scale the name ends in "@2x".
void SavePicture(QWidget& window, const std::string& name);
/// The same as <name>-dark.png, under a dark colour scheme.
void SaveDarkPicture(QWidget& window, const std::string& name);

/// A session on a machine in memory, with a user whose answers are laid ready.
class WindowTest : public testing::Test {
protected:
    MemoryHost machine;
    ScriptedAsk ask;
    Session session = NewSession(machine.host, ask, "C:\\Quillon");
};

} // namespace quillon::test
