#include "ui/kit/Page.h"

#include "ui/qt_text.h"

#include <QtWidgets>

namespace quillon {

QPushButton* Page::Button(QPushButton*& member, const char* name, const Text& caption,
                          std::function<void()> press)
{
    auto* button = Named(member, name, new QPushButton(ToQt(caption)));
    button->setAutoDefault(false);
    button->setEnabled(press != nullptr);
    if (press)
        connect(button, &QPushButton::clicked, this, [press = std::move(press)] { press(); });
    return button;
}

} // namespace quillon
