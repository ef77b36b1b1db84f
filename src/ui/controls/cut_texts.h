// Tool tips for the cells of lists, trees and tables whose text is cut.
#pragma once

class QCoreApplication;

namespace quillon {

/// In all lists of the program, from now on. A cell that has a tip of its own keeps that one.
void ShowElidedTextsAsToolTips(QCoreApplication& application);

} // namespace quillon
