#include "ui/controls/LinkLabel.h"

#include "platform/failure_text.h"
#include "shell/session.h"
#include "ui/qt_text.h"

namespace quillon {

LinkLabel::LinkLabel(const Text& text, std::function<void()> open)
{
    setTextInteractionFlags(Qt::LinksAccessibleByMouse | Qt::LinksAccessibleByKeyboard);
    setWordWrap(true);
    ShowLink(text);
    connect(this, &QLabel::linkActivated, this, [open = std::move(open)] { open(); });
}

LinkLabel::LinkLabel(Session& session, const Text& text, const Text& target)
    : LinkLabel(text, [&session, target] { OpenOrTell(session, target); })
{
}

void LinkLabel::ShowLink(const Text& text)
{
    setText("<a href=\"#\">" + ToQt(text).toHtmlEscaped() + "</a>");
    setAccessibleName(ToQt(text));
}

void OpenOrTell(Session& session, const Text& target)
{
    try {
        session.host.machine.OpenDocument(target);
    } catch (const RunError& error) {
        session.ask.Critical("Fel", FailureText(error, target));
    }
}

} // namespace quillon
