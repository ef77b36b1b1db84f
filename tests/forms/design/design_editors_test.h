// For tests of the editors of the design's objects: a project with a surface of usual size.
#pragma once

#include "support/window_test.h"

namespace quillon::test {

class DesignEditorsTest : public WindowTest {
protected:
    DesignEditorsTest()
    {
        session.surface.width = 640;
        session.surface.height = 480;
    }

    /// Types an entry, leaves the field and gives what it became.
    static Text Left(QWidget& form, const char* name, const Text& entry)
    {
        Type(form, name, entry);
        Find<QWidget>(form, "cmdCancel").setFocus();
        return TextIn(form, name);
    }

    Project& project = session.project;
};

} // namespace quillon::test
