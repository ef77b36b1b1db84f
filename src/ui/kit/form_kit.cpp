#include "ui/kit/form_kit.h"

#include "ui/qt_text.h"

#include <QtWidgets>

namespace quillon {

namespace {

// A caption of "&Namn:" is read aloud as "Namn".
QString AccessibleNameOf(const Text& caption)
{
    QString name = ToQt(caption).remove(QRegularExpression("&(?!&)")).trimmed();
    while (name.endsWith(':'))
        name.chop(1);
    return name;
}

/// The widget of a piece that a caption leads to: the piece itself or the first that takes keys.
QWidget* Reached(const Piece& piece)
{
    if (piece.widget)
        return piece.widget;
    for (int i = 0; piece.layout && i < piece.layout->count(); ++i)
        if (QWidget* widget = piece.layout->itemAt(i)->widget();
            widget && widget->focusPolicy() != Qt::NoFocus)
            return widget;
    return nullptr;
}

QLabel* Caption(const Text& caption, const Piece& piece)
{
    auto* label = new QLabel(ToQt(caption));
    if (QWidget* widget = Reached(piece)) {
        label->setBuddy(widget);
        if (widget->accessibleName().isEmpty())
            widget->setAccessibleName(AccessibleNameOf(caption));
    }
    return label;
}

void Add(QBoxLayout* box, const Piece& piece)
{
    if (piece.widget)
        box->addWidget(piece.widget, piece.stretch);
    else if (piece.layout)
        box->addLayout(piece.layout, piece.stretch);
    else
        box->addStretch(piece.stretch);
}

Piece Arranged(QBoxLayout* box, Pieces pieces)
{
    for (const Piece& piece : pieces)
        Add(box, piece);
    return box;
}

} // namespace

Piece VBox(Pieces pieces)
{
    return Arranged(new QVBoxLayout, pieces);
}

Piece HBox(Pieces pieces)
{
    return Arranged(new QHBoxLayout, pieces);
}

Piece Stretch()
{
    Piece room;
    room.stretch = 1;
    return room;
}

Piece Growing(Piece piece, int stretch)
{
    piece.stretch = stretch;
    return piece;
}

QGroupBox* Frame(const Text& caption, Pieces pieces)
{
    auto* frame = new QGroupBox(ToQt(caption));
    frame->setLayout(VBox(pieces).layout);
    // A field without a caption of its own has the frame's caption as its accessible name.
    for (const Piece& piece : pieces)
        if (piece.widget && piece.widget->inherits("QLineEdit") &&
            piece.widget->accessibleName().isEmpty())
            piece.widget->setAccessibleName(AccessibleNameOf(caption));
    return frame;
}

Piece Fields(std::initializer_list<LabelledPiece> rows)
{
    auto* grid = new QGridLayout;
    grid->setColumnStretch(1, 1);
    int line = 0;
    for (const LabelledPiece& row : rows) {
        grid->addWidget(Caption(row.caption, row.piece), line, 0);
        if (row.piece.widget)
            grid->addWidget(row.piece.widget, line, 1);
        else
            grid->addLayout(row.piece.layout, line, 1);
        ++line;
    }
    return grid;
}

Piece Above(const Text& caption, Piece piece)
{
    auto* box = new QVBoxLayout;
    box->addWidget(Caption(caption, piece));
    Piece below = piece;
    below.stretch = 1;
    Add(box, below);
    return box;
}

QWidget* Group(Piece pieces)
{
    auto* widget = new QWidget;
    Arrange(widget, pieces);
    return widget;
}

QWidget* MinWidth(int letters, QWidget* widget)
{
    widget->setMinimumWidth(letters * widget->fontMetrics().averageCharWidth());
    return widget;
}

void AtMostOne(std::initializer_list<QCheckBox*> boxes)
{
    for (QCheckBox* box : boxes)
        for (QCheckBox* other : boxes)
            if (other != box)
                QObject::connect(box, &QCheckBox::toggled, other, [other](bool isTicked) {
                    if (isTicked)
                        other->setChecked(false);
                });
}

QLabel* Note(const Text& text)
{
    auto* label = new QLabel(ToQt(text));
    label->setWordWrap(true);
    return label;
}

void Arrange(QWidget* widget, Piece pieces)
{
    QLayout* layout = pieces.layout;
    if (!layout) {
        layout = new QVBoxLayout;
        layout->addWidget(pieces.widget);
    }
    widget->setLayout(layout);
}

} // namespace quillon
