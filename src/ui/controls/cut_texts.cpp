#include "ui/controls/cut_texts.h"

#include <QtWidgets>

namespace quillon {

namespace {

/// The cell's text where its view shows less than the whole of it.
QString CutText(const QAbstractItemView& view, const QModelIndex& cell)
{
    const QRect shown = view.visualRect(cell).intersected(view.viewport()->rect());
    return view.sizeHintForIndex(cell).width() > shown.width()
               ? cell.data(Qt::DisplayRole).toString()
               : QString();
}

class ElidedTexts : public QObject {
public:
    using QObject::QObject;

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() != QEvent::ToolTip)
            return false;
        auto* view = qobject_cast<QAbstractItemView*>(watched->parent());
        if (!view || view->viewport() != watched || qobject_cast<QHeaderView*>(view))
            return false;
        const auto* help = static_cast<QHelpEvent*>(event);
        const QModelIndex cell = view->indexAt(help->pos());
        if (!cell.isValid() || !cell.data(Qt::ToolTipRole).toString().isEmpty())
            return false;
        // As rich text, which wraps; a row may be called "<Dir>".
        const QString text = CutText(*view, cell).toHtmlEscaped();
        QToolTip::showText(help->globalPos(), text.isEmpty() ? text : "<qt>" + text + "</qt>",
                           view->viewport(), view->visualRect(cell));
        return true;
    }
};

} // namespace

void ShowElidedTextsAsToolTips(QCoreApplication& application)
{
    application.installEventFilter(new ElidedTexts(&application));
}

} // namespace quillon
