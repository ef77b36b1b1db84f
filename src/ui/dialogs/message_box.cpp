#include "ui/dialogs/message_box.h"

#include "ui/look/icons.h"

#include <QtWidgets>

namespace quillon {

namespace {

const char* PictureOf(QMessageBox::Icon icon)
{
    switch (icon) {
    case QMessageBox::Warning:
        return "box-warning";
    case QMessageBox::Critical:
        return "box-critical";
    case QMessageBox::Question:
        return "box-question";
    default:
        return "box-information";
    }
}

} // namespace

void ShowOwnPicture(QMessageBox& box)
{
    const int side = box.style()->pixelMetric(QStyle::PM_MessageBoxIconSize, nullptr, &box);
    const QIcon picture = NamedIcon(PictureOf(box.icon()));
    box.setIconPixmap(picture.pixmap(QSize(side, side), box.devicePixelRatioF()));
}

} // namespace quillon
