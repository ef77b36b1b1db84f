// What a list, a tree or a table has no room for can still be read: a tip shows the text of a cell
// that is cut, under the mouse.
#pragma once

class QCoreApplication;

namespace quillon {

/// In all lists of the program, from now on. A cell that has a tip of its own keeps that one.
void ShowElidedTextsAsToolTips(QCoreApplication& application);

} // namespace quillon
