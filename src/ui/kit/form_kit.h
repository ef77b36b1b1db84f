// How a form is declared: the places, names and captions of its pieces. Pieces have
// no positions in pixels, so that no font, scale or text can break a form.
//
//   VBox({Fields({{"&Namn:", Field(NAMED(tName), name)}}), Stretch(), OkCancel()})
#pragma once

#include "helpers/text.h"

#include <QString>
#include <initializer_list>
#include <vector>

class QBoxLayout;
class QCheckBox;
class QGroupBox;
class QLabel;
class QLayout;
class QWidget;

// The member that holds a control and, from the same word, the control's object name.
#define NAMED(control) control, #control

namespace quillon {

/// A piece of a form: a widget, a layout of pieces, or room that grows.
struct Piece {
    Piece(QWidget* shown) : widget(shown) {}
    Piece(QLayout* arranged) : layout(arranged) {}

    QWidget* widget = nullptr;
    QLayout* layout = nullptr;
    int stretch = 0;

private:
    Piece() = default;
    friend Piece Stretch();
};

using Pieces = std::initializer_list<Piece>;

Piece VBox(Pieces pieces);
Piece HBox(Pieces pieces);
/// Room that takes what is left over.
Piece Stretch();
/// The piece takes `stretch` parts of what is left over.
Piece Growing(Piece piece, int stretch = 1);

/// A box with a caption round a column of pieces.
QGroupBox* Frame(const Text& caption, Pieces pieces);

struct LabelledPiece {
    Text caption; // "&" precedes the letter that leads to the piece
    Piece piece;
};
/// Captions to the left, pieces to the right, both in line. A caption names its piece for screen
/// readers too.
Piece Fields(std::initializer_list<LabelledPiece> rows);
/// The caption is above its piece.
Piece Above(const Text& caption, Piece piece);

/// The pieces as one widget, such as a tab.
QWidget* Group(Piece pieces);

/// The widget, wide enough for this many usual letters of its font.
QWidget* MinWidth(int letters, QWidget* widget);

/// Ticking one of the boxes unticks the others from now on; none may be ticked, too.
void AtMostOne(std::initializer_list<QCheckBox*> boxes);

/// Running text; it wraps where the form is narrower.
QLabel* Note(const Text& text);

/// Gives a widget its object name, and the words that a screen reader says where there is no
/// caption beside it.
template <class Widget>
Widget* Named(Widget*& member, const char* name, Widget* widget, const Text& accessibleName = {})
{
    member = widget;
    widget->setObjectName(QString::fromLatin1(name));
    if (!accessibleName.empty())
        widget->setAccessibleName(QString::fromStdString(accessibleName));
    return widget;
}

/// Fills a widget with the pieces.
void Arrange(QWidget* widget, Piece pieces);

} // namespace quillon
