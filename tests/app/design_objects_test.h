// For tests of the objects on the tab "Design": the tab in a window, with pictures to show on it.
#pragma once

#include "app/pages/DesignPage.h"
#include "support/window_test.h"

namespace quillon::test {

class DesignObjectsTest : public WindowTest {
protected:
    DesignObjectsTest() { session.surface.screen = {}; }

    /// The tab in a window of its own, with a surface of some size.
    DesignScreen& Show()
    {
        tabs = std::make_unique<QTabWidget>();
        page = new DesignPage(session);
        tabs->addTab(page, "Design");
        page->ShowSession();
        tabs->resize(800, 600);
        ShowActive(*tabs);
        return page->Screen();
    }

    QWidget& Object(const char* name) { return Find<QWidget>(*tabs, name); }

    void PutPicture(const Text& path, int width, int height)
    {
        QImage picture(width, height, QImage::Format_RGB32);
        picture.fill(Qt::red);
        QByteArray bytes;
        QBuffer buffer(&bytes);
        buffer.open(QIODevice::WriteOnly);
        ASSERT_TRUE(picture.save(&buffer, "BMP"));
        machine.files.Put(path, bytes.toStdString());
    }

    static void Drag(QWidget& object, QPoint by)
    {
        const QPoint from(10, 10);
        QTest::mousePress(&object, Qt::LeftButton, {}, from);
        QMouseEvent move(QEvent::MouseMove, from + by, object.mapToGlobal(from + by), Qt::NoButton,
                         Qt::LeftButton, {});
        QApplication::sendEvent(&object, &move);
        QTest::mouseRelease(&object, Qt::LeftButton, {}, from + by);
    }

    // The last twips that an object may reach: the surface has a margin of 80, and a pixel stays
    // free.
    int RightOfSurface() { return Object("DesignScreen").width() * 15 - 80 - 15; }
    int BottomOfSurface() { return Object("DesignScreen").height() * 15 - 80 - 15; }

    /// A move of the mouse with buttons down.
    static void MoveHeld(QWidget& object, QPoint to, Qt::MouseButtons buttons)
    {
        QMouseEvent move(QEvent::MouseMove, to, object.mapToGlobal(to), Qt::NoButton, buttons, {});
        QApplication::sendEvent(&object, &move);
    }

    Project& project = session.project;
    std::unique_ptr<QTabWidget> tabs;
    DesignPage* page = nullptr;
};

} // namespace quillon::test
