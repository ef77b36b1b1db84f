// Faults of a window for users who look at it, hear it read aloud or use its keys. Each function
// gives the faults as lines to print; none for a window without any.
#pragma once

#include <string>
#include <vector>

class QWidget;

namespace quillon::test {

/// Controls that take the focus and have nothing that a screen reader could say.
std::vector<std::string> UnnamedControls(QWidget& window);

/// Captions that are wider or higher than the widget that shows them, at the window's present size.
std::vector<std::string> CutCaptions(QWidget& window);

/// Access letters that lead to more than one thing in view, menu titles included.
std::vector<std::string> SharedAccessLetters(QWidget& window);

/// Steps of the Tab key that lead back to what stands above or to the left on the same line.
std::vector<std::string> StepsBackByTab(QWidget& window);

/// Entries of one menu that share an access letter, in all menus of the window.
std::vector<std::string> SharedMenuLetters(QWidget& window);

} // namespace quillon::test
