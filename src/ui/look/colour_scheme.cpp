#include "ui/look/colour_scheme.h"

#include "ui/look/colours.h"
#include "ui/look/outline_style.h"

#include <QtDBus/QDBusConnection>
#include <QtDBus/QDBusMessage>
#include <QtDBus/QDBusVariant>
#include <QtWidgets>

namespace quillon {

namespace {

constexpr int kMaxWait = 200; // milliseconds

// Without an address, Qt would start a bus, which takes time.
bool HasBus()
{
    return qEnvironmentVariableIsSet("DBUS_SESSION_BUS_ADDRESS") ||
           QFile::exists(qEnvironmentVariable("XDG_RUNTIME_DIR", "/nowhere") + "/bus");
}

bool DesktopPrefersDark()
{
    if (!HasBus())
        return false;
    QDBusMessage question = QDBusMessage::createMethodCall(
        "org.freedesktop.portal.Desktop", "/org/freedesktop/portal/desktop",
        "org.freedesktop.portal.Settings", "Read");
    question << QString("org.freedesktop.appearance") << QString("color-scheme");
    // A desktop that has such a portal has it running.
    question.setAutoStartService(false);
    const QDBusMessage answer =
        QDBusConnection::sessionBus().call(question, QDBus::Block, kMaxWait);
    return answer.type() == QDBusMessage::ReplyMessage && !answer.arguments().isEmpty() &&
           IsDarkPreference(answer.arguments().front());
}

} // namespace

bool IsDarkPreference(const QVariant& answer)
{
    QVariant inside = answer;
    while (inside.metaType() == QMetaType::fromType<QDBusVariant>())
        inside = inside.value<QDBusVariant>().variant();
    constexpr uint kDark = 1;
    bool isNumber = false;
    return inside.toUInt(&isNumber) == kDark && isNumber;
}

QPalette DarkPalette()
{
    const QColor window(0x2b, 0x2d, 0x31);
    const QColor text(0xe8, 0xe9, 0xeb);
    const QColor off(0x80, 0x83, 0x89);
    // The other shades of bevels follow from the button's colour.
    QPalette palette(QColor(0x38, 0x3b, 0x40), window);
    palette.setColor(QPalette::Base, QColor(0x1f, 0x21, 0x24));
    palette.setColor(QPalette::AlternateBase, QColor(0x27, 0x29, 0x2d));
    palette.setColor(QPalette::ToolTipBase, QColor(0x3a, 0x3d, 0x43));
    palette.setColor(QPalette::Highlight, QColor(0x2c, 0x6c, 0xc4));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Link, QColor(0x6c, 0xac, 0xff));
    palette.setColor(QPalette::LinkVisited, QColor(0xb9, 0x9a, 0xff));
    palette.setColor(QPalette::BrightText, Qt::white);
    palette.setColor(QPalette::PlaceholderText, off);
    for (const auto role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText}) {
        palette.setColor(role, text);
        palette.setColor(QPalette::Disabled, role, off);
    }
    palette.setColor(QPalette::Disabled, QPalette::Base, window);
    palette.setColor(QPalette::Disabled, QPalette::Highlight, QColor(0x4a, 0x4e, 0x55));
    return palette;
}

void ApplyColourScheme()
{
    // A desktop's own style has its own colours.
    const bool isOurs =
        QApplication::style()->objectName().compare("fusion", Qt::CaseInsensitive) == 0;
    if (!isOurs)
        return;
    QApplication::setStyle(new OutlineStyle);
    if (!IsDark(QApplication::palette()) && DesktopPrefersDark())
        QApplication::setPalette(DarkPalette());
}

} // namespace quillon
