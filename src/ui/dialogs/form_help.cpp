#include "ui/dialogs/form_help.h"

#include "ui/controls/RunningText.h"
#include "ui/qt_text.h"

#include <QtWidgets>

namespace quillon {

namespace {

constexpr int kLettersInLine = 70;
constexpr int kLinesInView = 16;

QString CaptionOf(const QWidget& widget)
{
    if (widget.isWindow())
        return widget.windowTitle();
    if (!widget.accessibleName().isEmpty())
        return widget.accessibleName();
    const auto* button = qobject_cast<const QAbstractButton*>(&widget);
    QString caption = button ? button->text().remove(QRegularExpression("&(?!&)")) : QString();
    return caption.remove("...");
}

void AddTopic(const QWidget& widget, std::vector<HelpTopic>& topics)
{
    if (!widget.whatsThis().isEmpty())
        topics.push_back({FromQt(CaptionOf(widget)), FromQt(widget.whatsThis())});
}

} // namespace

std::vector<HelpTopic> HelpTopicsOf(const QWidget& form)
{
    std::vector<HelpTopic> topics;
    AddTopic(form, topics);
    for (const QWidget* widget = form.nextInFocusChain(); widget != &form;
         widget = widget->nextInFocusChain())
        if (form.isAncestorOf(widget))
            AddTopic(*widget, topics);
    return topics;
}

DlgFormHelp::DlgFormHelp(const QWidget& form, QWidget* parent)
    : Form("DlgFormHelp", "Hjälp", parent)
{
    Named(NAMED(tHelp), new RunningText({}, "Hjälp"));
    tHelp->LieOnPaper();
    QTextCursor cursor(tHelp->document());
    QTextCharFormat caption;
    caption.setFontWeight(QFont::Bold);
    for (const HelpTopic& topic : HelpTopicsOf(form)) {
        if (!cursor.atStart())
            cursor.insertText("\n\n", QTextCharFormat());
        cursor.insertText(ToQt(topic.caption), caption);
        cursor.insertText("\n" + ToQt(topic.text), QTextCharFormat());
    }
    tHelp->moveCursor(QTextCursor::Start);
    tHelp->setMinimumHeight(kLinesInView * tHelp->fontMetrics().lineSpacing());
    Arrange(VBox({Growing(MinWidth(kLettersInLine, tHelp)), OkOnly()}));
}

} // namespace quillon
